#include "graphics3d/plots/scalar/scenegraphplotsurface.h"

namespace vxgraphics3d {

SceneGraphPlotSurface::SceneGraphPlotSurface(PlotType type, int id) : SceneGraphSingleTexturePlot(type, id) {}

SceneGraphPlotSurface::~SceneGraphPlotSurface() = default;

void SceneGraphPlotSurface::resetPlotData()
{
    m_mesh.deallocate();
    markGeometryChanged();
}

bool SceneGraphPlotSurface::isValid() const
{
    return m_mesh.isValid();
}

} // namespace vxgraphics3d
