#include "graphics3d/buffers/indexbuffertriangles.h"

namespace vxgraphics3d {

void IndexBufferTriangles::appendTriangles(const int* indices, int count)
{
    requireSpace(count, 3);
    append(3 * count, [=](auto* out) {
        for (int i = 0; i < 3 * count; ++i) {
            put(out[i], indices[i]);
        }
    });
}

void IndexBufferTriangles::appendTriangles(const int* a, const int* b, const int* c, int count, int offset)
{
    requireSpace(count, 3);
    append(3 * count, [=](auto* out) {
        for (int i = 0; i < count; ++i, out += 3) {
            put(out[0], a[i], offset);
            put(out[1], b[i], offset);
            put(out[2], c[i], offset);
        }
    });
}

void IndexBufferTriangles::appendBands(int first, int rowLength, int numBands)
{
    const int perBand = 2 * (rowLength - 1);
    requireSpace(numBands, 3 * perBand);
    append(3 * perBand * numBands, [=](auto* out) {
        for (int band = 0; band < numBands; ++band) {
            const int start = first + band * rowLength;
            for (int i = start; i < start + rowLength - 1; ++i, out += 6) {
                put(out[0], i);
                put(out[1], i, rowLength);
                put(out[2], i, rowLength + 1);
                put(out[3], i);
                put(out[4], i, rowLength + 1);
                put(out[5], i, 1);
            }
        }
    });
}

void IndexBufferTriangles::appendCopies(const int* indices, int count, int numCopies, int numVertices)
{
    requireSpace(numCopies, 3 * count);
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
