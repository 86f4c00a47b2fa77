#include "renderer/plots/interactivepainter.h"

#include "graphics3d/plots/vector/scenegraphplotinteractive.h"
#include "renderer/plots/plotlook.h"
#include "renderer/upload/uploadcache.h"

#include <vector>

namespace vxrenderer {

using vxgraphics3d::PointCollection;
using vxgraphics3d::SceneGraphPlotInteractive;
using PlotType = vxgraphics3d::SceneGraphPlot::PlotType;

bool InteractivePainter::draws(PlotType type) const
{
    return type == PlotType::interactive;
}

namespace {

constexpr float c_lineWidth = 2.0f;
constexpr float c_pointSize = 7.0f;

/// The lines between the first two points, the next two, and so on.
std::vector<LineMesh::Piece> linesBetween(const PointCollection& points)
{
    std::vector<LineMesh::Piece> pieces;
    pieces.reserve(static_cast<std::size_t>(points.getNumParts() / 2));
    for (int i = 0; i + 1 < points.getNumParts(); i += 2) {
        pieces.push_back({points.getPart(i).getPosition(), points.getPart(i + 1).getPosition()});
    }
    return pieces;
}

/// Lines without length, which are squares as wide as the line.
std::vector<LineMesh::Piece> squaresAt(const PointCollection& points)
{
    std::vector<LineMesh::Piece> pieces;
    pieces.reserve(static_cast<std::size_t>(points.getNumParts()));
    for (int i = 0; i < points.getNumParts(); ++i) {
        pieces.push_back({points.getPart(i).getPosition(), points.getPart(i).getPosition()});
    }
    return pieces;
}

} // namespace

void InteractivePainter::draw(const PlotItem& item, const PaintContext& context) const
{
    const std::optional<Look> look = lookOf(item, context);
    if (!look) {
        return;
    }
    const auto& plot = static_cast<const SceneGraphPlotInteractive&>(*item.plot);
    const auto draw = [&](int number, const PointCollection& points, auto make, float width) {
        context.drawLines(
            context.uploads.lines(item.plot, number, plot.getGeometryChangeId(), [&] { return make(points); }), *look,
            width);
    };
    draw(0, plot.getLinePoints(), linesBetween, c_lineWidth);
    draw(1, plot.getDashPoints(), linesBetween, c_lineWidth);
    draw(2, plot.getInteractivePoints(), squaresAt, c_pointSize);
}

} // namespace vxrenderer
