#include "graphics3d/buffers/indexbufferlines.h"
#include "graphics3d/buffers/indexbufferlinestrips.h"
#include "graphics3d/buffers/indexbufferquads.h"
#include "graphics3d/buffers/indexbuffertriangles.h"
#include "graphics3d/buffers/vertexbuffercoords.h"

#include <gtest/gtest.h>

#include <limits>
#include <stdexcept>
#include <vector>

namespace vxgraphics3d {
namespace {

using Ints = std::vector<int>;

constexpr int c_narrow = 65535;
constexpr int c_wide = 65536;

class IndexBufferTest : public testing::Test {
protected:
    explicit IndexBufferTest(int capacity = 10)
    {
        vertices.allocate(capacity);
        for (int i = 0; i < 10; ++i) {
            vertices.appendVertex(static_cast<float>(i), 0, 0);
        }
    }

    static Ints indices(const IndexBuffer& buffer)
    {
        Ints result;
        for (int i = 0; i < buffer.getNumIndices(); ++i) {
            result.push_back(buffer.getVertexIndex(0, i));
        }
        return result;
    }

    VertexBufferCoords vertices;
};

/// The same at both index widths.
class IndexBufferWidths : public IndexBufferTest, public testing::WithParamInterface<int> {
protected:
    IndexBufferWidths() : IndexBufferTest(GetParam()) {}
};
INSTANTIATE_TEST_SUITE_P(Widths, IndexBufferWidths, testing::Values(c_narrow, c_wide));

TEST(IndexBuffer, indexCountsDependOnTheType)
{
    const int perElem[] = {2, 1, 3, 4, 0};
    const int perSegment[] = {0, 1, 0, 0, 0};
    for (int type = 0; type < 5; ++type) {
        EXPECT_EQ(IndexBuffer::indicesPerElem(static_cast<IndexBuffer::Type>(type)), perElem[type]);
        EXPECT_EQ(IndexBuffer::indicesPerSegment(static_cast<IndexBuffer::Type>(type)), perSegment[type]);
    }
    EXPECT_EQ(IndexBuffer::indicesPerElem(static_cast<IndexBuffer::Type>(-1)), 0);
    const VertexBufferCoords vertices;
    EXPECT_EQ(IndexBufferLines(vertices).getType(), IndexBuffer::Lines);
    EXPECT_EQ(IndexBufferLineStrips(vertices).getType(), IndexBuffer::LineStrips);
    EXPECT_EQ(IndexBufferTriangles(vertices).getType(), IndexBuffer::Triangles);
    EXPECT_EQ(IndexBufferQuads(vertices).getType(), IndexBuffer::Quads);
}

TEST_P(IndexBufferWidths, onlyTheArrayOfTheVertexBuffersWidthExists)
{
    IndexBufferLines buffer(vertices);
    buffer.internalAllocate(1, 1);
    EXPECT_EQ(buffer.uses32BitIndices(), GetParam() == c_wide);
    EXPECT_EQ(buffer.getIndices32() != nullptr, GetParam() == c_wide);
    EXPECT_EQ(buffer.getIndices16() != nullptr, GetParam() == c_narrow);
}

TEST_F(IndexBufferTest, eachAllocationChoosesTheWidthAgain)
{
    IndexBufferLines buffer(vertices);
    vertices.allocate(c_wide);
    buffer.internalAllocate(1, 1);
    vertices.allocate(c_narrow);
    buffer.internalAllocate(1, 1);
    EXPECT_FALSE(buffer.uses32BitIndices());
    EXPECT_NE(buffer.getIndices16(), nullptr);
    EXPECT_EQ(buffer.getIndices32(), nullptr);
}

TEST_F(IndexBufferTest, withoutElementsOrSegmentsNothingIsAllocated)
{
    IndexBufferTriangles buffer(vertices);
    EXPECT_EQ(buffer.getSegmentStarts(), Ints());
    const int counts[][2] = {{0, 1}, {1, 0}, {-1, 1}, {1, -1}};
    for (const auto& count : counts) {
        buffer.internalAllocate(count[0], count[1]);
        buffer.newSegment();
        EXPECT_EQ(buffer.getSegmentStarts(), Ints{0});
        EXPECT_EQ(buffer.getNumIndices(), 0);
        EXPECT_EQ(buffer.getNumElements(), 0);
        EXPECT_EQ(buffer.getNumElements(0), 0);
        EXPECT_EQ(buffer.getIndices16(), nullptr);
    }
    buffer.internalAllocate(2, 1);
    buffer.newSegment();
    buffer.appendTriangle(0, 1, 2);
    buffer.appendTriangle(3, 4, 5);
    EXPECT_EQ(buffer.getSegmentStarts(), (Ints{0, 6}));
    EXPECT_EQ(buffer.getNumElements(0), 2);
}

TEST_P(IndexBufferWidths, trianglesKeepTheirCornersInOrder)
{
    IndexBufferTriangles buffer(vertices);
    buffer.internalAllocate(6, 2);
    buffer.newSegment();
    buffer.appendTriangle(2, 1, 0);
    const int row[] = {3, 4, 5, 9, 8, 7};
    buffer.appendTriangles(row, 2);
    buffer.newSegment();
    const int a[] = {0, 1, 2};
    const int b[] = {3, 4, 5};
    const int c[] = {6, 7, 8};
    buffer.appendTriangles(a, b, c, 2);
    buffer.appendTriangles(a + 2, b + 2, c + 2, 1, -1);
    EXPECT_EQ(buffer.getSegmentStarts(), (Ints{0, 9, 18}));
    EXPECT_EQ(indices(buffer), (Ints{2, 1, 0, 3, 4, 5, 9, 8, 7, 0, 3, 6, 1, 4, 7, 1, 4, 7}));
    int x;
    int y;
    int z;
    buffer.getTriangle(3, x, y, z);
    EXPECT_EQ((Ints{x, y, z}), (Ints{0, 3, 6}));
    EXPECT_EQ(buffer.getVertexIndex(0, 4), 4);
    EXPECT_EQ(buffer.getVertexIndex(1, 2), 6);
    EXPECT_EQ(buffer.getVertex(1, 2), Vector3f(6.0f, 0.0f, 0.0f));
    EXPECT_EQ(buffer.getNumElements(0), 3);
    EXPECT_EQ(buffer.getNumElements(1), 3);
    EXPECT_EQ(buffer.getNumElements(2), 0);
    EXPECT_EQ(buffer.getNumElements(-1), 0);
}

TEST_P(IndexBufferWidths, linesAreReadAcrossSegments)
{
    IndexBufferLines buffer(vertices);
    buffer.internalAllocate(4, 2);
    buffer.newSegment();
    buffer.appendLine(5, 4);
    buffer.newSegment();
    const int from[] = {1, 2, 3};
    const int to[] = {7, 8, 9};
    buffer.appendLines(from, to, 1);
    buffer.appendLines(from + 1, to + 1, 2, -2);
    int x;
    int y;
    buffer.getLine(1, x, y);
    EXPECT_EQ((Ints{x, y}), (Ints{1, 7}));
    EXPECT_EQ(indices(buffer), (Ints{5, 4, 1, 7, 0, 6, 1, 7}));
    EXPECT_EQ(buffer.getSegmentStarts(), (Ints{0, 2, 8}));
}

TEST_F(IndexBufferTest, bulkAppendsBeyondTheCapacityAreRefused)
{
    const int four[] = {1, 2, 3, 4};
    IndexBufferTriangles triangles(vertices);
    EXPECT_THROW(triangles.appendTriangles(four, four, four, 1), std::out_of_range);
    triangles.internalAllocate(2, 1);
    triangles.newSegment();
    triangles.appendTriangles(four, four, four, 1);
    EXPECT_THROW(triangles.appendTriangles(four, four, four, 2), std::out_of_range);
    EXPECT_THROW(triangles.appendTriangles(four, -1), std::out_of_range);
    EXPECT_THROW(triangles.appendTriangles(four, std::numeric_limits<int>::max()), std::out_of_range);
    EXPECT_EQ(triangles.getSegmentStarts(), (Ints{0, 3}));
    IndexBufferLines lines(vertices);
    lines.internalAllocate(1, 1);
    lines.newSegment();
    EXPECT_THROW(lines.appendLines(four, four, 2), std::out_of_range);
}

TEST_P(IndexBufferWidths, importCopiesOnlyTheAppendedElements)
{
    IndexBufferLineStrips source(vertices);
    source.internalAllocate(7, 3);
    source.newStrip(1);
    source.appendStrip(2);
    source.newStrip(4);
    source.appendStrip(5);
    source.appendStrip(6);
    EXPECT_EQ(source.getNumIndices(), 10);
    EXPECT_EQ(source.getSegmentStarts(), (Ints{0, 2, 5}));
    EXPECT_EQ(source.getNumElements(1), 2);

    IndexBufferLineStrips copy(vertices);
    copy.internalAllocate(1, 1);
    copy.import(source);
    EXPECT_EQ(copy.getNumElements(), 3);
    EXPECT_EQ(copy.getNumSegments(), 2);
    EXPECT_EQ(copy.getSegmentStarts(), (Ints{0, 2, 5}));
    EXPECT_EQ(indices(copy), (Ints{1, 2, 4, 5, 6}));
    copy.import(copy);
    EXPECT_EQ(indices(copy), (Ints{1, 2, 4, 5, 6}));
}

TEST_F(IndexBufferTest, importOfBuffersWithoutElementsGivesNoArray)
{
    IndexBufferLineStrips never(vertices);
    IndexBufferLineStrips opened(vertices);
    opened.internalAllocate(3, 2);
    opened.newSegment();
    opened.newSegment();
    IndexBufferLineStrips lonePoint(vertices);
    lonePoint.internalAllocate(3, 2);
    lonePoint.newStrip(1);
    for (const IndexBufferLineStrips* source : {&never, &opened, &lonePoint}) {
        IndexBufferLineStrips copy(vertices);
        copy.internalAllocate(1, 1);
        copy.import(*source);
        EXPECT_EQ(copy.getNumIndices(), 0);
        EXPECT_EQ(copy.getIndices16(), nullptr);
        EXPECT_TRUE(copy.getSegmentStarts().empty() || copy.getSegmentStarts().back() == 0);
    }
}

TEST_F(IndexBufferTest, importRefusesOtherTypesAndWidths)
{
    IndexBufferLines lines(vertices);
    lines.internalAllocate(1, 1);
    lines.newSegment();
    lines.appendLine(0, 1);
    IndexBufferTriangles triangles(vertices);
    EXPECT_THROW(triangles.import(lines), std::invalid_argument);
    VertexBufferCoords many;
    many.allocate(c_wide);
    IndexBufferLines wide(many);
    wide.internalAllocate(2, 1);
    EXPECT_THROW(wide.import(lines), std::invalid_argument);
    EXPECT_EQ(wide.getNumElements(), 2);
}

TEST_F(IndexBufferTest, deallocateDropsEverythingAndAllowsReuse)
{
    IndexBufferLines buffer(vertices);
    buffer.internalAllocate(1, 1);
    buffer.newSegment();
    buffer.appendLine(0, 1);
    buffer.deallocate();
    EXPECT_EQ(buffer.getNumIndices() + buffer.getNumElements() + buffer.getNumSegments(), 0);
    EXPECT_EQ(buffer.getIndices16(), nullptr);
    EXPECT_EQ(buffer.getSegmentStarts(), Ints());
    buffer.internalAllocate(2, 1);
    EXPECT_EQ(buffer.getSegmentStarts(), Ints{0});
}

TEST_F(IndexBufferTest, indexCountsBeyondAnIntAreRefusedBeforeAnyChange)
{
    IndexBufferTriangles buffer(vertices);
    buffer.internalAllocate(1, 1);
    EXPECT_THROW(buffer.internalAllocate(std::numeric_limits<int>::max() / 3 + 1, 1), std::invalid_argument);
    EXPECT_EQ(buffer.getNumElements(), 1);
}

} // namespace
} // namespace vxgraphics3d
