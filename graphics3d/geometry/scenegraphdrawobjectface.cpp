#include "graphics3d/geometry/scenegraphdrawobjectface.h"

#include "datacarrier/renderdraw2d.h"
#include "datacarrier/renderdraw3d.h"
#include "graphics3d/geometry/partfill.h"

namespace vxgraphics3d {

boost::shared_ptr<SceneGraphDrawObjectFace> SceneGraphDrawObjectFace::create(int id)
{
    return own(new SceneGraphDrawObjectFace(id));
}

void SceneGraphDrawObjectFace::fillData(const vxdatacarrier::RenderDraw2D& record)
{
    fillParts(record, "Id do not match for Face2dObject");
    fillSnapVertices(record);
    setBoundingBox(boxOf(record.m_box));
    setLabel(record.m_name);
}

void SceneGraphDrawObjectFace::fillData(const vxdatacarrier::RenderDraw3D& record)
{
    fillParts(record, "Id do not match for Face3dObject");
    setBoundingBox(boxOf(record.m_box));
    setLabel(record.m_name);
}

} // namespace vxgraphics3d
