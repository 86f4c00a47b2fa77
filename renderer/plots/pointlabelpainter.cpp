#include "renderer/plots/pointlabelpainter.h"

#include "graphics3d/plots/vector/scenegraphplotpointlabel.h"
#include "renderer/paint/paintcontext.h"

#include <algorithm>
#include <cstddef>

namespace vxrenderer {

using vxgraphics3d::PointCollection;
using vxgraphics3d::SceneGraphPlotPointLabel;
using vxgraphics3d::Vector3f;
using PlotType = vxgraphics3d::SceneGraphPlot::PlotType;

bool PointLabelPainter::draws(PlotType type) const
{
    return type == PlotType::pointLabel2d || type == PlotType::pointLabel3d;
}

void PointLabelPainter::draw(const PlotItem& item, const PaintContext& context) const
{
    visitLabels(static_cast<const SceneGraphPlotPointLabel&>(*item.plot),
                [&context](const SceneLabel& label) { context.drawLabel(label); });
}

void visitLabels(const SceneGraphPlotPointLabel& plot, const TakeLabel& take)
{
    const PointCollection& points = plot.getLabelPoints();
    const std::size_t count = std::min(plot.getLabels().size(), static_cast<std::size_t>(points.getNumParts()));
    for (std::size_t i = 0; i < count; ++i) {
        Vector3f point = points.getPart(static_cast<int>(i)).getPosition();
        point.z = point.z * plot.getHeightScale() + plot.getPlotPlaneOffset();
        take({.point = point, .text = plot.getLabels()[i], .color = plot.getColor(), .isBeside = true});
    }
}

} // namespace vxrenderer
