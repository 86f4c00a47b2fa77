#include "graphics3d/readers/textrows.h"

#include <algorithm>
#include <cstring>

namespace vxgraphics3d {

namespace {

// Small enough to stay in the processor's cache, large enough that the calls to the system do not count.
constexpr std::size_t c_blockSize = 64 * 1024;

} // namespace

TextRows::TextRows(std::FILE* file)
    : m_file(file),
      m_block(std::make_unique_for_overwrite<char[]>(c_blockSize + 1)),
      m_next(m_block.get()),
      m_end(m_block.get()),
      m_exhausted(file == nullptr)
{
    *m_next = '\0';
    if (file != nullptr) {
        // Blocks go straight into m_block.
        std::setvbuf(file, nullptr, _IONBF, 0);
    }
}

const char* TextRows::next()
{
    *m_next = m_hidden;
    std::size_t length = std::min(static_cast<std::size_t>(m_end - m_next), c_maxLength);
    auto* lineEnd = static_cast<char*>(std::memchr(m_next, '\n', length));
    if (lineEnd == nullptr && length < c_maxLength && !m_exhausted) {
        fill();
        length = std::min(static_cast<std::size_t>(m_end - m_next), c_maxLength);
        lineEnd = static_cast<char*>(std::memchr(m_next, '\n', length));
    }
    const char* row = m_next;
    m_next = lineEnd != nullptr ? lineEnd + 1 : m_next + length;
    m_hidden = *m_next;
    *m_next = '\0';
    return row != m_next ? row : nullptr;
}

void TextRows::rewind()
{
    m_next = m_end = m_block.get();
    m_hidden = '\0';
    m_exhausted = m_file == nullptr;
    if (m_file != nullptr) {
        std::rewind(m_file);
    }
}

/// Moves the bytes that are left to the start of the block and fills it up.
void TextRows::fill()
{
    const auto left = static_cast<std::size_t>(m_end - m_next);
    std::memmove(m_block.get(), m_next, left);
    m_next = m_block.get();
    m_end = m_next + left;
    m_end += std::fread(m_end, 1, c_blockSize - left, m_file);
    m_exhausted = m_end != m_next + c_blockSize;
    if (std::ferror(m_file) != 0) {
        // A row cut short by a failing device is no row.
        m_end = std::find(std::make_reverse_iterator(m_end), std::make_reverse_iterator(m_next), '\n').base();
    }
    *m_end = '\0';
}

} // namespace vxgraphics3d
