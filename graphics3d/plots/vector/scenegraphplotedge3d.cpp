#include "graphics3d/plots/vector/scenegraphplotedge3d.h"

#include "datacarrier/postdataview.h"
#include "graphics3d/plots/plotfill.h"

using vxdatacarrier::PostDataView;

namespace vxgraphics3d {

struct SceneGraphPlotEdge3d::Input {
    explicit Input(const PostDataView& record)
        : box(boxOf(record.bounds(1), 3)),
          positions(PointPositions::ofAnyAxes(record, 0)),
          colors(PointColors::ofGroup(record, 0, 0.0f)),
          elements(record, 0)
    {}

    BoundingBox box;
    PointPositions positions;
    PointColors colors;
    ElementCorners elements;
};

SceneGraphPlotEdge3d::SceneGraphPlotEdge3d(int id) : SceneGraphPlotEdge(PlotType::edge3d, id) {}

SceneGraphPlotEdge3d::~SceneGraphPlotEdge3d() = default;

SceneGraphPlot::Fill SceneGraphPlotEdge3d::prepareFill(const PostDataView& record)
{
    return [this, input = Input(record)] {
        edges().allocate(input.positions.count, input.elements.numEdges);
        appendPoints(edges().vertices, input.positions, input.colors);
        appendEdges(edges().indices, input.elements);
        setBoundingBox(input.box);
    };
}

} // namespace vxgraphics3d
