#include "graphics3d/plots/scalar/scenegraphplotdomain3d.h"

#include "datacarrier/postdataview.h"
#include "graphics3d/plots/scalar/surfacefill.h"
#include "graphics3d/plots/valuescale.h"

using vxdatacarrier::PostDataObject;
using vxdatacarrier::PostDataView;

namespace vxgraphics3d {

SceneGraphPlotDomain3d::SceneGraphPlotDomain3d(int id)
    : SceneGraphSingleTexturePlot(PlotType::domain3d, id), m_triangles(m_vertices)
{}

SceneGraphPlotDomain3d::~SceneGraphPlotDomain3d() = default;

void SceneGraphPlotDomain3d::resetPlotData()
{
    m_vertices.deallocate();
    m_triangles.deallocate();
}

bool SceneGraphPlotDomain3d::isValid() const
{
    return m_vertices.getNumberOfVertices() > 0 && m_triangles.getNumElements(0) > 0;
}

void SceneGraphPlotDomain3d::checkData(const PostDataView& data) const
{
    data.bounds(3);
    data.numPoints(0);
    data.coordinates(0, 3);
    data.normals(0);
    data.data(0, PostDataObject::ColorData);
    data.elements(0, 3);
    data.numElements(0);
}

void SceneGraphPlotDomain3d::fillPlotImpl(const PostDataObject& record)
{
    const PostDataView data(record, getTypeName());
    setBoundingBox(BoundingBox(data.bounds(3)));
    m_vertices.allocate(data.numPoints(0));
    appendPoints(m_vertices, data.coordinates(0, 3), data.normals(0), &data.data(0, PostDataObject::ColorData),
                 ValueScale::ofGroup(data, 0, PostDataObject::ColorData));
    fillTriangles(m_triangles, data.elements(0, 3));
}

} // namespace vxgraphics3d
