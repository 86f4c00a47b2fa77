#pragma once

#include "base/export.h"
#include "datacarrier/rendermesh.h"

#include <boost/shared_ptr.hpp>

#include <vector>

namespace vxdatacarrier {

/// The meshes of any parts of a physics object.
class VX_API RenderMeshCollection : public UnserializedRecord {
public:
    using PeerRoot = vxbase::Serializable;

    std::string getTypeName() const override { return "RenderMeshCollection"; }

    std::vector<boost::shared_ptr<RenderMesh>> m_meshes;
};

} // namespace vxdatacarrier
