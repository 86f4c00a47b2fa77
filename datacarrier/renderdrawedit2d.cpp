#include "datacarrier/renderdrawedit2d.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <stdexcept>

namespace vxdatacarrier {

namespace {

/// Far beyond any use. The time of an evaluation grows with the square of the degree, at as many points.
constexpr int c_highestDegree = 100;
constexpr float c_inf = std::numeric_limits<float>::infinity();

/// The limits of points, an empty range at first.
struct Limits {
    float xMin = c_inf;
    float xMax = -c_inf;
    float yMin = c_inf;
    float yMax = -c_inf;

    void extend(const std::array<float, 4>& box)
    {
        xMin = std::min(xMin, box[0]);
        xMax = std::max(xMax, box[1]);
        yMin = std::min(yMin, box[2]);
        yMax = std::max(yMax, box[3]);
    }
    /// A point that is not finite extends nothing.
    void extend(float x, float y)
    {
        if (std::isfinite(x) && std::isfinite(y)) {
            xMin = std::min(xMin, x);
            xMax = std::max(xMax, x);
            yMin = std::min(yMin, y);
            yMax = std::max(yMax, y);
        }
    }
    bool isEmpty() const { return xMin > xMax; }
    std::array<float, 4> toArray() const { return {xMin, xMax, yMin, yMax}; }
};

std::array<float, 4> boxOf(const RenderDrawEdit2D::Edge& edge)
{
    Limits limits;
    if (!edge.m_hidden) {
        const auto& [x, y, w] = edge.m_controlPoints;
        for (std::size_t i = 0; i < std::min({x.size(), y.size(), w.size()}); ++i) {
            limits.extend(static_cast<float>(x[i] / w[i]), static_cast<float>(y[i] / w[i]));
        }
    }
    return limits.toArray();
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
    if (m_degree > c_highestDegree) {
        refuse(number, "degree " + std::to_string(m_degree) + " is above " + std::to_string(c_highestDegree));
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
        Limits limits;
        for (Edge& edge : m_edges) {
            if (!edge.m_evaluated) {
                edge.m_box = boxOf(edge);
                edge.m_evaluated = true;
            }
            limits.extend(edge.m_box);
        }
        for (const Vertex& vertex : m_vertices) {
            if (!vertex.m_hidden) {
                limits.extend(static_cast<float>(vertex.x), static_cast<float>(vertex.y));
            }
        }
        m_box = limits.isEmpty() ? std::array<float, 4>() : limits.toArray();
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
