#include "renderer/plots/slicepainter.h"

#include "graphics3d/plots/scalar/scenegraphplotslice3d.h"
#include "renderer/plots/plotlook.h"
#include "renderer/upload/uploadcache.h"

namespace vxrenderer {
namespace {

using vxgraphics3d::SceneGraphPlotSlice3d;
using PlotType = vxgraphics3d::SceneGraphPlot::PlotType;

constexpr vxgraphics3d::Color c_outline = {40, 40, 40, 255};
/// In pixels of the screen.
constexpr float c_outlineWidth = 1.2f;

} // namespace

bool SlicePainter::draws(PlotType type) const
{
    return type == PlotType::slice3d;
}

void SlicePainter::draw(const PlotItem& item, const PaintContext& context) const
{
    const std::optional<Look> look = lookOf(item, context);
    if (!look) {
        return;
    }
    const auto& plot = static_cast<const SceneGraphPlotSlice3d&>(*item.plot);
    // A restriction cuts the outline like the slice.
    const Look outline = {look->toEye, look->material.inColor(c_outline)};
    for (int i = 0; i < plot.getNumberOfSlices(); ++i) {
        const SceneGraphPlotSlice3d::Slice& slice = *plot.getSlice(i);
        if (slice.m_triangles.getNumElements(0) > 0) {
            context.drawMesh(
                context.uploads.mesh(item.plot, i, plot.getGeometryChangeId(), slice.m_vertices, slice.m_triangles),
                *look);
        }
        if (slice.m_lines.getNumElements(0) > 0) {
            context.drawLines(
                context.uploads.lines(item.plot, i, plot.getGeometryChangeId(), slice.m_vertices, slice.m_lines),
                outline, c_outlineWidth);
        }
    }
}

} // namespace vxrenderer
