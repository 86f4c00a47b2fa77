#include "base/java/nativeframe.h"
#include "base/java/peerhandle.h"
#include "datacarrier/rendermeshcollection.h"
#include "producer/javavalues.h"
#include "producer/meshbuilding.h"

#include <boost/make_shared.hpp>

#include "com_vexane_producer_RenderMeshCollection.h"

using namespace vxbase;
using namespace vxproducer;
using vxdatacarrier::RenderMeshCollection;

VX_NATIVE(void, RenderMeshCollection, createNative)(JNIEnv* env, jclass, jobject self)
{
    guarded(env, [&] { attach(env, self, boost::make_shared<RenderMeshCollection>()); });
}

VX_NATIVE(void, RenderMeshCollection, cleanupNative)(JNIEnv* env, jclass, jobject self)
{
    guarded(env, [&] { release(env, self); });
}

VX_NATIVE(void, RenderMeshCollection, addMesh)
(JNIEnv* env, jclass, jobject self, jint type, jint part, jobjectArray coordinates, jobjectArray triangles,
 jobjectArray quads)
{
    guarded(env, [&] {
        auto& collection = peer<RenderMeshCollection>(env, self);
        collection.m_meshes.push_back(buildMesh({.type = type,
                                                 .partIndex = part,
                                                 .coordinates = copyRows<double>(env, coordinates, "coordinates"),
                                                 .triangles = copyRows<int>(env, triangles, "triangles"),
                                                 .quads = copyRows<int>(env, quads, "quads")}));
    });
}

VX_NATIVE(jint, RenderMeshCollection, getNumMeshes)(JNIEnv* env, jclass, jobject self)
{
    return guarded(env, [&] { return static_cast<jint>(peer<RenderMeshCollection>(env, self).m_meshes.size()); });
}
