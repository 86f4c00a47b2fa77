#include "graphics3d/buffers/indexbufferlines.h"

namespace vxgraphics3d {

void IndexBufferLines::appendLines(const int* from, const int* to, int count, int offset)
{
    requireRoom(count, 2);
    append(2 * count, [=](auto* out) {
        for (int i = 0; i < count; ++i, out += 2) {
            put(out[0], from[i], offset);
            put(out[1], to[i], offset);
        }
    });
}

void IndexBufferLines::getLine(int line, int& from, int& to) const
{
    from = indexAt(2 * line);
    to = indexAt(2 * line + 1);
}

} // namespace vxgraphics3d
