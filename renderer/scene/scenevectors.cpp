#include "graphics3d/canvas/canvas3dsettings.h"
#include "graphics3d/canvas/canvasbackgroundimage.h"
#include "graphics3d/plots/graph/scenegraphplotgraph.h"
#include "renderer/export/vectorcanvas.h"
#include "renderer/gl/target.h"
#include "renderer/paint/paintcontext.h"
#include "renderer/plots/graphlines.h"
#include "renderer/scene/scenerenderer.h"

#include <algorithm>

// The part of the renderer of scenes that writes vectors.

namespace vxrenderer {
namespace {

using namespace vxgraphics3d;

/// Whether a view shows graphs alone, whose order no picture has to keep: they are drawn as vectors.
bool areGraphsVectors(const Frame& frame, const std::vector<SceneItem>& items)
{
    return frame.isFlat() && std::ranges::all_of(items, [](const SceneItem& item) {
               const auto* plot = std::get_if<PlotItem>(&item);
               return plot != nullptr && plot->plot->getType() == PlotType::graph;
           });
}

std::vector<std::uint8_t> readPixels(const Target& target)
{
    target.beginOverlay();
    std::vector<std::uint8_t> pixels(std::size_t(4) * static_cast<std::size_t>(target.getWidth()) *
                                     static_cast<std::size_t>(target.getHeight()));
    target.read(pixels.data());
    return pixels;
}

} // namespace

void SceneRenderer::drawBackdrop(const Frame& frame, const FrameLayout& layout, const Target& target,
                                 VectorCanvas& canvas)
{
    const Appearance::Backdrop& backdrop = frame.appearance.backdrop;
    if (backdrop.image == nullptr || !backdrop.image->wasImageSet()) {
        canvas.fillBackdrop(backdrop.top, backdrop.bottom);
        return;
    }
    target.beginScene();
    m_background.draw(backdrop, layout.width, layout.height, frame.appearance.scale);
    const std::vector<std::uint8_t> pixels = readPixels(target);
    canvas.drawPicture(TranslucentPicture::of(pixels, pixels, layout.width));
}

std::vector<std::uint8_t> SceneRenderer::drawPicture(const Frame& frame, const FrameLayout& layout,
                                                     const Target& target, const Color& background,
                                                     const Surroundings& around, std::vector<PlacedLabel>& labels)
{
    labels.clear();
    target.beginScene();
    m_background.draw({background, background, nullptr, {}, {}}, layout.width, layout.height, frame.appearance.scale);
    if (!m_view.area.isEmpty() && !areGraphsVectors(frame, layout.items)) {
        drawScene(frame, layout, around.axes ? &*around.axes : nullptr, target, &labels);
        glDisable(GL_BLEND);
    }
    return readPixels(target);
}

void SceneRenderer::drawVectors(const Frame& frame, const FrameLayout& layout, const Target& target,
                                VectorCanvas& canvas)
{
    drawBackdrop(frame, layout, target, canvas);
    const Surroundings around = layOutSurroundings(frame, layout);
    const auto inArea = [&](const auto& draw) {
        canvas.enterArea(m_view.area);
        draw();
        canvas.leaveArea();
    };
    if (around.axes) {
        inArea([&] { around.axes->drawBehind(canvas); });
    }
    std::vector<PlacedLabel> labels;
    const auto onBlack = drawPicture(frame, layout, target, Color::fromRgb(0), around, labels);
    const auto onWhite = drawPicture(frame, layout, target, Color::fromRgb(0xffffff), around, labels);
    canvas.drawPicture(TranslucentPicture::of(onBlack, onWhite, layout.width));
    if (!m_view.area.isEmpty() && (frame.canvas.getRenderMask() & RenderPlots) != 0 &&
        areGraphsVectors(frame, layout.items)) {
        inArea([&] {
            for (const SceneItem& item : layout.items) {
                drawGraph(static_cast<const SceneGraphPlotGraph&>(*std::get<PlotItem>(item).plot), m_view,
                          frame.appearance.opacity, frame.appearance.scale, frame.logAxes(), canvas);
            }
        });
    }
    drawPlaced(labels, layout, canvas);
    if (around.axes) {
        around.axes->drawAround(canvas);
    }
    if (around.triad) {
        around.triad->drawAxes(canvas);
    }
    drawOverlays(frame, layout, canvas, OverlayTexts::onCanvas);
    drawDecoration(layout, around, canvas);
    dropUnused();
}

} // namespace vxrenderer
