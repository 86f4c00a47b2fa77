#include "renderer/decoration/triadpainter.h"

#include "base/ustring.h"
#include "graphics3d/cameras/axisorientationindicator.h"
#include "renderer/axes/axislayout.h"
#include "renderer/decoration/legendmarks.h"
#include "renderer/frame/contrast.h"
#include "renderer/frame/frame.h"
#include "renderer/frame/view.h"
#include "renderer/text/titlemarkup.h"

#include <algorithm>
#include <cmath>

namespace vxrenderer {
namespace {

using vxgraphics3d::AxisOrientationIndicator;
using vxgraphics3d::Color;

/// From the border of the scene to the longest axis, and what is free around letters, in units of their size.
constexpr float c_border = 1.5f;
constexpr float c_gap = 0.2f;
/// Of shafts, in units of the line width: bodies need some width for their shading.
constexpr float c_shaftRadius = 0.75f;
/// Of heads, in units of the length of an axis, and of the radius of the shaft.
constexpr float c_headLength = 0.32f;
constexpr float c_headRadius = 2.3f;

/// Of the arrows to the background; their shading needs some of it.
constexpr double c_contrast = 3.0;

/// A colour, moved towards black or white as far as it has to be for its contrast to what is behind it.
Color distinctFrom(const Color& behind, const Color& color)
{
    constexpr int c_steps = 20;
    Color distinct = color;
    for (int step = 1; step <= c_steps && contrastOf(distinct, behind) < c_contrast; ++step) {
        distinct = mixed(color, contrastingWith(behind), static_cast<double>(step) / c_steps);
    }
    return distinct;
}

Triad::Sizes sizesOf(const Frame& frame, const AxisOrientationIndicator& indicator)
{
    const float length = frame.appearance.millimetres(indicator.getAxisLength());
    const float shaft =
        std::max(frame.appearance.scale, c_shaftRadius * frame.appearance.millimetres(indicator.getLineWidth()));
    return {length, shaft, c_headRadius * shaft, c_headLength * length};
}

} // namespace

TriadPainter::TriadPainter(const Frame& frame, const View& view, int pictureHeight, FontSet& letters)
    : m_fonts(letters),
      m_letterColors(frame.appearance.textColor(), contrastingWith(frame.appearance.textColor())),
      m_triad(frame.camera, sizesOf(frame, *frame.canvas.getAxisOrientationIndicatorPtr()))
{
    const AxisOrientationIndicator& indicator = *frame.canvas.getAxisOrientationIndicatorPtr();
    const float letterSize = letters.fontSize();
    const float reach = m_triad.sizes.length + c_border * letterSize;
    m_originX = static_cast<float>(view.area.x) + reach;
    m_originY = static_cast<float>(view.area.y + view.area.height) - reach;
    const double part = static_cast<double>(m_originY / static_cast<float>(pictureHeight));
    const Color behind = frame.appearance.backgroundAt(part);
    m_letterColors.halo = frame.appearance.haloOf(m_letterColors.text, part);

    std::array<Triad::Letter, 3> sizes{};
    std::array<PixelRect, 3> inks{};
    const float gap = c_gap * letterSize;
    const float around = 2.0f * (haloWidth(letterSize) + 1.0f);
    for (std::size_t i = 0; i < m_colors.size(); ++i) {
        const auto axis = static_cast<AxisOrientationIndicator::Axis>(i);
        m_colors[i] = distinctFrom(behind, indicator.getColor(axis));
        m_letters[i].text = layoutTitle(parseTitle(vxbase::UString(plainText(withoutUnit(indicator.getLabel(axis))))),
                                        letters, {AxisLabel::c_noLimit, AxisLabel::c_noLimit});
        inks[i] = inkOf(m_letters[i].text, letters);
        sizes[i] = {inks[i].right - inks[i].left + around, inks[i].bottom - inks[i].top + around};
    }
    const std::array<Triad::Position, 3> positions = m_triad.placeLetters(sizes, gap);
    for (std::size_t i = 0; i < m_letters.size(); ++i) {
        m_letters[i].left = m_originX + positions[i].x - 0.5f * (inks[i].left + inks[i].right);
        m_letters[i].top = m_originY - positions[i].y - 0.5f * (inks[i].top + inks[i].bottom);
    }
}

void TriadPainter::drawAxes(DecorationCanvas& canvas) const
{
    canvas.drawSolids(m_triad.solids(m_colors), {m_originX, m_originY});
}

void TriadPainter::drawLetters(DecorationCanvas& canvas) const
{
    for (const Letter& letter : m_letters) {
        canvas.drawText(letter.text, m_fonts, letter.left, letter.top, m_letterColors);
    }
}

} // namespace vxrenderer
