#include "datacarrier/curve3d.h"

#include "base/serialstream.h"
#include "datacarrier/recordversion.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <utility>

namespace vxdatacarrier {

void Curve3D::serialize(vxbase::OSerialStream& out, vxbase::Prop& prop) const
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
    out.comment("Vertex coordinates");
    for (const Coords3D& vertex : std::span(m_vertices.get(), static_cast<std::size_t>(m_numVertices))) {
        out << vertex.x << vertex.y << vertex.z;
        out.comment("");
    }
}

void Curve3D::deserialize(vxbase::ISerialStream& in)
{
    readVersion(in);
    if (!in.readBool()) {
        return;
    }
    BoundingBox3D box;
    box.deserialize(in);
    const int numVertices = in.readInt();
    in.requireNumbers(std::int64_t{3} * numVertices);
    auto vertices = std::make_unique<Coords3D[]>(static_cast<std::size_t>(numVertices));

    m_isValid = false;
    m_box = box;
    m_vertices = std::move(vertices);
    m_numVertices = numVertices;
    for (Coords3D& vertex : std::span(m_vertices.get(), static_cast<std::size_t>(m_numVertices))) {
        in >> vertex.x >> vertex.y >> vertex.z;
    }
    m_isValid = true;
}

} // namespace vxdatacarrier
