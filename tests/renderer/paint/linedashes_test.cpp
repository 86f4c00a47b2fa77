#include "renderer/paint/linedashes.h"

#include <gtest/gtest.h>

#include <cmath>
#include <utility>
#include <vector>

namespace vxrenderer {
namespace {

using vxgraphics3d::Vector3f;
using Dashes = std::vector<std::vector<float>>;

/// Draws a polyline in an area of 1000 by 1000 pixels and gives the ends of its dashes.
Dashes dashesOf(LineStyle style, float width, const std::vector<std::pair<float, float>>& points)
{
    LineDashes dashes(style, width, 1000.0f, 1000.0f, 1.0f);
    for (std::size_t i = 0; i < points.size(); ++i) {
        const Vector3f point(points[i].first, points[i].second, 0.0f);
        i == 0 ? dashes.moveTo(point) : dashes.lineTo(point);
    }
    Dashes result;
    for (const LineSegment& dash : dashes.getDashes()) {
        result.push_back({dash.from.x, dash.from.y, dash.to.x, dash.to.y});
    }
    return result;
}

TEST(LineDashes, patternScalesWithTheWidthAndLeavesSpaceForTheEndsOfDashes)
{
    // Dashes of 10 and gaps of 6 pixels; the ends reach one pixel beyond their points.
    EXPECT_EQ(dashesOf(LineStyle::dashed, 2.0f, {{0, 5}, {32, 5}}), (Dashes{{1, 5, 9, 5}, {17, 5, 25, 5}}));
    EXPECT_EQ(dashesOf(LineStyle::dotted, 2.0f, {{0, 5}, {12, 5}}), (Dashes{{1, 5, 1, 5}, {7, 5, 7, 5}}));
    EXPECT_EQ(dashesOf(LineStyle::dashDot, 4.0f, {{5, 0}, {5, 48}}), (Dashes{{5, 2, 5, 22}, {5, 36, 5, 36}}));
    // Thin lines have the pattern of wider ones.
    EXPECT_EQ(dashesOf(LineStyle::dashed, 1.0f, {{0, 5}, {12, 5}}), (Dashes{{0.5f, 5, 7, 5}}));
}

TEST(LineDashes, patternRunsOnAroundCornersAndStartsAgainWithEachPolyline)
{
    EXPECT_EQ(dashesOf(LineStyle::dashed, 2.0f, {{0, 0}, {5, 0}, {5, 20}}),
              (Dashes{{1, 0, 5, 0}, {5, 0, 5, 4}, {5, 12, 5, 20}}));
    EXPECT_EQ(dashesOf(LineStyle::dashed, 2.0f, {{0, 0}, {5, 0}, {5, 0}, {12, 0}}),
              (Dashes{{1, 0, 5, 0}, {5, 0, 9, 0}}));
    LineDashes dashes(LineStyle::dashed, 2.0f, 100.0f, 100.0f, 1.0f);
    for (const float y : {10.0f, 20.0f}) {
        dashes.moveTo({0.0f, y, 0.0f});
        dashes.lineTo({12.0f, y, 0.0f});
        EXPECT_EQ(dashes.getDashes().back().from.x, 1.0f);
    }
}

TEST(LineDashes, onlyTheVisiblePartOfALineHasDashesAtTheSamePositions)
{
    for (const float far : {1.0e4f, 1.6e6f}) {
        const Dashes dashes = dashesOf(LineStyle::dashed, 2.0f, {{-far, 5}, {far, 5}});
        EXPECT_GE(dashes.size(), 62u);
        EXPECT_LE(dashes.size(), 65u);
        for (std::size_t i = 1; i + 1 < dashes.size(); ++i) {
            EXPECT_NEAR(std::fmod(dashes[i][0] + far, 16.0f), 1.0f, 0.2f);
        }
    }
    EXPECT_TRUE(dashesOf(LineStyle::dashed, 2.0f, {{-1e6f, -50}, {1e6f, -50}}).empty());
    EXPECT_TRUE(dashesOf(LineStyle::dashed, 2.0f, {{NAN, 5}, {10, 5}}).empty());
    EXPECT_EQ(dashesOf(LineStyle::dashed, 2.0f, {{0, 0}, {INFINITY, 0}, {5, 5}, {5, 9}}).size(), 1u);
}

} // namespace
} // namespace vxrenderer
