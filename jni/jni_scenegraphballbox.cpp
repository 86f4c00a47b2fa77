#include "graphics3d/construction/scenegraphballbox.h"
#include "jni/support/native.h"

#include <vector>

#include "com_vexane_graphics3d_SceneGraphBallBox.h"

using namespace vxgraphics3d;

VX_NATIVE(void, SceneGraphBallBox, createNative)(JNIEnv* env, jclass, jobject self)
{
    native(env, "createNative", [&] { attach(env, self, SceneGraphBallBox::create()); });
}

VX_NATIVE(void, SceneGraphBallBox, setBox)(JNIEnv* env, jclass, jobject self, jdoubleArray min, jdoubleArray max)
{
    native(env, "setBox", [&] {
        peer<SceneGraphBallBox>(env, self).setBox(fromJava<std::vector<double>>(env, min),
                                                  fromJava<std::vector<double>>(env, max));
    });
}

VX_NATIVE(void, SceneGraphBallBox, setBall)(JNIEnv* env, jclass, jobject self, jdoubleArray center, jdouble radius)
{
    native(env, "setBall",
           [&] { peer<SceneGraphBallBox>(env, self).setBall(fromJava<std::vector<double>>(env, center), radius); });
}

VX_NATIVE(void, SceneGraphBallBox, clear)(JNIEnv* env, jclass, jobject self)
{
    native(env, "clear", [&] { peer<SceneGraphBallBox>(env, self).clear(); });
}
