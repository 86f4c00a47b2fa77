#pragma once

#include "renderer/gl/glprogram.h"
#include "renderer/paint/material.h"
#include "renderer/upload/uniformblock.h"

namespace vxgraphics3d {
class Matrixf;
}

namespace vxrenderer {

class InstanceBuffer;
class Mesh;
struct Lighting;
struct View;

/// Draws the faces of plots and objects, lit and seen from both sides.
///
/// Opaque faces hide each other by their depths. Translucent ones are blended, those of a mesh that face away first.
class MeshPainter {
public:
    MeshPainter();

    /// Takes the view and the light of a frame.
    void begin(const View& view, const Lighting& lighting) const;

    /// @param toEye from the vertices to the eye
    void draw(const Mesh& mesh, const vxgraphics3d::Matrixf& toEye, const Material& material) const;
    /// Draws a mesh once for each instance.
    void draw(const Mesh& mesh, const InstanceBuffer& instances, const vxgraphics3d::Matrixf& toEye,
              const Material& material) const;

private:
    struct ViewBlock;
    struct LightBlock;
    struct ModelBlock;

    void setUp(const GlProgram& program, const vxgraphics3d::Matrixf& toEye, const Material& material) const;

    GlProgram m_single;
    GlProgram m_instanced;
    UniformBlock<ViewBlock> m_view;
    UniformBlock<LightBlock> m_light;
    UniformBlock<ModelBlock> m_model;
    UniformBlock<Material> m_material;
};

} // namespace vxrenderer
