#include "base/java/conversions.h"
#include "base/java/nativeframe.h"
#include "base/java/peerhandle.h"
#include "datacarrier/renderdraw3d.h"
#include "producer/geometrybuilding.h"

#include <boost/make_shared.hpp>

#include <vector>

#include "com_vexane_producer_RenderGeom3D.h"

using namespace vxbase;
using vxdatacarrier::RenderDraw3D;
using vxdatacarrier::RenderGeom3D;

VX_NATIVE(void, RenderGeom3D, createNative)
(JNIEnv* env, jclass, jobject self, jobject solid, jintArray upDomains, jintArray downDomains)
{
    guarded(env, [&] {
        const auto& source = peer<RenderDraw3D>(env, solid, "solid");
        const auto up = fromJava<std::vector<int>>(env, upDomains);
        const auto down = fromJava<std::vector<int>>(env, downDomains);
        attach(env, self, boost::make_shared<RenderGeom3D>(vxproducer::buildModel(source, up, down)));
    });
}
