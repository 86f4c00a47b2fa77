#include "graphics3d/overlays/overlaydrawcurve.h"

#include "graphics3d/overlays/elementat.h"

#include <cmath>
#include <cstddef>

namespace vxgraphics3d {
namespace {

/// A curve of a higher degree is not drawn; one more control point than that is accepted.
constexpr std::size_t c_maxControlPoints = 5;
constexpr std::size_t c_numCurveVertices = 20;

static_assert(sizeof(Vector3f) == 3 * sizeof(float), "renderers read polylines as floats");

/// With this weight of the middle control point the curve is an arc of a circle where the polygon has a right angle
/// between sides of equal length.
float arcWeight()
{
    static const double weight = 1.0 / std::sqrt(2.0);
    return static_cast<float>(weight);
}

Vector3f quadraticPoint(const Vector3f& p0, const Vector3f& c1, const Vector3f& p1, float t)
{
    const float w = arcWeight();
    const float r = 1.0f - t;
    const float s = 2.0f * t * r;
    return (r * r * p0 + s * w * c1 + t * t * p1) / (r * r + s * w + t * t);
}

Vector3f cubicPoint(const Vector3f& p0, const Vector3f& c1, const Vector3f& c2, const Vector3f& p1, float t)
{
    const float r = 1.0f - t;
    return r * r * r * p0 + 3.0f * r * r * t * c1 + 3.0f * r * t * t * c2 + t * t * t * p1;
}

} // namespace

OverlayDrawCurve::~OverlayDrawCurve() = default;

const OverlayDrawCurve::Vertex& OverlayDrawCurve::vertexAt(int vertex) const
{
    return elementAt(m_vertices, vertex, "vertex");
}

const OverlayDrawCurve::Edge& OverlayDrawCurve::edgeAt(int edge) const
{
    return elementAt(m_edges, edge, "edge");
}

const OverlayDrawCurve::Position& OverlayDrawCurve::controlPointAt(int edge, int index) const
{
    return elementAt(edgeAt(edge).controlPoints, index, "control point");
}

int OverlayDrawCurve::addVertex(double x, double y)
{
    m_vertices.push_back({{x, y}});
    return getNVertices() - 1;
}

int OverlayDrawCurve::addEdge(int startVertex, int endVertex)
{
    vertexAt(startVertex);
    vertexAt(endVertex);
    m_renderVertices.resize(m_edges.size() + 1);
    m_edges.push_back({startVertex, endVertex, {}});
    const int edge = getNEdges() - 1;
    m_vertices[static_cast<std::size_t>(startVertex)].startEdge = edge;
    m_vertices[static_cast<std::size_t>(endVertex)].endEdge = edge;
    return edge;
}

int OverlayDrawCurve::addControlPoint(int edge, double x, double y)
{
    edgeAt(edge);
    std::vector<Position>& points = m_edges[static_cast<std::size_t>(edge)].controlPoints;
    if (points.size() >= c_maxControlPoints) {
        return -1;
    }
    points.reserve(c_maxControlPoints);
    m_renderVertices[static_cast<std::size_t>(edge)].reserve(c_numCurveVertices);
    const int id = takeControlPointId(edge, static_cast<int>(points.size()));
    points.push_back({x, y});
    updateRenderData(edge);
    return id;
}

void OverlayDrawCurve::setVertex(int vertex, double x, double y)
{
    vertexAt(vertex);
    Vertex& moved = m_vertices[static_cast<std::size_t>(vertex)];
    moved.position = {x, y};
    updateRenderData(moved.startEdge);
    updateRenderData(moved.endEdge);
}

void OverlayDrawCurve::getVertex(int vertex, std::vector<double>& out) const
{
    const Position& position = vertexAt(vertex).position;
    out.at(1) = position.y;
    out[0] = position.x;
}

Vector3f OverlayDrawCurve::getVertex(int vertex) const
{
    return vertexAt(vertex).position.toVector();
}

void OverlayDrawCurve::setControlPoint(int edge, int index, double x, double y)
{
    controlPointAt(edge, index);
    m_edges[static_cast<std::size_t>(edge)].controlPoints[static_cast<std::size_t>(index)] = {x, y};
    updateRenderData(edge);
}

void OverlayDrawCurve::getControlPoint(int edge, int index, std::vector<double>& out) const
{
    const Position& position = controlPointAt(edge, index);
    out.at(1) = position.y;
    out[0] = position.x;
}

Vector3f OverlayDrawCurve::getControlPoint(int edge, int index) const
{
    return controlPointAt(edge, index).toVector();
}

const float* OverlayDrawCurve::getRenderVertices(int& count, int edge) const
{
    const std::vector<Vector3f>& vertices = elementAt(m_renderVertices, edge, "edge");
    count = static_cast<int>(vertices.size());
    return reinterpret_cast<const float*>(vertices.data());
}

int OverlayDrawCurve::getNControlPoints(int edge) const
{
    return static_cast<int>(edgeAt(edge).controlPoints.size());
}

void OverlayDrawCurve::setMarkEdge(int edge, bool on)
{
    if (edge >= 0 && edge < getNEdges()) {
        const Edge& marked = edgeAt(edge);
        markEdge(edge, marked.startVertex, marked.endVertex, on);
    }
}

void OverlayDrawCurve::updateRenderData(int edge)
{
    if (edge < 0) {
        return;
    }
    const Edge& source = edgeAt(edge);
    std::vector<Vector3f>& vertices = m_renderVertices[static_cast<std::size_t>(edge)];
    vertices.clear();
    const Vector3f start = getVertex(source.startVertex);
    const Vector3f end = getVertex(source.endVertex);
    const std::size_t numPoints = source.controlPoints.size();
    if (numPoints == 2) {
        vertices.assign({start, end});
    } else if (numPoints == 3 || numPoints == 4) {
        const Vector3f c1 = source.controlPoints[1].toVector();
        const Vector3f c2 = source.controlPoints[2].toVector();
        vertices.resize(c_numCurveVertices);
        for (std::size_t i = 0; i < c_numCurveVertices; ++i) {
            const float t = static_cast<float>(i) / static_cast<float>(c_numCurveVertices - 1);
            vertices[i] = numPoints == 3 ? quadraticPoint(start, c1, end, t) : cubicPoint(start, c1, c2, end, t);
        }
    }
}

} // namespace vxgraphics3d
