#pragma once

#include "datacarrier/geometryvalues.h"
#include "graphics3d/buffers/indexbufferlines.h"
#include "graphics3d/parts/sheet.h"

#include <span>

namespace vxgraphics3d {

/// A sheet that can have a mesh: triangles and quadrilaterals, flat, each with vertices of its own.
class VX_API MeshableSheet : public Sheet {
public:
    using Sheet::Sheet;

    /// Counts the meshes set and removed.
    int getMeshChangeId() const { return m_meshChangeId.get(); }
    const VertexBufferNormal& getMeshVertices() const { return m_mesh.vertices; }
    /// The elements as triangles.
    const IndexBufferTriangles& getMeshTriangles() const { return m_mesh.indices; }
    /// The edges of the elements; those between two elements appear twice.
    const IndexBufferLines& getMeshLines() const { return m_lines; }

private:
    friend class MeshableSheetCollection;

    void setMesh(const Vector3f* points, std::span<const vxdatacarrier::Triangle> triangles,
                 std::span<const vxdatacarrier::Quad> quads);
    void clearMesh();

    ChangeNumber m_meshChangeId;
    BufferPair<VertexBufferNormal, IndexBufferTriangles> m_mesh;
    IndexBufferLines m_lines{m_mesh.vertices};
};

} // namespace vxgraphics3d
