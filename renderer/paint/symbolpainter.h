#pragma once

#include "graphics3d/foundation/matrixf.h"
#include "graphics3d/foundation/rendersymbol.h"
#include "graphics3d/foundation/vector3f.h"
#include "renderer/frame/view.h"
#include "renderer/gl/globject.h"
#include "renderer/gl/glprogram.h"
#include "renderer/paint/layeroutput.h"
#include "renderer/paint/partrows.h"
#include "renderer/upload/uniformblock.h"

#include <array>
#include <memory>
#include <span>

namespace vxrenderer {

class InstanceBuffer;

/// Draws symbols of a size in pixels that face the eye, with smooth borders whether or not the target has several
/// samples per pixel.
class SymbolPainter {
public:
    /// Where symbols go, and how they look.
    struct Frame {
        /// From the positions to the current viewport.
        vxgraphics3d::Matrixf toClip;
        /// Size of the viewport in pixels.
        int width;
        int height;
        RenderSymbol symbol;
        /// Width and height of a symbol in pixels.
        float size;
        /// Channels from 0 to 1.
        std::array<float, 4> color;
        /// By how much symbols are nearer to the eye than their positions.
        DepthShift towardsEye{};
    };

    SymbolPainter();

    /// Where the colours of what follows go, at first into the picture.
    void setOutput(FragmentOutput output);

    /// Draws a symbol at the position of each instance.
    void draw(const InstanceBuffer& instances, const Frame& frame) const;
    void draw(const vxgraphics3d::Vector3f& position, const Frame& frame) const;
    /// Draws the points of an object, one instance for each. Size, colour and distance to faces are those of the rows.
    void draw(const InstanceBuffer& instances, const PartLook& parts, const Frame& frame) const;
    /// Draws a symbol at each position; they are copied for this call.
    void draw(std::span<const vxgraphics3d::Vector3f> positions, const Frame& frame) const;

private:
    struct SymbolBlock;

    struct Programs {
        explicit Programs(FragmentOutput output);

        GlProgram symbols;
        GlProgram parts;
    };

    void attach(const Programs& programs) const;
    const Programs& programs() const { return m_output == FragmentOutput::layers ? *m_layerPrograms : m_programs; }
    /// Draws `count` symbols with the attributes that are set.
    void draw(const GlProgram& program, const Frame& frame, GLsizei count) const;

    FragmentOutput m_output = FragmentOutput::picture;
    Programs m_programs{FragmentOutput::picture};
    /// Made when they are used for the first time.
    std::unique_ptr<Programs> m_layerPrograms;
    UniformBlock<SymbolBlock> m_block;
    UniformBlock<PartRows> m_rows;
    GlVertexArray m_array;
    GlBuffer m_positions;
};

} // namespace vxrenderer
