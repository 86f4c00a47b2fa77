#pragma once

#include "graphics3d/parts/linecollection.h"
#include "graphics3d/parts/meshableline.h"

namespace vxgraphics3d {

/// Lines that can have meshes. A line with a mesh is marked as meshed.
class VX_API MeshableLineCollection : public LineCollection {
public:
    /// Replaces the mesh of a line by copies of the points; without points the line has no mesh afterwards.
    void setPartMesh(int index, const Vector3f* points, int count);
    void clearPartMesh(int index);
    void clearAllMeshes();

    const MeshableLine& getMeshablePart(int index) const { return static_cast<const MeshableLine&>(getPart(index)); }

    Line* createPart(int numSegments) override;

private:
    MeshableLine& meshable(int index) { return static_cast<MeshableLine&>(part(index)); }
};

} // namespace vxgraphics3d
