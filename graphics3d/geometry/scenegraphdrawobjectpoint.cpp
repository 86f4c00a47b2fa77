#include "graphics3d/geometry/scenegraphdrawobjectpoint.h"

#include "datacarrier/renderdraw1d.h"
#include "datacarrier/renderdraw2d.h"
#include "datacarrier/renderdraw3d.h"
#include "graphics3d/geometry/partfill.h"

namespace vxgraphics3d {

boost::shared_ptr<SceneGraphDrawObjectPoint> SceneGraphDrawObjectPoint::create(int id)
{
    return own(new SceneGraphDrawObjectPoint(id));
}

void SceneGraphDrawObjectPoint::fillData(const vxdatacarrier::RenderDraw1D& record)
{
    fillParts(record, "Id do not match for Point1dObject");
    fillSnapVertices(record);
    setBoundingBox(boxOf(record.m_box));
    setLabel(record.m_name);
}

void SceneGraphDrawObjectPoint::fillData(const vxdatacarrier::RenderDraw2D& record)
{
    fillParts(record, "Id do not match for Point2dObject");
    fillSnapVertices(record);
    setBoundingBox(boxOf(record.m_box));
    setLabel(record.m_name);
}

void SceneGraphDrawObjectPoint::fillData(const vxdatacarrier::RenderDraw3D& record)
{
    fillParts(record, "Id do not match for Point3dObject");
    setBoundingBox(boxOf(record.m_box));
    setLabel(record.m_name);
}

} // namespace vxgraphics3d
