#pragma once

#include "graphics3d/geometry/scenegraphdrawobject.h"

namespace vxdatacarrier {
class RenderDraw3D;
} // namespace vxdatacarrier

namespace vxgraphics3d {

/// A draw object that shows a solid: subdomains with their sheets, lines and points.
class VX_API SceneGraphDrawObjectSolid : public SceneGraphDrawObject {
public:
    static boost::shared_ptr<SceneGraphDrawObjectSolid> create(int id);

    // Replaces everything by the geometry of a record. Throws std::invalid_argument or std::out_of_range, and changes
    // nothing, if the record is not consistent; the text names what is wrong.

    void fillData(const vxdatacarrier::RenderDraw3D& record);

protected:
    explicit SceneGraphDrawObjectSolid(int id) : SceneGraphDrawObject(ObjectSolid, id, PartSolid) {}
};

} // namespace vxgraphics3d
