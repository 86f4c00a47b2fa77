#include "graphics3d/cameras/camera2d.h"
#include "graphics3d/canvas/canvas3dsettings.h"
#include "renderer/frame/appearance.h"
#include "renderer/frame/view.h"
#include "tests/renderer/support/testscene.h"

#include <gtest/gtest.h>

namespace vxrenderer {
namespace {

/// Counts pixels along the middle of an area, in one direction, that are not white, and requires that each has white
/// ones on both sides.
template <class At>
int numSingleLines(int from, int to, At&& at)
{
    int count = 0;
    for (int i = from; i < to; ++i) {
        if (at(i) != c_white) {
            EXPECT_EQ(at(i - 1), c_white) << i;
            EXPECT_EQ(at(i + 1), c_white) << i;
            ++count;
        }
    }
    return count;
}

TEST(AxesPainterTest, linesOfFlatViewsAreOnePixelWide)
{
    TestScene scene;
    GridRecord record;
    scene.add<vxgraphics3d::SceneGraphPlotSurface2d>(1, record, {0xffffff});
    for (const int size : {300, 301, 333}) {
        OffscreenCanvas canvas(size, size, 4);
        showFlat(canvas, scene);
        canvas.getCanvas3dSettings()->setRenderMask(RenderAxes | RenderBackground);
        for (const auto mode : {vxgraphics3d::Camera2d::ModeOrdinary, vxgraphics3d::Camera2d::ModePolar}) {
            canvas.getCanvas3dSettings()->camera2d()->setCameraMode(mode);
            const Picture picture = drawn(canvas);
            const PixelArea area = canvas.getView().area;
            // Off the middle, next to the tick labels of the round view and the lines that cross there.
            const int row = area.y + area.height / 2 + area.height / 23;
            const int column = area.x + area.width / 2 - area.width / 23;
            const auto inRow = [&](int x) { return picture.at(x, row); };
            const auto inColumn = [&](int y) { return picture.at(column, y); };
            if (mode == vxgraphics3d::Camera2d::ModeOrdinary) {
                EXPECT_GE(numSingleLines(area.x, area.x + area.width + 1, inRow), 3) << "the frame and 0.5";
                EXPECT_GE(numSingleLines(area.y, area.y + area.height + 1, inColumn), 3);
            } else {
                const int middle = area.x + area.width / 2;
                EXPECT_EQ(numSingleLines(middle - 2, middle + 3, inRow), 1) << "the upright line of equal angle";
            }
        }
    }
}

} // namespace
} // namespace vxrenderer
