#include "graphics3d/plots/vector/scenegraphplotsphere2d.h"

#include "base/numeric.h"
#include "graphics3d/plots/vector/sphereinput.h"

#include <algorithm>

using vxdatacarrier::PostDataView;

namespace vxgraphics3d {

SceneGraphPlotSphere2d::SceneGraphPlotSphere2d(int id) : SceneGraphPlotSphere(PlotType::sphere2d, id) {}

SceneGraphPlotSphere2d::~SceneGraphPlotSphere2d() = default;

bool SceneGraphPlotSphere2d::isValid() const
{
    return !getSpheres().empty();
}

SceneGraphPlot::Fill SceneGraphPlotSphere2d::prepareFill(const PostDataView& record)
{
    return [this, input = SphereInput(record, 2)] {
        const PointPositions& points = input.positions;
        m_spheres.fill(static_cast<std::size_t>(points.count), [&](Sphere* out) {
            input.forEachPoint([&out, x = points.x, y = points.y](std::size_t i, float u, float radius) {
                *out = {static_cast<float>(x[i]), static_cast<float>(y[i]), u, radius};
                out += vxbase::vxIsNaNorInf(x[i] + y[i]) ? 0 : 1;
            });
            return out;
        });
        updateBoundingBox();
    };
}

void SceneGraphPlotSphere2d::updateBoundingBox()
{
    if (!isValid()) {
        setBoundingBox(BoundingBox(0.0f, 1.0f, 0.0f, 1.0f, 0.0f, 0.0f));
        return;
    }
    Vector3f low(getSpheres()[0].x, getSpheres()[0].y, 0.0f);
    Vector3f high = low;
    for (const Sphere& sphere : getSpheres()) {
        low.init(std::min(low.x, sphere.x), std::min(low.y, sphere.y), 0.0f);
        high.init(std::max(high.x, sphere.x), std::max(high.y, sphere.y), 0.0f);
    }
    setBoundingBox(BoundingBox(low.x, high.x, low.y, high.y, 0.0f, 0.0f));
}

} // namespace vxgraphics3d
