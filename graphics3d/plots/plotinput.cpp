#include "graphics3d/plots/plotinput.h"

#include <algorithm>
#include <cstddef>
#include <limits>
#include <stdexcept>
#include <string>

using vxdatacarrier::c_colorData;
using vxdatacarrier::c_heightData;
using vxdatacarrier::PostDataObject;
using vxdatacarrier::PostDataRole;
using vxdatacarrier::PostDataView;

namespace vxgraphics3d {
namespace {

/// The number of elements, all corners or edges of which a buffer has to count.
int countOf(const PostDataObject::IntArrays& arrays, int entriesEach, const char* elements, const char* entries,
            int group)
{
    const std::size_t count = arrays[0].size();
    if (count > static_cast<std::size_t>(std::numeric_limits<int>::max() / entriesEach)) {
        throw std::invalid_argument("The " + std::to_string(count) + " " + elements + " of group " +
                                    std::to_string(group) + " have more " + entries + " than a buffer can count.");
    }
    return static_cast<int>(count);
}

} // namespace

PointPositions::PointPositions(const PostDataView& record, int group, int numAxes)
    : PointPositions(record.coordinates(group, numAxes), numAxes)
{}

PointPositions PointPositions::ofAnyAxes(const PostDataView& record, int group)
{
    const PostDataObject::DoubleArrays& coordinates = record.coordinates(group, 1);
    return {coordinates, static_cast<int>(coordinates.size())};
}

PointPositions::PointPositions(const PostDataObject::DoubleArrays& coordinates, int numAxes)
    : count(static_cast<int>(coordinates[0].size())),
      x(coordinates[0].data()),
      y(numAxes > 1 ? coordinates[1].data() : nullptr),
      z(numAxes == 3 ? coordinates[2].data() : nullptr)
{}

PointNormals::PointNormals(const PostDataView& record, int group)
{
    const PostDataObject::FloatArrays& normals = record.normals(group);
    x = normals[0].data();
    y = normals[1].data();
    z = normals[2].data();
}

PointColors::PointColors(const PostDataView& record, int group, const PostDataRole& role, const ValueScale& valueScale)
    : values(record.data(group, role).data()), scale(valueScale)
{}

PointColors PointColors::ofGroup(const PostDataView& record, int group, float u)
{
    return record.hasRole(c_colorData)
               ? PointColors(record, group, c_colorData, ValueScale::ofGroup(record, group, c_colorData))
               : PointColors(u);
}

TriangleCorners::TriangleCorners(const PostDataView& record, int group)
{
    const PostDataObject::IntArrays& corners = record.elements(group, 3);
    count = countOf(corners, 3, "triangles", "corners", group);
    a = corners[0].data();
    b = corners[1].data();
    c = corners[2].data();
}

TriangleCorners TriangleCorners::ofAnyElements(const PostDataView& record, int group)
{
    return record.elements(group, 0).empty() ? TriangleCorners() : TriangleCorners(record, group);
}

LineEnds LineEnds::ofElements(const PostDataView& record, int group)
{
    const PostDataObject::IntArrays& ends = record.elements(group, 2);
    return {countOf(ends, 2, "lines", "ends", group), ends[0].data(), ends[1].data()};
}

LineEnds LineEnds::ofBoundary(const PostDataView& record, int group)
{
    const PostDataObject::IntArrays& ends = record.lineElements(group);
    return {countOf(ends, 2, "lines", "ends", group), ends[0].data(), ends[1].data()};
}

ElementCorners::ElementCorners(const PostDataView& record, int group)
{
    const PostDataObject::IntArrays& arrays = record.elements(group, 1, 4);
    corners.reserve(arrays.size());
    for (const std::vector<int>& corner : arrays) {
        corners.push_back(corner.data());
    }
    const std::size_t numCorners = corners.size();
    const int edgesEach = numCorners == 3 ? 3 : numCorners == 4 ? 6 : 1;
    count = countOf(arrays, edgesEach, "elements", "edges", group);
    numEdges = edgesEach * count;
}

void computeHeightScale(const PostDataView& record, double& min, double& max, double& scale)
{
    min = record.dataMin(0, c_heightData);
    max = record.dataMax(0, c_heightData);
    const PostDataObject::DoubleArrays& bounds = record.bounds(1);
    const double range = std::max(max, 0.0) - std::min(min, 0.0);
    double span = bounds[0][1] - bounds[0][0];
    if (bounds.size() > 1) {
        span = (span + (bounds[1][1] - bounds[1][0])) / 2.0;
    }
    scale = range > 0.0 ? span / range : 1.0;
}

HeightMap::HeightMap(const PostDataView& record) : heights(record.data(0, c_heightData).data())
{
    double min = 0.0;
    double max = 0.0;
    computeHeightScale(record, min, max, scale);
    const PostDataObject::DoubleArrays& bounds = record.bounds(1);
    const bool hasY = bounds.size() > 1;
    box = BoundingBox(bounds[0][0], bounds[0][1], hasY ? bounds[1][0] : 0.0, hasY ? bounds[1][1] : 0.0, min * scale,
                      max * scale);
}

BoundingBox boxOf(const PostDataObject::DoubleArrays& bounds, std::size_t numAxes)
{
    double limits[3][2] = {};
    for (std::size_t axis = 0; axis < std::min(bounds.size(), numAxes); ++axis) {
        limits[axis][0] = bounds[axis][0];
        limits[axis][1] = bounds[axis][1];
    }
    return {limits[0][0], limits[0][1], limits[1][0], limits[1][1], limits[2][0], limits[2][1]};
}

} // namespace vxgraphics3d
