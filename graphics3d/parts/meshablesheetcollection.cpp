#include "graphics3d/parts/meshablesheetcollection.h"

namespace vxgraphics3d {

void MeshableSheetCollection::setPartMesh(int index, const Vector3f* points,
                                          std::span<const vxdatacarrier::Triangle> triangles,
                                          std::span<const vxdatacarrier::Quad> quads)
{
    if (!triangles.empty() || !quads.empty()) {
        // Without its mark until it has the mesh: the memory may not suffice.
        markMeshed(index, false);
        meshable(index).setMesh(points, triangles, quads);
        markMeshed(index, true);
    } else if (getPart(index).isMarked(MarkMeshed)) {
        clearPartMesh(index);
    }
}

void MeshableSheetCollection::clearPartMesh(int index)
{
    meshable(index).clearMesh();
    markMeshed(index, false);
}

void MeshableSheetCollection::clearAllMeshes()
{
    for (int i = 0; i < getNumParts(); ++i) {
        if (getMeshablePart(i).getMeshVertices().getNumberOfVertices() > 0) {
            clearPartMesh(i);
        }
    }
}

Sheet* MeshableSheetCollection::createPart(int numVertices, int numTriangles)
{
    return new MeshableSheet(numVertices, numTriangles);
}

} // namespace vxgraphics3d
