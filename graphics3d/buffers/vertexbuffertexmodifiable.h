#pragma once

#include "graphics3d/buffers/vertexbuffertex.h"

namespace vxgraphics3d {

/// A textured buffer whose records can be changed after they were appended, and the only one whose v may differ from 0.
/// It is for renderers, which store the positions of a plot here with texture coordinates of their own. Indices are not
/// checked.
class VX_API VertexBufferTexModifiable : public VertexBufferTex {
public:
    float getVertexTextureUCoord(int index) const { return record(index).u; }
    float getVertexTextureVCoord(int index) const { return record(index).v; }
    void setVertexTextureUCoord(int index, float u) { record(index).u = u; }
    void setVertexTextureVCoord(int index, float v) { record(index).v = v; }
    void setVertex(int index, float x, float y, float z, float u, float v) { record(index) = {x, y, z, u, v}; }

    /// Replaces the records by those of a buffer of any layout: its positions, with u and v at 0.
    void import(const VertexBuffer& source);
};

} // namespace vxgraphics3d
