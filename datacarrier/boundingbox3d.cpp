#include "datacarrier/boundingbox3d.h"

#include "base/serialstream.h"
#include "datacarrier/recordversion.h"

namespace vxdatacarrier {

void BoundingBox3D::serialize(vxbase::OSerialStream& out, vxbase::Prop&) const
{
    writeVersion(out);
    const auto write = [&](float value, const char* name) {
        out << value;
        out.comment(name);
    };
    write(m_xMin, "minimum x-coordinate");
    write(m_xMax, "maximum x-coordinate");
    write(m_yMin, "minimum y-coordinate");
    write(m_yMax, "maximum y-coordinate");
    write(m_zMin, "minimum z-coordinate");
    write(m_zMax, "maximum z-coordinate");
}

void BoundingBox3D::deserialize(vxbase::ISerialStream& in)
{
    readVersion(in);
    in >> m_xMin >> m_xMax >> m_yMin >> m_yMax >> m_zMin >> m_zMax;
}

} // namespace vxdatacarrier
