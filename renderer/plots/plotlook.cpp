#include "renderer/plots/plotlook.h"

#include "graphics3d/plots/colour/colortable.h"
#include "graphics3d/plots/scenegraphplot.h"
#include "renderer/frame/view.h"
#include "renderer/upload/colortextures.h"

namespace vxrenderer {

using vxgraphics3d::ColorTable;
using vxgraphics3d::SceneGraphPlot;

std::optional<Look> lookOf(const PlotItem& item, const PaintContext& context)
{
    const SceneGraphPlot& plot = *item.plot;
    const std::array<float, 2> shown = shownTextureRange(plot);
    if (shown[0] > shown[1]) {
        return std::nullopt;
    }
    Look look = {context.view.sceneToEye, Material::of(plot.getColor())};
    // Height scale and plane offset were never applied to the vertices: the plot is stretched about its plane, which
    // lies at the offset.
    look.toEye.translate(0.0f, 0.0f, plot.getPlotPlaneOffset()).scale(1.0f, 1.0f, plot.getHeightScale());

    Material& material = look.material;
    // Plots are as opaque as the scene, also in a colour with an alpha of its own.
    material.color[3] = 1.0f;
    const boost::shared_ptr<ColorTable> table = plot.getColorTable();
    if (table) {
        const int handle = plot.getColorTableTextureHandle(0);
        material.hasTable = 1;
        material.hasSteps = context.colorTextures.bind(item.group, handle, *table) ? 1 : 0;
    }
    material.dataTex = {plot.getDataTexMin(), plot.getDataTexMax()};
    material.legendTex = {plot.getLegendTexMin(), plot.getLegendTexMax()};
    material.isReversed = plot.isReverseColorTable() ? 1 : 0;
    material.shininess = plot.getShininess();
    material.restriction = shown;
    return look;
}

std::array<float, 2> shownTextureRange(const SceneGraphPlot& plot)
{
    std::array<float, 2> shown = Material().restriction;
    const float low = plot.getRestrictionTexMin();
    const float high = plot.getRestrictionTexMax();
    if (!plot.hasValueRestrictions()) {
        return shown;
    }
    if (low >= high) {
        return {1.0f, 0.0f};
    }
    // An end of the restriction that lies at an end of the data hides nothing, however a coordinate between two
    // vertices is rounded.
    shown[0] = low > 0.0f ? low : shown[0];
    shown[1] = high < 1.0f ? high : shown[1];
    return shown;
}

} // namespace vxrenderer
