#include "graphics3d/plots/vector/scenegraphplotedge.h"

namespace vxgraphics3d {

SceneGraphPlotEdge::SceneGraphPlotEdge(PlotType type, int id) : SceneGraphSingleTexturePlot(type, id) {}

SceneGraphPlotEdge::~SceneGraphPlotEdge() = default;

void SceneGraphPlotEdge::setLineWidth(float width)
{
    m_lineWidth = width;
    markGeometryChanged();
}

void SceneGraphPlotEdge::resetPlotData()
{
    m_edges.deallocate();
    markGeometryChanged();
}

bool SceneGraphPlotEdge::isValid() const
{
    return m_edges.isValid();
}

} // namespace vxgraphics3d
