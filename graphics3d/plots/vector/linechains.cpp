#include "graphics3d/plots/vector/linechains.h"

#include "graphics3d/plots/plotinput.h"

namespace vxgraphics3d {

void assignSegments(std::vector<LineSegment>& segments, const LineEnds& ends)
{
    segments.resize(static_cast<std::size_t>(ends.count));
    for (std::size_t i = 0; i < segments.size(); ++i) {
        segments[i] = {ends.from[i], ends.to[i]};
    }
}

} // namespace vxgraphics3d
