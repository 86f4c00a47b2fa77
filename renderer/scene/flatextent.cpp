#include "renderer/scene/flatextent.h"

#include "graphics3d/cameras/camera2d.h"
#include "renderer/frame/frame.h"
#include "renderer/frame/seenextent.h"
#include "renderer/frame/view.h"
#include "renderer/plots/plotpoints.h"
#include "renderer/scene/framelayout.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace vxrenderer {
namespace {

using namespace vxgraphics3d;

/// The part of an area that labels may take.
constexpr float c_mostForLabels = 0.5f;

/// Whether plots are larger than the points that their boxes enclose.
bool exceedsBox(PlotType type)
{
    switch (type) {
    case PlotType::arrow2d:
    case PlotType::arrow3d:
    case PlotType::coordSys2d:
    case PlotType::coordSys3d:
    case PlotType::principal2d:
    case PlotType::principal3d:
    case PlotType::tube2d:
    case PlotType::tube3d:
    case PlotType::ribbon3d:
    case PlotType::sphere2d:
    case PlotType::sphere3d:
        return true;
    default:
        return false;
    }
}

/// The square root of the pixels of a unit of y for each pixel of a unit of x; 1 for limits without an extent.
float stretchOf(const Camera2d& camera, const PixelArea& area)
{
    const float unitX = (camera.getActualMaxX() - camera.getActualMinX()) / static_cast<float>(area.width);
    const float unitY = (camera.getActualMaxY() - camera.getActualMinY()) / static_cast<float>(area.height);
    const float stretch = std::sqrt(unitX / unitY);
    return std::isfinite(stretch) && stretch > 0.0f ? stretch : 1.0f;
}

BoundingBox drawnBox(const FrameLayout& layout, const Camera2d& camera)
{
    const float stretch = stretchOf(camera, layout.area.whole);
    PointBox drawn(stretch, 1.0f / stretch);
    for (const SceneItem& item : layout.items) {
        const auto* plot = std::get_if<PlotItem>(&item);
        if (plot != nullptr && exceedsBox(plot->plot->getType())) {
            visitPlotPoints(*plot->plot, [&drawn](const PointRun& points) { drawn.add(points); });
        }
    }
    BoundingBox box = layout.box;
    box.merge(drawn.get());
    return box;
}

/// The labels of a view with limits in x and y.
std::vector<SceneLabel> flatLabels(const Frame& frame, const FrameLayout& layout)
{
    const bool isOrdinary = frame.camera2d().getCameraMode() == Camera2d::ModeOrdinary;
    return isOrdinary ? labelsOf(layout.items, frame) : std::vector<SceneLabel>();
}

/// A range, extended to reach from `low` to `high` by at most a length in total.
void extend(float& from, float& to, float low, float high, float most)
{
    const float before = std::max(from - low, 0.0f);
    const float after = std::max(high - to, 0.0f);
    const float part = before + after > most ? most / (before + after) : 1.0f;
    from -= part * before;
    to += part * after;
}

} // namespace

FlatExtent::FlatExtent(const Frame& frame, const FrameLayout& layout, const Camera2d& camera)
    : m_layout(layout), m_box(drawnBox(layout, camera)), m_labels(flatLabels(frame, layout), layout.labelFonts)
{}

BoundingBox FlatExtent::withLabels(const Camera2d& camera) const
{
    const Vector3f size = m_box.getMax() - m_box.getMin();
    // The zoom of a point has no limit that a text could have a part of.
    const bool isShared = camera.isPreserveAspectRatio() && (size.x > 0.0f || size.y > 0.0f);
    const PixelArea& area = m_layout.area.whole;
    const float rangeX = camera.getActualMaxX() - camera.getActualMinX();
    const float rangeY = camera.getActualMaxY() - camera.getActualMinY();
    Vector3f low = m_box.getMin();
    Vector3f high = m_box.getMax();
    if (!hasLabels() || !m_box.isValid() || !(rangeX > 0.0f) || !(rangeY > 0.0f)) {
        return m_box;
    }
    PixelRect all = {HUGE_VALF, HUGE_VALF, -HUGE_VALF, -HUGE_VALF};
    for (const PixelRect& rect : m_labels.rectsIn(View::of(camera, area, true))) {
        all = {std::min(all.left, rect.left), std::min(all.top, rect.top), std::max(all.right, rect.right),
               std::max(all.bottom, rect.bottom)};
    }
    if (!(all.left <= all.right)) {
        return m_box;
    }
    const float unitX = rangeX / static_cast<float>(area.width);
    const float unitY = rangeY / static_cast<float>(area.height);
    const auto x = [&](float column) { return camera.getActualMinX() + (column - static_cast<float>(area.x)) * unitX; };
    const auto y = [&](float row) { return camera.getActualMaxY() - (row - static_cast<float>(area.y)) * unitY; };
    if (isShared || size.x > 0.0f) {
        extend(low.x, high.x, x(all.left), x(all.right), c_mostForLabels * rangeX);
    }
    if (isShared || size.y > 0.0f) {
        extend(low.y, high.y, y(all.bottom), y(all.top), c_mostForLabels * rangeY);
    }
    return {low.x, high.x, low.y, high.y, low.z, high.z};
}

} // namespace vxrenderer
