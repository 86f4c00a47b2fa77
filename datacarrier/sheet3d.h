#pragma once

#include "base/export.h"
#include "base/serializable.h"
#include "datacarrier/boundingbox3d.h"
#include "datacarrier/geometryvalues.h"

#include <memory>

namespace vxdatacarrier {

/// A triangulated surface in space, with the domains on its two sides. Its up side is the one that the normals
/// (b - a) x (c - a) of the triangles point to.
struct VX_API Sheet3D : vxbase::Serializable {
    /// Writes the version and, if the sheet is valid, everything else.
    void serialize(vxbase::OSerialStream& out, vxbase::Prop& prop) const override;
    /// Reads what `serialize` wrote. A sheet that was not valid changes nothing. Counts are compared with the rest of
    /// the stream before memory is allocated.
    /// @throws vxbase::Exception with the key "Incompatible_native_file_version", and changes nothing, for another
    ///         version
    void deserialize(vxbase::ISerialStream& in) override;
    std::string getTypeName() const override { return "RenderSheet3D"; }

    /// Whether the sheet has geometry. One without keeps its index, so that relations need no change.
    bool m_isValid = false;
    BoundingBox3D m_box;
    std::unique_ptr<CoordsNormal3D[]> m_vertices;
    int m_numVertices = 0;
    /// Corners are indices of `m_vertices`.
    std::unique_ptr<Triangle[]> m_triangles;
    int m_numTriangles = 0;
    /// Index of the domain on the up side, -1 for none.
    int m_upDomain = -1;
    /// Index of the domain on the down side, -1 for none.
    int m_downDomain = -1;
};

} // namespace vxdatacarrier
