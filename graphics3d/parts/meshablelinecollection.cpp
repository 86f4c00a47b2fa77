#include "graphics3d/parts/meshablelinecollection.h"

namespace vxgraphics3d {

void MeshableLineCollection::setPartMesh(int index, const Vector3f* points, int count)
{
    if (count >= 1) {
        // Without its mark until it has the mesh: the memory may not suffice.
        markMeshed(index, false);
        meshable(index).setMesh(points, count);
        markMeshed(index, true);
    } else if (getPart(index).isMarked(MarkMeshed)) {
        clearPartMesh(index);
    }
}

void MeshableLineCollection::clearPartMesh(int index)
{
    meshable(index).clearMesh();
    markMeshed(index, false);
}

void MeshableLineCollection::clearAllMeshes()
{
    for (int i = 0; i < getNumParts(); ++i) {
        if (getMeshablePart(i).getMeshVertices().getNumberOfVertices() > 0) {
            clearPartMesh(i);
        }
    }
}

Line* MeshableLineCollection::createPart(int numSegments)
{
    return new MeshableLine(numSegments);
}

} // namespace vxgraphics3d
