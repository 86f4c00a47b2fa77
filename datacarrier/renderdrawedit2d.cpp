#include "datacarrier/renderdrawedit2d.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <stdexcept>

namespace vxdatacarrier {

namespace {

/// x minimum, x maximum, y minimum, y maximum.
using Limits = std::array<double, 4>;

constexpr double c_inf = std::numeric_limits<double>::infinity();
constexpr Limits c_nothing = {c_inf, -c_inf, c_inf, -c_inf};

/// A coordinate that is not finite extends nothing.
void extend(double& min, double& max, double value)
{
    if (std::isfinite(value)) {
        min = std::min(min, value);
        max = std::max(max, value);
    }
}

void extend(Limits& limits, double x, double y)
{
    extend(limits[0], limits[1], x);
    extend(limits[2], limits[3], y);
}

Limits limitsOf(const RenderDrawEdit2D::Edge& edge)
{
    Limits limits = c_nothing;
    const auto& [x, y, w] = edge.m_controlPoints;
    for (std::size_t i = 0; i < std::min({x.size(), y.size(), w.size()}); ++i) {
        extend(limits, x[i] / w[i], y[i] / w[i]);
    }
    return limits;
}

[[noreturn]] void refuse(std::size_t edge, const std::string& text)
{
    throw std::invalid_argument("edge " + std::to_string(edge) + ": " + text);
}

} // namespace

void RenderDrawEdit2D::Edge::requireControlPoints(std::size_t number) const
{
    if (m_numControlPoints < 1) {
        refuse(number, "there are no control points");
    }
    for (std::size_t row = 0; row < m_controlPoints.size(); ++row) {
        if (m_controlPoints[row].size() != static_cast<std::size_t>(m_numControlPoints)) {
            refuse(number, "controlPoints[" + std::to_string(row) + "] has " +
                               std::to_string(m_controlPoints[row].size()) + " entries for " +
                               std::to_string(m_numControlPoints) + " control points");
        }
    }
}

void RenderDrawEdit2D::Edge::requireCurve(std::size_t number) const
{
    requireControlPoints(number);
    if (m_degree < 1) {
        refuse(number, "degree " + std::to_string(m_degree) + " is below 1");
    }
    if (m_numControlPoints <= m_degree) {
        refuse(number, "controlPoints has " + std::to_string(m_numControlPoints) +
                           " entries, which are too few for degree " + std::to_string(m_degree));
    }
    const auto numPoints = static_cast<std::size_t>(m_numControlPoints);
    const auto degree = static_cast<std::size_t>(m_degree);
    if (m_knots.size() != numPoints + degree + 1) {
        refuse(number, "knots has " + std::to_string(m_knots.size()) + " entries, " +
                           std::to_string(numPoints + degree + 1) + " are needed for " + std::to_string(numPoints) +
                           " control points of degree " + std::to_string(m_degree));
    }
    for (std::size_t i = 0; i < m_knots.size(); ++i) {
        if (!std::isfinite(m_knots[i])) {
            refuse(number, "knots[" + std::to_string(i) + "] is not finite");
        }
        if (i > 0 && m_knots[i] < m_knots[i - 1]) {
            refuse(number, "knots[" + std::to_string(i) + "] is less than the knot before it");
        }
    }
    // The end of the curve is evaluated in the last span.
    if (m_knots[numPoints - 1] == m_knots[numPoints]) {
        refuse(number, "knots: the last span, from knots[" + std::to_string(numPoints - 1) + "] to knots[" +
                           std::to_string(numPoints) + "], has no length");
    }
}

void RenderDrawEdit2D::getBoundingBox(std::vector<float>& out)
{
    if (!m_boxValid) {
        Limits limits = c_nothing;
        for (Edge& edge : m_edges) {
            if (edge.m_hidden) {
                continue;
            }
            if (!edge.m_evaluated) {
                edge.m_box = limitsOf(edge);
                edge.m_evaluated = true;
            }
            for (std::size_t i = 0; i < limits.size(); i += 2) {
                limits[i] = std::min(limits[i], edge.m_box[i]);
                limits[i + 1] = std::max(limits[i + 1], edge.m_box[i + 1]);
            }
        }
        for (const Vertex& vertex : m_vertices) {
            if (!vertex.m_hidden) {
                extend(limits, vertex.x, vertex.y);
            }
        }
        for (std::size_t i = 0; i < limits.size(); ++i) {
            m_box[i] = std::isfinite(limits[i]) ? static_cast<float>(limits[i]) : 0.0f;
        }
        m_boxValid = true;
    }
    out.assign(m_box.begin(), m_box.end());
}

void RenderDrawEdit2D::clearModified()
{
    for (Vertex& vertex : m_vertices) {
        vertex.m_modified = false;
    }
    for (Edge& edge : m_edges) {
        edge.m_modified = false;
    }
}

} // namespace vxdatacarrier
