#pragma once

#include "graphics3d/foundation/changenumber.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace vxrenderer {

/// A picture that holds the glyphs of one font, one byte of coverage per pixel, packed in rows.
///
/// Glyphs stay where they are; the picture grows downwards. Between neighbours lies one empty pixel.
class GlyphAtlas {
public:
    struct Place {
        int x;
        int y;
    };

    /// @param width pixels of a row; at least that of the widest glyph and two more
    explicit GlyphAtlas(int width);

    int getWidth() const { return m_width; }
    int getHeight() const { return m_height; }
    const std::vector<std::uint8_t>& getPixels() const { return m_pixels; }
    std::uint8_t pixelAt(int x, int y) const
    {
        return m_pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(m_width) + static_cast<std::size_t>(x)];
    }
    /// Rises with every glyph; the owner of a copy of the picture compares it.
    int getChangeId() const { return m_changeId.get(); }

    /// Copies a glyph in.
    /// @param rows its coverage, row by row from the top, `pitch` bytes apart
    /// @return its top left corner, or nothing if the picture has grown to its largest height
    std::optional<Place> add(const std::uint8_t* rows, int width, int height, int pitch);

private:
    static constexpr int c_largestHeight = 8192;

    int m_width;
    int m_height = 0;
    vxgraphics3d::ChangeNumber m_changeId;
    int m_rowTop = 1;
    int m_rowHeight = 0;
    int m_rowEnd = 1;
    std::vector<std::uint8_t> m_pixels;
};

} // namespace vxrenderer
