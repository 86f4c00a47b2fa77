#pragma once

#include "graphics3d/foundation/boundingbox.h"
#include "graphics3d/foundation/vector3f.h"
#include "graphics3d/readers/plotfilecontents.h"

#include <array>
#include <cstddef>
#include <vector>

namespace vxgraphics3d {

class VertexBufferNormalTex;
class VertexBufferTex;

/// The points of a plot file with normals computed from their triangles, and their limits. Fills arrays and vertex
/// buffers with the points of a group.
class PlotPoints {
public:
    /// One array per axis, corner or quantity.
    template <class T>
    using Arrays = std::vector<std::vector<T>>;

    /// Makes space for the points, and a zero normal for each.
    void reserve(int numPoints);
    /// Adds a point; there must be space.
    void add(const Vector3f& point)
    {
        m_coordinates.push_back(point);
        m_limits[0].widen(point.x);
        m_limits[1].widen(point.y);
        m_limits[2].widen(point.z);
    }
    const Vector3f& operator[](std::size_t point) const { return m_coordinates[point]; }
    /// Adds the unit normal of a triangle to those of its three corners.
    void addNormal(const int* corners);

    /// Appends x, y and z of a group's points to three arrays, and their normals, normalised, to three more.
    void appendTo(Arrays<double>& coordinates, Arrays<float>& normals, const PointGroup& group);
    /// Appends a group's points with their normals, normalised, to a buffer with space for them.
    /// @param values texture coordinates, one per point of the file
    void appendTo(VertexBufferNormalTex& vertices, const std::vector<float>& values, const PointGroup& group);
    /// Appends a group's points to a buffer with space for them.
    /// @param values texture coordinates, one per point of the file
    void appendTo(VertexBufferTex& vertices, const std::vector<float>& values, const PointGroup& group) const;
    /// Appends x and y of a group's points to two arrays, and z to a third.
    void appendPlaneTo(Arrays<double>& coordinates, std::vector<double>& heights, const PointGroup& group) const;

    /// The limits on the first axes, in the format of a record.
    Arrays<double> bounds(std::size_t numAxes) const;
    /// The box of all points.
    BoundingBox box() const;

private:
    std::vector<Vector3f> m_coordinates;
    std::vector<Vector3f> m_normals;
    std::array<FloatLimits, 3> m_limits;
};

/// Appends the values of a group's points to an array.
/// @param values one per point of the file
void appendValues(std::vector<double>& target, const std::vector<float>& values, const PointGroup& group);

} // namespace vxgraphics3d
