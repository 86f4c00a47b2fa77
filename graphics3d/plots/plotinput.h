#pragma once

#include "datacarrier/postdataview.h"
#include "graphics3d/foundation/boundingbox.h"
#include "graphics3d/foundation/vector3f.h"
#include "graphics3d/plots/valuescale.h"

#include <cstddef>
#include <vector>

namespace vxgraphics3d {

// The parts of a plot's input: each constructor fetches the data that a fill reads from one group of a record, or
// throws std::invalid_argument. They contain plain pointers into the record's arrays, which must live until the fill is
// done.

/// The positions of points.
struct PointPositions {
    /// Fetches positions in the plane (2 axes, z is 0 even if the record has a third) or in space (3 axes).
    PointPositions(const vxdatacarrier::PostDataView& record, int group, int numAxes);
    /// Fetches as many axes as the record has; missing ones are 0.
    static PointPositions ofAnyAxes(const vxdatacarrier::PostDataView& record, int group);

    Vector3f at(std::size_t point) const
    {
        return {x[point], y != nullptr ? y[point] : 0.0, z != nullptr ? z[point] : 0.0};
    }

    int count;
    const double* x;
    const double* y; ///< null for 0
    const double* z; ///< null for 0

private:
    PointPositions(const vxdatacarrier::PostDataObject::DoubleArrays& coordinates, int numAxes);
};

/// The normals of points: those of the record, or one for all.
struct PointNormals {
    PointNormals(const vxdatacarrier::PostDataView& record, int group);
    explicit PointNormals(const Vector3f& normal) : constant(normal) {}

    const float* x = nullptr; ///< null if all points have the constant normal
    const float* y = nullptr;
    const float* z = nullptr;
    Vector3f constant;
};

/// The texture coordinates of points: data on a scale, or one coordinate for all.
struct PointColors {
    PointColors(const vxdatacarrier::PostDataView& record, int group, const vxdatacarrier::PostDataRole& role,
                const ValueScale& valueScale);
    explicit PointColors(float u) : constant(u) {}
    /// The colour data of a group on the scale of its limits, or `u` for all points of a record without colour data.
    static PointColors ofGroup(const vxdatacarrier::PostDataView& record, int group, float u);

    float at(std::size_t point) const { return values != nullptr ? scale(values[point]) : constant; }

    const double* values = nullptr; ///< null if all points have the constant coordinate
    ValueScale scale{0.0, 0.0};
    float constant = 0.0f;
};

/// The corners of triangles, three arrays by corner.
struct TriangleCorners {
    TriangleCorners(const vxdatacarrier::PostDataView& record, int group);
    /// Accepts a group without corner arrays, which has no triangles.
    static TriangleCorners ofAnyElements(const vxdatacarrier::PostDataView& record, int group);

    int count = 0;
    const int* a = nullptr;
    const int* b = nullptr;
    const int* c = nullptr;

private:
    TriangleCorners() = default;
};

/// The ends of lines, two arrays by end.
struct LineEnds {
    /// The lines between the first two corners of a group's elements.
    static LineEnds ofElements(const vxdatacarrier::PostDataView& record, int group);
    /// The boundary lines of a group's triangles.
    static LineEnds ofBoundary(const vxdatacarrier::PostDataView& record, int group);

    int count;
    const int* from;
    const int* to;
};

/// The corners of elements of any kind, by corner, for their edges.
struct ElementCorners {
    /// Fetches elements of one to four corners.
    ElementCorners(const vxdatacarrier::PostDataView& record, int group);

    int count;
    std::vector<const int*> corners;
    /// Space for the edges: one per pair of corners of a triangle or tetrahedron, one per other element.
    int numEdges;
};

/// The factor that scales the heights of the first group, extended to include 0, to the mean extent of the record's
/// bounds in x and y.
/// @param min,max receive the limits of the height data, unscaled
void computeHeightScale(const vxdatacarrier::PostDataView& record, double& min, double& max, double& scale);

/// Heights that raise a plot in the plane, scaled so that their range, extended to include 0, equals the mean width of
/// the plot.
struct HeightMap {
    /// Fetches the height data of the first group and the bounds of the record.
    explicit HeightMap(const vxdatacarrier::PostDataView& record);

    /// The scaled height of a point, in double as differences between points need it.
    double operator()(std::size_t point) const { return heights[point] * scale; }

    const double* heights; ///< unscaled
    double scale;
    BoundingBox box; ///< the record's bounds in x and y, the scaled limits of the heights in z
};

/// The box of the first axes of a record's bounds; further axes and axes that the bounds lack range from 0 to 0.
BoundingBox boxOf(const vxdatacarrier::PostDataObject::DoubleArrays& bounds, std::size_t numAxes);

} // namespace vxgraphics3d
