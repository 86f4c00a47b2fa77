#include "renderer/decoration/legend.h"

#include "graphics3d/plots/istripedlegendplot.h"
#include "renderer/decoration/acrosslegend.h"
#include "renderer/decoration/barlegend.h"
#include "renderer/decoration/stripedlegend.h"

namespace vxrenderer {

std::unique_ptr<Legend> makeLegend(const PlotItem& item, const LegendStyle& style, float maxWidth, float height)
{
    if (style.isHorizontal) {
        return std::make_unique<AcrossLegend>(item, style, maxWidth, height);
    }
    const auto* striped = dynamic_cast<const vxgraphics3d::IStripedLegendPlot*>(item.plot.get());
    if (striped != nullptr && striped->getNumberOfLegendStripes() > 0) {
        return std::make_unique<StripedLegend>(item, style, maxWidth, height);
    }
    return std::make_unique<BarLegend>(item, style, maxWidth, height);
}

} // namespace vxrenderer
