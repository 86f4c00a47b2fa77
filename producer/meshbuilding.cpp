#include "producer/meshbuilding.h"

#include "producer/geometryconversion.h"

#include <boost/make_shared.hpp>

#include <string>

namespace vxproducer {

using namespace vxdatacarrier;

namespace {

template <class Mesh>
boost::shared_ptr<RenderMesh> build(const MeshParts& parts)
{
    const auto mesh = boost::make_shared<Mesh>();
    mesh->m_partIndex = parts.partIndex;
    using Coords = typename decltype(mesh->m_coordinates)::element_type;
    mesh->m_coordinates = toCoords<Coords>(parts.coordinates, "coordinates", mesh->m_numCoordinates);
    if constexpr (requires { mesh->m_quads; }) {
        if (!parts.triangles.empty()) {
            mesh->m_triangles =
                toElements<Triangle>(parts.triangles, mesh->m_numCoordinates, "triangles", mesh->m_numTriangles);
        }
        if (!parts.quads.empty()) {
            mesh->m_quads = toElements<Quad>(parts.quads, mesh->m_numCoordinates, "quads", mesh->m_numQuads);
        }
    } else if (!parts.triangles.empty() || !parts.quads.empty()) {
        refuse("The mesh of a line has no triangles or quads");
    }
    return mesh;
}

} // namespace

boost::shared_ptr<RenderMesh> buildMesh(const MeshParts& parts)
{
    if (parts.partIndex < 0) {
        refuse("partIndex is " + std::to_string(parts.partIndex));
    }
    switch (parts.type) {
    case RenderMesh::Edge3D:
        return build<RenderMeshEdge3D>(parts);
    case RenderMesh::Boundary3D:
        return build<RenderMeshBoundary3D>(parts);
    case RenderMesh::Subdomain1D:
        return build<RenderMeshSubdomain1D>(parts);
    case RenderMesh::Subdomain2D:
        return build<RenderMeshSubdomain2D>(parts);
    case RenderMesh::Boundary2D:
        return build<RenderMeshBoundary2D>(parts);
    default:
        refuse("There is no mesh of type " + std::to_string(parts.type));
    }
}

} // namespace vxproducer
