#pragma once

#include "base/export.h"
#include "base/serializable.h"
#include "datacarrier/boundingbox3d.h"
#include "datacarrier/geometryvalues.h"

#include <memory>

namespace vxdatacarrier {

/// A polyline in space, by its vertices in their order.
struct VX_API Curve3D : vxbase::Serializable {
    /// Writes the version and, if the curve is valid, everything else.
    void serialize(vxbase::OSerialStream& out, vxbase::Prop& prop) const override;
    /// Reads what `serialize` wrote. A curve that was not valid changes nothing. Counts are compared with the rest of
    /// the stream before memory is allocated.
    /// @throws vxbase::Exception with the key "Incompatible_native_file_version", and changes nothing, for another
    ///         version
    void deserialize(vxbase::ISerialStream& in) override;
    std::string getTypeName() const override { return "RenderCurve3D"; }

    /// Whether the curve has geometry. One without keeps its index, so that relations need no change.
    bool m_isValid = false;
    BoundingBox3D m_box;
    std::unique_ptr<Coords3D[]> m_vertices;
    int m_numVertices = 0;
};

} // namespace vxdatacarrier
