#include "renderer/plots/plotlook.h"

#include "graphics3d/plots/colour/colortable.h"
#include "graphics3d/plots/scenegraphplot.h"
#include "renderer/frame/view.h"
#include "renderer/upload/colortextures.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace vxrenderer {

using vxgraphics3d::ColorTable;
using vxgraphics3d::SceneGraphPlot;

namespace {

/// By how much a channel changes from texel to texel where a table jumps.
constexpr int c_jump = 12;

bool hasJumps(const ColorTable& table)
{
    const ColorTable::Texels& texels = table.getRgba();
    for (std::size_t i = 1; i < texels.size(); ++i) {
        for (const int shift : {8, 16, 24}) {
            const auto channel = [shift](std::uint32_t texel) { return static_cast<int>(texel >> shift & 255u); };
            if (std::abs(channel(texels[i]) - channel(texels[i - 1])) >= c_jump) {
                return true;
            }
        }
    }
    return false;
}

} // namespace

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
        context.colorTextures.bind(item.group, plot.getColorTableTextureHandle(0), *table);
        material.hasTable = 1;
        material.hasSteps = hasJumps(*table) ? 1 : 0;
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
