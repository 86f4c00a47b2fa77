#include "graphics3d/parts/meshableline.h"

#include <algorithm>

namespace vxgraphics3d {

void MeshableLine::setMesh(const Vector3f* points, int count)
{
    clearMesh();
    m_meshVertices.allocate(count);
    std::for_each_n(points, count, [this](const Vector3f& point) { m_meshVertices.appendVertex(point); });
}

void MeshableLine::clearMesh()
{
    m_meshVertices.deallocate();
    m_meshChangeId.raise();
}

} // namespace vxgraphics3d
