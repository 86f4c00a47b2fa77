#include "renderer/scene/scenerenderer.h"

#include "base/ustring.h"
#include "graphics3d/canvas/canvas3dsettings.h"
#include "graphics3d/canvas/scenesettings.h"
#include "graphics3d/foundation/boundingbox.h"
#include "graphics3d/scene/scene.h"
#include "graphics3d/scenegraph/scenegraphroot.h"
#include "graphics3d/settings/canvas3dglobalsettings.h"
#include "graphics3d/viewing/icameratransforms.h"
#include "renderer/decoration/lightmarkers.h"
#include "renderer/decoration/triadpainter.h"
#include "renderer/frame/lighting.h"
#include "renderer/gl/target.h"
#include "renderer/scene/plotcollector.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace vxrenderer {
namespace {

using namespace vxgraphics3d;

/// Room around title, legends and scene, in units of the size of the legend's numbers.
constexpr float c_margin = 0.8f;
/// Gap between two legends, and the widest title of a legend, in the same units.
constexpr float c_legendGap = 1.6f;
constexpr float c_legendTitleWidth = 13.0f;
/// Parts of the picture that title and legends may take.
constexpr float c_titlePart = 0.3f;
constexpr float c_legendPart = 0.45f;
/// Legends that would be lower than this, in units of the size of their numbers, are left out.
constexpr float c_lowestLegend = 4.0f;
/// Widths of the lines of light markers, in pixels of the screen.
constexpr float c_markerWidth = 1.5f;
constexpr float c_selectedMarkerWidth = 3.5f;
/// Font sets kept before those of former sizes are given up.
constexpr std::size_t c_manyFontSets = 24;

/// Whether what is drawn covers what is there by its alpha, or replaces it.
void setBlending(bool on)
{
    if (on) {
        glEnable(GL_BLEND);
        glBlendFuncSeparate(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA, GL_ONE, GL_ONE_MINUS_SRC_ALPHA);
    } else {
        glDisable(GL_BLEND);
    }
}

} // namespace

SceneRenderer::SceneRenderer() : m_plotPainters(makePlotPainters()) {}

FontSet& SceneRenderer::fonts(const Frame& frame, TextItem item)
{
    const Appearance::Font& font = frame.appearance.font(item);
    return m_fontSets.get(font.name, font.size);
}

AxisFonts SceneRenderer::axisFonts(const Frame& frame)
{
    return {fonts(frame, TextItem::TextAxisTitle), fonts(frame, TextItem::TextAxisTick)};
}

LegendStyle SceneRenderer::legendStyle(const Frame& frame)
{
    const Canvas3dGlobalSettings& settings = *Canvas3dGlobalSettings::getInstance();
    return {.titleFonts = fonts(frame, TextItem::TextLegendTitle),
            .tickFonts = fonts(frame, TextItem::TextLegendTick),
            .color = frame.appearance.textColor(),
            .showMinMax = frame.appearance.showMinMax,
            .tickDigits = settings.getLegendTickPrecision(),
            .minMaxDigits = settings.getLegendMinMaxPrecision()};
}

void SceneRenderer::updateTitle(const Scene& scene)
{
    const SceneGraphRoot& root = *scene.getRoot();
    // Another group of plots may have counted its titles up to the same number.
    const bool isSameTree =
        m_titleRoot.lock().get() == &root && !root.isTreeStructureChanged(m_lastTreeStructure.changeId);
    if (isSameTree && !root.isTitleChanged(m_lastTitle)) {
        return;
    }
    vxbase::UString title;
    root.getTitle(title);
    m_title = parseTitle(title);
    m_titleRoot = root.self();
    m_lastTreeStructure.take(root.getTreeStructureChangeId());
    root.resetTitleChanged(m_lastTitle);
}

SceneRenderer::Decoration SceneRenderer::decorate(const Frame& frame, const std::vector<PlotItem>& plots, int width,
                                                  int height)
{
    Decoration decoration;
    LegendStyle style = legendStyle(frame);
    const float em = style.tickFonts.fontSize();
    const auto fullWidth = static_cast<float>(width);
    const auto fullHeight = static_cast<float>(height);
    const float margin = std::round(c_margin * em);
    decoration.margin = margin;

    float top = margin;
    if (frame.appearance.showTitle && !m_title.empty()) {
        decoration.title = layoutTitle(m_title, fonts(frame, TextItem::TextTitle),
                                       {std::max(fullWidth - 2.0f * margin, 1.0f), c_titlePart * fullHeight});
        if (decoration.title.height <= c_titlePart * fullHeight) {
            top += std::ceil(decoration.title.height) + margin;
        } else {
            decoration.title = TextLayout();
        }
    }

    const float legendHeight = fullHeight - top - margin;
    const float legendRoom = c_legendPart * fullWidth;
    float legendWidth = 0.0f;
    if (frame.appearance.showLegends && legendHeight >= c_lowestLegend * em) {
        const auto numLegends =
            std::ranges::count_if(plots, [](const PlotItem& item) { return hasColorLegend(*item.plot); });
        // The title of a plot stands in the title of the picture. Beside a single legend that is enough.
        style.showTitle = numLegends > 1 || decoration.title.numLines == 0;
        for (const PlotItem& item : plots) {
            if (!hasColorLegend(*item.plot)) {
                continue;
            }
            Legend legend(item, style, std::min(c_legendTitleWidth * em, legendRoom), legendHeight);
            const float wider =
                legendWidth + legend.getWidth() + (decoration.legends.empty() ? 0.0f : c_legendGap * em);
            if (wider > legendRoom) {
                break;
            }
            legendWidth = wider;
            decoration.legends.push_back(std::move(legend));
        }
    }
    decoration.legendTop = top;
    decoration.legendLeft = fullWidth - margin - std::ceil(legendWidth);
    const float right = decoration.legends.empty() ? fullWidth - margin : decoration.legendLeft - margin;
    decoration.rest = {static_cast<int>(margin), static_cast<int>(top), static_cast<int>(right - margin),
                       static_cast<int>(fullHeight - top - margin)};
    return decoration;
}

void SceneRenderer::setUpCamera(const Frame& frame, const PixelArea& area, int width, int height) const
{
    if (area.isEmpty()) {
        return;
    }
    frame.camera.setRenderArea(width, height, area.x, height - area.y - area.height, area.width, area.height);
    frame.camera.setBoundingBox(frame.scene->getBoundingBox());
}

SceneArea SceneRenderer::layOut(const Frame& frame, int width, int height)
{
    if (frame.scene == nullptr) {
        return {};
    }
    updateTitle(*frame.scene);
    const Decoration decoration = decorate(frame, collectPlots(*frame.scene->getRoot()), width, height);
    const SceneArea area = divideRoom(frame, decoration.rest, width, height, axisFonts(frame));
    setUpCamera(frame, area.whole, width, height);
    return area;
}

void SceneRenderer::drawScene(const Frame& frame, std::vector<PlotItem>& plots, const AxesPainter* axes,
                              const Target& target)
{
    const PixelArea& area = m_view.area;
    const int bottom = target.getHeight() - area.y - area.height;
    glViewport(area.x, bottom, area.width, area.height);
    glScissor(area.x, bottom, area.width, area.height);
    glEnable(GL_SCISSOR_TEST);
    if (axes != nullptr) {
        setBlending(true);
        axes->drawBehind(m_lines);
        setBlending(false);
    }
    glEnable(GL_DEPTH_TEST);
    glDepthFunc(GL_LEQUAL);
    // Surfaces lie a little deeper than lines at the same place.
    glEnable(GL_POLYGON_OFFSET_FILL);
    glPolygonOffset(1.0f, 1.0f);
    const Lighting lighting =
        Lighting::of(*frame.scene->getSceneLight(), *frame.sceneSettings->getLight(), frame.camera);
    drawPlots(plots, {m_view, lighting, frame.appearance.opacity, m_meshes, m_colorTextures});
    glDisable(GL_POLYGON_OFFSET_FILL);
    if (frame.appearance.showLightMarkers && !m_view.isFlat) {
        drawLightMarkers(frame);
    }
    glDisable(GL_DEPTH_TEST);
    if (axes != nullptr) {
        setBlending(true);
        axes->drawOver(m_lines);
        setBlending(false);
    }
    glDisable(GL_SCISSOR_TEST);
}

void SceneRenderer::drawPlots(std::vector<PlotItem>& plots, const PaintContext& context)
{
    const auto drawPlot = [&](const PlotItem& item) {
        const auto painter = std::ranges::find_if(
            m_plotPainters, [&](const auto& candidate) { return candidate->draws(item.plot->getType()); });
        if (painter != m_plotPainters.end()) {
            (*painter)->draw(item, context);
        }
    };
    if (context.opacity >= 1.0f) {
        std::ranges::for_each(plots, drawPlot);
        return;
    }
    if (context.opacity <= 0.0f) {
        return;
    }
    // What lies farther off comes first: plots by their middles, and of each plot what faces away.
    const auto depthOf = [&](const PlotItem& item) {
        return (context.view.sceneToEye * item.plot->getBoundingBox().getCenter()).z;
    };
    std::stable_sort(plots.begin(), plots.end(),
                     [&](const PlotItem& a, const PlotItem& b) { return depthOf(a) < depthOf(b); });
    setBlending(true);
    glDepthMask(GL_FALSE);
    glEnable(GL_CULL_FACE);
    for (const PlotItem& item : plots) {
        for (const GLenum culled : {GLenum{GL_FRONT}, GLenum{GL_BACK}}) {
            glCullFace(culled);
            drawPlot(item);
        }
    }
    glDisable(GL_CULL_FACE);
    glDepthMask(GL_TRUE);
    setBlending(false);
}

void SceneRenderer::drawLightMarkers(const Frame& frame)
{
    const BoundingBox& box = frame.scene->getBoundingBox();
    for (const LightMarker& marker : lightMarkers(*frame.scene->getSceneLight(), box, frame.camera)) {
        const float width = marker.isSelected ? c_selectedMarkerWidth : c_markerWidth;
        m_lines.draw(marker.lines, m_view.projection, m_view.area.width, m_view.area.height,
                     width * frame.appearance.scale, marker.color);
    }
}

void SceneRenderer::drawDecoration(const Frame& frame, const Decoration& decoration, const Target& target)
{
    m_overlay.begin(target.getWidth(), target.getHeight());
    const LegendStyle style = legendStyle(frame);
    const float titleLeft = 0.5f * (static_cast<float>(target.getWidth()) - decoration.title.width);
    m_overlay.drawText(decoration.title, fonts(frame, TextItem::TextTitle), titleLeft, decoration.margin, style.color);

    float headHeight = 0.0f;
    for (const Legend& legend : decoration.legends) {
        headHeight = std::max(headHeight, legend.getHeadHeight());
    }
    float left = decoration.legendLeft;
    for (const Legend& legend : decoration.legends) {
        legend.draw(m_overlay, m_colorTextures, style, left, decoration.legendTop, headHeight);
        left += legend.getWidth() + c_legendGap * style.tickFonts.fontSize();
    }
}

void SceneRenderer::dropUnused()
{
    m_meshes.dropLost();
    m_colorTextures.dropLost();
    if (m_fontSets.getSize() > c_manyFontSets) {
        m_overlay.forgetFonts();
        m_fontSets.forget();
    }
}

void SceneRenderer::draw(const Frame& frame, const Target& target)
{
    target.beginScene();
    m_view = View();
    m_background.draw(frame.appearance.backdrop, target.getWidth(), target.getHeight(), frame.appearance.scale);
    if (frame.scene == nullptr) {
        target.beginOverlay();
        dropUnused();
        return;
    }
    updateTitle(*frame.scene);
    const int width = target.getWidth();
    const int height = target.getHeight();
    std::vector<PlotItem> plots = collectPlots(*frame.scene->getRoot());
    const Decoration decoration = decorate(frame, plots, width, height);
    const PixelArea area = divideRoom(frame, decoration.rest, width, height, axisFonts(frame)).whole;
    std::optional<AxesPainter> axes;
    std::optional<TriadPainter> triad;
    if (!area.isEmpty()) {
        setUpCamera(frame, area, width, height);
        m_view = View::of(frame.camera, area, frame.isFlat());
        if (frame.appearance.showAxes) {
            axes.emplace(frame, m_view, width, height, axisFonts(frame));
        }
        if (frame.appearance.showAxisOrientation && !frame.isFlat()) {
            triad.emplace(frame, m_view);
        }
        if ((frame.canvas.getRenderMask() & RenderPlots) == 0) {
            plots.clear();
        }
        drawScene(frame, plots, axes ? &*axes : nullptr, target);
    }
    glViewport(0, 0, width, height);
    setBlending(true);
    if (axes) {
        axes->drawAround(m_lines);
    }
    if (triad) {
        triad->drawAxes(m_lines, width, height);
    }
    setBlending(false);
    target.beginOverlay();
    drawDecoration(frame, decoration, target);
    if (axes) {
        axes->drawLabels(m_overlay, axisFonts(frame));
    }
    if (triad) {
        triad->drawLetters(m_overlay, fonts(frame, TextItem::TextAxisOrientation));
    }
    dropUnused();
}

} // namespace vxrenderer
