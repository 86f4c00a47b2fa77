#pragma once

#include "graphics3d/parts/line.h"

namespace vxgraphics3d {

/// A line that can have a mesh: the vertices of the elements along it.
class VX_API MeshableLine : public Line {
public:
    using Line::Line;

    /// Counts the meshes set and removed.
    int getMeshChangeId() const { return m_meshChangeId.get(); }
    const VertexBufferCoords& getMeshVertices() const { return m_meshVertices; }

private:
    friend class MeshableLineCollection;

    void setMesh(const Vector3f* points, int count);
    void clearMesh();

    ChangeNumber m_meshChangeId;
    VertexBufferCoords m_meshVertices;
};

} // namespace vxgraphics3d
