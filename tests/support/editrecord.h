#pragma once

#include "datacarrier/renderdrawedit2d.h"
#include "tests/support/randomnumbers.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <utility>
#include <vector>

namespace vxgraphics3d {

using EditEdge = vxdatacarrier::RenderDrawEdit2D::Edge;

/// An edge through control points of x, y and weight, with ends of p + 1 equal knots and single knots between.
inline EditEdge editEdge(int degree, const std::vector<std::array<double, 3>>& points)
{
    EditEdge edge;
    edge.m_degree = degree;
    edge.m_numControlPoints = static_cast<int>(points.size());
    for (const auto& [x, y, w] : points) {
        edge.m_controlPoints[0].push_back(x * w);
        edge.m_controlPoints[1].push_back(y * w);
        edge.m_controlPoints[2].push_back(w);
    }
    const int spans = edge.m_numControlPoints - degree;
    for (int i = -degree; i <= spans + degree; ++i) {
        edge.m_knots.push_back(i < 0 ? 0.0 : i > spans ? spans : i);
    }
    return edge;
}

/// An edge of a degree with control points between 0 and 1, weights of any size, and knots some of which are repeated.
inline EditEdge randomEdge(RandomNumbers& random, int degree)
{
    std::vector<std::array<double, 3>> points(static_cast<std::size_t>(degree + random.integer(1, 8)));
    const float range = random.uniform(0, 6);
    for (auto& [x, y, w] : points) {
        x = static_cast<double>(random.uniform(0, 1));
        y = static_cast<double>(random.uniform(0, 1));
        w = std::pow(10.0, static_cast<double>(random.uniform(-range, range)));
    }
    EditEdge edge = editEdge(degree, points);
    const std::size_t last = edge.m_knots.size() - static_cast<std::size_t>(degree) - 2;
    for (std::size_t i = static_cast<std::size_t>(degree) + 1; i <= last; ++i) {
        if (random.integer(0, 2) == 0) {
            edge.m_knots[i] = edge.m_knots[i - 1];
        }
    }
    return edge;
}

} // namespace vxgraphics3d
