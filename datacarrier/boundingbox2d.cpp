#include "datacarrier/boundingbox2d.h"

#include "base/serialstream.h"
#include "datacarrier/recordversion.h"

namespace vxdatacarrier {

void BoundingBox2D::serialize(vxbase::OSerialStream& out, vxbase::Prop&) const
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
}

void BoundingBox2D::deserialize(vxbase::ISerialStream& in)
{
    readVersion(in);
    in >> m_xMin >> m_xMax >> m_yMin >> m_yMax;
}

} // namespace vxdatacarrier
