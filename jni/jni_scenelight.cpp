#include "graphics3d/lights/scenelight.h"
#include "graphics3d/scene/scene.h"
#include "jni/support/enumconversions.h"
#include "jni/support/native.h"

#include "com_vexane_graphics3d_SceneLight.h"

using namespace vxgraphics3d;

VX_NATIVE(void, SceneLight, connectNative)(JNIEnv* env, jclass, jobject self, jobject owner)
{
    native(env, "connectNative", [&] { attach(env, self, peer<Scene>(env, owner, "owner").getSceneLight()); });
}

VX_NATIVE(void, SceneLight, cleanupNative)(JNIEnv* env, jclass, jobject self)
{
    native(env, "cleanupNative", [&] { release(env, self); });
}

VX_NATIVE(jint, SceneLight, createDirectionLight)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "createDirectionLight", [&] { return peer<SceneLight>(env, self).createDirectionLight(); });
}

VX_NATIVE(jint, SceneLight, createPointLight)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "createPointLight", [&] { return peer<SceneLight>(env, self).createPointLight(); });
}

VX_NATIVE(jint, SceneLight, createSpotLight)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "createSpotLight", [&] { return peer<SceneLight>(env, self).createSpotLight(); });
}

VX_NATIVE(jboolean, SceneLight, removeLightSource)(JNIEnv* env, jclass, jobject self, jint lightId)
{
    return native(env, "removeLightSource",
                  [&] { return toJava(peer<SceneLight>(env, self).removeLightSource(lightId)); });
}

VX_NATIVE(void, SceneLight, removeAllLightSources)(JNIEnv* env, jclass, jobject self)
{
    native(env, "removeAllLightSources", [&] { peer<SceneLight>(env, self).removeAllLightSources(); });
}

VX_NATIVE(jboolean, SceneLight, lightSourceExists)(JNIEnv* env, jclass, jobject self, jint lightId)
{
    return native(env, "lightSourceExists",
                  [&] { return toJava(peer<SceneLight>(env, self).lightSourceExists(lightId)); });
}

VX_NATIVE(jint, SceneLight, getLightSourceType)(JNIEnv* env, jclass, jobject self, jint lightId)
{
    return native(env, "getLightSourceType", [&] {
        return cppLightSourceTypeToJava(peer<SceneLight>(env, self).getLightSource(lightId)->getType());
    });
}

VX_NATIVE(jfloat, SceneLight, getTotalLightSourceIntensity)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getTotalLightSourceIntensity",
                  [&] { return peer<SceneLight>(env, self).getTotalLightSourceIntensity(); });
}

VX_NATIVE(void, SceneLight, setTotalLightSourceIntensity)(JNIEnv* env, jclass, jobject self, jfloat intensity)
{
    native(env, "setTotalLightSourceIntensity",
           [&] { peer<SceneLight>(env, self).setTotalLightSourceIntensity(intensity); });
}

VX_NATIVE(jfloat, SceneLight, getAmbientIntensity)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getAmbientIntensity", [&] { return peer<SceneLight>(env, self).getAmbientIntensity(); });
}

VX_NATIVE(void, SceneLight, setAmbientIntensity)(JNIEnv* env, jclass, jobject self, jfloat intensity)
{
    native(env, "setAmbientIntensity", [&] { peer<SceneLight>(env, self).setAmbientIntensity(intensity); });
}

VX_NATIVE(jint, SceneLight, getGlobalAmbientColor)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getGlobalAmbientColor",
                  [&] { return peer<SceneLight>(env, self).getGlobalAmbientColor().toRgb(); });
}

VX_NATIVE(void, SceneLight, setGlobalAmbientColor)(JNIEnv* env, jclass, jobject self, jint color)
{
    native(env, "setGlobalAmbientColor",
           [&] { peer<SceneLight>(env, self).setGlobalAmbientColor(Color::fromRgb(color)); });
}
