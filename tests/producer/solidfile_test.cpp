// A solid that is written as a text file and read again is the solid that was built.

#include "datacarrier/renderdraw3d.h"
#include "graphics3d/foundation/vector3f.h"
#include "graphics3d/readers/postdatareader.h"
#include "producer/geometrybuilding.h"
#include "producer/geometrycompletion.h"
#include "tests/support/randomnumbers.h"
#include "tests/support/solidcomparison.h"
#include "tests/support/temporaryfile.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <string>
#include <utility>
#include <vector>

namespace vxproducer {
namespace {

using vxdatacarrier::RenderDraw3D;
using vxgraphics3d::RandomNumbers;

GeometryParts randomParts(unsigned seed)
{
    RandomNumbers random(seed);
    GeometryParts parts;
    const auto vertices = [&](int count) {
        GeometryParts::DoubleArrays axes(3);
        for (int i = 0; i < count; ++i) {
            for (std::vector<double>& axis : axes) {
                axis.push_back(static_cast<double>(random.uniform(-10, 10)));
            }
        }
        return axes;
    };
    const auto number = [&](int most) { return random.integer(1, most); };
    parts.points = vertices(number(8));
    const auto numPoints = static_cast<int>(parts.points[0].size());
    for (int count = number(6); count > 0; --count) {
        GeometryParts::DoubleArrays curve = vertices(number(5) + 1);
        for (std::size_t axis = 0; axis < 3; ++axis) {
            const auto point = static_cast<std::size_t>(random.integer(0, numPoints - 1));
            curve[axis].front() = parts.points[axis][0];
            curve[axis].back() = parts.points[axis][point];
        }
        parts.curves.push_back(std::move(curve));
    }
    const auto numCurves = static_cast<int>(parts.curves.size());
    parts.sheetToLine.emplace();
    for (int count = number(5); count > 0; --count) {
        GeometryParts::Sheet sheet;
        sheet.triangles.resize(3);
        // A reader numbers vertices in the order in which the triangles use them.
        int numVertices = 0;
        for (int triangle = number(9); triangle > 0; --triangle) {
            for (std::vector<int>& corners : sheet.triangles) {
                corners.push_back(random.integer(0, numVertices));
                numVertices = std::max(numVertices, corners.back() + 1);
            }
        }
        sheet.coordinates = vertices(numVertices);
        parts.sheets.push_back(std::move(sheet));
        std::vector<int> lines;
        for (int line = 0; line < numCurves; ++line) {
            // At least one, so that the relation is not absent.
            if (line == 0 || random.integer(0, 1) == 0) {
                lines.push_back(line);
            }
        }
        parts.sheetToLine->push_back(std::move(lines));
    }
    return parts;
}

/// The text of a section of rows.
std::string section(const char* tag, const std::vector<std::string>& rows, std::size_t count)
{
    std::string text = rows.empty() ? "" : std::string("% ") + tag + " [" + std::to_string(count) + "]\n";
    for (const std::string& row : rows) {
        text += row + "\n";
    }
    return text;
}

std::string section(const char* tag, const vxdatacarrier::AdjacencyRecord& relation)
{
    std::vector<std::string> rows;
    for (int part = 0; part < relation.m_numRows; ++part) {
        const auto [start, count] = relation.m_rows[static_cast<std::size_t>(part)];
        for (int i = start; i >= 0 && i < start + count; ++i) {
            rows.push_back(std::to_string(part + 1) + " " +
                           std::to_string(relation.m_values[static_cast<std::size_t>(i)] + 1));
        }
    }
    return section(tag, rows, rows.size());
}

std::string solidText(const RenderDraw3D& record)
{
    std::vector<std::string> coordinates;
    const auto add = [&](const auto& at) {
        char row[100];
        std::snprintf(row, sizeof row, "%.9g %.9g %.9g", static_cast<double>(at.x), static_cast<double>(at.y),
                      static_cast<double>(at.z));
        coordinates.emplace_back(row);
        return std::to_string(coordinates.size()) + " ";
    };
    std::vector<std::string> faces;
    for (int i = 0; i < record.m_numSheets; ++i) {
        const vxdatacarrier::Sheet3D& sheet = record.m_sheets[static_cast<std::size_t>(i)];
        std::vector<std::string> vertices;
        std::for_each_n(sheet.m_vertices.get(), sheet.m_numVertices,
                        [&](const auto& at) { vertices.push_back(add(at)); });
        std::for_each_n(sheet.m_triangles.get(), sheet.m_numTriangles, [&](const auto& corners) {
            faces.push_back(vertices[static_cast<std::size_t>(corners.a)] +
                            vertices[static_cast<std::size_t>(corners.b)] +
                            vertices[static_cast<std::size_t>(corners.c)] + std::to_string(i + 1));
        });
    }
    std::vector<std::string> edges;
    for (int i = 0; i < record.m_numCurves; ++i) {
        const vxdatacarrier::Curve3D& curve = record.m_curves[static_cast<std::size_t>(i)];
        std::vector<std::string> vertices;
        std::for_each_n(curve.m_vertices.get(), curve.m_numVertices,
                        [&](const auto& at) { vertices.push_back(add(at)); });
        for (std::size_t end = 1; end < vertices.size(); ++end) {
            edges.push_back(vertices[end - 1] + vertices[end] + std::to_string(i + 1));
        }
    }
    std::vector<std::string> points;
    std::for_each_n(record.m_points.get(), record.m_numPoints, [&](const auto& at) { points.push_back(add(at)); });
    return section("Coordinates", coordinates, coordinates.size()) +
           section("Faces", faces, static_cast<std::size_t>(record.m_numSheets)) +
           section("Edges", edges, static_cast<std::size_t>(record.m_numCurves)) +
           section("Vertices", points, points.size()) + section("Adj 1 0", record.m_lineToPoint) +
           section("Adj 2 0", record.m_sheetToPoint) + section("Adj 2 1", record.m_sheetToLine);
}

TEST(SolidFile, givesTheRecordFromWhichItWasWritten)
{
    for (unsigned seed = 1; seed <= 100; ++seed) {
        const auto built = buildGeometry<RenderDraw3D>(randomParts(seed));
        const std::string text = solidText(built);
        const vxgraphics3d::TemporaryFile file(text);
        RenderDraw3D read;
        vxgraphics3d::ReaderError error;
        ASSERT_TRUE(vxgraphics3d::readDrawObjectSolid(read, file.path(), vxgraphics3d::Vector3f(), error))
            << error.message << text;
        complete(read);
        ASSERT_EQ(vxgraphics3d::differenceOf(read, built), "") << "seed " << seed << "\n" << text;
    }
}

} // namespace
} // namespace vxproducer
