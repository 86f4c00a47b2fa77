#pragma once

#include "renderer/gl/glprogram.h"
#include "renderer/paint/material.h"
#include "renderer/paint/meshshader.h"
#include "renderer/paint/partrows.h"
#include "renderer/paint/samplededges.h"
#include "renderer/paint/studiolight.h"
#include "renderer/upload/uniformblock.h"

#include <array>
#include <map>

namespace vxgraphics3d {
class Matrixf;
}

namespace vxrenderer {

class AmbientOcclusion;
class InstanceBuffer;
class Mesh;
class SphereBuffer;
struct Lighting;
struct PartLook;
struct View;

/// Draws the faces of plots and objects, lit and seen from both sides.
///
/// Opaque faces hide each other by their depths. Translucent ones go into layers, or are blended in a flat view, those
/// of a mesh that face away first.
class MeshPainter {
public:
    /// Takes the view and the light of a frame.
    void begin(const View& view, const Lighting& lighting);
    /// The same in studio light.
    /// @param occlusion that has been found for the view, or null for none
    void beginStudio(const View& view, const Lighting& lighting, const AmbientOcclusion* occlusion);
    /// Takes a view whose normals are drawn instead of its colours.
    void beginShapes(const View& view);

    /// Where the colours of what follows go, at first into the picture.
    void setOutput(FragmentOutput output) { m_output = output; }

    /// @param toEye from the vertices to the eye
    void draw(const Mesh& mesh, const vxgraphics3d::Matrixf& toEye, const Material& material);
    /// Draws a mesh once for each instance.
    void draw(const Mesh& mesh, const InstanceBuffer& instances, const vxgraphics3d::Matrixf& toEye,
              const Material& material);
    /// Draws parts of an object.
    void draw(const Mesh& mesh, const PartLook& parts, const vxgraphics3d::Matrixf& toEye, const Material& material);
    /// How large spheres or discs are.
    struct Radii {
        /// Multiplies their radii.
        float scale = 1.0f;
        /// The smallest radius in pixels.
        float least = 0.0f;
    };
    /// Draws spheres or discs.
    void draw(const SphereBuffer& spheres, const Radii& radii, const vxgraphics3d::Matrixf& toEye,
              const Material& material);

private:
    struct ViewBlock;
    struct LightBlock;
    struct ModelBlock;

    const GlProgram& program(const MeshShader& shader);
    void setUp(const Mesh& mesh, MeshShader shader, const vxgraphics3d::Matrixf& toEye, const Material& material);
    /// The radius of the largest sphere if it were at the point of all spheres nearest to the eye.
    float largestInPixels(const SphereBuffer& spheres, const Radii& radii, const vxgraphics3d::Matrixf& toEye) const;
    void use(MeshShader shader, const vxgraphics3d::Matrixf& toEye, const Material& material, const Radii& radii);

    /// Lets edges across triangles be smooth, where a material has any.
    void takeEdges(MeshShader& shader, const Material& material) const;

    /// Made when they are used for the first time.
    std::map<MeshShader, GlProgram> m_programs;
    /// What the light of this frame asks for.
    MeshShader m_lightShader;
    FragmentOutput m_output = FragmentOutput::picture;
    // Of the view of this frame.
    int m_numSamples = 1;
    bool m_isFlat = false;
    float m_pixelSize = 1.0f;
    /// What the projection takes w from.
    std::array<float, 4> m_wRow{};
    UniformBlock<ViewBlock> m_view;
    UniformBlock<LightBlock> m_light;
    UniformBlock<StudioLight> m_studio;
    UniformBlock<ModelBlock> m_model;
    UniformBlock<SampledEdges> m_samples;
    UniformBlock<Material> m_material;
    UniformBlock<PartRows> m_rows;
};

} // namespace vxrenderer
