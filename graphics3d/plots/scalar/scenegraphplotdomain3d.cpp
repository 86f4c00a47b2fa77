#include "graphics3d/plots/scalar/scenegraphplotdomain3d.h"

#include "datacarrier/postdataview.h"
#include "graphics3d/plots/plotfill.h"

using vxdatacarrier::c_colorData;
using vxdatacarrier::PostDataView;

namespace vxgraphics3d {

struct SceneGraphPlotDomain3d::Input {
    explicit Input(const PostDataView& record)
        : box(boxOf(record.bounds(3), 3)),
          positions(record, 0, 3),
          normals(record, 0),
          colors(record, 0, c_colorData, ValueScale::ofGroup(record, 0, c_colorData)),
          triangles(record, 0)
    {}

    BoundingBox box;
    PointPositions positions;
    PointNormals normals;
    PointColors colors;
    TriangleCorners triangles;
};

SceneGraphPlotDomain3d::SceneGraphPlotDomain3d(int id) : SceneGraphSingleTexturePlot(PlotType::domain3d, id) {}

SceneGraphPlotDomain3d::~SceneGraphPlotDomain3d() = default;

void SceneGraphPlotDomain3d::resetPlotData()
{
    m_mesh.deallocate();
}

bool SceneGraphPlotDomain3d::isValid() const
{
    return m_mesh.isValid();
}

SceneGraphPlot::Fill SceneGraphPlotDomain3d::prepareFill(const PostDataView& record)
{
    return [this, input = Input(record)] { fillPlotImpl(input); };
}

void SceneGraphPlotDomain3d::fillPlotImpl(const Input& input)
{
    fillSurface(m_mesh, input.positions, input.normals, input.colors, input.triangles);
    setBoundingBox(input.box);
}

} // namespace vxgraphics3d
