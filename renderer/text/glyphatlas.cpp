#include "renderer/text/glyphatlas.h"

#include <algorithm>
#include <cstddef>

namespace vxrenderer {

GlyphAtlas::GlyphAtlas(int width) : m_width(width) {}

std::optional<GlyphAtlas::Place> GlyphAtlas::add(const std::uint8_t* rows, int width, int height, int pitch)
{
    if (width + 2 > m_width) {
        return std::nullopt;
    }
    if (m_rowEnd + width + 1 > m_width) {
        m_rowTop += m_rowHeight + 1;
        m_rowHeight = 0;
        m_rowEnd = 1;
    }
    const int bottom = m_rowTop + height + 1;
    if (bottom > c_largestHeight) {
        return std::nullopt;
    }
    if (bottom > m_height) {
        m_height = std::clamp(2 * bottom, 64, c_largestHeight);
        m_pixels.resize(static_cast<std::size_t>(m_width) * static_cast<std::size_t>(m_height), 0);
    }
    const Place place = {m_rowEnd, m_rowTop};
    for (int y = 0; y < height; ++y) {
        const std::uint8_t* source = rows + static_cast<std::ptrdiff_t>(y) * pitch;
        std::copy_n(source, width, m_pixels.begin() + static_cast<std::ptrdiff_t>(place.y + y) * m_width + place.x);
    }
    m_rowEnd += width + 1;
    m_rowHeight = std::max(m_rowHeight, height);
    m_changeId.raise();
    return place;
}

} // namespace vxrenderer
