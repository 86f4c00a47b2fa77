#include "graphics3d/readers/rowvalues.h"

#include "graphics3d/readers/readerreports.h"
#include "graphics3d/readers/textnumbers.h"

#include <algorithm>
#include <climits>
#include <cstring>

namespace vxgraphics3d {

bool isEmptyRow(const char* row)
{
    // Bytes above 127 are characters of some text, even where char is signed.
    while (*row != '\0' && static_cast<unsigned char>(*row) <= ' ') {
        ++row;
    }
    return *row == '\0';
}

bool isTagRow(const char* row, std::string_view tag)
{
    return row[0] == '%' && row[1] != '\0' && std::strncmp(row + 2, tag.data(), tag.size()) == 0;
}

std::string textOf(const char* row)
{
    std::string_view text = row;
    for (const char lineEnd : {'\n', '\r'}) {
        if (!text.empty() && text.back() == lineEnd) {
            text.remove_suffix(1);
        }
    }
    return std::string(text);
}

bool findTag(std::span<const std::string_view> tags, std::size_t& section, const char* row, int rowNumber,
             const std::string& fileName)
{
    for (std::size_t candidate = section; candidate < tags.size(); ++candidate) {
        if (isTagRow(row, tags[candidate])) {
            section = candidate;
            return true;
        }
    }
    reportError(rowNumber, "Unknown tag in %s: %s", fileName.c_str(), textOf(row).c_str());
    return false;
}

bool getReal(double& value, const char* row, int rowNumber)
{
    const char* at = row;
    if (!readReal(at, value)) {
        reportQuietly(rowNumber, "Illegal data: \"%s\"", textOf(row).c_str());
        return false;
    }
    return true;
}

bool getVector3f(Vector3f& vector, const char* row, int rowNumber)
{
    const char* at = row;
    double values[3];
    for (int i = 0; i < 3; ++i) {
        if (!readReal(at, values[i])) {
            reportQuietly(rowNumber, "Illegal data at row %d, value %d: \"%s\"", rowNumber, i + 1, textOf(row).c_str());
            return false;
        }
    }
    vector = Vector3f(values[0], values[1], values[2]);
    return true;
}

bool getIndices(int* indices, int count, const char* row, int rowNumber)
{
    const char* at = row;
    for (int i = 0; i < count; ++i) {
        long number = 0;
        if (!readInteger(at, number)) {
            reportQuietly(rowNumber, "Illegal index data at row %d: (vertex %d): \"%s\"", rowNumber, i + 1,
                          textOf(row).c_str());
            return false;
        }
        indices[i] = static_cast<int>(std::clamp<long>(number, INT_MIN + 1L, INT_MAX + 1L) - 1);
    }
    return true;
}

} // namespace vxgraphics3d
