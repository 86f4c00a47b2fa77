#include "base/exception.h"
#include "base/serialstream.h"
#include "datacarrier/boundingbox2d.h"
#include "datacarrier/curve3d.h"
#include "datacarrier/sheet3d.h"
#include "tests/support/randomnumbers.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <limits>
#include <memory>
#include <stdexcept>
#include <string>

namespace vxdatacarrier {
namespace {

using vxbase::ISerialStream;
using vxbase::OSerialStream;

template <class Record>
std::string bytesOf(const Record& record, OSerialStream::Comments comments = OSerialStream::Comments::dropped)
{
    OSerialStream out(comments);
    vxbase::Prop prop;
    record.serialize(out, prop);
    return out.bytes();
}

template <class Record>
void read(Record& record, const std::string& bytes)
{
    ISerialStream in(bytes.data(), bytes.size());
    record.deserialize(in);
}

Sheet3D randomSheet(int numVertices, int numTriangles)
{
    vxgraphics3d::RandomNumbers random(static_cast<unsigned>(numVertices));
    Sheet3D sheet;
    sheet.m_isValid = true;
    sheet.m_box.m_yMax = random.uniform(1, 2);
    sheet.m_numVertices = numVertices;
    sheet.m_vertices = std::make_unique<CoordsNormal3D[]>(static_cast<std::size_t>(numVertices));
    for (std::size_t i = 0; i < static_cast<std::size_t>(numVertices); ++i) {
        const auto number = [&] { return random.uniform(-9, 9); };
        sheet.m_vertices[i] = {number(), number(), number(), number(), number(), number()};
    }
    sheet.m_numTriangles = numTriangles;
    sheet.m_triangles = std::make_unique<Triangle[]>(static_cast<std::size_t>(numTriangles));
    for (std::size_t i = 0; i < static_cast<std::size_t>(numTriangles); ++i) {
        const auto corner = [&] { return random.integer(0, numVertices - 1); };
        sheet.m_triangles[i] = {corner(), corner(), corner()};
    }
    sheet.m_upDomain = 4;
    return sheet;
}

Curve3D curveOf(int numVertices)
{
    Curve3D curve;
    curve.m_isValid = true;
    curve.m_box.m_zMin = -1;
    curve.m_numVertices = numVertices;
    curve.m_vertices = std::make_unique<Coords3D[]>(static_cast<std::size_t>(numVertices));
    for (int i = 0; i < numVertices; ++i) {
        const auto at = static_cast<float>(i);
        curve.m_vertices[static_cast<std::size_t>(i)] = {at, at + 0.25f, at + 0.5f};
    }
    return curve;
}

TEST(SerialRecords, haveTheValuesAndCommentsOfTheForm)
{
    OSerialStream out(OSerialStream::Comments::written);
    const auto comment = [&](const char* text) { out.comment(text); };
    out << 0u;
    comment("version");
    out << true;
    comment("is valid");
    comment("Bounding box");
    out << 0u;
    comment("version");
    const char* const names[] = {"minimum x-coordinate", "maximum x-coordinate", "minimum y-coordinate",
                                 "maximum y-coordinate", "minimum z-coordinate", "maximum z-coordinate"};
    for (int i = 0; i < 6; ++i) {
        out << static_cast<float>(i);
        comment(names[i]);
    }
    out << 1 << 0;
    std::string expected = out.bytes();

    Sheet3D sheet;
    sheet.m_isValid = true;
    sheet.m_box.m_xMax = 1;
    sheet.m_box.m_yMin = 2;
    sheet.m_box.m_yMax = 3;
    sheet.m_box.m_zMin = 4;
    sheet.m_box.m_zMax = 5;
    sheet.m_numVertices = 1;
    sheet.m_vertices = std::make_unique<CoordsNormal3D[]>(1);
    sheet.m_vertices[0] = {1, 2, 3, 4, 5, 6};
    sheet.m_downDomain = 2;
    OSerialStream counts(OSerialStream::Comments::written);
    counts << 1;
    counts.comment("number of vertices");
    counts << 0;
    counts.comment("number of triangles");
    counts.comment("Vertex coordinates and normals");
    counts << 1.0f << 2.0f << 3.0f << 4.0f << 5.0f << 6.0f;
    counts.comment("Triangles");
    counts.comment("Domain on up side");
    counts << -1;
    counts.comment("Domain on down side");
    counts << 2;
    expected.resize(expected.size() - 10); // the two counts, which have comments
    EXPECT_EQ(bytesOf(sheet, OSerialStream::Comments::written), expected + counts.bytes());
    EXPECT_TRUE(sheet.isOfType("RenderSheet3D"));
    EXPECT_FALSE(sheet.isOfType("RenderCurve3D"));

    sheet.m_isValid = false;
    OSerialStream flag;
    flag << 0u << false;
    EXPECT_EQ(bytesOf(sheet), flag.bytes());
}

template <class Record>
void expectRoundTrip(const Record& record)
{
    for (const auto comments : {OSerialStream::Comments::dropped, OSerialStream::Comments::written}) {
        Record again;
        read(again, bytesOf(record, comments));
        EXPECT_EQ(bytesOf(again), bytesOf(record));
    }
    // Every prefix is refused.
    const std::string bytes = bytesOf(record);
    for (std::size_t size = 0; size < bytes.size(); ++size) {
        Record again;
        EXPECT_THROW(read(again, bytes.substr(0, size)), std::out_of_range) << size;
    }
    // Another version is, too, and changes nothing.
    std::string other = bytes;
    other[1] = '\1';
    Record unchanged;
    const std::string before = bytesOf(unchanged);
    try {
        read(unchanged, other);
        ADD_FAILURE();
    } catch (const vxbase::Exception& caught) {
        EXPECT_EQ(caught.getKey(), "Incompatible_native_file_version");
    }
    EXPECT_EQ(bytesOf(unchanged), before);
}

TEST(SerialRecords, comeBackAsTheyWereOrAreRefused)
{
    BoundingBox2D box;
    box.m_xMin = -1;
    box.m_yMax = 0.1f;
    expectRoundTrip(box);
    expectRoundTrip(randomSheet(9, 5));
    expectRoundTrip(randomSheet(1, 0));
    expectRoundTrip(curveOf(4));
    expectRoundTrip(curveOf(0));

    Curve3D empty;
    read(empty, bytesOf(curveOf(0)));
    EXPECT_TRUE(empty.m_isValid);
    // One that was not valid leaves everything.
    Curve3D curve = curveOf(3);
    read(curve, bytesOf(Curve3D()));
    EXPECT_TRUE(curve.m_isValid);
    EXPECT_EQ(curve.m_numVertices, 3);
}

TEST(SerialRecords, refuseCountsThatTheirBytesCannotHave)
{
    // The box takes 30 bytes more than the version, the counts follow.
    const std::size_t countAt = 5 + 2 + 5 + 30;
    const int huge = std::numeric_limits<int>::max();
    for (const int count : {huge, 1 << 30, 3, -1, -huge - 1}) {
        const auto with = [&](std::string bytes, std::size_t at) {
            OSerialStream number;
            number << count;
            return bytes.replace(at, number.bytes().size(), number.bytes());
        };
        Sheet3D sheet = randomSheet(2, 2);
        const std::string before = bytesOf(sheet);
        EXPECT_THROW(read(sheet, with(before, countAt)), std::out_of_range) << count;
        EXPECT_THROW(read(sheet, with(before, countAt + 5)), std::out_of_range) << count;
        // Negative and large counts do not make up for each other.
        EXPECT_THROW(read(sheet, with(with(before, countAt), countAt + 5)), std::out_of_range) << count;
        EXPECT_EQ(bytesOf(sheet), before);
        Curve3D curve = curveOf(2);
        EXPECT_THROW(read(curve, with(bytesOf(curve), countAt)), std::out_of_range) << count;
    }
}

} // namespace
} // namespace vxdatacarrier
