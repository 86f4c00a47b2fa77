#pragma once

#include "graphics3d/foundation/color.h"
#include "renderer/axes/axislayout.h"
#include "renderer/frame/view.h"
#include "renderer/text/fontset.h"

#include <vector>

namespace vxrenderer {

struct Appearance;
struct Frame;
class DecorationCanvas;
class LinePainter;

/// Fonts of a picture's axes.
struct AxisFonts {
    FontSet& titles;
    FontSet& ticks;

    AxisMetrics metrics() const { return {ticks, titles}; }
};

/// Where the scene of a view goes.
struct SceneArea {
    /// What the camera draws to.
    PixelArea whole;
    /// The part of it that a box may fill so that there is space for the labels around it. A 2D view has its labels
    /// outside.
    PixelArea inner;
};

/// Divides the space that a picture leaves for a scene and its axes.
/// @param width,height of the whole picture
SceneArea divideSpace(const Frame& frame, const PixelArea& space, int width, int height, const AxisFonts& fonts);

/// The grid box of a 3D view or the axes of a 2D one, laid out for one frame and drawn in three steps.
class AxesPainter {
public:
    /// @param view of the frame, whose camera has its area
    /// @param width,height of the whole picture
    AxesPainter(const Frame& frame, const View& view, int width, int height, const AxisFonts& fonts);

    /// What lies behind the data. The viewport is the area of the scene.
    void drawBehind(DecorationCanvas& canvas) const;
    /// A trace of the grid over the faces of a flat view, which would hide it completely, where depths of them are
    /// nearer. It needs a copy of the scene. The viewport is the area of the scene.
    void drawOver(const LinePainter& painter) const;
    /// What lies around the data. The viewport is the whole picture.
    void drawAround(DecorationCanvas& canvas) const;
    void drawLabels(DecorationCanvas& canvas, const AxisFonts& fonts) const;

private:
    vxgraphics3d::Matrixf toClip() const;
    void layOutGridBox(const Frame& frame, const View& view, const AxisFonts& fonts);
    void layOutAxes2d(const Frame& frame, const View& view, const AxisFonts& fonts);

    int m_width;
    int m_height;
    View m_view;
    /// Follows the scale of the picture.
    float m_lineWidth;
    const Appearance& m_appearance;
    vxgraphics3d::Color m_gridColor;
    vxgraphics3d::Color m_labelColor;
    /// In world coordinates of a 3D view, in pixels of a 2D one.
    std::vector<AxisLine> m_behind;
    /// In pixels.
    std::vector<AxisLine> m_around;
    std::vector<AxisLabel> m_labels;
};

} // namespace vxrenderer
