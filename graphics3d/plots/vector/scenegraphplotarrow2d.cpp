#include "graphics3d/plots/vector/scenegraphplotarrow2d.h"

#include "datacarrier/postdataview.h"
#include "graphics3d/plots/vector/arrowfill.h"

#include <cmath>
#include <cstddef>

namespace vxgraphics3d {

namespace {

ArrowRecord2d makeArrow(float x, float y, float vx, float vy, float u)
{
    const float length = std::sqrt(vx * vx + vy * vy);
    return {x, y, length > 0.0f ? std::atan2(vy, vx) : 0.0f, length, u};
}

} // namespace

SceneGraphPlotArrow2d::SceneGraphPlotArrow2d(int id) : ArrowRecords(PlotType::arrow2d, id) {}

SceneGraphPlotArrow2d::~SceneGraphPlotArrow2d() = default;

void SceneGraphPlotArrow2d::allocate(int count)
{
    allocateArrows(count);
}

int SceneGraphPlotArrow2d::appendArrow(float x, float y, float vx, float vy, float t)
{
    Arrow& arrow = arrows()[getNumArrows()];
    arrow = makeArrow(x, y, vx, vy, t);
    return noteAppended(arrow.length);
}

SceneGraphPlot::Fill SceneGraphPlotArrow2d::prepareFill(const vxdatacarrier::PostDataView& record)
{
    return [this, input = ArrowInput(record, 2)] { fillPlotImpl(input); };
}

void SceneGraphPlotArrow2d::fillPlotImpl(const ArrowInput& input)
{
    fillArrows(input, [&points = input.field.points, &field = input.field](std::size_t i, float u) {
        return makeArrow(static_cast<float>(points.x[i]), static_cast<float>(points.y[i]),
                         static_cast<float>(field.x[i]), static_cast<float>(field.y[i]), u);
    });
}

} // namespace vxgraphics3d
