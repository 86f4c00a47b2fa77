#pragma once

#include "graphics3d/buffers/indexbufferlines.h"

#include <utility>
#include <vector>

namespace vxgraphics3d {

using Lines = std::vector<std::pair<int, int>>;

/// The lines of the first segment of a buffer, as pairs of indices.
inline Lines linesOf(const IndexBufferLines& buffer)
{
    Lines result;
    for (int i = 0; i < buffer.getNumElements(0); ++i) {
        int from = 0;
        int to = 0;
        buffer.getLine(i, from, to);
        result.emplace_back(from, to);
    }
    return result;
}

} // namespace vxgraphics3d
