#include "graphics3d/scenegraph/scenegraphobject.h"
#include "jni/support/native.h"

#include "com_vexane_graphics3d_SceneGraphObject.h"

using namespace vxgraphics3d;

VX_NATIVE(jint, SceneGraphObject, getObjectColor)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getObjectColor", [&] { return peer<SceneGraphObject>(env, self).getObjectColor().toRgb(); });
}

VX_NATIVE(void, SceneGraphObject, setObjectColor)(JNIEnv* env, jclass, jobject self, jint color)
{
    native(env, "setObjectColor", [&] { peer<SceneGraphObject>(env, self).setObjectColor(Color::fromRgb(color)); });
}

VX_NATIVE(jboolean, SceneGraphObject, isObjectColorUsed)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "isObjectColorUsed",
                  [&] { return toJava(peer<SceneGraphObject>(env, self).isObjectColorUsed()); });
}

VX_NATIVE(void, SceneGraphObject, setUseObjectColor)(JNIEnv* env, jclass, jobject self, jboolean use)
{
    native(env, "setUseObjectColor", [&] { peer<SceneGraphObject>(env, self).setUseObjectColor(use); });
}

VX_NATIVE(jfloat, SceneGraphObject, getShininess)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getShininess", [&] { return peer<SceneGraphObject>(env, self).getShininess(); });
}

VX_NATIVE(void, SceneGraphObject, setShininess)(JNIEnv* env, jclass, jobject self, jfloat shininess)
{
    native(env, "setShininess", [&] { peer<SceneGraphObject>(env, self).setShininess(shininess); });
}
