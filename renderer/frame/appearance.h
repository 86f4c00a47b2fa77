#pragma once

#include "graphics3d/canvas/canvas3dbackgroundsettings.h"
#include "graphics3d/foundation/color.h"
#include "graphics3d/parts/markingsetups.h"
#include "graphics3d/settings/textitem.h"
#include "renderer/frame/contrast.h"
#include "renderer/frame/renderstyle.h"

#include <boost/shared_ptr.hpp>

#include <array>
#include <cstddef>
#include <string>

namespace vxgraphics3d {
class Canvas3dSettings;
class HardcopySettings;
class SceneSettings;
} // namespace vxgraphics3d

namespace vxrenderer {

/// Kinds of item that the renderer draws: the bits of a canvas' render mask.
enum RenderMask : unsigned {
    RenderPlots = 0x1,
    RenderAxes = 0x2,
    RenderAxisOrientation = 0x4,
    RenderLegends = 0x8,
    RenderTitle = 0x10,
    RenderLightMarkers = 0x20,
    RenderBackground = 0x40,
    RenderObjects = 0x80,
};

/// What a picture shows besides the plots, and in which fonts and colours.
///
/// The settings of canvas and scene say it for the screen. An export has settings of its own, which decide on the
/// decorations and on the background and may give texts another size. The rest of the renderer draws from this record,
/// so that it does not matter to it where a picture goes.
struct Appearance {
    struct Font {
        std::string name;
        /// Height in pixels.
        int size = 12;
    };

    /// What lies behind everything.
    struct Backdrop {
        vxgraphics3d::Color top;
        vxgraphics3d::Color bottom;
        /// The image over the colours, or null.
        boost::shared_ptr<const vxgraphics3d::CanvasBackgroundImage> image;
        vxgraphics3d::Canvas3dBackgroundSettings::HorizontalPosition horizontal{};
        vxgraphics3d::Canvas3dBackgroundSettings::VerticalPosition vertical{};
    };

    /// Pixels of the picture in an inch.
    float pixelsPerInch = 72.0f;
    /// Size of the picture relative to the one on the screen, which images and thin lines follow.
    float scale = 1.0f;
    std::array<Font, vxgraphics3d::c_numTextItems> fonts;
    Backdrop backdrop;
    bool showTitle = false;
    bool showLegends = false;
    bool showMinMax = false;
    bool showAxes = false;
    /// Whether axes have lines across the scene as well.
    bool showGrid = false;
    bool showAxisOrientation = false;
    bool showLightMarkers = false;
    bool showLabels = false;
    bool showLineDirections = false;
    bool showPhysicsMarkers = false;
    /// The marking table by which parts of objects are drawn.
    vxgraphics3d::MarkingSetups::MarkingMode markingMode = vxgraphics3d::MarkingSetups::MarkingMode0;
    /// What the whole scene lets through, from 0, invisible, to 1, opaque.
    float opacity = 1.0f;
    /// Of the view, also in its exports; neither function below sets it.
    RenderStyle style;

    const Font& font(vxgraphics3d::TextItem item) const { return fonts[static_cast<std::size_t>(item)]; }
    /// Pixels of a length in millimetres.
    float millimetres(float length) const { return length * pixelsPerInch / 25.4f; }
    /// Black or white, whichever can be read on the background.
    vxgraphics3d::Color textColor() const;
    /// A colour chosen by the user, or `textColor` where it could not be read on the background: that of an export is
    /// not the one that the colour was chosen for.
    vxgraphics3d::Color readable(const vxgraphics3d::Color& wanted) const;
    /// A colour that can be distinguished from the background: the one chosen by the user, or one nearer to
    /// `textColor`.
    vxgraphics3d::Color visible(const vxgraphics3d::Color& wanted, double contrast = c_gridContrast) const;
    /// The colour of the fainter lines of a grid over the background, which are still distinguished from it.
    /// @param grid colour of its other lines
    /// @param part how much of that colour they have if it suffices
    vxgraphics3d::Color faintGrid(const vxgraphics3d::Color& grid, double part) const;
    /// The background, without its image, at a part of the height of the picture from its top.
    vxgraphics3d::Color backgroundAt(double part) const;
    /// The halo of a text that may lie on anything: not seen where it lies on the background.
    /// @param part of the height of the picture, from its top, where the text is
    vxgraphics3d::Color haloOf(const vxgraphics3d::Color& text, double part) const;
    /// Whether texts need a halo even on the background, because it has an image or is too varied for one colour.
    bool isBackdropUneven() const;

    /// Side of a pixel of the finished picture, in pixels: more than 1 for one that is drawn enlarged. Straight lines
    /// begin and end at its multiples.
    int pixel = 1;
    /// Enlarges the picture, with everything in it, by a whole factor.
    void enlarge(int factor);

    /// The picture on the screen.
    /// @param scene the settings of the scene in this view, or null without a scene
    static Appearance onScreen(const vxgraphics3d::Canvas3dSettings& canvas, const vxgraphics3d::SceneSettings* scene);
    /// The picture of an export. Marks at legends, opacity, light markers, labels and directions of lines are those of
    /// the screen. It has physics markers where the screen has them and the settings of the export let them through.
    static Appearance ofHardcopy(const vxgraphics3d::HardcopySettings& hardcopy,
                                 const vxgraphics3d::Canvas3dSettings& canvas,
                                 const vxgraphics3d::SceneSettings* scene);
};

} // namespace vxrenderer
