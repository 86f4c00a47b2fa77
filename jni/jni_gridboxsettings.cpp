#include "graphics3d/canvas/canvas3dsettings.h"
#include "graphics3d/canvas/gridboxsettings.h"
#include "jni/support/native.h"

#include "com_vexane_graphics3d_GridBoxSettings.h"

using namespace vxgraphics3d;

VX_NATIVE(void, GridBoxSettings, connectNative)(JNIEnv* env, jclass, jobject self, jobject owner)
{
    native(env, "connectNative",
           [&] { attach(env, self, peer<Canvas3dSettings>(env, owner, "owner").getGridBoxSettingsPtr()); });
}

VX_NATIVE(void, GridBoxSettings, cleanupNative)(JNIEnv* env, jclass, jobject self)
{
    native(env, "cleanupNative", [&] { release(env, self); });
}

VX_NATIVE(jboolean, GridBoxSettings, isGridShown)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "isGridShown", [&] { return toJava(peer<GridBoxSettings>(env, self).isGridShown()); });
}

VX_NATIVE(void, GridBoxSettings, setShowGrid)(JNIEnv* env, jclass, jobject self, jboolean show)
{
    native(env, "setShowGrid", [&] { peer<GridBoxSettings>(env, self).setShowGrid(show); });
}

VX_NATIVE(jint, GridBoxSettings, getGridColor)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getGridColor", [&] { return peer<GridBoxSettings>(env, self).getGridColor().toRgb(); });
}

VX_NATIVE(void, GridBoxSettings, setGridColor)(JNIEnv* env, jclass, jobject self, jint color)
{
    native(env, "setGridColor", [&] { peer<GridBoxSettings>(env, self).setGridColor(Color::fromRgb(color)); });
}

VX_NATIVE(jint, GridBoxSettings, getLabelColor)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getLabelColor", [&] { return peer<GridBoxSettings>(env, self).getLabelColor().toRgb(); });
}

VX_NATIVE(void, GridBoxSettings, setLabelColor)(JNIEnv* env, jclass, jobject self, jint color)
{
    native(env, "setLabelColor", [&] { peer<GridBoxSettings>(env, self).setLabelColor(Color::fromRgb(color)); });
}
