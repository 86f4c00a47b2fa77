#include "renderer/paint/meshpainter.h"

#include "graphics3d/foundation/matrixf.h"
#include "renderer/frame/lighting.h"
#include "renderer/frame/view.h"
#include "renderer/paint/ambientocclusion.h"
#include "renderer/upload/mesh.h"
#include "renderer/upload/parttable.h"
#include "renderer/upload/spherebuffer.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>

namespace vxrenderer {
namespace {

using vxgraphics3d::Matrixf;

std::array<float, 16> elementsOf(const Matrixf& matrix)
{
    std::array<float, 16> elements{};
    std::copy_n(matrix.data(), elements.size(), elements.begin());
    return elements;
}

/// What normals are multiplied by where points are multiplied by a matrix.
Matrixf normalMatrixOf(const Matrixf& matrix)
{
    Matrixf inverse = matrix;
    inverse.invert();
    Matrixf transposed(Matrixf::MatrixUninitialized);
    for (int i = 1; i <= 4; ++i) {
        for (int j = 1; j <= 4; ++j) {
            transposed.set(i, j, inverse.get(j, i));
        }
    }
    return transposed;
}

/// Whether a matrix turns a right hand into a left one, as the negative scale of an axis does.
bool isMirrored(const Matrixf& matrix)
{
    const auto at = [&matrix](int i, int j) { return static_cast<double>(matrix.get(i, j)); };
    return at(1, 1) * (at(2, 2) * at(3, 3) - at(2, 3) * at(3, 2)) -
               at(1, 2) * (at(2, 1) * at(3, 3) - at(2, 3) * at(3, 1)) +
               at(1, 3) * (at(2, 1) * at(3, 2) - at(2, 2) * at(3, 1)) <
           0.0;
}

/// Steps to which the driver rounds positions, from the middle of a viewport to its sides.
std::array<float, 2> roundingOf(const PixelArea& viewport)
{
    GLint bits = 0;
    glGetIntegerv(GL_SUBPIXEL_BITS, &bits);
    const float steps = 0.5f * static_cast<float>(1 << bits);
    return {steps * static_cast<float>(viewport.width), steps * static_cast<float>(viewport.height)};
}

/// What the light of a frame asks of a shader.
MeshShader lightShaderOf(const View& view, const Lighting& light)
{
    MeshShader shader;
    shader.isLit = light.isUsed && !view.isFlat;
    shader.numLights = shader.isLit ? light.numLights : 0;
    for (std::size_t i = 0; i < shader.numLights; ++i) {
        const Lighting::Vec4& specular = light.specular[i];
        shader.hasPositions |= light.places[i][3] > 0.0f;
        // No light comes from outside a cone; those that shine everywhere have a limit below all cosines.
        shader.hasCones |= light.cones[i][3] >= -1.0f;
        shader.hasHighlights |= specular[0] > 0.0f || specular[1] > 0.0f || specular[2] > 0.0f;
    }
    return shader;
}

/// The largest radius of spheres that are drawn as points, in pixels: drivers limit the size of points, and leave out
/// those whose middle is not in view.
constexpr float c_largestPoint = 6.0f;

/// Draws opaque faces and those of layers at once, others in two steps: those that face away, then those that face the
/// eye.
template <class Draw>
void drawFaces(const Material& material, FragmentOutput output, Draw&& draw)
{
    if (material.isTranslucent() && output == FragmentOutput::picture) {
        glEnable(GL_CULL_FACE);
        for (const GLenum culled : {GLenum{GL_FRONT}, GLenum{GL_BACK}}) {
            glCullFace(culled);
            draw();
        }
        glDisable(GL_CULL_FACE);
    } else {
        draw();
    }
}

} // namespace

struct MeshPainter::ViewBlock {
    static constexpr const char* c_block = "View";
    static constexpr GLuint c_binding = 0;

    std::array<float, 16> projection;
    /// Steps to which the driver rounds positions, from the middle of the view to its sides.
    std::array<float, 2> grid;
    std::int32_t isPerspective;
    std::int32_t isFlat;
    /// The size of a pixel for each unit of w.
    float pixel;
    std::int32_t numSamples;
    std::array<float, 2> unused{};
};

struct MeshPainter::LightBlock {
    static constexpr const char* c_block = "Light";
    static constexpr GLuint c_binding = 1;

    Lighting::Vec4 ambient;
    std::array<Lighting::Vec4, Lighting::c_maxLights> places;
    std::array<Lighting::Vec4, Lighting::c_maxLights> diffuse;
    std::array<Lighting::Vec4, Lighting::c_maxLights> specular;
    std::array<Lighting::Vec4, Lighting::c_maxLights> cones;
};

struct MeshPainter::ModelBlock {
    static constexpr const char* c_block = "Model";
    static constexpr GLuint c_binding = 3;

    std::array<float, 16> modelView;
    std::array<float, 16> normalMatrix;
    float radiusScale = 1.0f;
    float leastRadius = 0.0f;
    std::array<float, 2> unused{};
};

void MeshPainter::begin(const View& view, const Lighting& light)
{
    GLint numSamples = 0;
    glGetIntegerv(GL_SAMPLES, &numSamples);
    m_numSamples = std::max(numSamples, 1);
    m_samples.set(SampledEdges::of(numSamples));
    m_isFlat = view.isFlat;
    m_pixelSize = view.pixelSize();
    m_wRow = {view.projection.get(4, 1), view.projection.get(4, 2), view.projection.get(4, 3),
              view.projection.get(4, 4)};
    m_view.set({elementsOf(view.projection), roundingOf(view.area), view.isPerspective ? 1 : 0, view.isFlat ? 1 : 0,
                view.pixelSize(), m_numSamples});
    m_light.set({light.ambient, light.places, light.diffuse, light.specular, light.cones});
    m_lightShader = lightShaderOf(view, light);
}

void MeshPainter::beginStudio(const View& view, const Lighting& scene, const AmbientOcclusion* occlusion)
{
    StudioLight studio = StudioLight::of(scene);
    Lighting lamps = scene;
    for (Lighting::Vec4& light : lamps.diffuse) {
        std::ranges::transform(light, light.begin(), [&](float channel) { return studio.lamps * channel; });
    }
    begin(view, lamps);
    m_lightShader.isStudio = m_lightShader.isLit;
    m_lightShader.hasOcclusion = m_lightShader.isLit && occlusion != nullptr;
    if (m_lightShader.hasOcclusion) {
        GLint viewport[4];
        glGetIntegerv(GL_VIEWPORT, viewport);
        const auto part = [](int texels, GLint pixels) {
            return static_cast<float>(texels) / static_cast<float>(pixels);
        };
        studio.occlusionArea = {static_cast<float>(viewport[0]), static_cast<float>(viewport[1]),
                                part(occlusion->getWidth(), viewport[2]), part(occlusion->getHeight(), viewport[3])};
    }
    studio.pixelSize = {view.pixelSize(), view.projection.get(4, 3), view.projection.get(4, 4), 0.0f};
    m_studio.set(studio);
}

void MeshPainter::beginShapes(const View& view)
{
    begin(view, Lighting());
    m_lightShader.isLit = true;
    m_lightShader.isShape = true;
}

const GlProgram& MeshPainter::program(const MeshShader& shader)
{
    auto known = m_programs.find(shader);
    if (known == m_programs.end()) {
        known = m_programs.try_emplace(shader, "meshes", shader.vertexSource().c_str(), shader.fragmentSource().c_str())
                    .first;
        m_view.attach(known->second);
        m_light.attach(known->second);
        m_model.attach(known->second);
        m_material.attach(known->second);
        if (shader.isStudio) {
            m_studio.attach(known->second);
            known->second.setSampler("occlusion", AmbientOcclusion::c_unit);
        }
        if (shader.numSamples > 1) {
            m_samples.attach(known->second);
        }
        if (shader.output == FragmentOutput::layers) {
            attachLayers(known->second);
        }
        if (shader.hasParts) {
            m_rows.attach(known->second);
            PartRows::attachTextures(known->second);
        }
    }
    return known->second;
}

void MeshPainter::setUp(const Mesh& mesh, MeshShader shader, const Matrixf& toEye, const Material& material)
{
    shader.lacksNormals = shader.isLit && !mesh.hasNormals();
    use(shader, toEye, material, {});
}

void MeshPainter::use(MeshShader shader, const Matrixf& toEye, const Material& material, const Radii& radii)
{
    shader.isRestricted = material.isRestricted();
    // What is blended is not among the surfaces that hide light from each other.
    shader.hasOcclusion = shader.hasOcclusion && !material.isTranslucent();
    shader.output = m_output;
    takeEdges(shader, material);
    program(shader).use();
    m_model.set({elementsOf(toEye), elementsOf(normalMatrixOf(toEye)), radii.scale, radii.least});
    m_material.set(material);
    // Corners that run counter-clockwise in the scene run the other way in its mirror image.
    glFrontFace(isMirrored(toEye) ? GL_CW : GL_CCW);
}

void MeshPainter::draw(const Mesh& mesh, const Matrixf& toEye, const Material& material)
{
    setUp(mesh, m_lightShader, toEye, material);
    drawFaces(material, m_output, [&] { mesh.draw(); });
}

void MeshPainter::draw(const Mesh& mesh, const InstanceBuffer& instances, const Matrixf& toEye,
                       const Material& material)
{
    MeshShader shader = m_lightShader;
    shader.isInstanced = true;
    setUp(mesh, shader, toEye, material);
    drawFaces(material, m_output, [&] { mesh.draw(instances); });
}

void MeshPainter::draw(const Mesh& mesh, const PartLook& parts, const Matrixf& toEye, const Material& material)
{
    MeshShader shader = m_lightShader;
    shader.hasParts = true;
    shader.isTextured = parts.isTextured;
    setUp(mesh, shader, toEye, material);
    m_rows.set(parts.rows);
    parts.table.bind();
    drawFaces(material, m_output, [&] { mesh.draw(parts.ranges); });
}

void MeshPainter::takeEdges(MeshShader& shader, const Material& material) const
{
    const bool hasSteps = material.hasTable != 0 && material.hasSteps != 0;
    const bool isPlain = shader.shape == MeshShader::Shape::triangles && !shader.hasParts && !shader.isShape;
    shader.hasTable = isPlain && material.hasTable != 0;
    const bool hasEdges = isPlain && (shader.isRestricted || hasSteps);
    if (hasEdges && m_numSamples > 1 && m_numSamples <= SampledEdges::c_mostSamples) {
        shader.numSamples = m_numSamples;
        shader.hasSteps = hasSteps;
    }
}

float MeshPainter::largestInPixels(const SphereBuffer& spheres, const Radii& radii, const Matrixf& toEye) const
{
    const vxgraphics3d::Vector3f low = spheres.getBox().getMin();
    const vxgraphics3d::Vector3f high = spheres.getBox().getMax();
    float nearest = std::numeric_limits<float>::max();
    for (const float x : {low.x, high.x}) {
        for (const float y : {low.y, high.y}) {
            for (const float z : {low.z, high.z}) {
                const vxgraphics3d::Vector3f eye = toEye * vxgraphics3d::Vector3f(x, y, z);
                nearest = std::min(nearest, m_wRow[0] * eye.x + m_wRow[1] * eye.y + m_wRow[2] * eye.z + m_wRow[3]);
            }
        }
    }
    const auto axisLength = [&](int axis) {
        return vxgraphics3d::Vector3f(toEye.get(1, axis), toEye.get(2, axis), toEye.get(3, axis)).length();
    };
    const float radius = spheres.getLargestRadius() * radii.scale * std::sqrt(axisLength(1) * axisLength(2));
    // What reaches behind the eye is large.
    return nearest > 0.0f ? std::max(radius / (nearest * m_pixelSize), radii.least) : std::numeric_limits<float>::max();
}

void MeshPainter::draw(const SphereBuffer& spheres, const Radii& radii, const Matrixf& toEye, const Material& material)
{
    MeshShader shader = m_lightShader;
    shader.shape = spheres.areDiscs() ? MeshShader::Shape::discs : MeshShader::Shape::spheres;
    shader.arePoints = (m_isFlat || !spheres.areDiscs()) && largestInPixels(spheres, radii, toEye) < c_largestPoint;
    use(shader, toEye, material, radii);
    if (spheres.areDiscs()) {
        // Discs are seen on a surface in their plane.
        glEnable(GL_POLYGON_OFFSET_FILL);
        glPolygonOffset(-2.0f, -2.0f);
    }
    glEnable(GL_PROGRAM_POINT_SIZE);
    spheres.draw(shader.arePoints);
    glDisable(GL_PROGRAM_POINT_SIZE);
    glDisable(GL_POLYGON_OFFSET_FILL);
}

} // namespace vxrenderer
