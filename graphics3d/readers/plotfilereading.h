#pragma once

#include "graphics3d/readers/plotfilecontents.h"
#include "graphics3d/readers/readerreports.h"
#include "graphics3d/readers/textfile.h"

#include <algorithm>
#include <cstddef>

namespace vxgraphics3d {

class PlotPoints;

// The last pass over a plot file, after a scan has counted everything: forward only, in the order of its sections and
// groups. Each function returns false if it finds a fault, which it reports.

/// Skips empty rows and the tag of a section, which must follow them.
bool expectTag(TextFile& file, PlotSection section);

/// Reads the tag of the coordinates and all points.
bool readPoints(TextFile& file, int numPoints, PlotPoints& points);

/// Moves to the first element of a section. Groups are read in order, so only the first one looks for the tag.
/// @param count the number of the group's elements
inline bool enterElements(TextFile& file, PlotSection section, int count, int group)
{
    return count == 0 || group != 0 || expectTag(file, section);
}

/// Reads up to `maxElements` of the next elements, at least one.
/// @param kind the name of the elements in messages
/// @return the number of elements; 0 if the next row contains none
int nextElements(TextFile& file, int* corners, int numCorners, int maxElements, const char* kind);

/// Reads the elements of a group, whose corners must be points of the group.
/// @param count the number of the group's elements
/// @param take is called with the corners of each element, up to the first wrong one
template <int numCorners, class Take>
bool readElements(TextFile& file, PlotSection section, int count, const PointGroup& group, int groupId,
                  const char* kind, Take take)
{
    if (!enterElements(file, section, count, groupId)) {
        return false;
    }
    constexpr int c_maxRows = 128;
    for (int left = count; left > 0;) {
        int corners[static_cast<std::size_t>(c_maxRows * numCorners)];
        const int numElements = nextElements(file, corners, numCorners, std::min(left, c_maxRows), kind);
        if (numElements == 0) {
            return false;
        }
        for (int i = 0; i < numElements; ++i) {
            const int* const element = corners + i * numCorners;
            if (!group.contains(element, numCorners)) {
                reportError(file.rowNumber() - numElements + 1 + i,
                            "Index out of group range when reading %s elements, file %s", kind, file.name().c_str());
                return false;
            }
            take(element);
        }
        left -= numElements;
    }
    return true;
}

} // namespace vxgraphics3d
