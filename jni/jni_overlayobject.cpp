#include "graphics3d/overlays/overlayobject.h"
#include "jni/support/native.h"

#include "com_vexane_graphics3d_OverlayObject.h"

using namespace vxgraphics3d;

VX_NATIVE(void, OverlayObject, cleanupNative)(JNIEnv* env, jclass, jobject self)
{
    native(env, "cleanupNative", [&] { release(env, self); });
}

VX_NATIVE(jint, OverlayObject, getObjectPickID)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getObjectPickID", [&] { return peer<OverlayObject>(env, self).getObjectPickID(); });
}

VX_NATIVE(void, OverlayObject, setRotation)
(JNIEnv* env, jclass, jobject self, jfloat x, jfloat y, jfloat z, jfloat angle, jboolean reset)
{
    native(env, "setRotation", [&] { peer<OverlayObject>(env, self).rotate(x, y, z, angle, reset); });
}

VX_NATIVE(void, OverlayObject, setTranslation)
(JNIEnv* env, jclass, jobject self, jfloat x, jfloat y, jfloat z, jboolean reset)
{
    native(env, "setTranslation", [&] { peer<OverlayObject>(env, self).translate(x, y, z, reset); });
}

VX_NATIVE(void, OverlayObject, setScale)
(JNIEnv* env, jclass, jobject self, jfloat x, jfloat y, jfloat z, jboolean reset)
{
    native(env, "setScale", [&] { peer<OverlayObject>(env, self).scale(x, y, z, reset); });
}

VX_NATIVE(void, OverlayObject, setLineSize)(JNIEnv* env, jclass, jobject self, jfloat size)
{
    native(env, "setLineSize", [&] { peer<OverlayObject>(env, self).setLineSize(size); });
}

VX_NATIVE(void, OverlayObject, setFillColor)
(JNIEnv* env, jclass, jobject self, jint red, jint green, jint blue, jint alpha)
{
    native(env, "setFillColor", [&] { peer<OverlayObject>(env, self).setFillColor({red, green, blue, alpha}); });
}

VX_NATIVE(void, OverlayObject, setOulineColor)
(JNIEnv* env, jclass, jobject self, jint red, jint green, jint blue, jint alpha)
{
    native(env, "setOulineColor", [&] { peer<OverlayObject>(env, self).setOutlineColor({red, green, blue, alpha}); });
}

VX_NATIVE(void, OverlayObject, setUseColor)(JNIEnv* env, jclass, jobject self, jboolean use)
{
    native(env, "setUseColor", [&] { peer<OverlayObject>(env, self).setUseColor(use); });
}

VX_NATIVE(void, OverlayObject, setIsOutlined)(JNIEnv* env, jclass, jobject self, jboolean outlined)
{
    native(env, "setIsOutlined", [&] { peer<OverlayObject>(env, self).setIsOutlined(outlined); });
}

VX_NATIVE(void, OverlayObject, setFilled)(JNIEnv* env, jclass, jobject self, jboolean filled)
{
    native(env, "setFilled", [&] { peer<OverlayObject>(env, self).setFilled(filled); });
}
