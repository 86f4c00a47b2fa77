#include "graphics3d/buffers/indexbufferlinestrips.h"

namespace vxgraphics3d {

void IndexBufferLineStrips::newStripOf(int firstVertex, int count)
{
    requireSpace(count, 1);
    newSegment();
    append(count, [=](auto* out) {
        for (int i = 0; i < count; ++i) {
            put(out[i], firstVertex, i);
        }
    });
}

} // namespace vxgraphics3d
