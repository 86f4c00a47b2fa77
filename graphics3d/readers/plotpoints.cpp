#include "graphics3d/readers/plotpoints.h"

#include "graphics3d/buffers/vertexbuffernormaltex.h"
#include "graphics3d/buffers/vertexbuffertex.h"

namespace vxgraphics3d {

namespace {

/// Appends `count` values to an array and returns the first of them, to be written.
template <class T>
T* grow(std::vector<T>& array, int count)
{
    const std::size_t old = array.size();
    array.resize(old + static_cast<std::size_t>(count));
    return array.data() + old;
}

} // namespace

void PlotPoints::reserve(int numPoints)
{
    m_coordinates.reserve(static_cast<std::size_t>(numPoints));
    m_normals.resize(static_cast<std::size_t>(numPoints));
}

void PlotPoints::addNormal(const int* corners)
{
    const Vector3f& middle = m_coordinates[static_cast<std::size_t>(corners[1])];
    const Vector3f reversed = (m_coordinates[static_cast<std::size_t>(corners[0])] - middle)
                                  .cross(m_coordinates[static_cast<std::size_t>(corners[2])] - middle)
                                  .normalized();
    for (int i = 0; i < 3; ++i) {
        m_normals[static_cast<std::size_t>(corners[i])] -= reversed;
    }
}

void PlotPoints::appendTo(Arrays<double>& coordinates, Arrays<float>& normals, const PointGroup& group)
{
    const int count = group.numPoints();
    double* const x = grow(coordinates[0], count);
    double* const y = grow(coordinates[1], count);
    double* const z = grow(coordinates[2], count);
    float* const nx = grow(normals[0], count);
    float* const ny = grow(normals[1], count);
    float* const nz = grow(normals[2], count);
    for (int i = 0; i < count; ++i) {
        const Vector3f& point = m_coordinates[static_cast<std::size_t>(group.first + i)];
        const Vector3f& normal = m_normals[static_cast<std::size_t>(group.first + i)].normalize();
        x[i] = static_cast<double>(point.x);
        y[i] = static_cast<double>(point.y);
        z[i] = static_cast<double>(point.z);
        nx[i] = normal.x;
        ny[i] = normal.y;
        nz[i] = normal.z;
    }
}

void PlotPoints::appendTo(VertexBufferNormalTex& vertices, const std::vector<float>& values, const PointGroup& group)
{
    for (int i = group.first; i <= group.last; ++i) {
        const auto point = static_cast<std::size_t>(i);
        vertices.appendVertex(m_coordinates[point], m_normals[point].normalize(), values[point]);
    }
}

void PlotPoints::appendTo(VertexBufferTex& vertices, const std::vector<float>& values, const PointGroup& group) const
{
    for (int i = group.first; i <= group.last; ++i) {
        const auto point = static_cast<std::size_t>(i);
        vertices.appendVertex(m_coordinates[point], values[point]);
    }
}

void PlotPoints::appendPlaneTo(Arrays<double>& coordinates, std::vector<double>& heights, const PointGroup& group) const
{
    const int count = group.numPoints();
    double* const x = grow(coordinates[0], count);
    double* const y = grow(coordinates[1], count);
    double* const z = grow(heights, count);
    for (int i = 0; i < count; ++i) {
        const Vector3f& point = m_coordinates[static_cast<std::size_t>(group.first + i)];
        x[i] = static_cast<double>(point.x);
        y[i] = static_cast<double>(point.y);
        z[i] = static_cast<double>(point.z);
    }
}

PlotPoints::Arrays<double> PlotPoints::bounds(std::size_t numAxes) const
{
    Arrays<double> result;
    for (std::size_t axis = 0; axis < numAxes; ++axis) {
        result.push_back({static_cast<double>(m_limits[axis].min), static_cast<double>(m_limits[axis].max)});
    }
    return result;
}

BoundingBox PlotPoints::box() const
{
    return {m_limits[0].min, m_limits[0].max, m_limits[1].min, m_limits[1].max, m_limits[2].min, m_limits[2].max};
}

void appendValues(std::vector<double>& target, const std::vector<float>& values, const PointGroup& group)
{
    const auto first = values.begin() + group.first;
    target.insert(target.end(), first, first + group.numPoints());
}

} // namespace vxgraphics3d
