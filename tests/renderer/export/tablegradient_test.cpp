#include "renderer/export/tablegradient.h"

#include "renderer/export/translucentpicture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace vxrenderer {
namespace {

using vxgraphics3d::Color;
using vxgraphics3d::ColorTable;

/// The colour of a gradient at a position of its bar.
std::array<double, 3> colorAt(const std::vector<GradientPiece>& pieces, double position)
{
    const auto piece = std::find_if(pieces.rbegin(), pieces.rend(),
                                    [&](const GradientPiece& candidate) { return candidate.begin <= position; });
    const std::vector<GradientPiece::Stop>& stops = piece->stops;
    const auto next =
        std::ranges::find_if(stops, [&](const GradientPiece::Stop& stop) { return stop.position >= position; });
    const GradientPiece::Stop& last = next == stops.begin() ? stops.front() : *(next - 1);
    const GradientPiece::Stop& after = next == stops.end() ? stops.back() : *next;
    const double length = after.position - last.position;
    const double part = length > 0.0 ? (position - last.position) / length : 0.0;
    std::array<double, 3> color{};
    for (std::size_t i = 0; i < 3; ++i) {
        color[i] = std::lerp(last.color[i], after.color[i], part);
    }
    return color;
}

TEST(TableGradient, keepsTheColoursOfTheTable)
{
    const ColorTable::Colors colors = {{Color::fromRgb(0x000080), 1.0},
                                       {Color::fromRgb(0x00ffff), 0.02},
                                       {Color::fromRgb(0xffff00), 2.0},
                                       {Color::fromRgb(0xfff000), 1.0},
                                       {Color::fromRgb(0x800000), 1.0}};
    for (const auto type : {ColorTable::Continuous, ColorTable::Discrete}) {
        const ColorTable table("", type, colors);
        for (const auto& [from, to] : {std::pair(0.0f, 1.0f), std::pair(0.95f, 0.1f), std::pair(0.3f, 0.3f)}) {
            const std::vector<GradientPiece> pieces = gradientOf(table, from, to);
            EXPECT_LE(pieces.size(), 2 * colors.size());
            for (int i = 0; i < 1024; ++i) {
                // Where the middle of a step of the table is on the bar.
                const double position =
                    from == to ? 0.5 : ((i + 0.5) / 1024 - static_cast<double>(from)) / static_cast<double>(to - from);
                if (position > 0.0 && position < 1.0) {
                    const unsigned rgba = table.getRgba()[from == to ? 307 : static_cast<std::size_t>(i)];
                    const std::array<double, 3> color = colorAt(pieces, position);
                    EXPECT_NEAR(color[0], rgba >> 24U, 1.6) << type << " " << i << " " << from;
                    EXPECT_NEAR(color[1], rgba >> 16U & 255U, 1.6) << type << " " << i << " " << from;
                    EXPECT_NEAR(color[2], rgba >> 8U & 255U, 1.6) << type << " " << i << " " << from;
                }
            }
        }
    }
    // Bands have one colour each, with borders where the table has them.
    const std::vector<GradientPiece> bands = gradientOf(
        ColorTable("", ColorTable::Discrete, {{Color::fromRgb(0xff0000), 1.0}, {Color::fromRgb(0x0000ff), 3.0}}), 0.0f,
        1.0f);
    ASSERT_EQ(bands.size(), 2u);
    EXPECT_EQ(bands[1].begin, 0.25);
    EXPECT_EQ(bands[0].stops.size() + bands[1].stops.size(), 2u);
}

TEST(TranslucentPicture, findsOpacityAndCutsEmptyBordersOff)
{
    // Three by two pixels: nothing, opaque grey, half red; and a row of nothing.
    const std::vector<std::uint8_t> black = {0, 0, 0, 255, 90, 90, 90, 255, 128, 0, 0, 255,
                                             0, 0, 0, 255, 0,  0,  0,  255, 0,   0, 0, 255};
    const std::vector<std::uint8_t> white = {255, 255, 255, 255, 90,  90,  90,  255, 255, 127, 127, 255,
                                             255, 255, 255, 255, 255, 255, 255, 255, 255, 255, 255, 255};
    const TranslucentPicture picture = TranslucentPicture::of(black, white, 3);
    EXPECT_EQ(picture.left, 1);
    EXPECT_EQ(picture.top, 0);
    EXPECT_EQ(picture.width, 2);
    EXPECT_EQ(picture.height, 1);
    EXPECT_EQ(picture.argb, (std::vector<std::uint32_t>{0xff5a5a5a, 0x80800000}));
    EXPECT_TRUE(TranslucentPicture::of({0, 0, 0, 255}, {255, 255, 255, 255}, 1).argb.empty());
}

} // namespace
} // namespace vxrenderer
