#pragma once

#include "graphics3d/foundation/color.h"
#include "graphics3d/foundation/matrixf.h"
#include "graphics3d/foundation/rendersymbol.h"
#include "renderer/paint/material.h"
#include "renderer/paint/partrows.h"
#include "renderer/paint/sceneicon.h"
#include "renderer/paint/scenelabel.h"

#include <span>
#include <utility>
#include <vector>

namespace vxgraphics3d {
class MarkingModeSetup;
}

namespace vxrenderer {

class ColorTextures;
class ImageTextures;
class InstanceBuffer;
class LineMesh;
class LinePainter;
class Mesh;
class MeshPainter;
class SphereBuffer;
class SymbolPainter;
class UploadCache;
struct LineSegment;
struct View;

/// What pictures show of objects besides their parts, and how marks look.
struct ObjectStyle {
    const vxgraphics3d::MarkingModeSetup& markings;
    bool showLabels;
    bool showLineDirections;
    bool showPhysicsMarkers;
};

/// Kinds of what painters draw, as bits: a part of a frame may consist of some of them.
enum DrawKind : unsigned {
    /// Faces of bodies, which have silhouettes.
    DrawBodies = 0x1,
    /// Other faces.
    DrawFaces = 0x2,
    /// Instances and spheres, which the grid of a flat view does not cross as it crosses faces.
    DrawMarks = 0x4,
    /// Lines and symbols have smooth borders, which take in the colours of what was drawn before: they follow, with
    /// icons and labels, when everything else is there.
    DrawLines = 0x8,
    DrawAll = 0xf
};

/// How lines are drawn.
enum class LineForm {
    plain,
    /// With round ends and corners.
    round,
    /// Lines along the sides of a flat view lie on whole pixels, as those of a grid.
    straight
};

/// Where something is drawn, and how it looks.
struct Look {
    /// From its vertices to the eye.
    vxgraphics3d::Matrixf toEye;
    Material material;
};

/// Which faces, lines and symbols are drawn when the painters draw everything: in space, what is opaque comes first,
/// and what is translucent is mixed over it, see `Transparency`.
enum class Pass { all, opaque, translucent };

/// What the painters of plots and objects draw with in one frame: they take from `uploads` what they consist of and
/// draw it, in any order. Uploads that are null, because they cannot be drawn, are left out.
///
/// A painter need not know whether the scene is translucent: materials lose some of their opacity here, and what does
/// not belong to the pass is left out.
struct PaintContext {
    const View& view;
    /// Of the scene, from 0 to 1; below 1, what lies behind shines through.
    float opacity;
    /// Pixels of the picture for a pixel of the screen, by which widths of lines are multiplied.
    float scale;
    /// Whether creases and borders of bodies are drawn as lines.
    bool showFeatureEdges;
    /// Which axes are logarithmic: bit 0 for x, bit 1 for y.
    int logAxes;
    ObjectStyle objects;
    UploadCache& uploads;
    ColorTextures& colorTextures;
    ImageTextures& images;
    MeshPainter& meshes;
    const LinePainter& lines;
    const SymbolPainter& symbols;
    std::vector<SceneIcon>& icons;
    std::vector<SceneLabel>& labels;
    /// The bits of what is drawn; calls for other kinds do nothing.
    unsigned kinds = DrawAll;
    Pass pass = Pass::all;
    /// Set in the pass of what is opaque if something translucent was left out; or null.
    bool* isSomethingLeft = nullptr;

    /// Of the lines of bodies: dark enough on every colour of data, and hardly wider than a pixel of the screen.
    static constexpr vxgraphics3d::Color c_edgeColor{24, 24, 28, 255};
    static constexpr float c_edgeWidth = 1.2f;

    /// Some kinds of the same, drawn in another view.
    PaintContext in(const View& itsView, unsigned itsKinds, Pass itsPass) const
    {
        return {itsView, opacity, scale, showFeatureEdges, logAxes, objects, uploads,  colorTextures,
                images,  meshes,  lines, symbols,          icons,   labels,  itsKinds, itsPass};
    }

    void drawMesh(const Mesh* mesh, const Look& look) const;
    /// Draws the triangles of a body, which has a silhouette, and its creases and borders as thin dark lines, if
    /// wanted.
    void drawBody(const Mesh* mesh, const Look& look) const;
    void drawInstances(const Mesh* mesh, const InstanceBuffer* instances, const Look& look) const;
    /// @param radiusScale multiplies all radii
    void drawSpheres(const SphereBuffer* spheres, float radiusScale, const Look& look) const;
    /// @param width in pixels of the screen
    void drawLines(const LineMesh* mesh, const Look& look, float width, LineForm form = LineForm::plain) const;
    /// Lines that are copied for this call.
    /// @param toClip from their points to the area of the scene
    /// @param over width of the widest lines, or size of the largest symbols, that they are drawn over
    void drawSegments(std::span<const LineSegment> segments, const vxgraphics3d::Matrixf& toClip,
                      const vxgraphics3d::Color& color, float width, float over = 0.0f) const;
    /// A symbol at the position of each instance.
    /// @param size in pixels of the screen
    void drawSymbols(const InstanceBuffer* positions, const Look& look, RenderSymbol symbol, float size) const;

    // Parts of an object, each as its row says. The material gives opacity and shininess alone.

    void drawBody(const Mesh* mesh, const PartLook& parts, const Look& look) const;
    void drawLines(const LineMesh* mesh, const PartLook& parts, const Look& look) const;
    /// A symbol at the position of each instance, which is a part.
    void drawSymbols(const InstanceBuffer* positions, const PartLook& parts, RenderSymbol symbol,
                     const Look& look) const;

    /// The icon is drawn over everything that it is not hidden by, before the labels.
    void drawIcon(SceneIcon icon) const
    {
        if (hasLabels()) {
            icons.push_back(std::move(icon));
        }
    }
    /// The label is drawn over everything that it is not hidden by.
    void drawLabel(SceneLabel label) const
    {
        if (hasLabels()) {
            labels.push_back(std::move(label));
        }
    }

private:
    /// Icons and labels of what is translucent are drawn with what is opaque.
    bool hasLabels() const { return (kinds & DrawLines) != 0 && pass != Pass::translucent; }
    bool isDrawn(DrawKind kind, bool isTranslucent) const;
    /// Rows of which those that are not drawn are invisible.
    PartRows rowsDrawn(DrawKind kind, const PartRows& rows, const Material& material) const;
};

} // namespace vxrenderer
