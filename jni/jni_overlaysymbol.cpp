#include "graphics3d/foundation/rendersymbol.h"
#include "graphics3d/overlays/overlaysymbol.h"
#include "jni/support/native.h"

#include <boost/make_shared.hpp>

#include "com_vexane_graphics3d_OverlaySymbol.h"

using namespace vxgraphics3d;

VX_NATIVE(void, OverlaySymbol, createNative)(JNIEnv* env, jclass, jobject self)
{
    native(env, "createNative",
           [&] { attach(env, self, boost::make_shared<OverlaySymbol>(RenderSymbol::triangleDown)); });
}

VX_NATIVE(void, OverlaySymbol, cleanupNative)(JNIEnv* env, jclass, jobject self)
{
    native(env, "cleanupNative", [&] { release(env, self); });
}

VX_NATIVE(void, OverlaySymbol, doSetLocation)(JNIEnv* env, jclass, jobject self, jdouble x, jdouble y)
{
    native(env, "doSetLocation", [&] {
        auto& object = peer<OverlaySymbol>(env, self);
        object.setX(x);
        object.setY(y);
    });
}
