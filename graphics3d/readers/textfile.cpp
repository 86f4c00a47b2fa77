#include "graphics3d/readers/textfile.h"

#include "graphics3d/readers/readerreports.h"

#include <algorithm>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace vxgraphics3d {

namespace {

/// Opens first and then checks the file type, so that the name cannot be moved to another file in between.
std::FILE* openRegularFile(const std::string& name)
{
    // Without O_NONBLOCK, opening a pipe would block until it has a writer.
    const int descriptor = ::open(name.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (descriptor == -1) {
        return nullptr;
    }
    struct stat status = {};
    std::FILE* file = nullptr;
    if (::fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode) && ::fcntl(descriptor, F_SETFL, 0) == 0) {
        file = ::fdopen(descriptor, "r");
    }
    if (file == nullptr) {
        ::close(descriptor);
    }
    return file;
}

} // namespace

TextFile::TextFile(std::string name) : m_name(std::move(name)), m_file(openRegularFile(m_name)), m_rows(m_file.get())
{
    if (!m_file) {
        reportErrorLine(c_wholeFile, "Could not open file %s", m_name.c_str());
    }
}

const char* TextFile::nextRow()
{
    const char* row = m_rows.next();
    if (row == nullptr || hasTooManyRows()) {
        return nullptr;
    }
    ++m_rowNumber;
    if (hasTooManyRows()) {
        reportError(m_rowNumber, "Too many rows in file %s", m_name.c_str());
        return nullptr;
    }
    return row;
}

const char* TextFile::nextTagRow()
{
    const char* row = nullptr;
    do {
        // A block has fewer rows than this number leaves.
        if (m_rowNumber < std::numeric_limits<int>::max() / 2) {
            m_rowNumber += m_rows.skipRowsWithout('%');
        }
        row = nextRow();
    } while (row != nullptr && row[0] != '%');
    return row;
}

int TextFile::nextPlainIndices(int* indices, int count, int maxRows)
{
    const int numRows = m_rows.nextPlainIntegers(indices, count, limited(maxRows));
    m_rowNumber += numRows;
    for (int i = 0; i < numRows * count; ++i) {
        --indices[i];
    }
    return numRows;
}

int TextFile::nextPlainReals(double* values, int count, int maxRows)
{
    const int numRows = m_rows.nextPlainReals(values, count, limited(maxRows));
    m_rowNumber += numRows;
    return numRows;
}

/// The number of rows that can still be counted.
int TextFile::limited(int maxRows) const
{
    return std::min(maxRows, std::numeric_limits<int>::max() - 1 - m_rowNumber);
}

void TextFile::rewind()
{
    m_rows.rewind();
    m_rowNumber = 0;
}

} // namespace vxgraphics3d
