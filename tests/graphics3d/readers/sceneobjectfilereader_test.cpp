#include "graphics3d/readers/sceneobjectfilereader.h"

#include "tests/support/capturederror.h"
#include "tests/support/failingallocation.h"
#include "tests/support/referencesolidreader.h"
#include "tests/support/temporaryfile.h"
#include "tests/support/textchanges.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace vxgraphics3d {
namespace {

using vxdatacarrier::AdjacencyRecord;
using vxdatacarrier::RenderDraw3D;
using vxdatacarrier::Sheet3D;

/// A square of two triangles, and a triangle that is upright on its edge from coordinate 2 to coordinate 3.
const std::string c_coordinates = "% Coordinates [5]\n-3 0 0\n-2 0 0\n-2 1 0\n-3 1 0\n-2 0 1\n";

bool read(RenderDraw3D& record, const std::string& text, const Vector3f& offset = Vector3f())
{
    const TemporaryFile file(text);
    return SceneObjectFileReader::readDrawObjectSolid(record, file.path(), offset);
}

RenderDraw3D solidOf(const std::string& text, const Vector3f& offset = Vector3f())
{
    RenderDraw3D record;
    EXPECT_TRUE(read(record, text, offset)) << text;
    return record;
}

/// The vertices of a sheet, as rows of position and normal.
std::vector<std::vector<float>> verticesOf(const Sheet3D& sheet)
{
    std::vector<std::vector<float>> rows;
    for (int i = 0; i < sheet.m_numVertices; ++i) {
        const auto& at = sheet.m_vertices[static_cast<std::size_t>(i)];
        rows.push_back({at.x, at.y, at.z, at.nx, at.ny, at.nz});
    }
    return rows;
}

/// Rows as start, count and their values; the row itself is the first number.
std::vector<std::vector<int>> rowsOf(const AdjacencyRecord& relation)
{
    std::vector<std::vector<int>> rows;
    for (int i = 0; i < relation.m_numRows; ++i) {
        const auto [start, count] = relation.m_rows[static_cast<std::size_t>(i)];
        rows.push_back({start, count});
        for (int value = start; value >= 0 && value < start + count; ++value) {
            rows.back().push_back(relation.m_values[static_cast<std::size_t>(value)]);
        }
    }
    return rows;
}

TEST(SceneObjectFileReader, givesEachFaceItsVerticesAndStartsItsNormalsFromThoseOfTheFaceBefore)
{
    const RenderDraw3D solid = solidOf(c_coordinates + "% Faces [2]\n1 2 3 9\n1 3 4 9\n2 3 5 4\n");
    ASSERT_EQ(solid.m_numSheets, 2);
    EXPECT_EQ(verticesOf(solid.m_sheets[0]),
              (std::vector<std::vector<float>>{
                  {-3, 0, 0, 0, 0, 1}, {-2, 0, 0, 0, 0, 1}, {-2, 1, 0, 0, 0, 1}, {-3, 1, 0, 0, 0, 1}}));
    ASSERT_EQ(solid.m_sheets[0].m_numTriangles, 2);
    EXPECT_EQ(solid.m_sheets[0].m_triangles[1].b, 2);
    EXPECT_EQ(solid.m_sheets[0].m_triangles[1].c, 3);
    EXPECT_EQ(solid.m_sheets[0].m_upDomain, -1);
    const float half = 1.0f / std::sqrt(2.0f);
    EXPECT_EQ(
        verticesOf(solid.m_sheets[1]),
        (std::vector<std::vector<float>>{{-2, 0, 0, half, 0, half}, {-2, 1, 0, half, 0, half}, {-2, 0, 1, 1, 0, 0}}));
    EXPECT_EQ(solid.m_sheets[1].m_triangles[0].c, 2);
    // The parts are left without boxes, the whole has one, here with negative maxima.
    EXPECT_EQ(solid.m_sheets[0].m_box.m_xMin, 0);
    EXPECT_EQ(solid.m_box.m_xMin, -3);
    EXPECT_EQ(solid.m_box.m_xMax, -2);
    EXPECT_EQ(solid.m_box.m_zMax, 1);
    EXPECT_FALSE(solid.m_isValid);
}

TEST(SceneObjectFileReader, readsPolylinesPointsAndRelationsWithAnOffset)
{
    // Tags and rows in forms that are unusual, but valid; the faces are numbered 3, 1, 3.
    const RenderDraw3D solid = solidOf("%#Coordinates of the frame[4]\r\n0 0 0 \r\n\t1\t0\t0\n \n1 1 0\n+0 1e0 0 0\n"
                                       "%-Faces[4]\n1 2 3 3\n1 2 3 1\n\n1 2 4 3\n"
                                       "%!Edges: [ +2 ] closed\n1 2 7\n2 4 7\n3 1 7\n4 4 6 9\n"
                                       "% Vertices [2]\n3\n1\n"
                                       "% Adj 1 0 [5]\n2 1\n2 2\n1 2\n"
                                       "% Adj 2 0 [4]\n3 1\n1 2\n1 1\n3 2\n"
                                       "% Adj 2 1 [2]\n1 2\n2 1",
                                       Vector3f(1.0f, 0.0f, -1.0f));
    ASSERT_EQ(solid.m_numSheets, 4);
    EXPECT_TRUE(solid.m_sheets[2].m_isValid);
    EXPECT_FALSE(solid.m_sheets[3].m_isValid);
    EXPECT_EQ(verticesOf(solid.m_sheets[2])[2], (std::vector<float>{1, 1, -1, 0, 0, 1}));
    ASSERT_EQ(solid.m_numCurves, 2);
    // Only the end of the last segment counts.
    ASSERT_EQ(solid.m_curves[0].m_numVertices, 4);
    EXPECT_EQ(solid.m_curves[0].m_vertices[2].y, 1);
    EXPECT_EQ(solid.m_curves[0].m_vertices[3].x, 1);
    EXPECT_EQ(solid.m_curves[1].m_numVertices, 2);
    ASSERT_EQ(solid.m_numPoints, 2);
    EXPECT_EQ(solid.m_points[0].x, 2);
    EXPECT_EQ(solid.m_points[1].z, -1);
    EXPECT_EQ(solid.m_box.m_xMin, 1);
    EXPECT_EQ(solid.m_box.m_xMax, 2);
    using Rows = std::vector<std::vector<int>>;
    EXPECT_EQ(rowsOf(solid.m_lineToPoint), (Rows{{2, 1, 1}, {0, 2, 0, 1}}));
    // A row that is interrupted has only its last part.
    EXPECT_EQ(rowsOf(solid.m_sheetToPoint), (Rows{{1, 2, 1, 0}, {-1, 0}, {3, 1, 1}, {-1, 0}}));
    EXPECT_EQ(rowsOf(solid.m_sheetToLine), (Rows{{0, 1, 1}, {1, 1, 0}, {-1, 0}, {-1, 0}}));
    EXPECT_EQ(solid.m_sheetToPoint.m_numValues, 4);
    EXPECT_EQ(solid.m_lineToPoint.m_numUsed, 3);
    EXPECT_EQ(solid.m_pointToLine.m_numRows, 0);
}

TEST(SceneObjectFileReader, agreesWithTheSimpleReaderOnChangedFiles)
{
    TextChanges changes(7);
    const auto rows = [&] {
        const auto index = [&](std::size_t count) { return std::to_string(changes.pick(count) + 1); };
        std::vector<std::string> result = {"% Coordinates [6]"};
        for (int i = 0; i < 6; ++i) {
            result.push_back(index(4) + ".5e0 -" + index(3) + " " + index(5));
        }
        result.emplace_back("% Faces [4]");
        for (std::size_t face = 1; face < 5; face += changes.pick(2)) {
            result.push_back(index(6) + ' ' + index(6) + ' ' + index(6) + ' ' + std::to_string(face));
            face += changes.pick(9) == 0 ? 4u : 0u;
        }
        result.emplace_back("% Edges [3]");
        for (std::size_t edge = 1; edge < 4; edge += changes.pick(2)) {
            result.push_back(index(6) + '\t' + index(6) + "  " + std::to_string(edge));
        }
        result.emplace_back("% Vertices [3]");
        for (int i = 0; i < 3; ++i) {
            result.push_back(index(6));
        }
        for (const char* tag : {"% Adj 1 0 [9]", "% Adj 2 0 [9]", "% Adj 2 1 [9]"}) {
            if (changes.pick(3) != 0) {
                result.emplace_back(tag);
                for (auto count = changes.pick(8); count != 0; --count) {
                    result.push_back(index(3) + " " + index(3));
                }
            }
        }
        return result;
    };
    CapturedError error;
    const TemporaryFile file;
    int numGood = 0;
    constexpr int c_numFiles = 3000;
    for (int i = 0; i < c_numFiles; ++i) {
        const std::string text = changes.changed(rows());
        file.write(text);
        ASSERT_EQ(differenceFromPlainSolid(file.path(), numGood), "") << "file " << i << ":\n" << text;
    }
    // Neither all valid nor all invalid, or the files would show little.
    EXPECT_GT(numGood, c_numFiles / 4);
    EXPECT_LT(numGood, c_numFiles * 3 / 4);
}

TEST(SceneObjectFileReader, leavesTheRecordUnchangedIfMemoryRunsOut)
{
    RenderDraw3D record = solidOf(c_coordinates);
    record.m_name = "a name that is too long to be stored in the string itself";
    const TemporaryFile file(c_coordinates + "% Faces [1]\n1 2 3 1\n% Edges [1]\n1 2 1\n2 3 1\n% Vertices [1]\n1\n" +
                             "% Adj 1 0 [1]\n1 1\n% Adj 2 1 [1]\n1 1\n");
    EXPECT_GT(failEachAllocation([&] { SceneObjectFileReader::readDrawObjectSolid(record, file.path(), Vector3f()); },
                                 [&] { EXPECT_EQ(record.m_numSheets, 0); }),
              10);
    EXPECT_EQ(record.m_numSheets, 1);
    EXPECT_EQ(record.m_name.substr(0, 6), "a name");
}

} // namespace
} // namespace vxgraphics3d
