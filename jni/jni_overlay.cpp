#include "graphics3d/overlays/overlay.h"
#include "graphics3d/overlays/overlayobject.h"
#include "jni/support/native.h"

#include <boost/make_shared.hpp>

#include "com_vexane_graphics3d_Overlay.h"

using namespace vxgraphics3d;

VX_NATIVE(void, Overlay, createNative)(JNIEnv* env, jclass, jobject self)
{
    native(env, "createNative", [&] { attach(env, self, boost::make_shared<Overlay>()); });
}

VX_NATIVE(void, Overlay, cleanupNative)(JNIEnv* env, jclass, jobject self)
{
    native(env, "cleanupNative", [&] { release(env, self); });
}

VX_NATIVE(void, Overlay, addOverlayObject)(JNIEnv* env, jclass, jobject self, jobject object, jint pickId)
{
    native(env, "addOverlayObject",
           [&] { peer<Overlay>(env, self).addOverlayObject(share<OverlayObject>(env, object, "object"), pickId); });
}

VX_NATIVE(void, Overlay, removeOverlayObject)(JNIEnv* env, jclass, jobject self, jobject object)
{
    native(env, "removeOverlayObject",
           [&] { peer<Overlay>(env, self).removeOverlayObject(share<OverlayObject>(env, object, "object")); });
}
