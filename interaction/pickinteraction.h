#pragma once

#include "base/export.h"

#include <boost/shared_ptr.hpp>

namespace vxgraphics3d {
class Canvas3dSettings;
class ICameraTransforms;
class PickedObjectCollection;
class Scene;
struct CanvasPickSettings;
} // namespace vxgraphics3d

namespace vxinteraction {

struct PixelRectangle;

/// Picks in a view from mouse events: a click finds what it touches, the nearest first, and a rectangle what is inside.
///
/// What is looked for is specified by the pick settings of the view, and how far beside a part a click still finds it
/// by the picking tolerance of the process. Neither a click nor a rectangle reaches beyond the render area. Positions
/// are pixels as in mouse events: from the top left corner of the picture, also outside of it. Picks go through: what
/// is behind other geometry is found too.
///
/// It holds references to the settings of the view, which keep them alive. A pick only reads; nothing is synchronised.
class VX_API PickInteraction {
public:
    /// @param settings of the view, with its cameras
    /// @param pickSettings what is looked for
    /// @param canvasHeight rows of the picture, 1 or more
    /// @throws std::invalid_argument for settings that are null or a height below 1
    PickInteraction(boost::shared_ptr<const vxgraphics3d::Canvas3dSettings> settings,
                    boost::shared_ptr<const vxgraphics3d::CanvasPickSettings> pickSettings, int canvasHeight);

    /// Sets the number of rows of the picture.
    /// @throws std::invalid_argument for a height below 1
    void setCanvasHeight(int canvasHeight);

    // Each pick replaces the contents of the list and returns the new number of entries.

    /// Picks what the square around the pointer touches, which has the picking tolerance on each side. The nearest
    /// comes first: sheets that the pixel under the pointer shows before everything that is only near to it; then in
    /// the order of the depth of the point of the part nearest to the pointer, and of the distance from there to the
    /// line through the pixel. Nodes that are not known here are found as by `Scene::getSelection`, after all others.
    int click(const vxgraphics3d::Scene& scene, vxgraphics3d::PickedObjectCollection& result, int x, int y) const;
    /// Picks what is completely inside the rectangle between two pixels, which belong to it, in the order of the tree:
    /// the result of `Scene::getSelection`.
    int rectangle(const vxgraphics3d::Scene& scene, vxgraphics3d::PickedObjectCollection& result, int x0, int y0,
                  int x1, int y1) const;
    /// Picks as a press and a release ask for: with a click where the button went up, if the pointer has not moved
    /// further than the picking tolerance, and otherwise with the rectangle between them.
    int drag(const vxgraphics3d::Scene& scene, vxgraphics3d::PickedObjectCollection& result, int pressX, int pressY,
             int releaseX, int releaseY) const;

private:
    PixelRectangle pixelsAround(int x0, int y0, int x1, int y1, int tolerance) const;

    boost::shared_ptr<const vxgraphics3d::Canvas3dSettings> m_settings;
    boost::shared_ptr<const vxgraphics3d::CanvasPickSettings> m_pickSettings;
    int m_canvasHeight;
};

} // namespace vxinteraction
