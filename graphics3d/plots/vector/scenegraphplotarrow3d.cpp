#include "graphics3d/plots/vector/scenegraphplotarrow3d.h"

#include "datacarrier/postdataview.h"
#include "graphics3d/foundation/vector3f.h"
#include "graphics3d/plots/vector/arrowfill.h"

#include <cstddef>

namespace vxgraphics3d {

namespace {

ArrowRecord3d makeArrow(const Vector3f& position, const Vector3f& vector, float u)
{
    const auto [azimuth, polarAngle] = vector.toSpherical();
    return {position.x, position.y, position.z, azimuth, polarAngle, vector.length(), u};
}

} // namespace

SceneGraphPlotArrow3d::SceneGraphPlotArrow3d(int id) : ArrowRecords(PlotType::arrow3d, id) {}

SceneGraphPlotArrow3d::~SceneGraphPlotArrow3d() = default;

void SceneGraphPlotArrow3d::allocate(int count)
{
    allocateArrows(count);
}

int SceneGraphPlotArrow3d::appendArrow(float x, float y, float z, float vx, float vy, float vz, float t)
{
    Arrow& arrow = arrows()[getNumArrows()];
    arrow = makeArrow({x, y, z}, {vx, vy, vz}, t);
    return noteAppended(arrow.length);
}

void SceneGraphPlotArrow3d::finishArrows(const BoundingBox& box)
{
    setBoundingBox(box);
    markGeometryChanged();
}

SceneGraphPlot::Fill SceneGraphPlotArrow3d::prepareFill(const vxdatacarrier::PostDataView& record)
{
    return [this, input = ArrowInput(record, 3)] { fillPlotImpl(input); };
}

void SceneGraphPlotArrow3d::fillPlotImpl(const ArrowInput& input)
{
    fillArrows(input, [&points = input.field.points, &field = input.field](std::size_t i, float u) {
        return makeArrow(Vector3f(points.x[i], points.y[i], points.z[i]), Vector3f(field.x[i], field.y[i], field.z[i]),
                         u);
    });
}

} // namespace vxgraphics3d
