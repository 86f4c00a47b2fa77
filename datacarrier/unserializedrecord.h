#pragma once

#include "base/export.h"
#include "base/serializable.h"

namespace vxdatacarrier {

/// Base of the records that are handed over in memory only: writing or reading one throws std::logic_error.
class VX_API UnserializedRecord : public vxbase::Serializable {
public:
    void serialize(vxbase::OSerialStream& out, vxbase::Prop& prop) const final;
    void deserialize(vxbase::ISerialStream& in) final;
};

} // namespace vxdatacarrier
