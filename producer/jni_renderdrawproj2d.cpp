#include "base/java/conversions.h"
#include "base/java/nativeframe.h"
#include "base/java/peerhandle.h"
#include "producer/javavalues.h"
#include "producer/projectionbuilding.h"

#include <boost/make_shared.hpp>

#include <string>
#include <vector>

#include "com_vexane_producer_RenderDrawProj2D.h"

using namespace vxbase;
using namespace vxproducer;
using vxdatacarrier::RenderDrawProj2D;

VX_NATIVE(void, RenderDrawProj2D, createNative)
(JNIEnv* env, jclass, jobject self, jint id, jstring name, jobjectArray points, jintArray pointKinds,
 jobjectArray curves, jintArray curveKinds)
{
    guarded(env, [&] {
        const ProjectionParts parts = {.id = id,
                                       .name = fromJava<std::string>(env, name),
                                       .points = copyRows<double>(env, points, "points"),
                                       .pointKinds = fromJava<std::vector<int>>(env, pointKinds),
                                       .curves = copyParts<double>(env, curves, "curve"),
                                       .curveKinds = fromJava<std::vector<int>>(env, curveKinds)};
        attach(env, self, boost::make_shared<RenderDrawProj2D>(buildProjection(parts)));
    });
}
