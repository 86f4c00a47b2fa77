// Contrast of texts to what is around their strokes, measured in pictures.

#include "graphics3d/canvas/canvas3dsettings.h"
#include "graphics3d/canvas/scenesettings.h"
#include "graphics3d/lights/scenesettingslight.h"
#include "graphics3d/plots/vector/scenegraphplotpointlabel.h"
#include "renderer/frame/appearance.h"
#include "renderer/frame/contrast.h"
#include "renderer/frame/view.h"
#include "tests/renderer/support/testscene.h"
#include "tests/support/postrecord.h"

#include <gtest/gtest.h>

#include <utility>

namespace vxrenderer {
namespace {

using namespace vxgraphics3d;

/// A text has more pixels that its strokes cover wholly; the rim of one may have a few as well.
constexpr int c_mostOfRim = 8;

/// The pixels of a part of a picture that have exactly the colour of a text, and how many of them have a pixel of
/// enough contrast within three pixels: strokes are thin.
struct Strokes {
    int count = 0;
    int readable = 0;

    Strokes(const Picture& picture, const PixelArea& area, const Color& text)
    {
        constexpr int c_reach = 3;
        for (int y = area.y + c_reach; y < area.y + area.height - c_reach; ++y) {
            for (int x = area.x + c_reach; x < area.x + area.width - c_reach; ++x) {
                if (picture.at(x, y) != Rgb{text.red, text.green, text.blue}) {
                    continue;
                }
                bool isReadable = false;
                for (int step = 0; step < (2 * c_reach + 1) * (2 * c_reach + 1) && !isReadable; ++step) {
                    const Rgb near =
                        picture.at(x + step % (2 * c_reach + 1) - c_reach, y + step / (2 * c_reach + 1) - c_reach);
                    isReadable = contrastOf({near[0], near[1], near[2]}, text) >= c_textContrast;
                }
                ++count;
                readable += isReadable ? 1 : 0;
            }
        }
    }
};

class ReadabilityTest : public ::testing::Test {
protected:
    ReadabilityTest() { m_canvas.setScene(m_scene.scene); }

    void setBackground(int top, int bottom)
    {
        for (const auto mode : {Canvas3dSettings::RenderMode3d, Canvas3dSettings::RenderMode2d}) {
            m_canvas.getCanvas3dSettings()->background(mode).setShadedBackground(Color::fromRgb(top),
                                                                                 Color::fromRgb(bottom));
        }
    }
    static void expectReadable(const Picture& picture, const PixelArea& area, const Color& text, const char* what,
                               int background)
    {
        const Strokes strokes(picture, area, text);
        EXPECT_GT(strokes.count, c_mostOfRim) << what << " on " << std::hex << background;
        EXPECT_EQ(strokes.readable, strokes.count) << what << " on " << std::hex << background;
    }

    OffscreenCanvas m_canvas{500, 400, 4};
    TestScene m_scene;
};

TEST_F(ReadabilityTest, titlesLegendsAndAxesAreReadOnAnyBackground)
{
    showFlat(m_canvas, m_scene);
    m_canvas.getSceneSettings()->setShowMinMax(false);
    m_scene.add<SceneGraphPlotSurface2d>(1, {}, {0x0000ff, 0xff0000})->setTitle(TextFormat::plain, "HEIL in mm");
    const std::pair<int, int> backgrounds[] = {{0xffffff, 0xffffff}, {0x000000, 0x000000}, {0x777777, 0x777777},
                                               {0x204060, 0x204060}, {0xff8000, 0xff8000}, {0xffffff, 0x000000},
                                               {0x303030, 0xd0d0d0}};
    for (const auto& [top, bottom] : backgrounds) {
        setBackground(top, bottom);
        const Picture picture = drawn(m_canvas);
        const PixelArea area = m_canvas.getView().area;
        // Left of the data, their frame and its ticks.
        const int beside = static_cast<int>(pixelOf(m_canvas, {0.0f, 0.0f, 0.0f})[0]) - 22;
        // Each text is black or white, the rarer one of both in the picture.
        for (const auto& [what, part] :
             {std::pair("title", PixelArea{0, 0, 500, area.y - 4}),
              std::pair("numbers of the axis", PixelArea{0, area.y, beside, area.height}),
              std::pair("numbers of the legend", PixelArea{450, area.y + 10, 50, area.height - 20})}) {
            const Strokes black(picture, part, Color::fromRgb(0));
            const Strokes white(picture, part, Color::fromRgb(0xffffff));
            const bool isBlack = black.count > c_mostOfRim && (white.count <= c_mostOfRim || black.count < white.count);
            expectReadable(picture, part, Color::fromRgb(isBlack ? 0 : 0xffffff), what, top);
        }
    }
}

TEST_F(ReadabilityTest, labelsAreReadOnDataOfAnyColor)
{
    showFromAbove(m_canvas, m_scene);
    m_canvas.getSceneSettings()->getLight()->setUseLight(false);
    const auto labels = boost::make_shared<SceneGraphPlotPointLabel>(3, 2);
    m_scene.group->addPlot(labels);
    labels->setLabels({"EHLT"});
    labels->fillPlot(PostRecord().bounds({{0, 1}, {0, 1}, {0, 1}}).group({{0.5}, {0.5}, {0.5}}, {}));
    int id = 10;
    for (const int data : {0x000000, 0xffffff, 0x808080, 0xc02020, 0x2020c0, 0x20c020}) {
        const auto square = m_scene.addSquare(++id, data);
        for (const int text : {0x000001, 0xfffffe, 0xc02021, 0xffff01}) {
            labels->setColor(Color::fromRgb(text));
            const Picture picture = drawn(m_canvas);
            const auto [x, y] = pixelOf(m_canvas, {0.5f, 0.5f, 0.5f});
            expectReadable(picture, {static_cast<int>(x) - 60, static_cast<int>(y) - 40, 120, 80}, Color::fromRgb(text),
                           "a label", data);
        }
        m_scene.group->removePlot(square->getId());
    }
}

} // namespace
} // namespace vxrenderer
