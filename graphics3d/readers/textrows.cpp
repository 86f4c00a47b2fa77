#include "graphics3d/readers/textrows.h"

#include "graphics3d/readers/decimal.h"

#include <algorithm>
#include <cstring>

namespace vxgraphics3d {

namespace {

// Small enough for the processor's cache, large enough to make the cost of system calls negligible.
constexpr std::size_t c_blockSize = 64 * 1024;

unsigned digitOf(char c)
{
    return static_cast<unsigned char>(c - '0');
}

const char* skipBlanks(const char* at)
{
    while (*at == ' ' || *at == '\t' || *at == '\r') {
        ++at;
    }
    return at;
}

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
        // Blocks are read directly into m_block.
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

/// Reads rows of numbers until one is not plain. No number extends past the block, because a zero byte follows it.
/// @param readNumber reads one number and returns the text after it, or null if it is not plain
template <class Number, class ReadNumber>
int TextRows::nextPlainRows(Number* values, int numbersPerRow, int maxRows, ReadNumber readNumber)
{
    *m_next = m_hidden;
    const char* row = m_next;
    int numRows = 0;
    while (numRows < maxRows) {
        const char* at = row;
        for (int i = 0; i < numbersPerRow && at != nullptr; ++i) {
            at = readNumber(at, values[i]);
        }
        if (at == nullptr) {
            break;
        }
        if (*at != '\n') {
            at = skipBlanks(at);
        }
        const auto length = static_cast<std::size_t>(at - row) + 1;
        if (*at != '\n' || length > c_maxLength) {
            break;
        }
        row = at + 1;
        values += numbersPerRow;
        ++numRows;
    }
    m_next += row - m_next;
    m_hidden = *m_next;
    return numRows;
}

int TextRows::nextPlainIntegers(int* values, int numbersPerRow, int maxRows)
{
    return nextPlainRows(values, numbersPerRow, maxRows, [](const char* at, int& value) -> const char* {
        unsigned number = digitOf(*at);
        if (number > 9) {
            at = skipBlanks(at);
            number = digitOf(*at);
            if (number > 9) {
                return nullptr;
            }
        }
#pragma GCC unroll 9
        for (int i = 1; i < 10; ++i) {
            const unsigned digit = digitOf(at[i]);
            if (digit > 9) {
                value = static_cast<int>(number);
                return at + i;
            }
            number = number * 10 + digit;
        }
        return nullptr;
    });
}

int TextRows::nextPlainReals(double* values, int numbersPerRow, int maxRows)
{
    return nextPlainRows(values, numbersPerRow, maxRows, [](const char* at, double& value) {
        const Decimal decimal = Decimal::at(skipBlanks(at));
        return decimal.toExact(value) ? decimal.end : nullptr;
    });
}

int TextRows::skipRowsWithout(char first)
{
    *m_next = m_hidden;
    const char* at = m_next;
    const auto* found = static_cast<const char*>(std::memchr(at, first, static_cast<std::size_t>(m_end - at)));
    const char* const stop = found != nullptr ? found : m_end;
    // If each chunk has a line end, no row is longer than two chunks.
    constexpr std::ptrdiff_t c_chunkSize = 64;
    static_assert(2 * c_chunkSize < static_cast<std::ptrdiff_t>(c_maxLength));
    int numRows = 0;
    while (stop - at >= c_chunkSize) {
        unsigned char numEnds = 0;
        for (int i = 0; i < c_chunkSize; ++i) {
            numEnds = static_cast<unsigned char>(numEnds + (at[i] == '\n' ? 1 : 0));
        }
        if (numEnds == 0) {
            break;
        }
        numRows += numEnds;
        at += c_chunkSize;
    }
    while (at != m_next && at[-1] != '\n') {
        --at;
    }
    m_next += at - m_next;
    m_hidden = *m_next;
    *m_next = '\0';
    return numRows;
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

/// Moves the remaining bytes to the start of the block and fills the block up.
void TextRows::fill()
{
    const auto left = static_cast<std::size_t>(m_end - m_next);
    std::memmove(m_block.get(), m_next, left);
    m_next = m_block.get();
    m_end = m_next + left;
    m_end += std::fread(m_end, 1, c_blockSize - left, m_file);
    m_exhausted = m_end != m_next + c_blockSize;
    if (std::ferror(m_file) != 0) {
        // A row that a failing device cut short is not a row.
        m_end = std::find(std::make_reverse_iterator(m_end), std::make_reverse_iterator(m_next), '\n').base();
    }
    *m_end = '\0';
}

} // namespace vxgraphics3d
