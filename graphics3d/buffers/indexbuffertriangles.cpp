#include "graphics3d/buffers/indexbuffertriangles.h"

namespace vxgraphics3d {

void IndexBufferTriangles::appendTriangles(const int* indices, int count)
{
    requireRoom(count, 3);
    append(3 * count, [=](auto* out) {
        for (int i = 0; i < 3 * count; ++i) {
            put(out[i], indices[i]);
        }
    });
}

void IndexBufferTriangles::appendTriangles(const int* a, const int* b, const int* c, int count, int offset)
{
    requireRoom(count, 3);
    append(3 * count, [=](auto* out) {
        for (int i = 0; i < count; ++i, out += 3) {
            put(out[0], a[i], offset);
            put(out[1], b[i], offset);
            put(out[2], c[i], offset);
        }
    });
}

void IndexBufferTriangles::appendBand(int first, int rowLength)
{
    const int numPairs = rowLength - 1;
    requireRoom(2 * numPairs, 3);
    append(6 * numPairs, [=](auto* out) {
        for (int i = first; i < first + numPairs; ++i, out += 6) {
            put(out[0], i);
            put(out[1], i, rowLength);
            put(out[2], i, rowLength + 1);
            put(out[3], i);
            put(out[4], i, rowLength + 1);
            put(out[5], i, 1);
        }
    });
}

void IndexBufferTriangles::getTriangle(int triangle, int& a, int& b, int& c) const
{
    a = indexAt(3 * triangle);
    b = indexAt(3 * triangle + 1);
    c = indexAt(3 * triangle + 2);
}

} // namespace vxgraphics3d
