#include "graphics3d/canvas/irenderercanvas.h"
#include "graphics3d/settings/contextdata.h"
#include "jni/support/enumconversions.h"
#include "jni/support/native.h"

#include "com_vexane_graphics3d_ContextData.h"

using namespace vxgraphics3d;

VX_NATIVE(void, ContextData, connectNative)(JNIEnv* env, jclass, jobject self, jobject renderer)
{
    native(env, "connectNative",
           [&] { attach(env, self, anyPeer<IRendererCanvas>(env, renderer, "renderer").getContextData()); });
}

VX_NATIVE(void, ContextData, cleanupNative)(JNIEnv* env, jclass, jobject self)
{
    native(env, "cleanupNative", [&] { release(env, self); });
}

VX_NATIVE(jint, ContextData, getColorBits)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getColorBits", [&] { return peer<ContextData>(env, self).colorBits; });
}

VX_NATIVE(jint, ContextData, getRedBits)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getRedBits", [&] { return peer<ContextData>(env, self).redBits; });
}

VX_NATIVE(jint, ContextData, getGreenBits)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getGreenBits", [&] { return peer<ContextData>(env, self).greenBits; });
}

VX_NATIVE(jint, ContextData, getBlueBits)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getBlueBits", [&] { return peer<ContextData>(env, self).blueBits; });
}

VX_NATIVE(jint, ContextData, getAlphaBits)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getAlphaBits", [&] { return peer<ContextData>(env, self).alphaBits; });
}

VX_NATIVE(jint, ContextData, getDepthBits)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getDepthBits", [&] { return peer<ContextData>(env, self).depthBits; });
}

VX_NATIVE(jint, ContextData, getStencilBits)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getStencilBits", [&] { return peer<ContextData>(env, self).stencilBits; });
}

VX_NATIVE(jint, ContextData, getAccumBufferRedBits)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getAccumBufferRedBits", [&] { return peer<ContextData>(env, self).accumBufferRedBits; });
}

VX_NATIVE(jint, ContextData, getAccumBufferGreenBits)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getAccumBufferGreenBits", [&] { return peer<ContextData>(env, self).accumBufferGreenBits; });
}

VX_NATIVE(jint, ContextData, getAccumBufferBlueBits)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getAccumBufferBlueBits", [&] { return peer<ContextData>(env, self).accumBufferBlueBits; });
}

VX_NATIVE(jint, ContextData, getAccumBufferAlphaBits)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getAccumBufferAlphaBits", [&] { return peer<ContextData>(env, self).accumBufferAlphaBits; });
}

VX_NATIVE(jint, ContextData, getMultipleSamples)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getMultipleSamples", [&] { return peer<ContextData>(env, self).multipleSamples; });
}

VX_NATIVE(jboolean, ContextData, isDoubleBuffered)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "isDoubleBuffered", [&] { return toJava(peer<ContextData>(env, self).doubleBuffered); });
}

VX_NATIVE(jboolean, ContextData, isHardwareAccelerated)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "isHardwareAccelerated",
                  [&] { return toJava(peer<ContextData>(env, self).hardwareAccelerated); });
}

VX_NATIVE(jint, ContextData, getAntialiasingType)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getAntialiasingType",
                  [&] { return cppAntialiasingTypeToJava(peer<ContextData>(env, self).antialiasingType); });
}
