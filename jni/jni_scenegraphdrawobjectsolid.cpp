#include "datacarrier/renderdraw3d.h"
#include "graphics3d/geometry/scenegraphdrawobjectsolid.h"
#include "graphics3d/scenegraph/scenegraphparent.h"
#include "jni/support/native.h"

#include "com_vexane_graphics3d_SceneGraphDrawObjectSolid.h"

using namespace vxgraphics3d;

VX_NATIVE(void, SceneGraphDrawObjectSolid, fillObject)(JNIEnv* env, jclass, jobject self, jobject record)
{
    native(env, "fillObject", [&] {
        auto& solid = peer<SceneGraphDrawObjectSolid>(env, self);
        auto& data = anyPeer<vxdatacarrier::RenderDraw3D>(env, record, "record");
        invertAdjacency(data.m_pointToLine, data.m_lineToPoint, data.m_numPoints, data.m_numCurves);
        invertAdjacency(data.m_pointToSheet, data.m_sheetToPoint, data.m_numPoints, data.m_numSheets);
        invertAdjacency(data.m_pointToSubdomain, data.m_subdomainToPoint, data.m_numPoints, data.m_numSubdomains);
        invertAdjacency(data.m_lineToSheet, data.m_sheetToLine, data.m_numCurves, data.m_numSheets);
        invertAdjacency(data.m_lineToSubdomain, data.m_subdomainToLine, data.m_numCurves, data.m_numSubdomains);
        solid.fillData(data);
    });
}

VX_NATIVE(void, SceneGraphDrawObjectSolid, createNative)(JNIEnv* env, jclass, jobject self, jint id)
{
    native(env, "createNative", [&] { attach(env, self, SceneGraphDrawObjectSolid::create(id)); });
}

VX_NATIVE(void, SceneGraphDrawObjectSolid, connectNative)
(JNIEnv* env, jclass, jobject self, jobject owner, jint childId)
{
    native(env, "connectNative", [&] {
        attach(env, self,
               castTo<SceneGraphDrawObjectSolid>(peer<SceneGraphParent>(env, owner, "owner").childPtr(childId),
                                                 "childId"));
    });
}
