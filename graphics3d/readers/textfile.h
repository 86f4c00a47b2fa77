#pragma once

#include "graphics3d/readers/textrows.h"

#include <cstdio>
#include <limits>
#include <memory>
#include <string>

namespace vxgraphics3d {

/// A text file that is read row by row, in one or several passes, and counts rows for messages.
///
/// Only regular files are opened: a pipe could block forever, a device could have no end. Opening never blocks.
class TextFile {
public:
    /// Opens the file. One that cannot be opened, or is not a regular file, is reported and has no rows.
    explicit TextFile(std::string name);

    bool isOpen() const { return m_file != nullptr; }
    const std::string& name() const { return m_name; }
    /// The number of the current row, from 1 in each pass.
    int rowNumber() const { return m_rowNumber; }

    /// The next row, or null at the end of the file. It stays valid until the next call. Rows beyond the range of an
    /// int are refused: the first of them is reported and treated as the end of the file.
    const char* nextRow();
    /// The next row that begins with "%", as `nextRow` returns it.
    const char* nextTagRow();
    /// Whether the last row was refused because there were too many.
    bool hasTooManyRows() const { return m_rowNumber == std::numeric_limits<int>::max(); }

    /// Reads rows of indices while they are plain, see `TextRows`; the indices are as `getIndices` returns them.
    /// @return the number of rows read
    int nextPlainIndices(int* indices, int count, int maxRows);
    /// Reads rows of reals while they are plain.
    /// @return the number of rows read
    int nextPlainReals(double* values, int count, int maxRows);

    /// Starts the next pass.
    void rewind();

private:
    struct Closer {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };

    int limited(int maxRows) const;

    std::string m_name;
    std::unique_ptr<std::FILE, Closer> m_file;
    TextRows m_rows; // over m_file
    int m_rowNumber = 0;
};

} // namespace vxgraphics3d
