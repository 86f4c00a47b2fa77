#pragma once

#include "base/export.h"
#include "base/serializable.h"

namespace vxdatacarrier {

/// The limits of geometry in two dimensions, by axis.
struct VX_API BoundingBox2D : vxbase::Serializable {
    void serialize(vxbase::OSerialStream& out, vxbase::Prop& prop) const override;
    /// @throws vxbase::Exception with the key "Incompatible_native_file_version", and changes nothing, for another
    ///         version
    void deserialize(vxbase::ISerialStream& in) override;
    std::string getTypeName() const override { return "RenderBoundingBox2D"; }

    float m_xMin = 0.0f;
    float m_xMax = 0.0f;
    float m_yMin = 0.0f;
    float m_yMax = 0.0f;
};

} // namespace vxdatacarrier
