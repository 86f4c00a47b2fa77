#include "renderer/decoration/triadpainter.h"

#include "base/ustring.h"
#include "graphics3d/cameras/axisorientationindicator.h"
#include "graphics3d/foundation/matrixf.h"
#include "renderer/axes/labelplacer.h"
#include "renderer/frame/frame.h"
#include "renderer/frame/view.h"
#include "renderer/paint/linepainter.h"
#include "renderer/paint/overlaypainter.h"

#include <algorithm>

namespace vxrenderer {
namespace {

using vxgraphics3d::AxisOrientationIndicator;

/// From the tip of an axis to the middle of its letter, and from the border of the scene to the longest axis, in units
/// of the size of the letters.
constexpr float c_letterGap = 0.7f;
constexpr float c_border = 1.5f;

} // namespace

TriadPainter::TriadPainter(const Frame& frame, const View& view) : m_letterColor(frame.appearance.textColor())
{
    const AxisOrientationIndicator& indicator = *frame.canvas.getAxisOrientationIndicatorPtr();
    m_lineWidth = std::max(1.0f, frame.appearance.millimetres(indicator.getLineWidth()));
    for (std::size_t i = 0; i < m_colors.size(); ++i) {
        const auto axis = static_cast<AxisOrientationIndicator::Axis>(i);
        m_colors[i] = indicator.getColor(axis);
        m_letters[i] = indicator.getLabel(axis);
    }
    const auto letterSize = static_cast<float>(frame.appearance.font(vxgraphics3d::TextItem::TextAxisOrientation).size);
    const float length = frame.appearance.millimetres(indicator.getAxisLength());
    const float reach = length + c_border * letterSize;
    m_triad = Triad::of(frame.camera, static_cast<float>(view.area.x) + reach,
                        static_cast<float>(view.area.y + view.area.height) - reach, length, c_letterGap * letterSize);
}

void TriadPainter::drawAxes(const LinePainter& painter, int width, int height) const
{
    for (const Triad::Axis& axis : m_triad.axes) {
        painter.draw(axis.lines, {pixelsToClip(width, height), width, height, m_lineWidth}, m_colors[axis.index]);
    }
}

void TriadPainter::drawLetters(OverlayPainter& painter, FontSet& letters) const
{
    for (const Triad::Axis& axis : m_triad.axes) {
        const TextLayout text = layoutTitle(parseTitle(vxbase::UString(plainText(m_letters[axis.index]))), letters,
                                            {AxisLabel::c_noLimit, AxisLabel::c_noLimit});
        painter.drawText(text, letters, axis.letterX - 0.5f * text.width, axis.letterY - 0.5f * text.height,
                         m_letterColor);
    }
}

} // namespace vxrenderer
