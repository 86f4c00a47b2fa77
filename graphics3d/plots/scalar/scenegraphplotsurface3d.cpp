#include "graphics3d/plots/scalar/scenegraphplotsurface3d.h"

#include "datacarrier/postdataview.h"
#include "graphics3d/plots/plotfill.h"

using vxdatacarrier::c_colorData;
using vxdatacarrier::PostDataObject;
using vxdatacarrier::PostDataView;

namespace vxgraphics3d {

struct SceneGraphPlotSurface3d::Input {
    explicit Input(const PostDataView& record) : Input(record, record.plotKind() == PostDataObject::Surface2d) {}

    BoundingBox box;
    PointPositions positions;
    PointNormals normals;
    PointColors colors;
    TriangleCorners triangles;

private:
    Input(const PostDataView& record, bool flat)
        : box(boxOf(record.bounds(1), 3)),
          positions(record, 0, flat ? 2 : 3),
          normals(flat ? PointNormals(Vector3f(0.0f, 0.0f, 1.0f)) : PointNormals(record, 0)),
          colors(record, 0, c_colorData, ValueScale::ofGroup(record, 0, c_colorData)),
          triangles(record, 0)
    {}
};

SceneGraphPlotSurface3d::SceneGraphPlotSurface3d(int id) : SceneGraphPlotSurface(PlotType::surface3d, id) {}

SceneGraphPlotSurface3d::~SceneGraphPlotSurface3d() = default;

SceneGraphPlot::Fill SceneGraphPlotSurface3d::prepareFill(const PostDataView& record)
{
    return [this, input = Input(record)] { fillPlotImpl(input); };
}

void SceneGraphPlotSurface3d::fillPlotImpl(const Input& input)
{
    fillSurface(mesh(), input.positions, input.normals, input.colors, input.triangles);
    setBoundingBox(input.box);
}

} // namespace vxgraphics3d
