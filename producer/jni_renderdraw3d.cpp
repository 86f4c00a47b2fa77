#include "base/java/conversions.h"
#include "base/java/nativeframe.h"
#include "base/java/peerhandle.h"
#include "datacarrier/renderdraw3d.h"
#include "graphics3d/foundation/vector3f.h"
#include "graphics3d/readers/postdatareader.h"
#include "producer/geometrycompletion.h"

#include <string>

#include "com_vexane_producer_RenderDraw3D.h"

using namespace vxbase;
using vxdatacarrier::RenderDraw3D;

VX_NATIVE(jstring, RenderDraw3D, read)(JNIEnv* env, jclass, jobject self, jstring file, jintArray row)
{
    return guarded(env, [&]() -> jstring {
        auto& record = peer<RenderDraw3D>(env, self);
        jintArrayRH::atLeast(env, row, 1);
        vxgraphics3d::ReaderError error;
        const auto path = fromJava<std::string>(env, file);
        if (vxgraphics3d::readDrawObjectSolid(record, path, vxgraphics3d::Vector3f(), error)) {
            vxproducer::complete(record);
            return nullptr;
        }
        *jintArrayRH(env, row).get() = error.row;
        return toJavaNew(env, error.message);
    });
}

VX_NATIVE(void, RenderDraw3D, complete)(JNIEnv* env, jclass, jobject self)
{
    guarded(env, [&] { vxproducer::complete(peer<RenderDraw3D>(env, self)); });
}
