#include "graphics3d/overlays/overlaytwopointsobject.h"
#include "jni/support/native.h"

#include "com_vexane_graphics3d_OverlayTwoPointsObject.h"

using namespace vxgraphics3d;

VX_NATIVE(void, OverlayTwoPointsObject, doSetStart)(JNIEnv* env, jclass, jobject self, jdouble x, jdouble y)
{
    native(env, "doSetStart", [&] { peer<OverlayTwoPointsObject>(env, self).setStart(x, y); });
}

VX_NATIVE(void, OverlayTwoPointsObject, doSetEnd)(JNIEnv* env, jclass, jobject self, jdouble x, jdouble y)
{
    native(env, "doSetEnd", [&] { peer<OverlayTwoPointsObject>(env, self).setEnd(x, y); });
}
