#pragma once

#include "base/export.h"
#include "datacarrier/unserializedrecord.h"

#include <string>

namespace vxdatacarrier {

/// The common head of the records of geometry.
///
/// A record is a plain carrier with public fields, which a producer fills and an object only reads. The object copies
/// what it needs, so the record may be destroyed after the fill. Objects check what they rely on: that counts and
/// arrays agree and that all indices are in range.
class VX_API GeometryRecord : public UnserializedRecord {
public:
    /// Records of all kinds can be behind a Java peer of any record class.
    using PeerRoot = vxbase::Serializable;

    bool m_isValid = false;
    /// Id of the object that the record is for.
    int m_id = 0;
    /// The object's name, its label.
    std::string m_name;
};

} // namespace vxdatacarrier
