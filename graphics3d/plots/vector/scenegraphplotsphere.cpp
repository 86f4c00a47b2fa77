#include "graphics3d/plots/vector/scenegraphplotsphere.h"

namespace vxgraphics3d {

SceneGraphPlotSphere::SceneGraphPlotSphere(PlotType type, int id) : SceneGraphSingleTexturePlot(type, id) {}

SceneGraphPlotSphere::~SceneGraphPlotSphere() = default;

void SceneGraphPlotSphere::setRadiusScaleFactor(float factor)
{
    if (factor == m_radiusScaleFactor) {
        return;
    }
    m_radiusScaleFactor = factor;
    updateBoundingBox();
    markGeometryChanged();
}

void SceneGraphPlotSphere::resetPlotData() {}

} // namespace vxgraphics3d
