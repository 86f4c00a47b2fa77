#pragma once

#include "graphics3d/foundation/color.h"
#include "graphics3d/foundation/matrixf.h"
#include "graphics3d/foundation/vector3f.h"
#include "renderer/gl/globject.h"
#include "renderer/gl/glprogram.h"
#include "renderer/upload/uniformblock.h"

#include <span>

namespace vxrenderer {

/// A small round body of a sign, such as the parts of an arrow, in coordinates of the eye: x to the right, y upwards, z
/// towards the viewer.
struct Solid {
    enum class Shape { ball, cylinder, cone };

    Shape shape;
    /// The middle of a ball; of a cylinder or cone the middle of its base.
    vxgraphics3d::Vector3f from;
    /// The middle of the other end of a cylinder, or the tip of a cone.
    vxgraphics3d::Vector3f to;
    float radius;
    vxgraphics3d::Color color;
};

/// Where the light of signs comes from, with a length of almost 1: the upper left of the viewer.
inline const vxgraphics3d::Vector3f c_signLight{-0.38f, 0.54f, 0.75f};

/// The colour of a body in the light of signs, where its surface has a direction.
/// @param normal of length 1
vxgraphics3d::Color litColor(const vxgraphics3d::Color& color, const vxgraphics3d::Vector3f& normal);

/// Draws the bodies of signs, with a light of their own from the upper left of the viewer, so that they look the same
/// whatever lights a scene has.
class SolidPainter {
public:
    SolidPainter();

    /// Draws bodies that are copied for this call, in their order. Without a depth test the nearer ones must be later.
    /// @param toClip from coordinates of the eye, or of a picture that are parallel to them
    void draw(std::span<const Solid> solids, const vxgraphics3d::Matrixf& toClip) const;

private:
    struct SolidBlock;
    struct Vertex;

    GlProgram m_program;
    UniformBlock<SolidBlock> m_block;
    GlVertexArray m_array;
    GlBuffer m_buffer;
};

} // namespace vxrenderer
