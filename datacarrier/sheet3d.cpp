#include "datacarrier/sheet3d.h"

#include "base/serialstream.h"
#include "datacarrier/recordversion.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <utility>

namespace vxdatacarrier {

void Sheet3D::serialize(vxbase::OSerialStream& out, vxbase::Prop& prop) const
{
    writeVersion(out);
    out << m_isValid;
    out.comment("is valid");
    if (!m_isValid) {
        return;
    }
    out.comment("Bounding box");
    m_box.serialize(out, prop);
    out.comment("");
    out << m_numVertices;
    out.comment("number of vertices");
    out << m_numTriangles;
    out.comment("number of triangles");
    out.comment("Vertex coordinates and normals");
    for (const CoordsNormal3D& vertex : std::span(m_vertices.get(), static_cast<std::size_t>(m_numVertices))) {
        out << vertex.x << vertex.y << vertex.z << vertex.nx << vertex.ny << vertex.nz;
        out.comment("");
    }
    out.comment("Triangles");
    for (const Triangle& triangle : std::span(m_triangles.get(), static_cast<std::size_t>(m_numTriangles))) {
        out << triangle.a << triangle.b << triangle.c;
        out.comment("");
    }
    out.comment("Domain on up side");
    out << m_upDomain;
    out.comment("");
    out.comment("Domain on down side");
    out << m_downDomain;
    out.comment("");
}

void Sheet3D::deserialize(vxbase::ISerialStream& in)
{
    readVersion(in);
    if (!in.readBool()) {
        return;
    }
    BoundingBox3D box;
    box.deserialize(in);
    const int numVertices = in.readInt();
    const int numTriangles = in.readInt();
    // Each count first, so that neither can make up for a negative one.
    in.requireNumbers(std::int64_t{6} * numVertices);
    in.requireNumbers(std::int64_t{3} * numTriangles);
    in.requireNumbers(std::int64_t{6} * numVertices + std::int64_t{3} * numTriangles + 2);
    auto vertices = std::make_unique<CoordsNormal3D[]>(static_cast<std::size_t>(numVertices));
    auto triangles = std::make_unique<Triangle[]>(static_cast<std::size_t>(numTriangles));

    m_isValid = false;
    m_box = box;
    m_vertices = std::move(vertices);
    m_numVertices = numVertices;
    m_triangles = std::move(triangles);
    m_numTriangles = numTriangles;
    for (CoordsNormal3D& vertex : std::span(m_vertices.get(), static_cast<std::size_t>(m_numVertices))) {
        in >> vertex.x >> vertex.y >> vertex.z >> vertex.nx >> vertex.ny >> vertex.nz;
    }
    for (Triangle& triangle : std::span(m_triangles.get(), static_cast<std::size_t>(m_numTriangles))) {
        in >> triangle.a >> triangle.b >> triangle.c;
    }
    in >> m_upDomain >> m_downDomain;
    m_isValid = true;
}

} // namespace vxdatacarrier
