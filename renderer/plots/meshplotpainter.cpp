#include "renderer/plots/meshplotpainter.h"

#include "graphics3d/plots/scalar/scenegraphplotmesh3d.h"
#include "renderer/plots/plotlook.h"
#include "renderer/upload/uploadcache.h"

namespace vxrenderer {
namespace {

using vxgraphics3d::SceneGraphPlotMesh3d;
using PlotType = vxgraphics3d::SceneGraphPlot::PlotType;

// In pixels of the screen.
constexpr float c_wireframeWidth = 1.0f;
constexpr float c_lineWidth = 1.5f;

} // namespace

bool MeshPlotPainter::draws(PlotType type) const
{
    return type == PlotType::mesh2d || type == PlotType::mesh3d;
}

void MeshPlotPainter::draw(const PlotItem& item, const PaintContext& context) const
{
    const std::optional<Look> look = lookOf(item, context);
    if (!look) {
        return;
    }
    const auto& plot = static_cast<const SceneGraphPlotMesh3d&>(*item.plot);
    // Wireframes have no values, so a restriction of values hides none of them.
    const Look wireframe = {look->toEye, Material::of(plot.getWireframeColor())};
    const auto drawLines = [&](int group, const vxgraphics3d::IndexBuffer& lines, const Look& its, float width) {
        context.drawLines(
            context.uploads.lines(item.plot, group, plot.getGeometryChangeId(), plot.getVertexBuffer(group), lines),
            its, width);
    };
    const auto drawFaces = [&](int group) {
        const int changeId = plot.getGeometryChangeId();
        const auto& vertices = plot.getVertexBuffer(group);
        const auto& triangles = plot.getTriangleBuffer(group);
        if (plot.getType() == PlotType::mesh3d && !plot.isPoints(group)) {
            context.drawBody(context.uploads.body(item.plot, group, changeId, vertices, triangles), *look);
        } else {
            context.drawMesh(context.uploads.mesh(item.plot, group, changeId, vertices, triangles), *look);
        }
    };
    for (int i = 0; i < plot.getNumberOfGroups(); ++i) {
        if (plot.getTriangleBuffer(i).getNumElements(0) > 0 && (plot.isDisplayInterior() || plot.isPoints(i))) {
            drawFaces(i);
        }
        if (plot.getLineBuffer(i).getNumElements(0) > 0) {
            drawLines(i, plot.getLineBuffer(i), *look, c_lineWidth);
        }
        if (plot.getWireframeBuffer(i).getNumElements(0) > 0 && plot.isDisplayWireframe()) {
            drawLines(i, plot.getWireframeBuffer(i), wireframe, c_wireframeWidth);
        }
    }
}

} // namespace vxrenderer
