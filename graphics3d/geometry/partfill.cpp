#include "graphics3d/geometry/partfill.h"

#include "graphics3d/geometry/coordinates.h"
#include "graphics3d/parts/linecollection.h"
#include "graphics3d/parts/pointcollection.h"
#include "graphics3d/parts/sheetcollection.h"
#include "graphics3d/parts/subdomaincollection.h"

#include <algorithm>
#include <cstddef>
#include <span>

namespace vxgraphics3d {
namespace {

using namespace vxdatacarrier;

template <class Coords>
void appendPoints(PointCollection& points, const Coords* coords, int count)
{
    points.allocateParts(count);
    for (const Coords& point : std::span(coords, static_cast<std::size_t>(count))) {
        points.addPart(widened(point));
    }
}

/// @param polyline for the vertices; its memory is used again
template <class Curve>
void appendLine(LineCollection& lines, const Curve& curve, std::vector<Vector3f>& polyline)
{
    const int numVertices = curve.m_isValid ? curve.m_numVertices : 0;
    polyline.clear();
    for (int i = 0; i < numVertices; ++i) {
        polyline.push_back(widened(curve.m_vertices[static_cast<std::size_t>(i)]));
    }
    const int index = lines.addPart(std::max(numVertices - 1, 0));
    lines.appendPartPolyline(index, polyline.data(), numVertices);
    if (curve.m_isValid) {
        lines.setPartBoundingBox(index, boxOf(curve.m_box));
    }
}

template <class Curve>
void appendLines(LineCollection& lines, const Curve* curves, int count)
{
    lines.allocateParts(count);
    std::vector<Vector3f> polyline;
    for (const Curve& curve : std::span(curves, static_cast<std::size_t>(count))) {
        appendLine(lines, curve, polyline);
    }
}

const CoordsNormal3D& withNormal(const CoordsNormal3D& vertex)
{
    return vertex;
}

CoordsNormal3D withNormal(const Coords2D& vertex)
{
    return {vertex.x, vertex.y, 0.0f, 0.0f, 0.0f, 1.0f};
}

template <class Sheet, class HasGeometry>
void appendSheets(SheetCollection& sheets, const Sheet* records, int count, HasGeometry hasGeometry)
{
    sheets.allocateParts(count);
    for (const Sheet& record : std::span(records, static_cast<std::size_t>(count))) {
        int index = 0;
        if (hasGeometry(record)) {
            index = sheets.addPart(record.m_numVertices, record.m_numTriangles);
            sheets.appendPartVerticesOf(index, record.m_numVertices, [vertices = record.m_vertices.get()](int i) {
                return withNormal(vertices[i]);
            });
            if (record.m_numTriangles > 0) {
                sheets.appendPartTriangles(
                    index, std::span(record.m_triangles.get(), static_cast<std::size_t>(record.m_numTriangles)));
            }
        } else {
            index = sheets.addPart(0, 0);
        }
        sheets.setPartBoundingBox(index, boxOf(record.m_box));
    }
}

} // namespace

BoundingBox boxOf(const BoundingBox1D& box)
{
    return {box.m_xMin, box.m_xMax, 0.0f, 0.0f, 0.0f, 0.0f};
}

BoundingBox boxOf(const BoundingBox2D& box)
{
    return {box.m_xMin, box.m_xMax, box.m_yMin, box.m_yMax, 0.0f, 0.0f};
}

BoundingBox boxOf(const BoundingBox3D& box)
{
    return {box.m_xMin, box.m_xMax, box.m_yMin, box.m_yMax, box.m_zMin, box.m_zMax};
}

void fillPoints(PointCollection& points, const Geometry1D& record)
{
    appendPoints(points, record.m_points.get(), record.m_numPoints);
}

void fillPoints(PointCollection& points, const Geometry2D& record)
{
    appendPoints(points, record.m_points.get(), record.m_numPoints);
}

void fillPoints(PointCollection& points, const Geometry3D& record)
{
    appendPoints(points, record.m_points.get(), record.m_numPoints);
}

void fillLines(LineCollection& lines, const Curve1D* curves, int count)
{
    appendLines(lines, curves, count);
}

void fillLines(LineCollection& lines, const Curve2D* curves, int count)
{
    appendLines(lines, curves, count);
}

void fillLines(LineCollection& lines, const Curve3D* curves, int count)
{
    appendLines(lines, curves, count);
}

void addLine(LineCollection& lines, const Curve2D& curve, std::vector<Vector3f>& polyline)
{
    appendLine(lines, curve, polyline);
}

void fillSheets(SheetCollection& sheets, const Geometry2D& record)
{
    appendSheets(sheets, record.m_sheets.get(), record.m_numSheets,
                 [](const Sheet2D& sheet) { return sheet.m_isValid && sheet.m_numTriangles > 0; });
}

void fillSheets(SheetCollection& sheets, const Geometry3D& record)
{
    appendSheets(sheets, record.m_sheets.get(), record.m_numSheets,
                 [](const Sheet3D& sheet) { return sheet.m_isValid; });
}

void fillSubdomains(SubdomainCollection& subdomains, const Geometry3D& record)
{
    subdomains.allocateParts(record.m_numSubdomains);
    for (int i = 0; i < record.m_numSubdomains; ++i) {
        subdomains.setPartBoundingBox(subdomains.addPart(), boxOf(record.m_subdomains[static_cast<std::size_t>(i)]));
    }
}

} // namespace vxgraphics3d
