#include "renderer/plots/plotlook.h"

#include "graphics3d/plots/colour/colortable.h"
#include "graphics3d/plots/scenegraphplot.h"
#include "renderer/frame/view.h"
#include "renderer/upload/colortextures.h"

namespace vxrenderer {

using vxgraphics3d::SceneGraphPlot;

std::optional<Look> lookOf(const PlotItem& item, const PaintContext& context)
{
    const SceneGraphPlot& plot = *item.plot;
    const float low = plot.getRestrictionTexMin();
    const float high = plot.getRestrictionTexMax();
    if (plot.hasValueRestrictions() && low >= high) {
        return std::nullopt;
    }
    Look look = {context.view.sceneToEye, Material::of(plot.getColor())};
    // Height scale and plane offset were never applied to the vertices: the plot is stretched about its plane, which
    // lies at the offset.
    look.toEye.translate(0.0f, 0.0f, plot.getPlotPlaneOffset()).scale(1.0f, 1.0f, plot.getHeightScale());

    Material& material = look.material;
    // Plots are as opaque as the scene, also in a colour with an alpha of its own.
    material.color[3] = 1.0f;
    const boost::shared_ptr<vxgraphics3d::ColorTable> table = plot.getColorTable();
    if (table) {
        context.colorTextures.bind(item.group, plot.getColorTableTextureHandle(0), *table);
        material.hasTable = 1;
    }
    material.dataTex = {plot.getDataTexMin(), plot.getDataTexMax()};
    material.legendTex = {plot.getLegendTexMin(), plot.getLegendTexMax()};
    material.isReversed = plot.isReverseColorTable() ? 1 : 0;
    material.shininess = plot.getShininess();
    // An end of the restriction that lies at an end of the data hides nothing, however a coordinate between two
    // vertices is rounded.
    if (plot.hasValueRestrictions() && low > 0.0f) {
        material.restriction[0] = low;
    }
    if (plot.hasValueRestrictions() && high < 1.0f) {
        material.restriction[1] = high;
    }
    return look;
}

} // namespace vxrenderer
