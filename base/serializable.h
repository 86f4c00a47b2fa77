#pragma once

#include "base/export.h"

#include <string>

namespace vxbase {

class ISerialStream;
class OSerialStream;

/// Options that a caller passes to all records of one serialisation; records pass it on to the records they contain.
class Prop {};

/// Base of the records that can be written to a serial stream and read back.
class VX_API Serializable {
public:
    Serializable() = default;
    virtual ~Serializable();

    /// Writes the record's values.
    virtual void serialize(OSerialStream& out, Prop& prop) const = 0;
    /// Reads what `serialize` wrote. Throws if the stream holds something else.
    virtual void deserialize(ISerialStream& in) = 0;
    /// Name of the record's type, the same for all records of one class.
    virtual std::string getTypeName() const = 0;
    /// Whether the record's type has this name.
    virtual bool isOfType(const std::string& name) const;

protected:
    Serializable(const Serializable&) = default;
    Serializable& operator=(const Serializable&) = default;
};

} // namespace vxbase
