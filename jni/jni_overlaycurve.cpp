#include "graphics3d/overlays/overlaycurve.h"
#include "jni/support/native.h"
#include "jni/support/vectors.h"

#include <vector>

#include "com_vexane_graphics3d_OverlayCurve.h"

using namespace vxgraphics3d;

VX_NATIVE(void, OverlayCurve, setVertex)(JNIEnv* env, jclass, jobject self, jint vertex, jdouble x, jdouble y)
{
    native(env, "setVertex", [&] { peer<OverlayCurve>(env, self).setVertex(vertex, x, y); });
}

VX_NATIVE(void, OverlayCurve, getVertex)(JNIEnv* env, jclass, jobject self, jint vertex, jdoubleArray out)
{
    native(env, "getVertex", [&] {
        std::vector<double> position(3);
        peer<OverlayCurve>(env, self).getVertex(vertex, position);
        fillArray(env, out, position);
    });
}

VX_NATIVE(void, OverlayCurve, setControlPoint)(JNIEnv* env, jclass, jobject self, jint id, jdouble x, jdouble y)
{
    native(env, "setControlPoint", [&] {
        auto& curve = peer<OverlayCurve>(env, self);
        if (const auto point = curve.findControlPoint(id)) {
            curve.setControlPoint(point->first, point->second, x, y);
        }
    });
}

VX_NATIVE(void, OverlayCurve, getControlPoint)(JNIEnv* env, jclass, jobject self, jint id, jdoubleArray out)
{
    native(env, "getControlPoint", [&] {
        const auto& curve = peer<OverlayCurve>(env, self);
        std::vector<double> values(3); // zeros for an unknown id
        if (const auto point = curve.findControlPoint(id)) {
            curve.getControlPoint(point->first, point->second, values);
        }
        fillArray(env, out, values);
    });
}

VX_NATIVE(void, OverlayCurve, setMarkingColor)
(JNIEnv* env, jclass, jobject self, jint red, jint green, jint blue, jint alpha)
{
    native(env, "setMarkingColor", [&] { peer<OverlayCurve>(env, self).setMarkingColor({red, green, blue, alpha}); });
}

VX_NATIVE(void, OverlayCurve, setPointMarking)(JNIEnv* env, jclass, jobject self, jint id, jboolean on)
{
    native(env, "setPointMarking", [&] { peer<OverlayCurve>(env, self).setPointMarking(id, on); });
}

VX_NATIVE(void, OverlayCurve, setVertexMarking)(JNIEnv* env, jclass, jobject self, jint vertex, jboolean on)
{
    native(env, "setVertexMarking", [&] { peer<OverlayCurve>(env, self).setVertexMarking(vertex, on); });
}

VX_NATIVE(void, OverlayCurve, setEdgeMarking)(JNIEnv* env, jclass, jobject self, jint edge, jboolean on)
{
    native(env, "setEdgeMarking", [&] { peer<OverlayCurve>(env, self).setMarkEdge(edge, on); });
}

VX_NATIVE(void, OverlayCurve, clearMarkings)(JNIEnv* env, jclass, jobject self)
{
    native(env, "clearMarkings", [&] { peer<OverlayCurve>(env, self).clearMarkings(); });
}

VX_NATIVE(jint, OverlayCurve, getNumberOfVertices)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getNumberOfVertices", [&] { return peer<OverlayCurve>(env, self).getNVertices(); });
}

VX_NATIVE(jint, OverlayCurve, getNumberOfEdges)(JNIEnv* env, jclass, jobject self)
{
    return native(env, "getNumberOfEdges", [&] { return peer<OverlayCurve>(env, self).getNEdges(); });
}

VX_NATIVE(void, OverlayCurve, setDisplayVertexNumbers)(JNIEnv* env, jclass, jobject self, jboolean display)
{
    native(env, "setDisplayVertexNumbers", [&] { peer<OverlayCurve>(env, self).setDisplayVertexNumbers(display); });
}

VX_NATIVE(void, OverlayCurve, setDisplayEdgeNumbers)(JNIEnv* env, jclass, jobject self, jboolean display)
{
    native(env, "setDisplayEdgeNumbers", [&] { peer<OverlayCurve>(env, self).setDisplayEdgeNumbers(display); });
}
