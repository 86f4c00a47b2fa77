#include "renderer/paint/meshpainter.h"

#include "graphics3d/foundation/matrixf.h"
#include "renderer/frame/lighting.h"
#include "renderer/frame/view.h"
#include "renderer/upload/mesh.h"

#include <algorithm>
#include <string>

namespace vxrenderer {
namespace {

using vxgraphics3d::Matrixf;

// With several samples a pixel, values at the border of a triangle are taken outside of it. u is `centroid` so that it
// stays within the triangle: the restriction would punch holes along all edges otherwise.
constexpr const char* c_vertexBlocks = R"(
layout(std140) uniform View {
    mat4 projection;
    bool isPerspective;
};
layout(std140) uniform Model {
    mat4 modelView;
    mat4 normalMatrix;
};
layout(location = 0) in vec3 position;
layout(location = 1) in vec3 normal;
centroid out float u;
out vec3 eyePosition;
out vec3 eyeNormal;
)";

constexpr const char* c_singleMain = R"(
layout(location = 3) in vec2 texturePlace;

void main()
{
    vec4 eye = modelView * vec4(position, 1.0);
    eyePosition = eye.xyz;
    eyeNormal = mat3(normalMatrix) * normal;
    u = texturePlace.x;
    gl_Position = projection * eye;
}
)";

constexpr const char* c_instancedMain = R"(
layout(location = 6) in vec3 instancePosition;
layout(location = 7) in vec3 instanceAxis;
layout(location = 8) in float instanceU;

void main()
{
    float size = length(instanceAxis);
    vec3 z = size > 0.0 ? instanceAxis / size : vec3(0.0, 0.0, 1.0);
    vec3 x = normalize(cross(abs(z.y) < 0.9 ? vec3(0.0, 1.0, 0.0) : vec3(1.0, 0.0, 0.0), z));
    mat3 turn = mat3(x, cross(z, x), z);
    vec4 eye = modelView * vec4(instancePosition + size * (turn * position), 1.0);
    eyePosition = eye.xyz;
    eyeNormal = mat3(normalMatrix) * (turn * normal);
    u = instanceU;
    gl_Position = projection * eye;
}
)";

constexpr const char* c_fragmentMain = R"(
const int c_maxLights = 8;

layout(std140) uniform View {
    mat4 projection;
    bool isPerspective;
};
layout(std140) uniform Light {
    vec4 ambient;
    vec4 lightPlaces[c_maxLights];
    vec4 lightDiffuse[c_maxLights];
    vec4 lightSpecular[c_maxLights];
    vec4 lightCones[c_maxLights];
    int numLights;
    bool isLit;
};
centroid in float u;
in vec3 eyePosition;
in vec3 eyeNormal;
out vec4 result;

vec3 lit(vec3 color)
{
    vec3 toEye = isPerspective ? normalize(-eyePosition) : vec3(0.0, 0.0, 1.0);
    // Vertices without a normal are lit by the slope of the triangle. Surfaces are seen from both sides.
    vec3 n = dot(eyeNormal, eyeNormal) > 0.0 ? normalize(eyeNormal)
                                             : normalize(cross(dFdx(eyePosition), dFdy(eyePosition)));
    n = dot(n, toEye) < 0.0 ? -n : n;
    vec3 received = ambient.rgb;
    vec3 reflected = vec3(0.0);
    for (int i = 0; i < numLights; ++i) {
        vec4 place = lightPlaces[i];
        vec3 toLight = normalize(place.xyz - place.w * eyePosition);
        float falling = dot(n, toLight);
        // No light falls from behind, from nowhere or out of a cone; the comparison also fails for what is no number.
        if (!(falling > 0.0) || dot(-toLight, lightCones[i].xyz) < lightCones[i].w) {
            continue;
        }
        received += lightDiffuse[i].rgb * falling;
        float mirrored = max(dot(n, normalize(toLight + toEye)), 0.0);
        reflected += lightSpecular[i].rgb * pow(mirrored, shininess);
    }
    return min(color * received + reflected, vec3(1.0));
}

void main()
{
    if (isHidden(u)) {
        discard;
    }
    vec3 color = materialColor(u);
    result = vec4(isLit ? lit(color) : color, uniformColor.a);
}
)";

std::string joined(const char* first, const char* second)
{
    return std::string(first) + second;
}

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

/// Draws opaque faces at once, translucent ones in two steps: those that face away, then those that face the eye.
template <class Draw>
void drawFaces(bool isTranslucent, Draw&& draw)
{
    // Faces lie a little deeper than lines at the same position.
    glEnable(GL_POLYGON_OFFSET_FILL);
    glPolygonOffset(1.0f, 1.0f);
    if (isTranslucent) {
        glEnable(GL_CULL_FACE);
        for (const GLenum culled : {GLenum{GL_FRONT}, GLenum{GL_BACK}}) {
            glCullFace(culled);
            draw();
        }
        glDisable(GL_CULL_FACE);
    } else {
        draw();
    }
    glDisable(GL_POLYGON_OFFSET_FILL);
}

} // namespace

struct MeshPainter::ViewBlock {
    static constexpr const char* c_block = "View";
    static constexpr GLuint c_binding = 0;

    std::array<float, 16> projection;
    std::int32_t isPerspective;
    std::array<std::int32_t, 3> unused{};
};

struct MeshPainter::LightBlock {
    static constexpr const char* c_block = "Light";
    static constexpr GLuint c_binding = 1;

    Lighting::Vec4 ambient;
    std::array<Lighting::Vec4, Lighting::c_maxLights> places;
    std::array<Lighting::Vec4, Lighting::c_maxLights> diffuse;
    std::array<Lighting::Vec4, Lighting::c_maxLights> specular;
    std::array<Lighting::Vec4, Lighting::c_maxLights> cones;
    std::int32_t numLights;
    std::int32_t isLit;
    std::array<std::int32_t, 2> unused{};
};

struct MeshPainter::ModelBlock {
    static constexpr const char* c_block = "Model";
    static constexpr GLuint c_binding = 3;

    std::array<float, 16> modelView;
    std::array<float, 16> normalMatrix;
};

MeshPainter::MeshPainter()
    : m_single("meshes", joined(c_vertexBlocks, c_singleMain).c_str(),
               joined(Material::c_source, c_fragmentMain).c_str()),
      m_instanced("instances of meshes", joined(c_vertexBlocks, c_instancedMain).c_str(),
                  joined(Material::c_source, c_fragmentMain).c_str())
{
    for (const GlProgram* program : {&m_single, &m_instanced}) {
        m_view.attach(*program);
        m_light.attach(*program);
        m_model.attach(*program);
        m_material.attach(*program);
    }
}

void MeshPainter::begin(const View& view, const Lighting& light) const
{
    m_view.set({elementsOf(view.projection), view.isPerspective ? 1 : 0});
    m_light.set({light.ambient, light.places, light.diffuse, light.specular, light.cones,
                 static_cast<std::int32_t>(light.numLights), light.isUsed && !view.isFlat ? 1 : 0});
}

void MeshPainter::setUp(const GlProgram& program, const Matrixf& toEye, const Material& material) const
{
    program.use();
    m_model.set({elementsOf(toEye), elementsOf(normalMatrixOf(toEye))});
    m_material.set(material);
}

void MeshPainter::draw(const Mesh& mesh, const Matrixf& toEye, const Material& material) const
{
    setUp(m_single, toEye, material);
    drawFaces(material.isTranslucent(), [&] { mesh.draw(); });
}

void MeshPainter::draw(const Mesh& mesh, const InstanceBuffer& instances, const Matrixf& toEye,
                       const Material& material) const
{
    setUp(m_instanced, toEye, material);
    drawFaces(material.isTranslucent(), [&] { mesh.draw(instances); });
}

} // namespace vxrenderer
