#include "graphics3d/buffers/vertexbuffer.h"

#include "graphics3d/foundation/errorlog.h"

#include <stdexcept>
#include <string>

namespace vxgraphics3d {

VertexBuffer::~VertexBuffer() = default;

void VertexBuffer::allocate(int count)
{
    if (m_capacity > 0) {
        deallocate();
    }
    if (count >= 1) {
        m_capacity = allocateVertexArray(count);
        m_numVertices = 0;
    } else if (count == 0) {
        m_capacity = 0;
        m_numVertices = 0;
    }
}

void VertexBuffer::deallocate()
{
    deallocateVertexArray();
    m_capacity = -1;
    m_numVertices = 0;
}

void VertexBuffer::requireSpace(int count) const
{
    if (!hasRoom(count)) {
        throw std::out_of_range("A vertex buffer of " + std::to_string(m_capacity) + " vertices holds " +
                                std::to_string(m_numVertices) + " and cannot take " + std::to_string(count) + " more.");
    }
}

int VertexBuffer::reportNoRoom()
{
    logError("Appended to many vertices.");
    return 0;
}

} // namespace vxgraphics3d
