#pragma once

#include "graphics3d/foundation/color.h"
#include "renderer/decoration/triad.h"

#include <array>
#include <string>

namespace vxrenderer {

struct Frame;
struct View;
class FontSet;
class LinePainter;
class OverlayPainter;

/// The axis orientation indicator of a 3D view, laid out in the lower left corner of its scene for one frame.
class TriadPainter {
public:
    TriadPainter(const Frame& frame, const View& view);

    /// The viewport is the whole picture.
    void drawAxes(const LinePainter& painter, int width, int height) const;
    void drawLetters(OverlayPainter& painter, FontSet& letters) const;

private:
    float m_lineWidth;
    vxgraphics3d::Color m_letterColor;
    std::array<vxgraphics3d::Color, 3> m_colors;
    std::array<std::string, 3> m_letters;
    Triad m_triad;
};

} // namespace vxrenderer
