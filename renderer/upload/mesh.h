#pragma once

#include "renderer/gl/globject.h"

#include <vector>

namespace vxgraphics3d {
class IndexBuffer;
class VertexBuffer;
} // namespace vxgraphics3d

namespace vxrenderer {

/// Places of the vertex attributes, the same in all shaders.
enum class Attribute : GLuint { position = 0, normal = 1, color = 2, texture = 3, secondTexture = 4, triple = 5 };

/// A vertex and an index buffer on the graphics hardware.
class Mesh {
public:
    /// Copies both buffers, as far as they have been filled. The layout of the vertices follows from their type.
    /// @throws std::invalid_argument for a type of vertices that is not known
    /// @throws std::out_of_range if an index points beyond the vertices; hardware would read whatever lies there
    /// @throws std::runtime_error if the driver has no memory for it
    void load(const vxgraphics3d::VertexBuffer& vertices, const vxgraphics3d::IndexBuffer& indices);

    /// Draws all segments with the program in use.
    void draw() const;

private:
    GlVertexArray m_array;
    GlBuffer m_vertices;
    GlBuffer m_indices;
    GLenum m_mode = GL_TRIANGLES;
    GLenum m_indexType = GL_UNSIGNED_SHORT;
    /// Indices of each piece that is drawn by itself, and where they start, in bytes.
    std::vector<GLsizei> m_counts;
    std::vector<const void*> m_starts;
};

} // namespace vxrenderer
