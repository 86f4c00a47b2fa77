#pragma once

#include "graphics3d/foundation/matrixf.h"
#include "graphics3d/foundation/vector3f.h"
#include "renderer/frame/view.h"
#include "renderer/gl/globject.h"
#include "renderer/gl/glprogram.h"
#include "renderer/paint/layeroutput.h"
#include "renderer/paint/material.h"
#include "renderer/paint/partrows.h"
#include "renderer/upload/uniformblock.h"

#include <memory>
#include <span>

namespace vxrenderer {

class LineMesh;

/// A straight line between two points.
struct LineSegment {
    vxgraphics3d::Vector3f from;
    vxgraphics3d::Vector3f to;
};

/// Draws lines of any width: a driver need not offer lines wider than one pixel, so each is a rectangle that faces the
/// eye. Lines are smooth with any number of samples, since each pixel takes as much of their colour as they cover of
/// it: draw them after what lies behind them. Segments that follow each other are joined.
class LinePainter {
public:
    /// Where lines go, and how wide they are.
    struct Frame {
        /// From the points to the current viewport.
        vxgraphics3d::Matrixf toClip;
        /// Size of the viewport in pixels.
        int width;
        int height;
        /// In pixels. The free ends of opaque lines reach half of it beyond the points, so that corners are closed
        /// where lines meet that are not joined; those of translucent lines do not, so that nothing is blended twice.
        float lineWidth;
        /// By how much lines are nearer to the eye than their points.
        DepthShift towardsEye{};
        /// Whether free ends and corners are round.
        bool isRound = false;
        /// Whether lines along a side of the viewport are moved onto whole pixels, so that all look alike.
        bool isSnapped = false;
    };

    LinePainter();

    /// Where the colours of what follows go, at first into the picture.
    /// @param numSamples of the picture that layers are for
    void setOutput(FragmentOutput output, int numSamples);

    /// Draws lines that are copied for this call.
    void draw(std::span<const LineSegment> lines, const Frame& frame, const vxgraphics3d::Color& color) const;
    /// Draws lines that are mixed by the alpha of their colour with the copy of the scene that is bound, see
    /// `SceneCopy`, and made darker or lighter where they would not be distinguished from it.
    void drawShaded(std::span<const LineSegment> lines, const Frame& frame, const vxgraphics3d::Color& color) const;
    /// Draws lines that stay on the graphics hardware.
    void draw(const LineMesh& lines, const Frame& frame, const Material& material) const;
    /// Draws the lines of an object, whose pieces have the numbers of their parts as texture coordinates. Width and
    /// distance to faces are those of the rows.
    void draw(const LineMesh& lines, const PartLook& parts, const Frame& frame, const Material& material) const;

private:
    struct LineBlock;

    struct Programs {
        explicit Programs(FragmentOutput output);

        GlProgram dataLines;
        GlProgram plainLines;
        GlProgram parts;
    };

    void attach(const Programs& programs) const;
    const Programs& programs() const { return m_output == FragmentOutput::layers ? *m_layerPrograms : m_programs; }
    void setUp(const GlProgram& program, const Frame& frame, const Material& material, bool isClosed) const;
    void drawPieces(std::span<const LineSegment> lines) const;

    FragmentOutput m_output = FragmentOutput::picture;
    float m_halfBox = 0.5f;
    Programs m_programs{FragmentOutput::picture};
    GlProgram m_shadedProgram;
    /// Made when they are used for the first time.
    std::unique_ptr<Programs> m_layerPrograms;
    UniformBlock<LineBlock> m_line;
    UniformBlock<Material> m_material;
    UniformBlock<PartRows> m_rows;
    GlVertexArray m_array;
    GlBuffer m_buffer;
};

/// From pixels of a picture, counted from its top left corner, to clip coordinates; depths stay.
vxgraphics3d::Matrixf pixelsToClip(int width, int height);

} // namespace vxrenderer
