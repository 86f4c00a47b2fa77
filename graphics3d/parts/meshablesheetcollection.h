#pragma once

#include "graphics3d/parts/meshablesheet.h"
#include "graphics3d/parts/sheetcollection.h"

namespace vxgraphics3d {

/// Sheets that can have meshes. A sheet with a mesh is marked as meshed.
class VX_API MeshableSheetCollection : public SheetCollection {
public:
    /// Replaces the mesh of a sheet; without elements the sheet has no mesh afterwards.
    /// @param points that the corners of the elements are indices of
    void setPartMesh(int index, const Vector3f* points, std::span<const vxdatacarrier::Triangle> triangles,
                     std::span<const vxdatacarrier::Quad> quads);
    void clearPartMesh(int index);
    void clearAllMeshes();

    const MeshableSheet& getMeshablePart(int index) const { return static_cast<const MeshableSheet&>(getPart(index)); }

    Sheet* createPart(int numVertices, int numTriangles) override;

private:
    MeshableSheet& meshable(int index) { return static_cast<MeshableSheet&>(part(index)); }
};

} // namespace vxgraphics3d
