#pragma once

#include "graphics3d/plots/plotinput.h"

#include <cstddef>
#include <span>
#include <utility>
#include <vector>

namespace vxgraphics3d {

/// A line between two points, given by their indices.
using LineSegment = std::pair<int, int>;

/// Replaces segments by the lines of a record.
inline void assignSegments(std::vector<LineSegment>& segments, const LineEnds& ends)
{
    segments.resize(static_cast<std::size_t>(ends.count));
    for (std::size_t i = 0; i < segments.size(); ++i) {
        segments[i] = {ends.from[i], ends.to[i]};
    }
}

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
