#include "graphics3d/geometry/scenegraphdrawobject.h"
#include "jni/support/enumconversions.h"
#include "jni/support/native.h"

#include "com_vexane_graphics3d_SceneGraphDrawObject.h"

using namespace vxgraphics3d;

VX_NATIVE(jint, SceneGraphDrawObject, getId)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getId", [&] { return peer<SceneGraphDrawObject>(env, self).getId(); });
}

VX_NATIVE(void, SceneGraphDrawObject, mark)(JNIEnv* env, jclass, jobject self, jint marking)
{
    native(env, "mark", [&] { peer<SceneGraphDrawObject>(env, self).mark(javaMarkingTypeToCpp(marking), true); });
}

VX_NATIVE(void, SceneGraphDrawObject, unmark)(JNIEnv* env, jclass, jobject self, jint marking)
{
    native(env, "unmark", [&] { peer<SceneGraphDrawObject>(env, self).mark(javaMarkingTypeToCpp(marking), false); });
}

VX_NATIVE(void, SceneGraphDrawObject, markPart)
(JNIEnv* env, jclass, jobject self, jint partType, jint index, jint marking)
{
    native(env, "markPart", [&] {
        peer<SceneGraphDrawObject>(env, self).mark(javaObjectPartTypeToCpp(partType), index,
                                                   javaMarkingTypeToCpp(marking), true);
    });
}

VX_NATIVE(void, SceneGraphDrawObject, unmarkPart)
(JNIEnv* env, jclass, jobject self, jint partType, jint index, jint marking)
{
    native(env, "unmarkPart", [&] {
        peer<SceneGraphDrawObject>(env, self).mark(javaObjectPartTypeToCpp(partType), index,
                                                   javaMarkingTypeToCpp(marking), false);
    });
}

VX_NATIVE(void, SceneGraphDrawObject, unmarkAll)(JNIEnv* env, jclass, jobject self, jint partType, jint marking)
{
    native(env, "unmarkAll", [&] {
        peer<SceneGraphDrawObject>(env, self).unmarkAll(javaObjectPartTypeToCpp(partType),
                                                        javaMarkingTypeToCpp(marking));
    });
}
