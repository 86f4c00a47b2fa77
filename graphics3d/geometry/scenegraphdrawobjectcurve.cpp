#include "graphics3d/geometry/scenegraphdrawobjectcurve.h"

#include "datacarrier/renderdraw1d.h"
#include "datacarrier/renderdraw2d.h"
#include "datacarrier/renderdraw3d.h"
#include "graphics3d/geometry/partfill.h"

namespace vxgraphics3d {

boost::shared_ptr<SceneGraphDrawObjectCurve> SceneGraphDrawObjectCurve::create(int id)
{
    return own(new SceneGraphDrawObjectCurve(id));
}

void SceneGraphDrawObjectCurve::fillData(const vxdatacarrier::RenderDraw1D& record)
{
    fillParts(record, "Id do not match for Curve2dObject");
    fillSnapVertices(record);
    setBoundingBox(boxOf(record.m_box));
    setLabel(record.m_name);
}

void SceneGraphDrawObjectCurve::fillData(const vxdatacarrier::RenderDraw2D& record)
{
    fillParts(record, "Id do not match for Curve2dObject");
    fillSnapVertices(record);
    // A depth, so that zooming to a flat curve has one.
    BoundingBox box = boxOf(record.m_box);
    box.expand(0.0f, 0.0f, 1.0f);
    setBoundingBox(box);
    setLabel(record.m_name);
}

void SceneGraphDrawObjectCurve::fillData(const vxdatacarrier::RenderDraw3D& record)
{
    fillParts(record, "Id do not match for Curve3dObject");
    setBoundingBox(boxOf(record.m_box));
    setLabel(record.m_name);
}

} // namespace vxgraphics3d
