#pragma once

#include <cstddef>
#include <span>
#include <utility>
#include <vector>

namespace vxgraphics3d {

struct LineEnds;

/// A line between two points, given by their indices.
using LineSegment = std::pair<int, int>;

/// Replaces segments by the lines of a record.
void assignSegments(std::vector<LineSegment>& segments, const LineEnds& ends);

/// Calls `take` with each chain in turn: a longest run of segments in which each starts at the point where the one
/// before it ended.
template <class Take>
void forEachChain(const std::vector<LineSegment>& segments, Take take)
{
    for (std::size_t first = 0; first < segments.size();) {
        std::size_t end = first + 1;
        while (end < segments.size() && segments[end].first == segments[end - 1].second) {
            ++end;
        }
        take(std::span<const LineSegment>(segments).subspan(first, end - first));
        first = end;
    }
}

} // namespace vxgraphics3d
