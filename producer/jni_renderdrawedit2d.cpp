#include "base/java/conversions.h"
#include "base/java/nativeframe.h"
#include "base/java/peerhandle.h"
#include "datacarrier/renderdrawedit2d.h"
#include "graphics3d/overlays/splinetessellator.h"
#include "producer/editgeometrybuilder.h"

#include <boost/make_shared.hpp>

#include <cstddef>
#include <limits>
#include <stdexcept>
#include <string>
#include <vector>

#include "com_vexane_producer_RenderDrawEdit2D.h"

using namespace vxbase;
using vxdatacarrier::RenderDrawEdit2D;
using namespace vxproducer;

namespace {

EditGeometryBuilder builderOf(JNIEnv* env, jobject self)
{
    return EditGeometryBuilder(share<RenderDrawEdit2D>(env, self));
}

template <class Element>
const Element& elementOf(const std::vector<Element>& elements, jint index, const char* name)
{
    if (index < 0 || static_cast<std::size_t>(index) >= elements.size()) {
        throw std::out_of_range("There is no " + std::string(name) + " " + std::to_string(index));
    }
    return elements[static_cast<std::size_t>(index)];
}

const RenderDrawEdit2D::Vertex& vertexOf(JNIEnv* env, jobject self, jint vertex)
{
    return elementOf(peer<RenderDrawEdit2D>(env, self).m_vertices, vertex, "vertex");
}

const RenderDrawEdit2D::Edge& edgeOf(JNIEnv* env, jobject self, jint edge)
{
    return elementOf(peer<RenderDrawEdit2D>(env, self).m_edges, edge, "edge");
}

} // namespace

VX_NATIVE(void, RenderDrawEdit2D, createNative)(JNIEnv* env, jclass, jobject self)
{
    guarded(env, [&] { attach(env, self, boost::make_shared<RenderDrawEdit2D>()); });
}

VX_NATIVE(void, RenderDrawEdit2D, cleanupNative)(JNIEnv* env, jclass, jobject self)
{
    guarded(env, [&] { release(env, self); });
}

VX_NATIVE(void, RenderDrawEdit2D, addVertex)(JNIEnv* env, jclass, jobject self, jdouble x, jdouble y)
{
    guarded(env, [&] { builderOf(env, self).addVertex(x, y); });
}

VX_NATIVE(void, RenderDrawEdit2D, addLine)(JNIEnv* env, jclass, jobject self, jint startVertex, jint endVertex)
{
    guarded(env, [&] { builderOf(env, self).addLine(startVertex, endVertex); });
}

VX_NATIVE(void, RenderDrawEdit2D, addArc)
(JNIEnv* env, jclass, jobject self, jint startVertex, jint endVertex, jdouble centreX, jdouble centreY)
{
    guarded(env, [&] { builderOf(env, self).addArc(startVertex, endVertex, centreX, centreY); });
}

VX_NATIVE(void, RenderDrawEdit2D, addEllipse)
(JNIEnv* env, jclass, jobject self, jint startVertex, jint endVertex, jdouble centreX, jdouble centreY,
 jdouble semiAxisX, jdouble semiAxisY, jdouble angle)
{
    guarded(env, [&] {
        builderOf(env, self).addEllipse(startVertex, endVertex, {centreX, centreY, semiAxisX, semiAxisY, angle});
    });
}

VX_NATIVE(void, RenderDrawEdit2D, addSpline)
(JNIEnv* env, jclass, jobject self, jint startVertex, jint endVertex, jint degree, jdoubleArray knots, jdoubleArray x,
 jdoubleArray y, jdoubleArray weights)
{
    guarded(env, [&] {
        using Doubles = std::vector<double>;
        builderOf(env, self).addSpline(startVertex, endVertex,
                                       {degree, fromJava<Doubles>(env, knots), fromJava<Doubles>(env, x),
                                        fromJava<Doubles>(env, y), fromJava<Doubles>(env, weights)});
    });
}

VX_NATIVE(void, RenderDrawEdit2D, hideVertex)(JNIEnv* env, jclass, jobject self, jint vertex)
{
    guarded(env, [&] { builderOf(env, self).hideVertex(vertex); });
}

VX_NATIVE(void, RenderDrawEdit2D, hideEdge)(JNIEnv* env, jclass, jobject self, jint edge)
{
    guarded(env, [&] { builderOf(env, self).hideEdge(edge); });
}

VX_NATIVE(jint, RenderDrawEdit2D, getNumVertices)(JNIEnv* env, jclass, jobject self)
{
    return guarded(env, [&] { return static_cast<jint>(peer<RenderDrawEdit2D>(env, self).m_vertices.size()); });
}

VX_NATIVE(jint, RenderDrawEdit2D, getNumEdges)(JNIEnv* env, jclass, jobject self)
{
    return guarded(env, [&] { return static_cast<jint>(peer<RenderDrawEdit2D>(env, self).m_edges.size()); });
}

VX_NATIVE(jdoubleArray, RenderDrawEdit2D, getVertex)(JNIEnv* env, jclass, jobject self, jint vertex)
{
    return guarded(env, [&] {
        const auto& found = vertexOf(env, self, vertex);
        return toJavaNew(env, std::vector<double>{found.x, found.y});
    });
}

VX_NATIVE(jboolean, RenderDrawEdit2D, isVertexModified)(JNIEnv* env, jclass, jobject self, jint vertex)
{
    return guarded(env, [&] { return toJava(vertexOf(env, self, vertex).m_modified); });
}

VX_NATIVE(jint, RenderDrawEdit2D, getDegree)(JNIEnv* env, jclass, jobject self, jint edge)
{
    return guarded(env, [&]() -> jint { return edgeOf(env, self, edge).m_degree; });
}

VX_NATIVE(jdoubleArray, RenderDrawEdit2D, getKnots)(JNIEnv* env, jclass, jobject self, jint edge)
{
    return guarded(env, [&] { return toJavaNew(env, edgeOf(env, self, edge).m_knots); });
}

VX_NATIVE(jobjectArray, RenderDrawEdit2D, getControlPoints)(JNIEnv* env, jclass, jobject self, jint edge)
{
    return guarded(env, [&] {
        const auto& points = edgeOf(env, self, edge).m_controlPoints;
        std::vector<std::vector<double>> rows(points.begin(), points.end());
        for (std::size_t i = 0; i < rows[2].size(); ++i) {
            rows[0][i] /= rows[2][i];
            rows[1][i] /= rows[2][i];
        }
        return toJavaNew(env, rows);
    });
}

VX_NATIVE(jobjectArray, RenderDrawEdit2D, tessellate)
(JNIEnv* env, jclass, jobject self, jint edge, jdouble tolerance)
{
    return guarded(env, [&] {
        const auto& source = edgeOf(env, self, edge);
        source.requireCurve(static_cast<std::size_t>(edge));
        constexpr float c_far = std::numeric_limits<float>::max();
        vxdatacarrier::BoundingBox2D everything;
        everything.m_xMin = everything.m_yMin = -c_far;
        everything.m_xMax = everything.m_yMax = c_far;
        vxgraphics3d::SplineTessellator tessellator;
        std::vector<std::vector<double>> rows(2);
        for (const auto& point : tessellator.tessellate(source, tolerance, everything)) {
            rows[0].push_back(static_cast<double>(point.x));
            rows[1].push_back(static_cast<double>(point.y));
        }
        return toJavaNew(env, rows);
    });
}

VX_NATIVE(jboolean, RenderDrawEdit2D, isEdgeModified)(JNIEnv* env, jclass, jobject self, jint edge)
{
    return guarded(env, [&] { return toJava(edgeOf(env, self, edge).m_modified); });
}

VX_NATIVE(void, RenderDrawEdit2D, clearModified)(JNIEnv* env, jclass, jobject self)
{
    guarded(env, [&] { peer<RenderDrawEdit2D>(env, self).clearModified(); });
}
