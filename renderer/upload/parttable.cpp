#include "renderer/upload/parttable.h"

#include <algorithm>
#include <stdexcept>
#include <string>

namespace vxrenderer {

bool PartTable::set(std::span<const std::uint8_t> rows)
{
    // Rows of the texture that are not full are filled up, so that the whole of it is compared and copied.
    if (rows.size() <= m_rows.size() && m_rows.size() - rows.size() < std::size_t{c_width} &&
        std::equal(rows.begin(), rows.end(), m_rows.begin())) {
        return false;
    }
    const auto height = static_cast<GLsizei>((rows.size() + c_width - 1) / c_width);
    GLint largest = 0;
    glGetIntegerv(GL_MAX_TEXTURE_SIZE, &largest);
    if (height > largest) {
        throw std::runtime_error("An object has too many parts for the driver: " + std::to_string(rows.size()) + ".");
    }
    m_rows.assign(static_cast<std::size_t>(height) * c_width, 0);
    std::ranges::copy(rows, m_rows.begin());
    bind();
    glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
    glTexImage2D(GL_TEXTURE_2D, 0, GL_R8UI, c_width, height, 0, GL_RED_INTEGER, GL_UNSIGNED_BYTE, m_rows.data());
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_NEAREST);
    return true;
}

void PartTable::bind() const
{
    glActiveTexture(GL_TEXTURE0 + static_cast<GLenum>(c_unit));
    glBindTexture(GL_TEXTURE_2D, m_texture.name());
}

} // namespace vxrenderer
