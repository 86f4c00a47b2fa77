#include "renderer/scene/flatextent.h"

#include "graphics3d/cameras/camera2d.h"
#include "renderer/frame/seenextent.h"
#include "renderer/plots/plotpoints.h"
#include "renderer/scene/framelayout.h"

#include <cmath>

namespace vxrenderer {
namespace {

using namespace vxgraphics3d;

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

} // namespace

BoundingBox flatExtent(const FrameLayout& layout, const Camera2d& camera)
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

} // namespace vxrenderer
