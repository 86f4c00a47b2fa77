#pragma once

#include "renderer/decoration/axespainter.h"
#include "renderer/decoration/legend.h"
#include "renderer/decoration/linelegend.h"
#include "renderer/scene/sceneitems.h"
#include "renderer/text/textlayout.h"
#include "renderer/text/titlemarkup.h"

#include <memory>
#include <optional>
#include <vector>

namespace vxrenderer {

class FontSets;
struct Frame;

/// What one picture shows and where: laid out once, and then drawn.
///
/// Title and legends get their space first, and the scene what is left, so that nothing lies over the plots. It refers
/// to fonts of the renderer, which live at least until the next picture is drawn.
struct FrameLayout {
    /// Of the whole picture, in pixels.
    int width;
    int height;
    std::vector<SceneItem> items;

    FontSet& titleFonts;
    FontSet& labelFonts;
    FontSet& orientationFonts;
    AxisFonts axisFonts;
    LegendStyle legendStyle;

    TextLayout title{};
    /// Over the middle of the scene, as far as the picture leaves space.
    float titleLeft = 0.0f;
    float titleTop = 0.0f;
    std::vector<std::unique_ptr<Legend>> legends{};
    float legendTop = 0.0f;
    float legendLeft = 0.0f;
    float legendGap = 0.0f;
    std::optional<LineLegendBox> lineLegend{};
    /// Where it goes, as soon as the area of the scene is known.
    int lineLegendLeft = 0;
    int lineLegendTop = 0;
    /// What is left for the scene with its axes, and the same with the margins at the border of the picture.
    PixelArea space{};
    PixelArea wideSpace{};
    /// What the scene covers on the axes of the view.
    vxgraphics3d::BoundingBox box{};
    /// Where the scene goes; empty if there is none.
    SceneArea area{};
    /// What the numbers of the z axis in space are.
    AxisUnits heightUnits{};
};

/// Finds the position of the legend of lines for the area of the scene.
void placeLineLegend(const Frame& frame, FrameLayout& layout);

/// Lays out everything but the area of the scene, which follows from the remaining space and the camera.
FrameLayout layOutDecoration(const Frame& frame, std::vector<SceneItem> items, const std::vector<TitleItem>& title,
                             FontSets& fonts, int width, int height);

} // namespace vxrenderer
