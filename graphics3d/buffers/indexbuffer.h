#pragma once

#include "base/export.h"
#include "graphics3d/buffers/vertexbuffer.h"

#include <memory>
#include <vector>

namespace vxgraphics3d {

/// The indices, in drawing order, that connect the vertices of one vertex buffer to lines, line strips or triangles,
/// with a table of segments: ranges that the renderer draws separately.
///
/// The vertex buffer is allocated first, because its capacity decides whether the indices take 16 or 32 bits, and must
/// outlive this buffer. Then call `internalAllocate` with the final counts, and for each segment `newSegment` and the
/// appends. The buffer does not grow; the appends of single elements check nothing, so the caller counts first.
class VX_API IndexBuffer {
public:
    enum Type : int { Lines = 0, LineStrips = 1, Triangles = 2, Quads = 3 };

    /// Number of indices per element; 0 for an unknown type.
    static int indicesPerElem(Type type);
    /// Number of indices per segment in addition to those of its elements; 0 for an unknown type.
    static int indicesPerSegment(Type type);

    virtual ~IndexBuffer();
    IndexBuffer(const IndexBuffer&) = delete;
    IndexBuffer& operator=(const IndexBuffer&) = delete;

    /// Drops all indices and makes space for `numElements` elements in `numSegments` segments, none of them open yet.
    /// With a count below 1 there is no array and `newSegment` opens nothing. Throws std::invalid_argument, and changes
    /// nothing, if the total number of indices does not fit into an int.
    void internalAllocate(int numElements, int numSegments);
    /// Frees the indices and empties the segment table.
    void deallocate();
    /// Closes the current segment and opens the next at the same position; does nothing if no elements are allocated.
    void newSegment();

    /// The index at a position of a segment; neither argument is checked.
    int getVertexIndex(int segment, int position) const;
    /// The coordinates of the vertex that `getVertexIndex` returns.
    Vector3f getVertex(int segment, int position) const;

    /// Copies what was appended to another buffer of the same type. Throws std::invalid_argument, and changes nothing,
    /// if the types differ or the vertex buffers require indices of different width.
    void import(const IndexBuffer& source);

    Type getType() const { return m_type; }
    /// Size of the index array.
    int getNumIndices() const { return m_numIndices; }
    /// Number of elements allocated.
    int getNumElements() const { return m_numElements; }
    /// Number of segments allocated.
    int getNumSegments() const { return m_numSegments; }
    /// Segment s covers the index positions from entry s up to, but not including, entry s + 1. The last entry is the
    /// position of the next index. A single 0 means no segment yet.
    const std::vector<int>& getSegmentStarts() const { return m_segmentStarts; }
    /// Whether the indices are in the 32-bit array; otherwise they are in the 16-bit array.
    bool uses32BitIndices() const { return m_use32BitIndices; }
    const unsigned short* getIndices16() const { return m_indices16.get(); }
    const unsigned int* getIndices32() const { return m_indices32.get(); }

    /// Number of elements appended to a segment; 0 for a segment that was never opened.
    int getNumElements(int segment) const;

protected:
    IndexBuffer(Type type, const VertexBuffer& vertexBuffer);

    /// Calls `write` with a pointer, of the current index width, to the next `count` indices, which then count as
    /// appended.
    template <class Write>
    void append(int count, Write&& write)
    {
        int& end = m_segmentStarts.back();
        if (m_use32BitIndices) {
            write(m_indices32.get() + end);
        } else {
            write(m_indices16.get() + end);
        }
        end += count;
    }

    /// Writes the index `vertex + offset`.
    template <class Index>
    static void put(Index& index, int vertex, int offset = 0)
    {
        index = static_cast<Index>(static_cast<unsigned>(vertex) + static_cast<unsigned>(offset));
    }

    /// Throws std::out_of_range if there is no space for `count` elements of `indicesEach` indices.
    void requireSpace(int count, int indicesEach) const;
    /// The index at a position of the whole array.
    int indexAt(int position) const;

private:
    Type m_type;
    int m_indicesPerElem;
    int m_indicesPerSegment;
    const VertexBuffer& m_vertexBuffer;
    bool m_use32BitIndices = false;
    int m_numIndices = 0;
    int m_numElements = 0;
    int m_numSegments = 0;
    std::vector<int> m_segmentStarts;
    std::unique_ptr<unsigned short[]> m_indices16;
    std::unique_ptr<unsigned int[]> m_indices32;
};

} // namespace vxgraphics3d
