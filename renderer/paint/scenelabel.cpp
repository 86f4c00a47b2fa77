#include "renderer/paint/scenelabel.h"

#include "graphics3d/foundation/textutil.h"
#include "renderer/frame/view.h"
#include "renderer/paint/overlaypainter.h"
#include "renderer/text/titlemarkup.h"

#include <algorithm>
#include <cmath>
#include <limits>

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

/// The w of a point of the eye's coordinates after the projection: what lies at the eye or behind it has none above 0.
float projectedW(const View& view, const Vector3f& eye)
{
    return view.projection.get(4, 1) * eye.x + view.projection.get(4, 2) * eye.y + view.projection.get(4, 3) * eye.z +
           view.projection.get(4, 4);
}

Color contrastingWith(const Color& color)
{
    constexpr int c_middle = 128 * 1000;
    return Color::fromRgb(299 * color.red + 587 * color.green + 114 * color.blue < c_middle ? 0xffffff : 0x000000);
}

/// Draws a text moved to all sides by the width of its rim.
void drawHalo(const TextLayout& text, FontSet& fonts, float left, float top, const Color& color, float depth,
              OverlayPainter& painter)
{
    constexpr float c_partOfFontSize = 0.1f;
    const float width = std::max(1.0f, std::round(c_partOfFontSize * fonts.fontSize()));
    for (const float dy : {-width, 0.0f, width}) {
        for (const float dx : {-width, 0.0f, width}) {
            painter.drawText(text, fonts, left + dx, top + dy, color, depth);
        }
    }
}

bool isInView(const Vector3f& clip)
{
    return std::abs(clip.x) <= 1.0f && std::abs(clip.y) <= 1.0f && std::abs(clip.z) <= 1.0f;
}

} // namespace

void drawLabels(std::span<const SceneLabel> labels, const View& view, int width, int height, FontSet& fonts,
                OverlayPainter& painter)
{
    painter.begin(width, height);
    glDepthMask(GL_FALSE);
    for (const SceneLabel& label : labels) {
        const Vector3f eye = view.sceneToEye * label.point;
        const float w = projectedW(view, eye);
        const Vector3f clip = view.projection * eye;
        if (!(w > 0.0f) || !isInView(clip)) {
            continue;
        }
        const TextLayout text = layoutOf(label.text, fonts);
        // The surface that a label lies on rises before parts of the text. It is compared where it would be if it lay
        // nearer by its own height, so that only what lies clearly in front of the point hides it.
        const float unitsPerPixel = 2.0f * w / (view.projection.get(2, 2) * static_cast<float>(view.area.height));
        const Vector3f nearer = view.projection * (eye + Vector3f(0.0f, 0.0f, text.height * unitsPerPixel));
        const float depth = std::clamp(nearer.z, -1.0f, clip.z);
        const float x = static_cast<float>(view.area.x) + 0.5f * (1.0f + clip.x) * static_cast<float>(view.area.width);
        const float y = static_cast<float>(view.area.y) + 0.5f * (1.0f - clip.y) * static_cast<float>(view.area.height);
        if (label.isHideable) {
            glEnable(GL_DEPTH_TEST);
        } else {
            glDisable(GL_DEPTH_TEST);
        }
        // Whole pixels, so that the text and its rim are rounded alike.
        const float left = std::round(x - 0.5f * text.width);
        const float top = std::round(y - 0.5f * text.height);
        if (label.hasHalo) {
            drawHalo(text, fonts, left, top, contrastingWith(label.color), depth, painter);
        }
        painter.drawText(text, fonts, left, top, label.color, depth);
    }
    glDisable(GL_DEPTH_TEST);
    glDepthMask(GL_TRUE);
}

} // namespace vxrenderer
