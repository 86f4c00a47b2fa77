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

void IndexBufferTriangles::appendCopies(const int* indices, int count, int numCopies, int numVertices)
{
    requireRoom(numCopies, 3 * count);
    append(3 * count * numCopies, [=](auto* out) {
        for (int copy = 0, offset = 0; copy < numCopies; ++copy, offset += numVertices) {
            for (int i = 0; i < 3 * count; ++i) {
                put(*out++, indices[i], offset);
            }
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
