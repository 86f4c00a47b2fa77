#pragma once

#include "graphics3d/foundation/color.h"
#include "renderer/axes/axislayout.h"
#include "renderer/axes/gridbox.h"
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
    /// What the camera draws to. Without a frame of axes a scene that is larger is cut at the border of the picture, or
    /// next to title and legends.
    PixelArea whole;
    /// The part of it that the whole scene fills, in space with its labels. A 2D view has its labels outside.
    PixelArea inner;
    /// What the axes of a 2D view enclose, see `frameOfData`; in other views the inner part.
    PixelArea frame;
};

/// Divides the space that a picture leaves for a scene and its axes.
/// @param wide the space with the margins at the border of the picture
/// @param width,height of the whole picture
SceneArea divideSpace(const Frame& frame, const PixelArea& space, const PixelArea& wide, int width, int height,
                      const AxisFonts& fonts);

/// What the axes of a view enclose.
struct BoxedScene {
    /// In space: the box, and what the numbers of its z axis are.
    const vxgraphics3d::BoundingBox& box;
    AxisUnits heightUnits{};
    /// In a 2D view.
    PixelArea frame{};
};

/// The grid box of a 3D view.
/// @param picture what labels must not reach beyond, or empty
GridBoxLayout layOutGridBox(const Frame& frame, const BoxedScene& scene, const PixelArea& area, const AxisFonts& fonts,
                            const PixelArea& picture);
/// What the labels of a grid box leave of an area in every view of it.
PixelArea spaceInGridBox(const Frame& frame, const PixelArea& area, const AxisFonts& fonts);

/// The grid box of a 3D view or the axes of a 2D one, laid out for one frame and drawn in three steps.
class AxesPainter {
public:
    /// @param view of the frame, whose camera has its area
    /// @param width,height of the whole picture
    AxesPainter(const Frame& frame, const BoxedScene& scene, const View& view, int width, int height,
                const AxisFonts& fonts);

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
    void takeGridBox(GridBoxLayout layout, bool isGridShown);
    void layOutAxes2d(const Frame& frame, const PixelArea& enclosed, const View& view, const AxisFonts& fonts);

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
