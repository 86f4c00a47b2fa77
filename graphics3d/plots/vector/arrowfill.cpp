#include "graphics3d/plots/vector/arrowfill.h"

#include <cmath>
#include <cstddef>

using vxdatacarrier::c_colorData;
using vxdatacarrier::PostDataView;

namespace vxgraphics3d {

namespace {

/// A little less than the distance between points, if as many were spread evenly over the bounds.
double targetLengthOf(const PostDataView::DoubleArrays& bounds, int numAxes, int numPoints)
{
    double sum = 0.0;
    for (std::size_t axis = 0; axis < static_cast<std::size_t>(numAxes); ++axis) {
        sum += bounds[axis][1] - bounds[axis][0];
    }
    const float pointsPerAxis = std::pow(static_cast<float>(numPoints), numAxes == 2 ? 0.5f : 0.33333334f);
    const double length = sum / numAxes / static_cast<double>(pointsPerAxis) * 0.85;
    return length == 0.0 ? 1.0 : length;
}

} // namespace

ArrowInput::ArrowInput(const PostDataView& record, int numAxes)
    : field(record, numAxes),
      boxedField(VectorField::ofAnyAxes(record)),
      colors(record.hasRole(c_colorData)
                 ? PointColors(record, 0, c_colorData, ValueScale::ofRecord(record, c_colorData))
                 : PointColors(0.0f)),
      targetLength(targetLengthOf(record.bounds(numAxes), numAxes, field.points.count))
{}

} // namespace vxgraphics3d
