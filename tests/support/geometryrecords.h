#pragma once

#include "datacarrier/adjacencyrecord.h"
#include "datacarrier/renderdraw2d.h"
#include "datacarrier/renderdraw3d.h"

#include <algorithm>
#include <cstddef>
#include <memory>
#include <vector>

namespace vxgraphics3d {

template <class T>
std::unique_ptr<T[]> arrayOf(const std::vector<T>& values)
{
    auto array = std::make_unique<T[]>(values.size());
    std::copy(values.begin(), values.end(), array.get());
    return array;
}

inline vxdatacarrier::AdjacencyRecord relationOf(const std::vector<std::vector<int>>& rows)
{
    std::size_t numValues = 0;
    for (const std::vector<int>& row : rows) {
        numValues += row.size();
    }
    vxdatacarrier::AdjacencyRecord relation;
    relation.allocate(static_cast<int>(rows.size()), static_cast<int>(numValues));
    for (std::size_t row = 0; row < rows.size(); ++row) {
        relation.m_rows[row] = {relation.m_numUsed, static_cast<int>(rows[row].size())};
        for (const int value : rows[row]) {
            relation.m_values[static_cast<std::size_t>(relation.m_numUsed++)] = value;
        }
    }
    return relation;
}

/// Two rectangles side by side in the plane z = 0, a unit square and one of twice its width to the right. Both are
/// sheets, each in a subdomain of its own:
///
///     3 --2-- 4 ---6--- 5      sheet 0: lines 0 to 3, points 0, 1, 4, 3
///     |       |         |      sheet 1: lines 4, 5, 6 and 1, points 1, 2, 5, 4
///     3   0   1    1    5
///     |       |         |
///     0 --0-- 1 ---4--- 2
///
/// @tparam Record a record of geometry in space
template <class Record = vxdatacarrier::RenderDraw3D>
Record twoRectangles(int id)
{
    using namespace vxdatacarrier;
    Record record;
    record.m_isValid = true;
    record.m_id = id;
    record.m_name = "rectangles";
    record.m_box.m_xMax = 3.0f;
    record.m_box.m_yMax = 1.0f;

    const std::vector<Coords3D> points = {{0, 0, 0}, {1, 0, 0}, {3, 0, 0}, {0, 1, 0}, {1, 1, 0}, {3, 1, 0}};
    record.m_points = arrayOf(points);
    record.m_numPoints = 6;

    const std::vector<std::vector<int>> ends = {{0, 1}, {1, 4}, {4, 3}, {3, 0}, {1, 2}, {2, 5}, {5, 4}};
    record.m_curves = std::make_unique<Curve3D[]>(ends.size());
    record.m_numCurves = 7;
    for (std::size_t i = 0; i < ends.size(); ++i) {
        Curve3D& curve = record.m_curves[i];
        const Coords3D& a = points[static_cast<std::size_t>(ends[i][0])];
        const Coords3D& b = points[static_cast<std::size_t>(ends[i][1])];
        curve.m_isValid = true;
        curve.m_vertices = arrayOf(std::vector<Coords3D>{a, b});
        curve.m_numVertices = 2;
        curve.m_box.m_xMin = std::min(a.x, b.x);
        curve.m_box.m_xMax = std::max(a.x, b.x);
        curve.m_box.m_yMin = std::min(a.y, b.y);
        curve.m_box.m_yMax = std::max(a.y, b.y);
    }

    record.m_sheets = std::make_unique<Sheet3D[]>(2);
    record.m_numSheets = 2;
    record.m_subdomains = std::make_unique<BoundingBox3D[]>(2);
    record.m_numSubdomains = 2;
    for (std::size_t i = 0; i < 2; ++i) {
        Sheet3D& sheet = record.m_sheets[i];
        const float left = i == 0 ? 0.0f : 1.0f;
        const float right = i == 0 ? 1.0f : 3.0f;
        sheet.m_isValid = true;
        sheet.m_vertices = arrayOf(std::vector<CoordsNormal3D>{
            {left, 0, 0, 0, 0, 1}, {right, 0, 0, 0, 0, 1}, {right, 1, 0, 0, 0, 1}, {left, 1, 0, 0, 0, 1}});
        sheet.m_numVertices = 4;
        sheet.m_triangles = arrayOf(std::vector<Triangle>{{0, 1, 2}, {0, 2, 3}});
        sheet.m_numTriangles = 2;
        sheet.m_box.m_xMin = left;
        sheet.m_box.m_xMax = right;
        sheet.m_box.m_yMax = 1.0f;
        record.m_subdomains[i] = sheet.m_box;
    }
    record.m_subdomainToSheet = relationOf({{0}, {1}});
    record.m_subdomainToLine = relationOf({{0, 1, 2, 3}, {4, 5, 6, 1}});
    record.m_subdomainToPoint = relationOf({{0, 1, 4, 3}, {1, 2, 5, 4}});
    record.m_sheetToLine = relationOf({{0, 1, 2, 3}, {4, 5, 6, 1}});
    record.m_sheetToPoint = relationOf({{0, 1, 4, 3}, {1, 2, 5, 4}});
    record.m_lineToPoint = relationOf(ends);
    invertAdjacency(record.m_pointToLine, record.m_lineToPoint, 6, 7);
    invertAdjacency(record.m_pointToSheet, record.m_sheetToPoint, 6, 2);
    invertAdjacency(record.m_pointToSubdomain, record.m_subdomainToPoint, 6, 2);
    invertAdjacency(record.m_lineToSheet, record.m_sheetToLine, 7, 2);
    invertAdjacency(record.m_lineToSubdomain, record.m_subdomainToLine, 7, 2);
    invertAdjacency(record.m_sheetToSubdomain, record.m_subdomainToSheet, 2, 2);
    return record;
}

} // namespace vxgraphics3d
