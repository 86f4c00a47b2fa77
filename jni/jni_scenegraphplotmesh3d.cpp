#include "graphics3d/plots/scalar/scenegraphplotmesh3d.h"
#include "jni/support/native.h"

#include <boost/make_shared.hpp>

#include "com_vexane_graphics3d_SceneGraphPlotMesh3d.h"

using namespace vxgraphics3d;

VX_NATIVE(void, SceneGraphPlotMesh3d, createNative)(JNIEnv* env, jclass, jobject self, jint id, jint dimensions)
{
    native(env, "createNative", [&] { attach(env, self, boost::make_shared<SceneGraphPlotMesh3d>(id, dimensions)); });
}

VX_NATIVE(void, SceneGraphPlotMesh3d, setDisplayInterior)(JNIEnv* env, jclass, jobject self, jboolean display)
{
    native(env, "setDisplayInterior", [&] { peer<SceneGraphPlotMesh3d>(env, self).setDisplayInterior(display); });
}

VX_NATIVE(void, SceneGraphPlotMesh3d, setDisplayWireframe)(JNIEnv* env, jclass, jobject self, jboolean display)
{
    native(env, "setDisplayWireframe", [&] { peer<SceneGraphPlotMesh3d>(env, self).setDisplayWireframe(display); });
}

VX_NATIVE(void, SceneGraphPlotMesh3d, setWireframeColor)(JNIEnv* env, jclass, jobject self, jint color)
{
    native(env, "setWireframeColor",
           [&] { peer<SceneGraphPlotMesh3d>(env, self).setWireframeColor(Color::fromRgb(color)); });
}
