#include "graphics3d/plots/vector/vectorfield.h"

#include <array>
#include <cstddef>
#include <limits>

using vxdatacarrier::PostDataObject;
using vxdatacarrier::PostDataRole;
using vxdatacarrier::PostDataView;

namespace vxgraphics3d {

namespace {

constexpr PostDataRole c_vectorX{PostDataObject::VectorX, "DataRole.VECTOR_X"};
constexpr PostDataRole c_vectorY{PostDataObject::VectorY, "DataRole.VECTOR_Y"};
constexpr PostDataRole c_vectorZ{PostDataObject::VectorZ, "DataRole.VECTOR_Z"};

struct Range {
    double min = std::numeric_limits<double>::infinity();
    double max = -std::numeric_limits<double>::infinity();

    /// Ignores NaN.
    void widen(double value)
    {
        min = value < min ? value : min;
        max = value > max ? value : max;
    }
};

Range rangeOf(const double* points, const double* vectors, double scale, std::size_t count)
{
    Range range;
    for (std::size_t i = 0; i < count; ++i) {
        range.widen(points[i]);
        range.widen(points[i] + vectors[i] * scale);
    }
    return range;
}

} // namespace

VectorField::VectorField(const PostDataView& record, int numAxes)
    : points(record, 0, numAxes),
      x(record.data(0, c_vectorX).data()),
      y(record.data(0, c_vectorY).data()),
      z(numAxes == 3 ? record.data(0, c_vectorZ).data() : nullptr)
{}

VectorField VectorField::ofAnyAxes(const PostDataView& record)
{
    return {record, record.hasRole(c_vectorZ) ? 3 : 2};
}

std::optional<BoundingBox> VectorField::box(double scale) const
{
    if (points.count == 0) {
        return std::nullopt;
    }
    const auto count = static_cast<std::size_t>(points.count);
    const std::array<Range, 3> ranges{rangeOf(points.x, x, scale, count), rangeOf(points.y, y, scale, count),
                                      z != nullptr ? rangeOf(points.z, z, scale, count) : Range{0.0, 0.0}};
    for (const Range& range : ranges) {
        if (range.min > range.max) {
            return std::nullopt;
        }
    }
    return BoundingBox(ranges[0].min, ranges[0].max, ranges[1].min, ranges[1].max, ranges[2].min, ranges[2].max);
}

} // namespace vxgraphics3d
