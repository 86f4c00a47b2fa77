#pragma once

#include "graphics3d/buffers/vertexbuffer.h"

#include <algorithm>
#include <cstddef>
#include <memory>
#include <type_traits>

namespace vxgraphics3d {

/// The common part of the vertex buffers of all layouts: the array of records. Each derived class adds the appends of
/// its layout.
template <class Record>
class VX_API VertexBufferOf : public VertexBuffer {
    static_assert(std::is_trivially_default_constructible_v<Record>, "a new array is written once, by its fill");

public:
    using Vertex = Record;

    /// Counts the next `count` records as appended and returns the first of them, which the caller must then write: the
    /// fast path for loops that fill many. Throws std::out_of_range if there is not enough space.
    Vertex* appendUnwritten(int count)
    {
        requireSpace(count);
        Vertex* first = m_vertices.get() + m_numVertices;
        m_numVertices += count;
        return first;
    }

    /// The records appended so far; null if no array is allocated.
    const Vertex* vertices() const { return m_vertices.get(); }

    Vector3f getCoord(int index) const override
    {
        const Vertex& vertex = record(index);
        return {vertex.x, vertex.y, vertex.z};
    }

protected:
    VertexBufferOf() : VertexBuffer(Vertex::c_vertexType, static_cast<int>(sizeof(Vertex))) {}

    Vertex& record(int index) { return m_vertices.get()[index]; }
    const Vertex& record(int index) const { return m_vertices.get()[index]; }

    int append(const Vertex& vertex)
    {
        record(m_numVertices) = vertex;
        return m_numVertices++;
    }

    /// Appends copies of `count` records and returns the index of the first; without space for all of them, logs an
    /// error, appends none and returns 0.
    int appendCopies(const Vertex* vertices, int count)
    {
        if (!hasRoom(count)) {
            return reportNoRoom();
        }
        const int first = m_numVertices;
        std::copy_n(vertices, count, m_vertices.get() + first);
        m_numVertices += count;
        return first;
    }

    int allocateVertexArray(int count) override
    {
        m_vertices.reset(new Vertex[static_cast<std::size_t>(count)]);
        return count;
    }

    void deallocateVertexArray() override { m_vertices.reset(); }

public:
    const void* vertexPointer() const override { return m_vertices.get(); }

private:
    std::unique_ptr<Vertex[]> m_vertices;
};

} // namespace vxgraphics3d
