#include "graphics3d/plots/vector/scenegraphplotarrow.h"
#include "jni/support/enumconversions.h"
#include "jni/support/native.h"

#include "com_vexane_graphics3d_SceneGraphPlotArrow.h"

using namespace vxgraphics3d;

VX_NATIVE(void, SceneGraphPlotArrow, setLogRange)(JNIEnv* env, jclass, jobject self, jfloat range)
{
    native(env, "setLogRange", [&] { peer<SceneGraphPlotArrow>(env, self).setLogRange(range); });
}

VX_NATIVE(void, SceneGraphPlotArrow, setHeadRadius)(JNIEnv* env, jclass, jobject self, jfloat radius)
{
    native(env, "setHeadRadius", [&] { peer<SceneGraphPlotArrow>(env, self).setHeadRadius(radius); });
}

VX_NATIVE(void, SceneGraphPlotArrow, setHeadLength)(JNIEnv* env, jclass, jobject self, jfloat length)
{
    native(env, "setHeadLength", [&] { peer<SceneGraphPlotArrow>(env, self).setHeadLength(length); });
}

VX_NATIVE(void, SceneGraphPlotArrow, setShaftRadius)(JNIEnv* env, jclass, jobject self, jfloat radius)
{
    native(env, "setShaftRadius", [&] { peer<SceneGraphPlotArrow>(env, self).setShaftRadius(radius); });
}

VX_NATIVE(void, SceneGraphPlotArrow, setCommonArrowScale)(JNIEnv* env, jclass, jobject self, jfloat scale)
{
    native(env, "setCommonArrowScale", [&] { peer<SceneGraphPlotArrow>(env, self).setCommonArrowScale(scale); });
}

VX_NATIVE(void, SceneGraphPlotArrow, setAnchorPoint)(JNIEnv* env, jclass, jobject self, jint anchorPoint)
{
    native(env, "setAnchorPoint",
           [&] { peer<SceneGraphPlotArrow>(env, self).setAnchorPoint(javaAnchorPointToCpp(anchorPoint)); });
}

VX_NATIVE(void, SceneGraphPlotArrow, setScalingType)(JNIEnv* env, jclass, jobject self, jint scalingType)
{
    native(env, "setScalingType",
           [&] { peer<SceneGraphPlotArrow>(env, self).setScalingType(javaScalingTypeToCpp(scalingType)); });
}
