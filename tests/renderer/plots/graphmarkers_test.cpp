#include "renderer/plots/graphmarkers.h"

#include "graphics3d/foundation/boundingbox.h"

#include <gtest/gtest.h>

#include <limits>
#include <utility>
#include <vector>

namespace vxrenderer {
namespace {

using vxgraphics3d::BoundingBox;
using vxgraphics3d::GraphLine;
using vxgraphics3d::Vector3f;
using Points = std::vector<std::pair<float, float>>;

Points inPlane(const std::vector<Vector3f>& points)
{
    Points result;
    for (const Vector3f& point : points) {
        EXPECT_EQ(point.z, 0.0f);
        result.push_back({point.x, point.y});
    }
    return result;
}

/// A line of strips of four points or less, of which a closed one returns to its first point.
struct Line {
    Line(const std::vector<Points>& strips, bool isClosed)
    {
        m_line.m_vertices.allocate(8);
        m_line.m_strips.internalAllocate(8, 2);
        for (const Points& strip : strips) {
            const int first = m_line.m_vertices.getNumberOfVertices();
            for (const auto& [x, y] : strip) {
                const int vertex = m_line.m_vertices.appendVertex(x, y, 0.0f);
                vertex == first ? m_line.m_strips.newStrip(vertex) : m_line.m_strips.appendStrip(vertex);
            }
            if (isClosed) {
                m_line.m_strips.appendStrip(first);
            }
        }
    }

    Points markers(bool interpolates, int count) const
    {
        return inPlane(
            markersOf(m_line.getVersion(0), BoundingBox(0.0f, 4.0f, 0.0f, 2.0f, 0.0f, 0.0f), interpolates, count));
    }

    GraphLine m_line;
};

TEST(GraphMarkers, areAtEqualDistancesAlongTheLineAsItFillsAView)
{
    // In a view that the box fills, both pieces have the same length.
    const Line corner({{{0, 0}, {4, 0}, {4, 2}}}, false);
    EXPECT_EQ(corner.markers(true, 3), (Points{{0, 0}, {4, 0}, {4, 2}}));
    EXPECT_EQ(corner.markers(true, 5), (Points{{0, 0}, {2, 0}, {4, 0}, {4, 1}, {4, 2}}));
    EXPECT_EQ(corner.markers(true, 1), (Points{{4, 0}}));
    EXPECT_TRUE(corner.markers(true, 0).empty());
    EXPECT_TRUE(corner.markers(true, -3).empty());
    EXPECT_EQ(corner.markers(true, std::numeric_limits<int>::max()).size(), 100000u);
    EXPECT_EQ(corner.markers(false, 1), (Points{{0, 0}, {4, 0}, {4, 2}}));

    const Line pieces({{{0, 0}, {1, 0}}, {{3, 2}, {4, 2}}}, false);
    EXPECT_EQ(pieces.markers(true, 2), (Points{{0, 0}, {4, 2}}));
    EXPECT_EQ(pieces.markers(true, 5)[1], Points::value_type(0.5f, 0.0f));
    EXPECT_EQ(pieces.markers(true, 5)[3], Points::value_type(3.5f, 2.0f));
}

TEST(GraphMarkers, ofARingDoNotRepeatItsFirstPointAndAPointHasOne)
{
    const Line ring({{{0, 0}, {4, 0}, {4, 2}, {0, 2}}}, true);
    EXPECT_EQ(ring.markers(true, 4), (Points{{0, 0}, {4, 0}, {4, 2}, {0, 2}}));
    EXPECT_EQ(ring.markers(false, 0).size(), 4u);

    GraphLine point;
    point.m_vertices.allocate(1);
    point.m_vertices.appendVertex(3.0f, 1.0f, 0.0f);
    const BoundingBox box(3.0f, 3.0f, 1.0f, 1.0f, 0.0f, 0.0f);
    EXPECT_EQ(inPlane(markersOf(point.getVersion(0), box, true, 7)), (Points{{3, 1}}));
    EXPECT_TRUE(markersOf(point.getVersion(0), box, true, 0).empty());
    EXPECT_EQ(inPlane(markersOf(point.getVersion(0), box, false, 0)), (Points{{3, 1}}));
    EXPECT_TRUE(markersOf(point.getVersion(3), box, true, 7).empty());
}

} // namespace
} // namespace vxrenderer
