#include "renderer/paint/scenelabel.h"

#include "graphics3d/foundation/textutil.h"
#include "renderer/frame/contrast.h"
#include "renderer/frame/view.h"
#include "renderer/gl/globject.h"
#include "renderer/paint/overlaypainter.h"
#include "renderer/paint/picturepoint.h"
#include "renderer/text/titlemarkup.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <map>
#include <optional>
#include <utility>
#include <vector>

namespace vxrenderer {
namespace {

using vxgraphics3d::Color;
using vxgraphics3d::Vector3f;

TextLayout layoutOf(const vxbase::UString& text, FontSet& fonts)
{
    constexpr float c_noLimit = std::numeric_limits<float>::max();
    vxbase::UString escaped;
    vxgraphics3d::TextUtil::escapeBracesAndBackslash(text, escaped);
    vxbase::UString markup("\\unicode{");
    markup.append(escaped).append(vxbase::UString("}"));
    return layoutTitle(parseTitle(markup), fonts, {c_noLimit, c_noLimit});
}

/// A label in view, at its position.
struct ShownLabel {
    const SceneLabel* label;
    TextLayout text;
    /// The pixel of its point.
    float x = 0.0f;
    float y = 0.0f;
    float pointDepth = 0.0f;
    /// What the text is compared with.
    float depth = 0.0f;
    /// The top left corner of the text.
    float left = 0.0f;
    float top = 0.0f;
};

/// Nothing for a label whose point is not in view.
/// @param layOut gives its text
template <class LayOut>
std::optional<ShownLabel> shownLabel(const SceneLabel& label, const View& view, const LayOut& layOut)
{
    if (!PicturePoint::of(label.point, view, 0.0f)) {
        return std::nullopt;
    }
    ShownLabel shown = {&label, layOut()};
    // Only what lies clearly in front of the point hides the text. One that does not lie on its point reaches farther.
    const float reach = shown.text.height + (label.isBeside ? shown.text.width : 0.0f);
    const PicturePoint place = *PicturePoint::of(label.point, view, reach);
    shown.pointDepth = place.depth;
    shown.depth = place.nearerDepth;
    shown.x = place.x;
    shown.y = place.y;
    shown.left = shown.x - 0.5f * shown.text.width;
    shown.top = shown.y - 0.5f * shown.text.height;
    return shown;
}

/// Rectangles that are taken, sorted into cells, so that only neighbours are compared.
class TakenSpace {
public:
    bool overlaps(const PixelRect& rect) const
    {
        bool isTaken = false;
        forEachCell(rect, [&](const Cell& cell) {
            const auto found = m_cells.find(cell);
            isTaken =
                isTaken || (found != m_cells.end() && std::ranges::any_of(found->second, [&](const PixelRect& other) {
                                return rect.left < other.right && other.left < rect.right && rect.top < other.bottom &&
                                       other.top < rect.bottom;
                            }));
        });
        return isTaken;
    }
    void take(const PixelRect& rect)
    {
        forEachCell(rect, [&](const Cell& cell) { m_cells[cell].push_back(rect); });
    }

private:
    using Cell = std::pair<int, int>;
    static constexpr float c_cellSize = 64.0f;

    template <class Visit>
    static void forEachCell(const PixelRect& rect, Visit visit)
    {
        const auto cell = [](float pixel) { return static_cast<int>(std::floor(pixel / c_cellSize)); };
        for (int row = cell(rect.top); row <= cell(rect.bottom); ++row) {
            for (int column = cell(rect.left); column <= cell(rect.right); ++column) {
                visit(Cell(row, column));
            }
        }
    }

    std::map<Cell, std::vector<PixelRect>> m_cells;
};

/// Half the size of what may mark a point, in units of the font size.
constexpr float c_pointSize = 0.25f;

/// Moves labels next to their points, and leaves out those without a free side. Sorts all, the nearest first.
void placeBeside(std::vector<ShownLabel>& labels, float fontSize)
{
    std::ranges::stable_sort(labels, {}, &ShownLabel::pointDepth);
    const float pointSize = c_pointSize * fontSize;
    TakenSpace taken;
    std::erase_if(labels, [&](ShownLabel& shown) {
        if (!shown.label->isBeside) {
            return false;
        }
        const float gap = 0.3f * shown.text.height;
        const float across = 0.5f * shown.text.width + gap;
        const float along = 0.5f * shown.text.height + gap;
        // Above, below, to the right and to the left, then the corners.
        const std::array<std::pair<float, float>, 8> moves = {{{0.0f, -along},
                                                               {0.0f, along},
                                                               {across, 0.0f},
                                                               {-across, 0.0f},
                                                               {across, -along},
                                                               {-across, -along},
                                                               {across, along},
                                                               {-across, along}}};
        const auto rectAt = [&](const std::pair<float, float>& move) {
            const float left = shown.left + move.first;
            const float top = shown.top + move.second;
            return PixelRect{left, top, left + shown.text.width, top + shown.text.height};
        };
        const auto free = std::ranges::find_if(moves, [&](const auto& move) { return !taken.overlaps(rectAt(move)); });
        // A point stays visible also if its text does not.
        taken.take({shown.x - pointSize, shown.y - pointSize, shown.x + pointSize, shown.y + pointSize});
        if (free == moves.end()) {
            return true;
        }
        const PixelRect rect = rectAt(*free);
        taken.take(rect);
        shown.left = rect.left;
        shown.top = rect.top;
        return false;
    });
}

/// Samples of a rectangle that pass the depth test.
GLuint countSamples(const PixelRect& rect, float depth, OverlayPainter& painter)
{
    const GlQuery query;
    glBeginQuery(GL_SAMPLES_PASSED, query.name());
    painter.fillRect(rect, {0, 0, 0, 0}, depth);
    glEndQuery(GL_SAMPLES_PASSED);
    GLuint count = 0;
    glGetQueryObjectuiv(query.name(), GL_QUERY_RESULT, &count);
    return count;
}

/// What a label covers with its rim.
PixelRect rectOf(const ShownLabel& shown, float fontSize)
{
    const float rim = haloWidth(fontSize);
    return {shown.left - rim, shown.top - rim, shown.left + shown.text.width + rim,
            shown.top + shown.text.height + rim};
}

/// Whether nothing in front of a label covers any of it.
bool isFree(const ShownLabel& shown, const PixelRect& rect, OverlayPainter& painter)
{
    if (!shown.label->isHideable) {
        return true;
    }
    glDisable(GL_DEPTH_TEST);
    const GLuint all = countSamples(rect, shown.depth, painter);
    glEnable(GL_DEPTH_TEST);
    return countSamples(rect, shown.depth, painter) == all;
}

/// The colours of a text that is read on anything. Dark and strong colours have a white rim, for which they become a
/// little darker if they have to: a black one would outweigh them.
TextColors withRim(const Color& color)
{
    constexpr double c_enoughForWhite = 2.5;
    constexpr double c_step = 0.04;
    const Color white = Color::fromRgb(0xffffff);
    if (contrastOf(color, white) < c_enoughForWhite) {
        return {color, Color::fromRgb(0x000000)};
    }
    Color text = color;
    for (double part = c_step; contrastOf(text, white) < c_textContrast; part += c_step) {
        text = mixed(color, Color::fromRgb(0x000000), part);
    }
    return {text, white};
}

} // namespace

LabelExtent::LabelExtent(std::vector<SceneLabel> labels, FontSet& fonts)
    : m_labels(std::move(labels)), m_fontSize(fonts.fontSize())
{
    for (const SceneLabel& label : m_labels) {
        const TextLayout text = layoutOf(label.text, fonts);
        m_sizes.push_back({{}, text.width, text.height, text.numLines});
    }
}

std::vector<PixelRect> LabelExtent::rectsIn(const View& view) const
{
    std::vector<ShownLabel> shownLabels;
    for (std::size_t i = 0; i < m_labels.size(); ++i) {
        if (std::optional<ShownLabel> shown = shownLabel(m_labels[i], view, [&] { return m_sizes[i]; })) {
            shownLabels.push_back(std::move(*shown));
        }
    }
    placeBeside(shownLabels, m_fontSize);
    std::vector<PixelRect> rects;
    for (const ShownLabel& shown : shownLabels) {
        rects.push_back(rectOf(shown, m_fontSize));
    }
    return rects;
}

void drawLabels(std::span<const SceneLabel> labels, const View& view, int width, int height, FontSet& fonts,
                OverlayPainter& painter, std::vector<PlacedLabel>* free)
{
    std::vector<ShownLabel> shownLabels;
    for (const SceneLabel& label : labels) {
        if (std::optional<ShownLabel> shown = shownLabel(label, view, [&] { return layoutOf(label.text, fonts); })) {
            shownLabels.push_back(std::move(*shown));
        }
    }
    placeBeside(shownLabels, fonts.fontSize());
    // What is nearer is drawn later.
    std::ranges::reverse(shownLabels);
    painter.begin(width, height);
    glDepthMask(GL_FALSE);
    for (const ShownLabel& shown : shownLabels) {
        const TextColors colors = withRim(shown.label->color);
        if (free != nullptr && isFree(shown, rectOf(shown, fonts.fontSize()), painter)) {
            free->push_back({shown.text, shown.left, shown.top, colors});
            continue;
        }
        if (shown.label->isHideable) {
            glEnable(GL_DEPTH_TEST);
        } else {
            glDisable(GL_DEPTH_TEST);
        }
        painter.drawText(shown.text, fonts, shown.left, shown.top, colors, shown.depth);
    }
    glDisable(GL_DEPTH_TEST);
    glDepthMask(GL_TRUE);
}

} // namespace vxrenderer
