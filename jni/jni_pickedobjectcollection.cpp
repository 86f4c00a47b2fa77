#include "graphics3d/picking/pickedobjectcollection.h"
#include "jni/support/enumconversions.h"
#include "jni/support/native.h"

#include <boost/make_shared.hpp>

#include "com_vexane_graphics3d_PickedObjectCollection.h"

using namespace vxgraphics3d;

VX_NATIVE(void, PickedObjectCollection, createNative)(JNIEnv* env, jclass, jobject self)
{
    native(env, "createNative", [&] { attach(env, self, boost::make_shared<PickedObjectCollection>()); });
}

VX_NATIVE(void, PickedObjectCollection, cleanupNative)(JNIEnv* env, jclass, jobject self)
{
    native(env, "cleanupNative", [&] { release(env, self); });
}

VX_NATIVE(jint, PickedObjectCollection, getNumberOfPickedObjects)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getNumberOfPickedObjects",
                  [&] { return peer<PickedObjectCollection>(env, self).getNumberOfPickedObjects(); });
}

VX_NATIVE(jint, PickedObjectCollection, getObjectId)(JNIEnv* env, jclass, jobject self, jint index)
{
    return native(env, "getObjectId",
                  [&] { return peer<PickedObjectCollection>(env, self).getPickedObject(index).getObjectId(); });
}

VX_NATIVE(jint, PickedObjectCollection, getPartId)(JNIEnv* env, jclass, jobject self, jint index)
{
    return native(env, "getPartId",
                  [&] { return peer<PickedObjectCollection>(env, self).getPickedObject(index).getPartId(); });
}

VX_NATIVE(jint, PickedObjectCollection, getObjectType)(JNIEnv* env, jclass, jobject self, jint index)
{
    return native(env, "getObjectType", [&] {
        return cppPickedObjectTypeToJava(
            peer<PickedObjectCollection>(env, self).getPickedObject(index).getObjectType());
    });
}

VX_NATIVE(jint, PickedObjectCollection, getPartType)(JNIEnv* env, jclass, jobject self, jint index)
{
    return native(env, "getPartType", [&] {
        return cppPartTypeToJava(peer<PickedObjectCollection>(env, self).getPickedObject(index).getPartType());
    });
}
