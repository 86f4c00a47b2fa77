#pragma once

#include <cstddef>
#include <cstdio>
#include <memory>

namespace vxgraphics3d {

/// The rows of a text stream, one after another, exactly as `fgets` with a buffer of 256 bytes returns them.
///
/// A row is a C string that ends after its line end. A line of more than 255 characters is returned as several rows,
/// the last line needs no line end, and a row that contains a zero byte appears to end there. The rows are in the block
/// that was read from the stream, so none is copied; memory does not grow with the length of the file.
///
/// The stream is not owned and must outlive this object; nothing else may read from it.
class TextRows {
public:
    /// Longest row, line end included.
    static constexpr std::size_t c_maxLength = 255;

    /// @param file an open stream at the position of the first row, or null, which has no rows
    explicit TextRows(std::FILE* file);

    /// The next row, or null at the end of the stream. It stays valid until the next call.
    const char* next();

    /// Reads up to `maxRows` of the next rows while they are plain: exactly `numbersPerRow` integers each, of at most
    /// nine digits and without signs, blanks between and around them, and a line end. This is the fast path for rows
    /// for which `next` and the C library's functions would give the same numbers.
    /// @param values receives the numbers of all rows one after another
    /// @return the number of rows read; the row after them is returned next
    int nextPlainIntegers(int* values, int numbersPerRow, int maxRows);
    /// The same for reals: decimal numbers of few enough digits.
    int nextPlainReals(double* values, int numbersPerRow, int maxRows);

    /// Skips the next rows in the block up to one that may begin with a character, or may be long. This is the fast
    /// path for rows that `next` would return for nothing.
    /// @return the number of rows; the row after them is returned next
    int skipRowsWithout(char first);

    /// Goes back to the start of the stream.
    void rewind();

private:
    void fill();
    template <class Number, class ReadNumber>
    int nextPlainRows(Number* values, int numbersPerRow, int maxRows, ReadNumber readNumber);

    std::FILE* m_file;
    std::unique_ptr<char[]> m_block;
    char* m_next;         // first byte after the current row
    char* m_end;          // after the last byte read
    char m_hidden = '\0'; // the byte at m_next before the terminating zero of the current row
    bool m_exhausted;     // the stream has no more bytes for the block
};

} // namespace vxgraphics3d
