#pragma once

namespace vxgraphics3d {

/// One vertex buffer and one index buffer over it with a single segment, as most plots draw it.
///
///     BufferPair<VertexBufferNormalTex, IndexBufferTriangles> mesh;
///     mesh.allocate(3, 1);
///     mesh.vertices.appendVertex(...);    // three times
///     mesh.indices.appendTriangle(0, 1, 2);
template <class Vertices, class Indices>
struct BufferPair {
    Vertices vertices;
    Indices indices{vertices};

    /// Drops the contents of both, makes space for the given numbers of vertices and elements, and opens the segment.
    /// If that fails, both are deallocated.
    void allocate(int numVertices, int numElements)
    {
        deallocate();
        try {
            vertices.allocate(numVertices);
            indices.internalAllocate(numElements, 1);
            indices.newSegment();
        } catch (...) {
            deallocate();
            throw;
        }
    }

    void deallocate()
    {
        vertices.deallocate();
        indices.deallocate();
    }

    /// Whether there is something to draw: vertices and elements.
    bool isValid() const { return vertices.getNumberOfVertices() > 0 && indices.getNumElements(0) > 0; }
};

} // namespace vxgraphics3d
