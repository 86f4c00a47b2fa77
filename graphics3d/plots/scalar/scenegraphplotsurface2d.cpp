#include "graphics3d/plots/scalar/scenegraphplotsurface2d.h"

#include "datacarrier/postdataview.h"
#include "graphics3d/plots/plotfill.h"

#include <optional>

using vxdatacarrier::c_colorData;
using vxdatacarrier::c_heightData;
using vxdatacarrier::PostDataView;

namespace vxgraphics3d {

struct SceneGraphPlotSurface2d::Input {
    explicit Input(const PostDataView& record)
        : box(boxOf(record.bounds(1), 3)),
          positions(record, 0, 2),
          colors(record, 0, c_colorData, ValueScale::ofGroup(record, 0, c_colorData)),
          triangles(record, 0)
    {
        if (record.hasRole(c_heightData)) {
            heights.emplace(record);
        }
    }

    BoundingBox box;
    PointPositions positions;
    PointColors colors;
    TriangleCorners triangles;
    std::optional<HeightMap> heights;
};

SceneGraphPlotSurface2d::SceneGraphPlotSurface2d(int id) : SceneGraphPlotSurface(PlotType::surface2d, id) {}

SceneGraphPlotSurface2d::~SceneGraphPlotSurface2d() = default;

SceneGraphPlot::Fill SceneGraphPlotSurface2d::prepareFill(const PostDataView& record)
{
    return [this, input = Input(record)] { fillPlotImpl(input); };
}

void SceneGraphPlotSurface2d::fillPlotImpl(const Input& input)
{
    if (input.heights) {
        fillRaisedSurface(mesh(), input.positions, *input.heights, input.colors, input.triangles);
        setHasHeightData(true);
        setBoundingBox(input.heights->box);
    } else {
        fillSurface(mesh(), input.positions, PointNormals(Vector3f(0.0f, 0.0f, 1.0f)), input.colors, input.triangles);
        setBoundingBox(input.box);
    }
}

} // namespace vxgraphics3d
