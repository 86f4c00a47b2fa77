#pragma once

#include "datacarrier/rendermesh.h"
#include "graphics3d/geometry/coordinates.h"
#include "graphics3d/parts/meshablelinecollection.h"
#include "graphics3d/parts/meshablesheetcollection.h"

#include <algorithm>
#include <cstddef>
#include <span>
#include <vector>

namespace vxgraphics3d {

/// Calls `use` with a mesh as the record that its type requires. A mesh of an unknown type is passed over.
/// @throws std::bad_cast if the record is of another class
template <class Use>
void withMesh(const vxdatacarrier::RenderMesh& mesh, Use& use)
{
    using namespace vxdatacarrier;
    switch (mesh.m_meshType) {
    case RenderMesh::Edge3D:
        use(dynamic_cast<const RenderMeshEdge3D&>(mesh));
        break;
    case RenderMesh::Boundary3D:
        use(dynamic_cast<const RenderMeshBoundary3D&>(mesh));
        break;
    case RenderMesh::Subdomain1D:
        use(dynamic_cast<const RenderMeshSubdomain1D&>(mesh));
        break;
    case RenderMesh::Subdomain2D:
        use(dynamic_cast<const RenderMeshSubdomain2D&>(mesh));
        break;
    case RenderMesh::Boundary2D:
        use(dynamic_cast<const RenderMeshBoundary2D&>(mesh));
        break;
    default:
        break;
    }
}

/// The entries of an array of a record; a count below 1 is none.
template <class T>
std::span<const T> entries(const std::unique_ptr<T[]>& array, int count)
{
    return {array.get(), static_cast<std::size_t>(std::max(count, 0))};
}

/// Gives lines and sheets the meshes of records that have been checked.
class MeshSetter {
public:
    MeshSetter(MeshableLineCollection& lines, MeshableSheetCollection& sheets) : m_lines(lines), m_sheets(sheets) {}

    template <class Coords>
    void operator()(const vxdatacarrier::RenderLineMesh<Coords>& mesh)
    {
        m_lines.setPartMesh(mesh.m_partIndex, pointsOf(mesh), mesh.m_numCoordinates);
    }
    template <class Coords>
    void operator()(const vxdatacarrier::RenderSheetMesh<Coords>& mesh)
    {
        m_sheets.setPartMesh(mesh.m_partIndex, pointsOf(mesh), entries(mesh.m_triangles, mesh.m_numTriangles),
                             entries(mesh.m_quads, mesh.m_numQuads));
    }

private:
    template <class Coords>
    const Vector3f* pointsOf(const vxdatacarrier::RenderLineMesh<Coords>& mesh)
    {
        m_points.clear();
        for (const Coords& point : entries(mesh.m_coordinates, mesh.m_numCoordinates)) {
            m_points.push_back(widened(point));
        }
        return m_points.data();
    }

    MeshableLineCollection& m_lines;
    MeshableSheetCollection& m_sheets;
    std::vector<Vector3f> m_points;
};

} // namespace vxgraphics3d
