#pragma once

namespace vxbase {
class ISerialStream;
class OSerialStream;
} // namespace vxbase

namespace vxdatacarrier {

/// Writes the version that every serial form begins with.
void writeVersion(vxbase::OSerialStream& out);
/// Reads the version.
/// @throws vxbase::Exception with the key "Incompatible_native_file_version" for another one
void readVersion(vxbase::ISerialStream& in);

} // namespace vxdatacarrier
