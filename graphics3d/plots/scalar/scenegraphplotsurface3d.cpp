#include "graphics3d/plots/scalar/scenegraphplotsurface3d.h"

#include "datacarrier/postdataview.h"
#include "graphics3d/plots/scalar/surfacefill.h"
#include "graphics3d/plots/valuescale.h"

using vxdatacarrier::PostDataObject;
using vxdatacarrier::PostDataView;

namespace vxgraphics3d {

namespace {

bool isFlat(const PostDataView& data)
{
    return data.plotKind() == PostDataObject::Surface2d;
}

} // namespace

SceneGraphPlotSurface3d::SceneGraphPlotSurface3d(int id) : SceneGraphPlotSurface(PlotType::surface3d, id) {}

SceneGraphPlotSurface3d::~SceneGraphPlotSurface3d() = default;

void SceneGraphPlotSurface3d::checkData(const PostDataView& data) const
{
    data.bounds(1);
    data.numPoints(0);
    data.coordinates(0, isFlat(data) ? 2 : 3);
    if (!isFlat(data)) {
        data.normals(0);
    }
    data.data(0, PostDataObject::ColorData);
    data.elements(0, 3);
    data.numElements(0);
}

void SceneGraphPlotSurface3d::fillPlotImpl(const PostDataObject& record)
{
    const PostDataView data(record, getTypeName());
    const ValueScale scale = ValueScale::ofGroup(data, 0, PostDataObject::ColorData);
    const std::vector<double>& values = data.data(0, PostDataObject::ColorData);
    setBoundingBox(record);
    vertices().allocate(data.numPoints(0));
    if (isFlat(data)) {
        appendFlatPoints(vertices(), data.coordinates(0, 2), &values, scale);
    } else {
        appendPoints(vertices(), data.coordinates(0, 3), data.normals(0), &values, scale);
    }
    fillTriangles(triangles(), data.elements(0, 3));
}

} // namespace vxgraphics3d
