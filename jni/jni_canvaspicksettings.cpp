#include "graphics3d/canvas/irenderercanvas.h"
#include "graphics3d/picking/canvaspicksettings.h"
#include "jni/support/native.h"

#include <boost/make_shared.hpp>

#include "com_vexane_graphics3d_CanvasPickSettings.h"

using namespace vxgraphics3d;

namespace {

bool isPickTarget(int target)
{
    return target >= CanvasPickSettings::PickNone && target <= CanvasPickSettings::PickOther;
}

} // namespace

VX_NATIVE(void, CanvasPickSettings, setPickMask)(JNIEnv* env, jclass, jobject self, jint mask)
{
    native(env, "setPickMask", [&] { peer<CanvasPickSettings>(env, self).pickMask = mask; });
}

VX_NATIVE(jint, CanvasPickSettings, getPickMask)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getPickMask", [&] { return peer<CanvasPickSettings>(env, self).pickMask; });
}

VX_NATIVE(void, CanvasPickSettings, setPickTarget)(JNIEnv* env, jclass, jobject self, jint target)
{
    native(env, "setPickTarget", [&] {
        auto& settings = peer<CanvasPickSettings>(env, self);
        if (isPickTarget(target)) {
            settings.pickTarget = target;
        } else {
            logNativeWarning("Illegal pick target.");
        }
    });
}

VX_NATIVE(jint, CanvasPickSettings, getPickTarget)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getPickTarget", [&] {
        const int target = peer<CanvasPickSettings>(env, self).pickTarget;
        if (isPickTarget(target)) {
            return target;
        }
        logNativeWarning("Illegal pick target.");
        return static_cast<int>(CanvasPickSettings::PickNone);
    });
}

VX_NATIVE(void, CanvasPickSettings, createNative)(JNIEnv* env, jclass, jobject self)
{
    native(env, "createNative", [&] { attach(env, self, boost::make_shared<CanvasPickSettings>()); });
}

VX_NATIVE(void, CanvasPickSettings, connectNative)(JNIEnv* env, jclass, jobject self, jobject renderer)
{
    native(env, "connectNative",
           [&] { attach(env, self, anyPeer<IRendererCanvas>(env, renderer, "renderer").getCanvasPickSettings()); });
}

VX_NATIVE(void, CanvasPickSettings, cleanupNative)(JNIEnv* env, jclass, jobject self)
{
    native(env, "cleanupNative", [&] { release(env, self); });
}
