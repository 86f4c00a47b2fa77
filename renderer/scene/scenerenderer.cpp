#include "renderer/scene/scenerenderer.h"

#include "base/ustring.h"
#include "graphics3d/foundation/boundingbox.h"
#include "graphics3d/scenegraph/scenegraphroot.h"
#include "renderer/gl/target.h"
#include "renderer/scene/plotcollector.h"

#include <algorithm>
#include <cmath>

namespace vxrenderer {
namespace {

using vxgraphics3d::Color;
using vxgraphics3d::SceneGraphRoot;

constexpr Color c_black = {0, 0, 0, 255};

/// Size of the title's font beside that of all other text.
constexpr float c_titleSize = 1.3f;
/// Room around title, legends and scene, in units of the font size.
constexpr float c_margin = 0.8f;
/// Gap between two legends, and the widest title of a legend, in units of the font size.
constexpr float c_legendGap = 1.6f;
constexpr float c_legendTitleWidth = 13.0f;
/// Parts of the picture that title and legends may take.
constexpr float c_titlePart = 0.3f;
constexpr float c_legendPart = 0.45f;
/// Legends that would be lower than this, in units of the font size, are left out.
constexpr float c_lowestLegend = 4.0f;

bool haveSameFont(const PictureSettings& a, const PictureSettings& b)
{
    return a.fontName == b.fontName && a.fontSize == b.fontSize;
}

} // namespace

SceneRenderer::SceneRenderer() : m_plotPainters(makePlotPainters())
{
    updateFonts();
}

void SceneRenderer::setSettings(const PictureSettings& settings)
{
    const bool isSameFont = haveSameFont(m_settings, settings);
    m_settings = settings;
    if (!isSameFont) {
        updateFonts();
    }
}

void SceneRenderer::updateFonts()
{
    m_overlay.forgetFonts();
    const auto titleSize = static_cast<int>(std::lround(c_titleSize * static_cast<float>(m_settings.fontSize)));
    m_fonts = std::make_unique<FontSet>(m_fontLibrary, m_settings.fontName, m_settings.fontSize);
    m_titleFonts = std::make_unique<FontSet>(m_fontLibrary, m_settings.fontName, titleSize);
}

void SceneRenderer::updateTitle(const SceneGraphRoot& root)
{
    // Another group of plots may have counted its titles up to the same number.
    const bool isSameTree = m_titleRoot.lock().get() == &root && !root.isTreeStructureChanged(m_lastTreeStructure);
    if (isSameTree && !root.isTitleChanged(m_lastTitle)) {
        return;
    }
    vxbase::UString title;
    root.getTitle(title);
    m_title = parseTitle(title);
    m_titleRoot = root.self();
    m_lastTreeStructure = root.getTreeStructureChangeId();
    root.resetTitleChanged(m_lastTitle);
}

SceneRenderer::Decoration SceneRenderer::layOut(const std::vector<PlotItem>& plots, int width, int height)
{
    Decoration decoration;
    const float em = m_fonts->fontSize();
    const auto fullWidth = static_cast<float>(width);
    const auto fullHeight = static_cast<float>(height);
    const float margin = std::round(c_margin * em);
    decoration.margin = margin;

    float top = margin;
    if (m_settings.showTitle && !m_title.empty()) {
        decoration.title =
            layoutTitle(m_title, *m_titleFonts, {std::max(fullWidth - 2.0f * margin, 1.0f), c_titlePart * fullHeight});
        if (decoration.title.height <= c_titlePart * fullHeight) {
            top += std::ceil(decoration.title.height) + margin;
        } else {
            decoration.title = TextLayout();
        }
    }

    const float legendHeight = fullHeight - top - margin;
    const float legendRoom = c_legendPart * fullWidth;
    float legendWidth = 0.0f;
    if (m_settings.showLegends && legendHeight >= c_lowestLegend * em) {
        for (const PlotItem& item : plots) {
            if (!hasColorLegend(*item.plot)) {
                continue;
            }
            Legend legend(item, *m_fonts, std::min(c_legendTitleWidth * em, legendRoom), legendHeight);
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
    decoration.sceneArea = {static_cast<int>(margin), static_cast<int>(top), static_cast<int>(right - margin),
                            static_cast<int>(fullHeight - top - margin)};
    return decoration;
}

void SceneRenderer::drawScene(const std::vector<PlotItem>& plots, const SceneGraphRoot& root, const Target& target)
{
    if (m_view.isEmpty()) {
        return;
    }
    const PixelArea& area = m_view.area;
    const int bottom = target.getHeight() - area.y - area.height;
    glViewport(area.x, bottom, area.width, area.height);
    glScissor(area.x, bottom, area.width, area.height);
    glEnable(GL_SCISSOR_TEST);
    glEnable(GL_DEPTH_TEST);
    glDepthFunc(GL_LEQUAL);
    glDisable(GL_BLEND);
    // Surfaces lie a little deeper than lines at the same place.
    glEnable(GL_POLYGON_OFFSET_FILL);
    glPolygonOffset(1.0f, 1.0f);

    const PaintContext context = {m_view, m_settings.isLit, m_meshes, m_colorTextures};
    for (const PlotItem& item : plots) {
        for (const auto& painter : m_plotPainters) {
            if (painter->draws(item.plot->getType())) {
                painter->draw(item, context);
                break;
            }
        }
    }
    if (m_settings.showBox) {
        m_boxPainter.draw(root.getBoundingBox(), m_view);
    }
    glDisable(GL_POLYGON_OFFSET_FILL);
}

void SceneRenderer::drawDecoration(const Decoration& decoration, const Target& target)
{
    m_overlay.begin(target.getWidth(), target.getHeight());
    const float titleLeft = 0.5f * (static_cast<float>(target.getWidth()) - decoration.title.width);
    m_overlay.drawText(decoration.title, *m_titleFonts, titleLeft, decoration.margin, c_black);

    float headHeight = 0.0f;
    for (const Legend& legend : decoration.legends) {
        headHeight = std::max(headHeight, legend.getHeadHeight());
    }
    float left = decoration.legendLeft;
    for (const Legend& legend : decoration.legends) {
        legend.draw(m_overlay, m_colorTextures, *m_fonts, left, decoration.legendTop, headHeight);
        left += legend.getWidth() + c_legendGap * m_fonts->fontSize();
    }
}

void SceneRenderer::draw(const SceneGraphRoot* root, const Target& target)
{
    const auto channel = [](int value) { return static_cast<float>(value) / 255.0f; };
    const Color& background = m_settings.background;
    target.beginScene(channel(background.red), channel(background.green), channel(background.blue));
    m_view = View();
    if (root != nullptr) {
        const std::vector<PlotItem> plots = collectPlots(*root);
        updateTitle(*root);
        const Decoration decoration = layOut(plots, target.getWidth(), target.getHeight());
        m_view = fitView(root->getBoundingBox(), decoration.sceneArea, m_settings.direction);
        drawScene(plots, *root, target);
        target.beginOverlay();
        drawDecoration(decoration, target);
    } else {
        target.beginOverlay();
    }
    m_meshes.dropLost();
    m_colorTextures.dropLost();
}

} // namespace vxrenderer
