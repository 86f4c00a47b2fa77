#include "graphics3d/readers/triangleoutline.h"

#include "graphics3d/buffers/indexbufferlines.h"
#include "graphics3d/buffers/vertexbuffercoords.h"
#include "tests/support/capturederror.h"
#include "tests/support/capturedlog.h"
#include "tests/support/linesof.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace vxgraphics3d {
namespace {

Lines outlineOf(int numPoints, const std::vector<std::vector<int>>& triangles)
{
    TriangleOutline outline(numPoints);
    for (const std::vector<int>& corners : triangles) {
        outline.addTriangle(corners[0], corners[1], corners[2]);
    }
    VertexBufferCoords vertices;
    vertices.allocate(numPoints);
    IndexBufferLines lines(vertices);
    outline.writeTo(lines);
    EXPECT_EQ(lines.getNumElements(), lines.getNumElements(0));
    return linesOf(lines);
}

TEST(TriangleOutline, containsTheEdgesThatOneTriangleUses)
{
    CapturedError error;
    EXPECT_EQ(outlineOf(3, {}), Lines());
    EXPECT_EQ(outlineOf(4, {{0, 1, 2}, {0, 2, 3}}), (Lines{{0, 1}, {0, 3}, {1, 2}, {2, 3}}));
    // A tetrahedron has no outline; an edge of three triangles is part of one.
    EXPECT_EQ(outlineOf(4, {{0, 1, 2}, {0, 1, 3}, {0, 2, 3}, {1, 2, 3}}), Lines());
    EXPECT_EQ(outlineOf(5, {{0, 1, 2}, {1, 0, 3}, {0, 1, 4}}),
              (Lines{{0, 2}, {0, 3}, {0, 1}, {0, 4}, {1, 2}, {1, 3}, {1, 4}}));
    // A degenerate triangle's edge from a point to itself is treated as any other.
    EXPECT_EQ(outlineOf(2, {{1, 0, 0}}), (Lines{{0, 0}}));
    EXPECT_EQ(error.take(), "");
}

TEST(TriangleOutline, dropsEdgesBeyondTenNeighboursOfOnePoint)
{
    // Six triangles that meet only in point 0 give it twelve neighbours.
    std::vector<std::vector<int>> corners;
    for (int i = 1; i < 13; i += 2) {
        corners.push_back({0, i, i + 1});
    }
    const CapturedLog log(ErrorLog::Level::error);
    CapturedError error;
    const Lines edges = outlineOf(13, corners);
    const std::string message = "To many lines connected to one vertex.";
    EXPECT_EQ(log.messages(), (std::vector{message, message}));
    EXPECT_EQ(error.take(), message + message);
    EXPECT_EQ(edges.size(), 10u + 6u);
    EXPECT_EQ(edges[9], std::make_pair(0, 10));
    EXPECT_EQ(edges[15], std::make_pair(11, 12));
}

} // namespace
} // namespace vxgraphics3d
