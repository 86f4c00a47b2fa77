#include "datacarrier/recordversion.h"

#include "base/exception.h"
#include "base/serialstream.h"

namespace vxdatacarrier {
namespace {

constexpr unsigned c_version = 0;

} // namespace

void writeVersion(vxbase::OSerialStream& out)
{
    out << c_version;
    out.comment("version");
}

void readVersion(vxbase::ISerialStream& in)
{
    if (in.readInt() != static_cast<int>(c_version)) {
        throw vxbase::Exception(__FILE__, __LINE__, "Incompatible_native_file_version");
    }
}

} // namespace vxdatacarrier
