#include "graphics3d/plots/vector/scenegraphplotpointlabel.h"
#include "jni/support/native.h"

#include <boost/make_shared.hpp>

#include "com_vexane_graphics3d_SceneGraphPlotPointLabel.h"

using namespace vxgraphics3d;

VX_NATIVE(void, SceneGraphPlotPointLabel, setLabels)(JNIEnv* env, jclass, jobject self, jobjectArray labels)
{
    native(env, "setLabels", [&] {
        peer<SceneGraphPlotPointLabel>(env, self).setLabels(fromJava<std::vector<std::string>>(env, labels));
    });
}

VX_NATIVE(void, SceneGraphPlotPointLabel, createNative)(JNIEnv* env, jclass, jobject self, jint dimension, jint id)
{
    native(env, "createNative",
           [&] { attach(env, self, boost::make_shared<SceneGraphPlotPointLabel>(dimension, id)); });
}
