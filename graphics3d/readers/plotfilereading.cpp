#include "graphics3d/readers/plotfilereading.h"

#include "graphics3d/readers/plotpoints.h"
#include "graphics3d/readers/rowvalues.h"

namespace vxgraphics3d {

bool expectTag(TextFile& file, PlotSection section)
{
    const char* row = file.nextRow();
    while (row != nullptr && isEmptyRow(row)) {
        row = file.nextRow();
    }
    const std::string_view tag = c_plotTags[static_cast<std::size_t>(section)];
    if (row == nullptr || !isTagRow(row, tag)) {
        reportError(file.rowNumber(), "Expected tag \"%s\" at row %d", tag.data(), file.rowNumber());
        return false;
    }
    return true;
}

bool readPoints(TextFile& file, int numPoints, PlotPoints& points)
{
    if (!expectTag(file, PlotSection::coordinates)) {
        return false;
    }
    points.reserve(numPoints);
    for (int left = numPoints; left > 0;) {
        constexpr int c_maxRows = 128;
        double values[c_maxRows * 3];
        if (const int numRows = file.nextPlainReals(values, 3, std::min(c_maxRows, left))) {
            for (int i = 0; i < numRows; ++i) {
                points.add(Vector3f(values[3 * i], values[3 * i + 1], values[3 * i + 2]));
            }
            left -= numRows;
            continue;
        }
        const char* row = file.nextRow();
        if (row == nullptr) {
            reportError(file.rowNumber(), "End of file when reading coordinates, file %s", file.name().c_str());
            return false;
        }
        Vector3f point;
        if (!getVector3f(point, row, file.rowNumber())) {
            return false;
        }
        points.add(point);
        --left;
    }
    return true;
}

int nextElements(TextFile& file, int* corners, int numCorners, int maxElements, const char* kind)
{
    if (const int numRows = file.nextPlainIndices(corners, numCorners, maxElements)) {
        return numRows;
    }
    const char* row = file.nextRow();
    if (row == nullptr) {
        reportError(file.rowNumber(), "End of file when reading %s elements, file %s", kind, file.name().c_str());
        return 0;
    }
    return getIndices(corners, numCorners, row, file.rowNumber()) ? 1 : 0;
}

} // namespace vxgraphics3d
