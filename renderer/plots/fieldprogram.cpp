#include "renderer/plots/fieldprogram.h"

#include "graphics3d/plots/colour/colortable.h"
#include "graphics3d/plots/scenegraphplot.h"
#include "renderer/frame/lighting.h"
#include "renderer/frame/view.h"
#include "renderer/upload/colortextures.h"

#include <limits>
#include <span>
#include <utility>

namespace vxrenderer {
namespace {

using vxgraphics3d::Matrixf;
using vxgraphics3d::SceneGraphPlot;

// With several samples a pixel, values at the border of a triangle are taken outside of it. u is `centroid` so that it
// stays within the triangle: the restriction would punch holes along all edges otherwise.
constexpr const char* c_vertexSource = R"(
uniform mat4 modelView;
uniform mat4 projection;
uniform mat4 normalMatrix;
layout(location = 0) in vec3 position;
layout(location = 1) in vec3 normal;
layout(location = 3) in vec2 texturePlace;
centroid out float u;
out vec3 eyePosition;
out vec3 eyeNormal;

void main()
{
    vec4 eye = modelView * vec4(position, 1.0);
    eyePosition = eye.xyz;
    eyeNormal = mat3(normalMatrix) * normal;
    u = texturePlace.x;
    gl_Position = projection * eye;
}
)";

constexpr const char* c_fragmentSource = R"(
const int c_tableSize = 1024;
const int c_maxLights = 8;

uniform sampler1D colorTable;
uniform bool hasTable;
uniform vec4 uniformColor;
uniform vec2 dataTex;
uniform vec2 legendTex;
uniform vec2 restriction;
uniform bool isReversed;
uniform float opacity;
uniform float shininess;
uniform bool isLit;
uniform bool isPerspective;
uniform vec4 ambient;
uniform int numLights;
uniform vec4 lightPlaces[c_maxLights];
uniform vec4 lightDiffuse[c_maxLights];
uniform vec4 lightSpecular[c_maxLights];
uniform vec4 lightCones[c_maxLights];
centroid in float u;
in vec3 eyePosition;
in vec3 eyeNormal;
out vec4 result;

vec3 dataColor()
{
    float l = mix(dataTex.x, dataTex.y, u);
    float t = mix(legendTex.x, legendTex.y, clamp(l, 0.0, 1.0));
    t = isReversed ? 1.0 - t : t;
    return texelFetch(colorTable, clamp(int(t * float(c_tableSize)), 0, c_tableSize - 1), 0).rgb;
}

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
    if (u < restriction.x || u > restriction.y) {
        discard;
    }
    vec3 color = hasTable ? dataColor() : uniformColor.rgb;
    result = vec4(isLit ? lit(color) : color, opacity);
}
)";

/// The limits of u. An end of the restriction that lies at an end of the data hides nothing, whatever rounding makes of
/// a coordinate between two vertices.
std::pair<float, float> restrictionOf(const SceneGraphPlot& plot)
{
    constexpr float c_all = std::numeric_limits<float>::max();
    if (!plot.hasValueRestrictions()) {
        return {-c_all, c_all};
    }
    const float min = plot.getRestrictionTexMin();
    const float max = plot.getRestrictionTexMax();
    return {min <= 0.0f ? -c_all : min, max >= 1.0f ? c_all : max};
}

} // namespace

FieldProgram::FieldProgram()
    : m_program("data on meshes", c_vertexSource, c_fragmentSource),
      m_modelView(m_program.place("modelView")),
      m_projection(m_program.place("projection")),
      m_normalMatrix(m_program.place("normalMatrix")),
      m_hasTable(m_program.place("hasTable")),
      m_uniformColor(m_program.place("uniformColor")),
      m_dataTex(m_program.place("dataTex")),
      m_legendTex(m_program.place("legendTex")),
      m_restriction(m_program.place("restriction")),
      m_isReversed(m_program.place("isReversed")),
      m_opacity(m_program.place("opacity")),
      m_shininess(m_program.place("shininess")),
      m_isLit(m_program.place("isLit")),
      m_isPerspective(m_program.place("isPerspective")),
      m_ambient(m_program.place("ambient")),
      m_numLights(m_program.place("numLights")),
      m_lightPlaces(m_program.place("lightPlaces")),
      m_lightDiffuse(m_program.place("lightDiffuse")),
      m_lightSpecular(m_program.place("lightSpecular")),
      m_lightCones(m_program.place("lightCones"))
{}

bool FieldProgram::use(const PlotItem& item, const PaintContext& context) const
{
    const SceneGraphPlot& plot = *item.plot;
    if (plot.hasValueRestrictions() && plot.getRestrictionTexMin() >= plot.getRestrictionTexMax()) {
        return false;
    }
    m_program.use();

    // Height scale and plane offset were never applied to the vertices: the plot is stretched about its plane, which
    // lies at the offset.
    Matrixf modelView = context.view.sceneToEye;
    modelView.translate(0.0f, 0.0f, plot.getPlotPlaneOffset()).scale(1.0f, 1.0f, plot.getHeightScale());
    Matrixf inverse = modelView;
    inverse.invert();
    Matrixf normalMatrix(Matrixf::MatrixUninitialized);
    for (int i = 1; i <= 4; ++i) {
        for (int j = 1; j <= 4; ++j) {
            normalMatrix.set(i, j, inverse.get(j, i));
        }
    }
    GlProgram::set(m_modelView, modelView);
    GlProgram::set(m_projection, context.view.projection);
    GlProgram::set(m_normalMatrix, normalMatrix);

    const boost::shared_ptr<vxgraphics3d::ColorTable> table = plot.getColorTable();
    if (table) {
        context.colorTextures.bind(item.group, plot.getColorTableTextureHandle(0), *table);
    }
    GlProgram::set(m_hasTable, table ? 1 : 0);
    GlProgram::set(m_uniformColor, plot.getColor());
    GlProgram::set(m_dataTex, plot.getDataTexMin(), plot.getDataTexMax());
    GlProgram::set(m_legendTex, plot.getLegendTexMin(), plot.getLegendTexMax());
    GlProgram::set(m_isReversed, plot.isReverseColorTable() ? 1 : 0);
    const auto [low, high] = restrictionOf(plot);
    GlProgram::set(m_restriction, low, high);
    GlProgram::set(m_opacity, context.opacity);
    GlProgram::set(m_shininess, plot.getShininess());
    setLight(context);
    return true;
}

void FieldProgram::setLight(const PaintContext& context) const
{
    const Lighting& light = context.lighting;
    const auto lights = [&](const auto& values) { return std::span(values).first(light.numLights); };
    GlProgram::set(m_isLit, light.isUsed && !context.view.isFlat ? 1 : 0);
    GlProgram::set(m_isPerspective, context.view.isPerspective ? 1 : 0);
    GlProgram::set(m_ambient, std::span(&light.ambient, 1));
    GlProgram::set(m_numLights, static_cast<int>(light.numLights));
    GlProgram::set(m_lightPlaces, lights(light.places));
    GlProgram::set(m_lightDiffuse, lights(light.diffuse));
    GlProgram::set(m_lightSpecular, lights(light.specular));
    GlProgram::set(m_lightCones, lights(light.cones));
}

} // namespace vxrenderer
