#include "renderer/decoration/legend.h"

#include "renderer/decoration/barlegend.h"

namespace vxrenderer {

std::unique_ptr<Legend> makeLegend(const PlotItem& item, const LegendStyle& style, float maxWidth, float height)
{
    return std::make_unique<BarLegend>(item, style, maxWidth, height);
}

} // namespace vxrenderer
