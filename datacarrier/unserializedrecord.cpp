#include "datacarrier/unserializedrecord.h"

#include <stdexcept>

namespace vxdatacarrier {

void UnserializedRecord::serialize(vxbase::OSerialStream&, vxbase::Prop&) const
{
    throw std::logic_error(getTypeName() + " has no serial form.");
}

void UnserializedRecord::deserialize(vxbase::ISerialStream&)
{
    throw std::logic_error(getTypeName() + " has no serial form.");
}

} // namespace vxdatacarrier
