#include "graphics3d/overlays/overlayrenderedit2d.h"

#include "graphics3d/overlays/elementat.h"

#include <boost/make_shared.hpp>

#include <cmath>
#include <cstddef>
#include <stdexcept>
#include <string>
#include <utility>

namespace vxgraphics3d {

namespace {

using vxdatacarrier::BoundingBox2D;
using Edge = OverlayRenderEdit2d::Record::Edge;

/// The tolerance is this part of the mean side of the geometry's limits.
constexpr double c_partsOfBox = 1000.0;

void moveControlPoint(Edge& edge, std::size_t index, double x, double y)
{
    auto& [xs, ys, weights] = edge.m_controlPoints;
    xs[index] = x * weights[index];
    ys[index] = y * weights[index];
    edge.m_evaluated = false;
    edge.m_modified = true;
}

void requireVertex(int vertex, std::size_t numVertices, std::size_t edge)
{
    if (vertex < -1 || (vertex >= 0 && static_cast<std::size_t>(vertex) >= numVertices)) {
        throw std::out_of_range("edge " + std::to_string(edge) + ": there is no vertex " + std::to_string(vertex));
    }
}

boost::shared_ptr<BoundingBox2D> boxOf(OverlayRenderEdit2d::Record& record)
{
    std::vector<float> limits;
    record.getBoundingBox(limits);
    auto box = boost::make_shared<BoundingBox2D>();
    box->m_xMin = limits.at(0);
    box->m_xMax = limits.at(1);
    box->m_yMin = limits.at(2);
    box->m_yMax = limits.at(3);
    return box;
}

} // namespace

OverlayRenderEdit2d::~OverlayRenderEdit2d() = default;

void OverlayRenderEdit2d::connectRenderDrawEdit(boost::shared_ptr<Record> record)
{
    if (record == nullptr) {
        throw std::invalid_argument("The record is null.");
    }
    for (std::size_t i = 0; i < record->m_edges.size(); ++i) {
        const Edge& edge = record->m_edges[i];
        if (!edge.m_hidden) {
            edge.requireCurve(i);
            requireVertex(edge.m_startVertex, record->m_vertices.size(), i);
            requireVertex(edge.m_endVertex, record->m_vertices.size(), i);
        }
    }
    const auto box = boxOf(*record);
    m_renderVertices.resize(record->m_edges.size());
    m_record = std::move(record);
    setBox(box);
    for (int edge = 0; edge < getNEdges(); ++edge) {
        evaluateSegment(edge);
        if (isEdgeRendered(edge)) {
            for (int index = 0; index < getNControlPoints(edge); ++index) {
                takeControlPointId(edge, index);
            }
        }
    }
}

void OverlayRenderEdit2d::setVertex(int vertex, double x, double y)
{
    vertexAt(vertex);
    std::vector<int> touched;
    const std::vector<Edge>& edges = m_record->m_edges;
    for (std::size_t i = 0; i < edges.size(); ++i) {
        if (edges[i].m_startVertex == vertex || edges[i].m_endVertex == vertex) {
            touched.push_back(static_cast<int>(i));
            requireEditable(touched.back());
        }
    }

    Record::Vertex& moved = m_record->m_vertices[static_cast<std::size_t>(vertex)];
    moved.x = x;
    moved.y = y;
    moved.m_modified = true;
    for (const int i : touched) {
        Edge& edge = m_record->m_edges[static_cast<std::size_t>(i)];
        if (edge.m_startVertex == vertex) {
            moveControlPoint(edge, 0, x, y);
        }
        if (edge.m_endVertex == vertex) {
            moveControlPoint(edge, static_cast<std::size_t>(edge.m_numControlPoints) - 1, x, y);
        }
    }
    update(touched);
}

void OverlayRenderEdit2d::getVertex(int vertex, std::vector<double>& out) const
{
    const Record::Vertex& found = vertexAt(vertex);
    out.at(1) = found.y;
    out[0] = found.x;
}

Vector3f OverlayRenderEdit2d::getVertex(int vertex) const
{
    const Record::Vertex& found = vertexAt(vertex);
    return {found.x, found.y, 0.0};
}

void OverlayRenderEdit2d::setControlPoint(int edge, int index, double x, double y)
{
    const Edge& moved = edgeWith(edge, index);
    if (index == 0 && moved.m_startVertex >= 0) {
        setVertex(moved.m_startVertex, x, y);
    } else if (index == moved.m_numControlPoints - 1 && moved.m_endVertex >= 0) {
        setVertex(moved.m_endVertex, x, y);
    } else {
        requireEditable(edge);
        moveControlPoint(m_record->m_edges[static_cast<std::size_t>(edge)], static_cast<std::size_t>(index), x, y);
        update({edge});
    }
}

void OverlayRenderEdit2d::getControlPoint(int edge, int index, std::vector<double>& out) const
{
    const auto& [xs, ys, weights] = edgeWith(edge, index).m_controlPoints;
    const auto at = static_cast<std::size_t>(index);
    out.at(2) = weights[at];
    out[0] = xs[at] / weights[at];
    out[1] = ys[at] / weights[at];
}

Vector3f OverlayRenderEdit2d::getControlPoint(int edge, int index) const
{
    const auto& [xs, ys, weights] = edgeWith(edge, index).m_controlPoints;
    const auto at = static_cast<std::size_t>(index);
    return {xs[at] / weights[at], ys[at] / weights[at], 0.0};
}

const float* OverlayRenderEdit2d::getRenderVertices(int& count, int edge) const
{
    edgeAt(edge);
    if (static_cast<std::size_t>(edge) >= m_renderVertices.size()) {
        count = 0;
        return nullptr;
    }
    const std::vector<Vector3f>& vertices = m_renderVertices[static_cast<std::size_t>(edge)];
    count = static_cast<int>(vertices.size());
    return reinterpret_cast<const float*>(vertices.data());
}

int OverlayRenderEdit2d::getNVertices() const
{
    return m_record ? static_cast<int>(m_record->m_vertices.size()) : 0;
}

int OverlayRenderEdit2d::getNControlPoints(int edge) const
{
    return edgeAt(edge).m_numControlPoints;
}

int OverlayRenderEdit2d::getNEdges() const
{
    return m_record ? static_cast<int>(m_record->m_edges.size()) : 0;
}

int OverlayRenderEdit2d::getDegree(int edge) const
{
    return edgeAt(edge).m_degree;
}

void OverlayRenderEdit2d::setMarkEdge(int edge, bool on)
{
    if (edge >= 0 && edge < getNEdges() && isEdgeRendered(edge)) {
        const Edge& marked = edgeAt(edge);
        markEdge(edge, marked.m_startVertex, marked.m_endVertex, on);
    }
}

bool OverlayRenderEdit2d::isEdgeRendered(int edge) const
{
    return !edgeAt(edge).m_hidden;
}

bool OverlayRenderEdit2d::isVertexRendered(int vertex) const
{
    return !vertexAt(vertex).m_hidden;
}

bool OverlayRenderEdit2d::isEdgeModified(int edge) const
{
    const Edge& found = edgeAt(edge);
    return !found.m_hidden && found.m_modified;
}

bool OverlayRenderEdit2d::isVertexModified(int vertex) const
{
    const Record::Vertex& found = vertexAt(vertex);
    return !found.m_hidden && found.m_modified;
}

void OverlayRenderEdit2d::getEdgeData(int edge, std::vector<std::vector<double>>& out) const
{
    const Edge& source = edgeAt(edge);
    if (source.m_numControlPoints != 0) {
        source.requireControlPoints(static_cast<std::size_t>(edge));
    }
    out.resize(static_cast<std::size_t>(source.m_numControlPoints));
    for (std::size_t index = 0; index < out.size(); ++index) {
        out[index].resize(3);
        getControlPoint(edge, static_cast<int>(index), out[index]);
    }
}

void OverlayRenderEdit2d::evaluateSegment(int edge)
{
    const Edge& source = edgeAt(edge);
    requirePolyline(edge);
    std::vector<Vector3f>& polyline = m_renderVertices[static_cast<std::size_t>(edge)];
    if (source.m_hidden) {
        polyline.clear();
    } else {
        source.requireCurve(static_cast<std::size_t>(edge));
        polyline = m_tessellator.tessellate(source, m_tolerance, *m_boundingBox);
    }
}

const OverlayRenderEdit2d::Record::Vertex& OverlayRenderEdit2d::vertexAt(int vertex) const
{
    static const std::vector<Record::Vertex> none;
    return elementAt(m_record ? m_record->m_vertices : none, vertex, "vertex");
}

const Edge& OverlayRenderEdit2d::edgeAt(int edge) const
{
    static const std::vector<Edge> none;
    return elementAt(m_record ? m_record->m_edges : none, edge, "edge");
}

const Edge& OverlayRenderEdit2d::edgeWith(int edge, int index) const
{
    const Edge& found = edgeAt(edge);
    found.requireControlPoints(static_cast<std::size_t>(edge));
    elementAt(found.m_controlPoints[0], index, "control point");
    return found;
}

void OverlayRenderEdit2d::requirePolyline(int edge) const
{
    if (static_cast<std::size_t>(edge) >= m_renderVertices.size()) {
        throw std::out_of_range("edge " + std::to_string(edge) + " was added after the record was connected");
    }
}

void OverlayRenderEdit2d::requireEditable(int edge) const
{
    requirePolyline(edge);
    const Edge& found = edgeAt(edge);
    if (found.m_hidden) {
        found.requireControlPoints(static_cast<std::size_t>(edge));
    } else {
        found.requireCurve(static_cast<std::size_t>(edge));
    }
}

void OverlayRenderEdit2d::setBox(boost::shared_ptr<BoundingBox2D> box)
{
    m_boundingBox = std::move(box);
    const float width = m_boundingBox->m_xMax - m_boundingBox->m_xMin;
    const float height = m_boundingBox->m_yMax - m_boundingBox->m_yMin;
    m_tolerance = static_cast<double>(std::sqrt(height * width)) / c_partsOfBox;
}

void OverlayRenderEdit2d::update(const std::vector<int>& edges)
{
    m_record->m_boxValid = false;
    setBox(boxOf(*m_record));
    for (const int edge : edges) {
        evaluateSegment(edge);
    }
}

} // namespace vxgraphics3d
