#pragma once

#include "graphics3d/foundation/color.h"
#include "renderer/decoration/triad.h"
#include "renderer/paint/decorationcanvas.h"

#include <array>

namespace vxrenderer {

struct Frame;
struct View;

/// The axis orientation indicator of a 3D view, laid out in the lower left corner of its scene for one frame.
class TriadPainter {
public:
    /// @param letters the fonts of its letters
    TriadPainter(const Frame& frame, const View& view, int pictureHeight, FontSet& letters);

    /// Draws without a depth test.
    void drawAxes(DecorationCanvas& canvas) const;
    void drawLetters(DecorationCanvas& canvas) const;

private:
    struct Letter {
        TextLayout text;
        /// The position of its top left corner in the picture.
        float left;
        float top;
    };

    FontSet& m_fonts;
    TextColors m_letterColors;
    std::array<vxgraphics3d::Color, 3> m_colors;
    /// In pixels of the picture.
    float m_originX;
    float m_originY;
    Triad m_triad;
    std::array<Letter, 3> m_letters;
};

} // namespace vxrenderer
