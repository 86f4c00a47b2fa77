#pragma once

#include "base/export.h"
#include "datacarrier/geometryvalues.h"
#include "datacarrier/unserializedrecord.h"

#include <memory>

namespace vxdatacarrier {

/// The mesh of one part of a physics object. Each kind of part has a record of its own, which sets the type.
class VX_API RenderMesh : public UnserializedRecord {
public:
    enum Type : int { Edge3D = 0, Boundary3D = 1, Subdomain1D = 2, Subdomain2D = 3, Boundary2D = 4 };

    explicit RenderMesh(int type) : m_meshType(type) {}

    /// A `Type`; a mesh of another type is passed over.
    int m_meshType;
    /// Index of the part among those of its kind.
    int m_partIndex = 0;
};

/// The mesh of a line: the vertices of its elements in their order along the line.
template <class Coords>
class VX_API RenderLineMesh : public RenderMesh {
public:
    using RenderMesh::RenderMesh;

    std::unique_ptr<Coords[]> m_coordinates;
    int m_numCoordinates = 0;
};

/// The mesh of a sheet: triangles and quadrilaterals, whose corners are indices of the coordinates.
template <class Coords>
class VX_API RenderSheetMesh : public RenderLineMesh<Coords> {
public:
    using RenderLineMesh<Coords>::RenderLineMesh;

    std::unique_ptr<Triangle[]> m_triangles;
    int m_numTriangles = 0;
    std::unique_ptr<Quad[]> m_quads;
    int m_numQuads = 0;
};

/// The mesh of an edge of a model in space.
class VX_API RenderMeshEdge3D : public RenderLineMesh<Coords3D> {
public:
    RenderMeshEdge3D() : RenderLineMesh(Edge3D) {}
    std::string getTypeName() const override { return "RenderMeshEdge3D"; }
};

/// The mesh of a boundary of a model in space.
class VX_API RenderMeshBoundary3D : public RenderSheetMesh<Coords3D> {
public:
    RenderMeshBoundary3D() : RenderSheetMesh(Boundary3D) {}
    std::string getTypeName() const override { return "RenderMeshBoundary3D"; }
};

/// The mesh of a domain of a model on an axis.
class VX_API RenderMeshSubdomain1D : public RenderLineMesh<float> {
public:
    RenderMeshSubdomain1D() : RenderLineMesh(Subdomain1D) {}
    std::string getTypeName() const override { return "RenderMeshSubdomain1D"; }
};

/// The mesh of a domain of a model in the plane.
class VX_API RenderMeshSubdomain2D : public RenderSheetMesh<Coords2D> {
public:
    RenderMeshSubdomain2D() : RenderSheetMesh(Subdomain2D) {}
    std::string getTypeName() const override { return "RenderMeshSubdomain2D"; }
};

/// The mesh of a boundary of a model in the plane.
class VX_API RenderMeshBoundary2D : public RenderLineMesh<Coords2D> {
public:
    RenderMeshBoundary2D() : RenderLineMesh(Boundary2D) {}
    std::string getTypeName() const override { return "RenderMeshBoundary2D"; }
};

} // namespace vxdatacarrier
