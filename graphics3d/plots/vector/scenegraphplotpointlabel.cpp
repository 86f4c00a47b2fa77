#include "graphics3d/plots/vector/scenegraphplotpointlabel.h"

#include "datacarrier/postdataview.h"
#include "graphics3d/plots/plotinput.h"

#include <utility>

using vxdatacarrier::PostDataObject;
using vxdatacarrier::PostDataView;

namespace vxgraphics3d {

struct SceneGraphPlotPointLabel::Input {
    explicit Input(const PostDataView& record)
        : Input(record, record.plotKind() == PostDataObject::PointLabel2d ? 2 : 3)
    {}

    BoundingBox box;
    PointPositions positions;

private:
    Input(const PostDataView& record, int numAxes)
        : box(boxOf(record.bounds(numAxes), static_cast<std::size_t>(numAxes))), positions(record, 0, numAxes)
    {}
};

SceneGraphPlotPointLabel::SceneGraphPlotPointLabel(int dimension, int id)
    : SceneGraphSingleTexturePlot(dimension == 2 ? PlotType::pointLabel2d : PlotType::pointLabel3d, id)
{}

SceneGraphPlotPointLabel::~SceneGraphPlotPointLabel() = default;

void SceneGraphPlotPointLabel::setLabels(const std::vector<std::string>& labels)
{
    if (labels == m_labels) {
        return;
    }
    std::vector<std::string> copy = labels;
    m_labels = std::move(copy);
    markGeometryChanged();
}

void SceneGraphPlotPointLabel::resetPlotData()
{
    m_labelPoints.resetParts();
}

bool SceneGraphPlotPointLabel::isValid() const
{
    return m_labelPoints.getNumParts() > 0;
}

SceneGraphPlot::Fill SceneGraphPlotPointLabel::prepareFill(const PostDataView& record)
{
    return [this, input = Input(record)] { fillPlotImpl(input); };
}

void SceneGraphPlotPointLabel::fillPlotImpl(const Input& input)
{
    m_labelPoints.resetParts();
    PointCollection points;
    points.allocateParts(input.positions.count);
    for (std::size_t i = 0; i < static_cast<std::size_t>(input.positions.count); ++i) {
        points.addPart(input.positions.at(i));
    }
    std::swap(m_labelPoints, points);
    setBoundingBox(input.box);
}

} // namespace vxgraphics3d
