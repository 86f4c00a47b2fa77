#include "producer/editgeometrybuilder.h"

#include <boost/make_shared.hpp>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numbers>
#include <stdexcept>
#include <string>
#include <utility>

namespace vxproducer {

namespace {

using vxdatacarrier::RenderDrawEdit2D;
using Edge = RenderDrawEdit2D::Edge;
using Vertex = RenderDrawEdit2D::Vertex;

/// How far ends may be from their vertices, and vertices from their ellipse, relative to the size of the coordinates.
constexpr double c_accuracy = 1e-9;

[[noreturn]] void refuse(std::size_t edge, const std::string& text)
{
    throw std::invalid_argument("edge " + std::to_string(edge) + ": " + text);
}

bool isClose(double a, double b)
{
    return std::abs(a - b) <= c_accuracy * std::max(std::abs(a), std::abs(b));
}

void addControlPoint(Edge& edge, double x, double y, double weight)
{
    edge.m_controlPoints[0].push_back(x * weight);
    edge.m_controlPoints[1].push_back(y * weight);
    edge.m_controlPoints[2].push_back(weight);
    ++edge.m_numControlPoints;
}

/// Where a vertex is on the ellipse: its angle on the circle of which the ellipse is the image.
double angleOn(const EditEllipse& ellipse, const Vertex& vertex, std::size_t edge, const char* end)
{
    const double dx = vertex.x - ellipse.centreX;
    const double dy = vertex.y - ellipse.centreY;
    const double u = (dx * std::cos(ellipse.angle) + dy * std::sin(ellipse.angle)) / ellipse.semiAxisX;
    const double v = (dy * std::cos(ellipse.angle) - dx * std::sin(ellipse.angle)) / ellipse.semiAxisY;
    const double distance = std::hypot(u, v);
    if (!isClose(distance, 1.0)) {
        refuse(edge, std::string(end) + " is at " + std::to_string(distance) +
                         " of the distance from the centre that it should have");
    }
    return std::atan2(v, u);
}

/// The arc of an ellipse from an angle on as pieces of at most a quarter, each a rational quadratic curve.
Edge arcOf(const EditEllipse& ellipse, double start, double sweep)
{
    Edge edge;
    edge.m_degree = 2;
    const int pieces = std::max(1, static_cast<int>(std::ceil(sweep / (std::numbers::pi / 2) - c_accuracy)));
    const double half = sweep / pieces / 2;
    for (int i = 0; i <= 2 * pieces; ++i) {
        // Every second control point is where the tangents at its neighbours meet.
        const double weight = i % 2 == 0 ? 1.0 : std::cos(half);
        const double u = ellipse.semiAxisX * std::cos(start + i * half) / weight;
        const double v = ellipse.semiAxisY * std::sin(start + i * half) / weight;
        addControlPoint(edge, ellipse.centreX + u * std::cos(ellipse.angle) - v * std::sin(ellipse.angle),
                        ellipse.centreY + u * std::sin(ellipse.angle) + v * std::cos(ellipse.angle), weight);
    }
    edge.m_knots = {0.0};
    for (int i = 0; i <= pieces; ++i) {
        edge.m_knots.insert(edge.m_knots.end(), 2, i);
    }
    edge.m_knots.push_back(pieces);
    return edge;
}

Edge splineOf(const EditSpline& spline, std::size_t number)
{
    const auto requireLength = [&](const std::vector<double>& values, const char* name) {
        if (values.size() != spline.x.size()) {
            refuse(number, std::string(name) + " has " + std::to_string(values.size()) + " entries for " +
                               std::to_string(spline.x.size()) + " control points");
        }
    };
    requireLength(spline.y, "y");
    if (!spline.weights.empty()) {
        requireLength(spline.weights, "weights");
    }
    Edge edge;
    edge.m_degree = spline.degree;
    edge.m_knots = spline.knots;
    for (std::size_t i = 0; i < spline.x.size(); ++i) {
        const double weight = spline.weights.empty() ? 1.0 : spline.weights[i];
        if (!(weight > 0.0) || !std::isfinite(weight)) {
            refuse(number, "weights[" + std::to_string(i) + "] is not a finite number above 0");
        }
        addControlPoint(edge, spline.x[i], spline.y[i], weight);
        if (!std::isfinite(edge.m_controlPoints[0].back()) || !std::isfinite(edge.m_controlPoints[1].back())) {
            refuse(number,
                   "x[" + std::to_string(i) + "] or y[" + std::to_string(i) + "], times its weight, is not finite");
        }
    }
    edge.requireCurve(number);
    return edge;
}

/// Moves an end of an edge exactly to its vertex. Refuses an end that is elsewhere.
void attachEnd(Edge& edge, std::size_t number, const Vertex& vertex, bool isStart)
{
    const std::size_t at = isStart ? 0 : static_cast<std::size_t>(edge.m_numControlPoints) - 1;
    const auto degree = static_cast<std::size_t>(edge.m_degree);
    const std::size_t firstKnot = isStart ? 0 : edge.m_knots.size() - 1 - degree;
    if (edge.m_knots[firstKnot] != edge.m_knots[firstKnot + degree]) {
        refuse(number, "knots: the " + std::string(isStart ? "first " : "last ") + std::to_string(degree + 1) +
                           " are not equal, so the curve does not reach its vertex");
    }
    auto& [xs, ys, weights] = edge.m_controlPoints;
    const double x = xs[at] / weights[at];
    const double y = ys[at] / weights[at];
    const double size = std::max({std::abs(x), std::abs(y), std::abs(vertex.x), std::abs(vertex.y)});
    if (std::hypot(x - vertex.x, y - vertex.y) > c_accuracy * size) {
        refuse(number, "control point " + std::to_string(at) + " is at (" + std::to_string(x) + ", " +
                           std::to_string(y) + "), its vertex at (" + std::to_string(vertex.x) + ", " +
                           std::to_string(vertex.y) + ")");
    }
    xs[at] = vertex.x * weights[at];
    ys[at] = vertex.y * weights[at];
}

} // namespace

EditGeometryBuilder::EditGeometryBuilder() : EditGeometryBuilder(boost::make_shared<Record>()) {}

EditGeometryBuilder::EditGeometryBuilder(boost::shared_ptr<Record> record) : m_record(std::move(record)) {}

int EditGeometryBuilder::addVertex(double x, double y)
{
    const std::size_t number = m_record->m_vertices.size();
    if (!std::isfinite(x) || !std::isfinite(y)) {
        throw std::invalid_argument("vertex " + std::to_string(number) + ": x or y is not finite");
    }
    m_record->m_vertices.push_back({.x = x, .y = y});
    m_record->m_boxValid = false;
    return static_cast<int>(number);
}

int EditGeometryBuilder::addLine(int startVertex, int endVertex)
{
    const Vertex& start = vertexOf(startVertex, "startVertex");
    const Vertex& end = vertexOf(endVertex, "endVertex");
    if (startVertex == endVertex) {
        refuse(m_record->m_edges.size(), "a line needs two different vertices");
    }
    Edge edge;
    edge.m_knots = {0, 0, 1, 1};
    addControlPoint(edge, start.x, start.y, 1.0);
    addControlPoint(edge, end.x, end.y, 1.0);
    return append(std::move(edge), startVertex, endVertex);
}

int EditGeometryBuilder::addArc(int startVertex, int endVertex, double centreX, double centreY)
{
    const Vertex& start = vertexOf(startVertex, "startVertex");
    const double radius = std::hypot(start.x - centreX, start.y - centreY);
    return addEllipse(startVertex, endVertex, {centreX, centreY, radius, radius});
}

int EditGeometryBuilder::addEllipse(int startVertex, int endVertex, const EditEllipse& ellipse)
{
    const std::size_t number = m_record->m_edges.size();
    const Vertex& start = vertexOf(startVertex, "startVertex");
    const Vertex& end = vertexOf(endVertex, "endVertex");
    if (!std::isfinite(ellipse.centreX) || !std::isfinite(ellipse.centreY) || !std::isfinite(ellipse.angle)) {
        refuse(number, "the centre or the angle of the ellipse is not finite");
    }
    for (const double semiAxis : {ellipse.semiAxisX, ellipse.semiAxisY}) {
        if (!(semiAxis > 0.0) || !std::isfinite(semiAxis)) {
            refuse(number, "a semi-axis is not a finite number above 0: " + std::to_string(semiAxis));
        }
    }
    const double from = angleOn(ellipse, start, number, "startVertex");
    double sweep = 2 * std::numbers::pi;
    if (startVertex != endVertex) {
        sweep = angleOn(ellipse, end, number, "endVertex") - from;
        sweep += sweep < 0.0 ? 2 * std::numbers::pi : 0.0;
        if (!(sweep > 0.0)) {
            refuse(number, "the two vertices are at the same angle");
        }
    }
    return append(arcOf(ellipse, from, sweep), startVertex, endVertex);
}

int EditGeometryBuilder::addSpline(int startVertex, int endVertex, EditSpline spline)
{
    return append(splineOf(spline, m_record->m_edges.size()), startVertex, endVertex);
}

void EditGeometryBuilder::hideVertex(int vertex)
{
    if (vertex < 0 || static_cast<std::size_t>(vertex) >= m_record->m_vertices.size()) {
        throw std::out_of_range("There is no vertex " + std::to_string(vertex));
    }
    m_record->m_vertices[static_cast<std::size_t>(vertex)].m_hidden = true;
    m_record->m_boxValid = false;
}

void EditGeometryBuilder::hideEdge(int edge)
{
    if (edge < 0 || static_cast<std::size_t>(edge) >= m_record->m_edges.size()) {
        throw std::out_of_range("There is no edge " + std::to_string(edge));
    }
    Record::Edge& hidden = m_record->m_edges[static_cast<std::size_t>(edge)];
    hidden.m_hidden = true;
    hidden.m_evaluated = false;
    m_record->m_boxValid = false;
}

boost::shared_ptr<RenderDrawEdit2D> EditGeometryBuilder::build()
{
    return std::exchange(m_record, boost::make_shared<Record>());
}

const RenderDrawEdit2D::Vertex& EditGeometryBuilder::vertexOf(int vertex, const char* end) const
{
    if (vertex < 0 || static_cast<std::size_t>(vertex) >= m_record->m_vertices.size()) {
        throw std::out_of_range("edge " + std::to_string(m_record->m_edges.size()) + ": " + end +
                                ": there is no vertex " + std::to_string(vertex));
    }
    return m_record->m_vertices[static_cast<std::size_t>(vertex)];
}

int EditGeometryBuilder::append(Edge edge, int startVertex, int endVertex)
{
    const std::size_t number = m_record->m_edges.size();
    edge.m_startVertex = startVertex;
    edge.m_endVertex = endVertex;
    if (startVertex != -1) {
        attachEnd(edge, number, vertexOf(startVertex, "startVertex"), true);
    }
    if (endVertex != -1) {
        attachEnd(edge, number, vertexOf(endVertex, "endVertex"), false);
    }
    m_record->m_edges.push_back(std::move(edge));
    m_record->m_boxValid = false;
    return static_cast<int>(number);
}

} // namespace vxproducer
