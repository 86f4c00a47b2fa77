#include "graphics3d/plots/vector/scenegraphplotsphere3d.h"

#include "base/numeric.h"
#include "graphics3d/plots/vector/sphereinput.h"

#include <algorithm>

using vxdatacarrier::PostDataView;

namespace vxgraphics3d {

SceneGraphPlotSphere3d::SceneGraphPlotSphere3d(int id) : SceneGraphPlotSphere(PlotType::sphere3d, id) {}

SceneGraphPlotSphere3d::~SceneGraphPlotSphere3d() = default;

bool SceneGraphPlotSphere3d::isValid() const
{
    return !getSpheres().empty();
}

SceneGraphPlot::Fill SceneGraphPlotSphere3d::prepareFill(const PostDataView& record)
{
    return [this, input = SphereInput(record, 3)] {
        const PointPositions& points = input.positions;
        m_spheres.fill(static_cast<std::size_t>(points.count), [&](Sphere* out) {
            input.forEachPoint([&out, x = points.x, y = points.y, z = points.z](std::size_t i, float u, float radius) {
                *out = {static_cast<float>(x[i]), static_cast<float>(y[i]), static_cast<float>(z[i]), u, radius};
                out += vxbase::vxIsNaNorInf(x[i] + y[i] + z[i]) ? 0 : 1;
            });
            return out;
        });
        updateBoundingBox();
    };
}

void SceneGraphPlotSphere3d::updateBoundingBox()
{
    if (!isValid()) {
        setBoundingBox(BoundingBox(0.0f, 1.0f, 0.0f, 1.0f, 0.0f, 1.0f));
        return;
    }
    Vector3f low(getSpheres()[0].x, getSpheres()[0].y, getSpheres()[0].z);
    Vector3f high = low;
    for (const Sphere& sphere : getSpheres()) {
        low.init(std::min(low.x, sphere.x), std::min(low.y, sphere.y), std::min(low.z, sphere.z));
        high.init(std::max(high.x, sphere.x), std::max(high.y, sphere.y), std::max(high.z, sphere.z));
    }
    setBoundingBox(BoundingBox(low.x, high.x, low.y, high.y, low.z, high.z));
}

} // namespace vxgraphics3d
