#pragma once

#include "base/export.h"
#include "graphics3d/foundation/vector3f.h"

namespace vxgraphics3d {

/// A flat array of vertex records of one layout, filled by plots, geometry and overlays and read by the renderer.
///
/// A buffer is allocated to its final size, then filled by appends, which never make it grow and, unless documented
/// otherwise, check nothing: the caller counts first. It has no change number; its owner reports when it has been
/// filled again. There is one class per record layout (see vertexlayout.h).
class VX_API VertexBuffer {
public:
    virtual ~VertexBuffer();
    VertexBuffer(const VertexBuffer&) = delete;
    VertexBuffer& operator=(const VertexBuffer&) = delete;

    /// Drops all records and makes space for `count` records. With 0 the buffer is allocated without an array; a
    /// negative count leaves it deallocated, or at 0 if it was allocated with 0.
    void allocate(int count);
    /// Frees the array.
    void deallocate();

    /// Code of the record layout.
    int getVertexType() const { return m_vertexType; }
    /// Bytes per record.
    int getVertexSize() const { return m_vertexSize; }
    /// Number of records that the array can hold; -1 if nothing is allocated.
    int getCapacity() const { return m_capacity; }
    /// Number of records appended so far.
    int getNumberOfVertices() const { return m_numVertices; }

    /// Position of an appended record; the index is not checked.
    virtual Vector3f getCoord(int index) const = 0;

protected:
    VertexBuffer(int vertexType, int vertexSize) : m_vertexType(vertexType), m_vertexSize(vertexSize) {}

    /// Replaces the array by a new one of `count` records, at least 1, and returns `count`.
    virtual int allocateVertexArray(int count) = 0;
    virtual void deallocateVertexArray() = 0;

public:
    /// Start of the array, null if there is none.
    virtual const void* vertexPointer() const = 0;

protected:
    /// Whether there is space for `count` further records.
    bool hasRoom(int count) const { return count >= 0 && count <= m_capacity - m_numVertices; }
    /// Throws std::out_of_range if there is no space for `count` further records.
    void requireSpace(int count) const;
    /// Logs that records were refused and returns 0.
    static int reportNoRoom();

    int m_vertexType;
    int m_vertexSize;
    int m_capacity = -1;
    int m_numVertices = 0;
};

} // namespace vxgraphics3d
