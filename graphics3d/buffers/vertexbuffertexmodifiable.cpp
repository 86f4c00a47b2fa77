#include "graphics3d/buffers/vertexbuffertexmodifiable.h"

namespace vxgraphics3d {

void VertexBufferTexModifiable::import(const VertexBuffer& source)
{
    if (&source == this) {
        for (int i = 0; i < m_numVertices; ++i) {
            record(i).u = 0;
            record(i).v = 0;
        }
        return;
    }
    const int count = source.getNumberOfVertices();
    allocate(count);
    for (int i = 0; i < count; ++i) {
        appendVertex(source.getCoord(i), 0.0f);
    }
}

} // namespace vxgraphics3d
