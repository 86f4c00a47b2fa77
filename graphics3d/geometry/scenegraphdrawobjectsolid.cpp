#include "graphics3d/geometry/scenegraphdrawobjectsolid.h"

#include "datacarrier/renderdraw3d.h"
#include "graphics3d/geometry/partfill.h"

namespace vxgraphics3d {

boost::shared_ptr<SceneGraphDrawObjectSolid> SceneGraphDrawObjectSolid::create(int id)
{
    return own(new SceneGraphDrawObjectSolid(id));
}

void SceneGraphDrawObjectSolid::fillData(const vxdatacarrier::RenderDraw3D& record)
{
    fillParts(record, "Id do not match for Solid3dObject");
    setBoundingBox(boxOf(record.m_box));
    setLabel(record.m_name);
}

} // namespace vxgraphics3d
