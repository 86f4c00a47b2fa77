#include "renderer/axes/dataframe.h"

#include "graphics3d/cameras/camera2d.h"
#include "graphics3d/foundation/boundingbox.h"

#include <algorithm>
#include <cmath>

namespace vxrenderer {
namespace {

/// In pixels, by which the margin of a fitted view may differ.
constexpr double c_tolerance = 1.5;
/// Part of the area that a frame has at least.
constexpr double c_smallestPart = 0.3;

/// A range of pixels of an area of some size.
struct Range {
    double low;
    double high;
    double size;

    bool isFitted(double margin) const
    {
        return std::abs(low - margin * size) < c_tolerance && std::abs(size - high - margin * size) < c_tolerance;
    }
    bool isWhole() const { return low >= -c_tolerance && high <= size + c_tolerance; }

    /// With a margin around it, in whole pixels of the area.
    Range framed(double margin) const
    {
        const double middle = 0.5 * (low + high);
        const double half = std::max(0.5 * (high - low) + margin, 0.5 * c_smallestPart * size);
        return {std::max(0.0, std::floor(middle - half)), std::min(size, std::ceil(middle + half)), size};
    }
};

} // namespace

PixelArea frameOfData(const vxgraphics3d::Camera2d& camera, const PixelArea& area, const vxgraphics3d::BoundingBox& box,
                      double margin)
{
    const auto rangeOf = [](float low, float high, float viewLow, float viewHigh, int size) {
        const double pixels = size / static_cast<double>(viewHigh - viewLow);
        return Range{static_cast<double>(low - viewLow) * pixels, static_cast<double>(high - viewLow) * pixels,
                     static_cast<double>(size)};
    };
    const Range x = rangeOf(box.getMin().x, box.getMax().x, camera.getActualMinX(), camera.getActualMaxX(), area.width);
    // Rows count from the top.
    const Range y =
        rangeOf(-box.getMax().y, -box.getMin().y, -camera.getActualMaxY(), -camera.getActualMinY(), area.height);
    const bool isFilledAcross = x.isFitted(margin);
    const bool isFilledAlong = y.isFitted(margin);
    if (!box.isValid() || !x.isWhole() || !y.isWhole() || isFilledAcross == isFilledAlong) {
        return area;
    }
    PixelArea frame = area;
    if (isFilledAlong) {
        const Range framed = x.framed(margin * area.height);
        frame.x += static_cast<int>(framed.low);
        frame.width = static_cast<int>(framed.high - framed.low);
    } else {
        const Range framed = y.framed(margin * area.width);
        frame.y += static_cast<int>(framed.low);
        frame.height = static_cast<int>(framed.high - framed.low);
    }
    return frame;
}

} // namespace vxrenderer
