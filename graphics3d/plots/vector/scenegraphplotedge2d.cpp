#include "graphics3d/plots/vector/scenegraphplotedge2d.h"

#include "datacarrier/postdataview.h"
#include "graphics3d/plots/plotfill.h"

#include <optional>

using vxdatacarrier::c_heightData;
using vxdatacarrier::PostDataView;

namespace vxgraphics3d {

struct SceneGraphPlotEdge2d::Input {
    explicit Input(const PostDataView& record)
        : box(boxOf(record.bounds(1), 3)),
          positions(record.hasRole(c_heightData) ? PointPositions(record, 0, 2) : PointPositions::ofAnyAxes(record, 0)),
          colors(PointColors::ofGroup(record, 0, 0.0f)),
          elements(record, 0)
    {
        if (record.hasRole(c_heightData)) {
            heights.emplace(record);
        }
    }

    BoundingBox box;
    PointPositions positions;
    PointColors colors;
    ElementCorners elements;
    std::optional<HeightMap> heights;
};

SceneGraphPlotEdge2d::SceneGraphPlotEdge2d(int id) : SceneGraphPlotEdge(PlotType::edge2d, id) {}

SceneGraphPlotEdge2d::~SceneGraphPlotEdge2d() = default;

SceneGraphPlot::Fill SceneGraphPlotEdge2d::prepareFill(const PostDataView& record)
{
    return [this, input = Input(record)] { fillPlotImpl(input); };
}

void SceneGraphPlotEdge2d::fillPlotImpl(const Input& input)
{
    edges().allocate(input.positions.count, input.elements.numEdges);
    if (input.heights) {
        appendRaisedPoints(edges().vertices, input.positions, *input.heights, input.colors);
    } else {
        appendPoints(edges().vertices, input.positions, input.colors);
    }
    appendEdges(edges().indices, input.elements);
    setHasHeightData(input.heights.has_value());
    setBoundingBox(input.heights ? input.heights->box : input.box);
}

} // namespace vxgraphics3d
