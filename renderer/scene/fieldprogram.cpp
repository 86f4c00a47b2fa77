#include "renderer/scene/fieldprogram.h"

#include "graphics3d/plots/colortable.h"
#include "graphics3d/plots/scenegraphplot.h"
#include "renderer/scene/colortextures.h"
#include "renderer/scene/view.h"

#include <limits>
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
const vec3 c_toLight = normalize(vec3(-0.25, 0.35, 1.0));
const float c_ambient = 0.42;
const float c_diffuse = 0.62;
const float c_specular = 0.18;

uniform sampler1D colorTable;
uniform bool hasTable;
uniform vec4 uniformColor;
uniform vec2 dataTex;
uniform vec2 legendTex;
uniform vec2 restriction;
uniform bool isReversed;
uniform bool isLit;
uniform float shininess;
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
    vec3 toEye = normalize(-eyePosition);
    // Vertices without a normal are lit by the slope of the triangle.
    vec3 n = dot(eyeNormal, eyeNormal) > 0.0 ? normalize(eyeNormal)
                                             : normalize(cross(dFdx(eyePosition), dFdy(eyePosition)));
    n = dot(n, toEye) < 0.0 ? -n : n;
    float diffuse = max(dot(n, c_toLight), 0.0);
    float specular = pow(max(dot(n, normalize(c_toLight + toEye)), 0.0), shininess);
    return min(color * (c_ambient + c_diffuse * diffuse) + vec3(c_specular * specular), vec3(1.0));
}

void main()
{
    if (u < restriction.x || u > restriction.y) {
        discard;
    }
    vec3 color = hasTable ? dataColor() : uniformColor.rgb;
    result = vec4(isLit ? lit(color) : color, 1.0);
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
      m_isLit(m_program.place("isLit")),
      m_shininess(m_program.place("shininess"))
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
    Matrixf modelView = context.view.view;
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
    const auto channel = [](int value) { return static_cast<float>(value) / 255.0f; };
    const vxgraphics3d::Color& color = plot.getColor();
    GlProgram::set(m_hasTable, table ? 1 : 0);
    GlProgram::set(m_uniformColor, channel(color.red), channel(color.green), channel(color.blue), 1.0f);
    GlProgram::set(m_dataTex, plot.getDataTexMin(), plot.getDataTexMax());
    GlProgram::set(m_legendTex, plot.getLegendTexMin(), plot.getLegendTexMax());
    GlProgram::set(m_isReversed, plot.isReverseColorTable() ? 1 : 0);
    const auto [low, high] = restrictionOf(plot);
    GlProgram::set(m_restriction, low, high);
    GlProgram::set(m_isLit, context.isLit && !context.view.isFlat ? 1 : 0);
    GlProgram::set(m_shininess, plot.getShininess());
    return true;
}

} // namespace vxrenderer
