#pragma once

#include "graphics3d/geometry/scenegraphdrawobject.h"

namespace vxdatacarrier {
class RenderDraw1D;
class RenderDraw2D;
class RenderDraw3D;
} // namespace vxdatacarrier

namespace vxgraphics3d {

/// A draw object that shows a curve: lines and their points.
class VX_API SceneGraphDrawObjectCurve : public SceneGraphDrawObject {
public:
    static boost::shared_ptr<SceneGraphDrawObjectCurve> create(int id);

    // Replaces everything by the geometry of a record. Throws std::invalid_argument or std::out_of_range, and changes
    // nothing, if the record is not consistent; the text names what is wrong.

    void fillData(const vxdatacarrier::RenderDraw1D& record);
    void fillData(const vxdatacarrier::RenderDraw2D& record);
    void fillData(const vxdatacarrier::RenderDraw3D& record);

protected:
    explicit SceneGraphDrawObjectCurve(int id) : SceneGraphDrawObject(ObjectCurve, id, PartLine) {}
};

} // namespace vxgraphics3d
