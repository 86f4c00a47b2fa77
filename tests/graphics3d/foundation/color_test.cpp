#include "graphics3d/foundation/color.h"

#include <gtest/gtest.h>

namespace vxgraphics3d {
namespace {

TEST(Color, convertsToANumberAndBackWithoutAlpha)
{
    EXPECT_EQ(Color::fromRgb(0x123456), (Color{0x12, 0x34, 0x56, 255}));
    EXPECT_EQ(Color::fromRgb(-1), (Color{255, 255, 255, 255}));
    EXPECT_EQ((Color{0x12, 0x34, 0x56, 7}.toRgb()), 0x123456);
    EXPECT_EQ(Color().toRgb(), 0);
}

} // namespace
} // namespace vxgraphics3d
