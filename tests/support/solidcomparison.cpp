#include "tests/support/solidcomparison.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <memory>

namespace vxgraphics3d {

using namespace vxdatacarrier;

namespace {

template <class Value>
bool same(const std::unique_ptr<Value[]>& a, int numA, const std::unique_ptr<Value[]>& b, int numB)
{
    return numA == numB &&
           (numA == 0 || std::memcmp(a.get(), b.get(), static_cast<std::size_t>(numA) * sizeof(Value)) == 0);
}

bool same(const AdjacencyRecord& a, const AdjacencyRecord& b)
{
    return a.m_numUsed == b.m_numUsed && same(a.m_rows, a.m_numRows, b.m_rows, b.m_numRows) &&
           same(a.m_values, a.m_numValues, b.m_values, b.m_numValues) &&
           same(a.m_extra, a.m_numValues, b.m_extra, b.m_numValues);
}

bool same(const BoundingBox3D& a, const BoundingBox3D& b)
{
    return a.m_xMin == b.m_xMin && a.m_xMax == b.m_xMax && a.m_yMin == b.m_yMin && a.m_yMax == b.m_yMax &&
           a.m_zMin == b.m_zMin && a.m_zMax == b.m_zMax;
}

bool same(const Sheet3D& a, const Sheet3D& b)
{
    return a.m_isValid == b.m_isValid && same(a.m_box, b.m_box) && a.m_upDomain == b.m_upDomain &&
           a.m_downDomain == b.m_downDomain && same(a.m_vertices, a.m_numVertices, b.m_vertices, b.m_numVertices) &&
           same(a.m_triangles, a.m_numTriangles, b.m_triangles, b.m_numTriangles);
}

bool same(const Curve3D& a, const Curve3D& b)
{
    return a.m_isValid == b.m_isValid && same(a.m_box, b.m_box) &&
           same(a.m_vertices, a.m_numVertices, b.m_vertices, b.m_numVertices);
}

template <class Part>
bool samePart(const std::unique_ptr<Part[]>& a, int numA, const std::unique_ptr<Part[]>& b, int numB)
{
    return numA == numB &&
           std::equal(a.get(), a.get() + numA, b.get(), [](const Part& x, const Part& y) { return same(x, y); });
}

} // namespace

std::string differenceOf(const RenderDraw3D& a, const RenderDraw3D& b)
{
    return !same(a.m_box, b.m_box)                                                           ? "m_box"
           : !samePart(a.m_subdomains, a.m_numSubdomains, b.m_subdomains, b.m_numSubdomains) ? "m_subdomains"
           : !samePart(a.m_sheets, a.m_numSheets, b.m_sheets, b.m_numSheets)                 ? "m_sheets"
           : !samePart(a.m_curves, a.m_numCurves, b.m_curves, b.m_numCurves)                 ? "m_curves"
           : !same(a.m_points, a.m_numPoints, b.m_points, b.m_numPoints)                     ? "m_points"
           : !same(a.m_subdomainToSheet, b.m_subdomainToSheet)                               ? "m_subdomainToSheet"
           : !same(a.m_subdomainToLine, b.m_subdomainToLine)                                 ? "m_subdomainToLine"
           : !same(a.m_subdomainToPoint, b.m_subdomainToPoint)                               ? "m_subdomainToPoint"
           : !same(a.m_sheetToLine, b.m_sheetToLine)                                         ? "m_sheetToLine"
           : !same(a.m_sheetToPoint, b.m_sheetToPoint)                                       ? "m_sheetToPoint"
           : !same(a.m_lineToPoint, b.m_lineToPoint)                                         ? "m_lineToPoint"
           : !same(a.m_pointToLine, b.m_pointToLine)                                         ? "m_pointToLine"
           : !same(a.m_pointToSheet, b.m_pointToSheet)                                       ? "m_pointToSheet"
           : !same(a.m_pointToSubdomain, b.m_pointToSubdomain)                               ? "m_pointToSubdomain"
           : !same(a.m_lineToSheet, b.m_lineToSheet)                                         ? "m_lineToSheet"
           : !same(a.m_lineToSubdomain, b.m_lineToSubdomain)                                 ? "m_lineToSubdomain"
           : !same(a.m_sheetToSubdomain, b.m_sheetToSubdomain)                               ? "m_sheetToSubdomain"
                                                                                             : "";
}

} // namespace vxgraphics3d
