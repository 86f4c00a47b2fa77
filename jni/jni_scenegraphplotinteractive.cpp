#include "graphics3d/plots/vector/scenegraphplotinteractive.h"
#include "jni/support/native.h"

#include <boost/make_shared.hpp>

#include "com_vexane_graphics3d_SceneGraphPlotInteractive.h"

using namespace vxgraphics3d;

VX_NATIVE(void, SceneGraphPlotInteractive, setSolidFraction)(JNIEnv* env, jclass, jobject self, jdouble fraction)
{
    native(env, "setSolidFraction",
           [&] { peer<SceneGraphPlotInteractive>(env, self).setSolidFraction(static_cast<float>(fraction)); });
}

VX_NATIVE(void, SceneGraphPlotInteractive, setLinePoints)(JNIEnv* env, jclass, jobject self, jobjectArray points)
{
    native(env, "setLinePoints", [&] {
        peer<SceneGraphPlotInteractive>(env, self).setLinePoints(
            fromJava<SceneGraphPlotInteractive::Coordinates>(env, points));
    });
}

VX_NATIVE(void, SceneGraphPlotInteractive, setPoints)(JNIEnv* env, jclass, jobject self, jobjectArray points)
{
    native(env, "setPoints", [&] {
        peer<SceneGraphPlotInteractive>(env, self).setPoints(
            fromJava<SceneGraphPlotInteractive::Coordinates>(env, points));
    });
}

VX_NATIVE(void, SceneGraphPlotInteractive, clear)(JNIEnv* env, jclass, jobject self)
{
    native(env, "clear", [&] { peer<SceneGraphPlotInteractive>(env, self).clear(); });
}

VX_NATIVE(void, SceneGraphPlotInteractive, createNative)(JNIEnv* env, jclass, jobject self, jint id)
{
    native(env, "createNative", [&] { attach(env, self, boost::make_shared<SceneGraphPlotInteractive>(id)); });
}
