#include "graphics3d/plots/scalar/scenegraphplotsurface.h"

namespace vxgraphics3d {

SceneGraphPlotSurface::SceneGraphPlotSurface(PlotType type, int id)
    : SceneGraphSingleTexturePlot(type, id), m_triangles(m_vertices)
{}

SceneGraphPlotSurface::~SceneGraphPlotSurface() = default;

void SceneGraphPlotSurface::resetPlotData()
{
    m_vertices.deallocate();
    m_triangles.deallocate();
    markGeometryChanged();
}

bool SceneGraphPlotSurface::isValid() const
{
    return m_vertices.getNumberOfVertices() > 0 && m_triangles.getNumElements(0) > 0;
}

} // namespace vxgraphics3d
