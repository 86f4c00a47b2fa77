#include "renderer/paint/meshshader.h"

#include "renderer/paint/material.h"

namespace vxrenderer {
namespace {

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
};
centroid in float u;
in vec3 eyePosition;
in vec3 eyeNormal;
out vec4 result;

vec3 lit(vec3 color)
{
    vec3 toEye = isPerspective ? normalize(-eyePosition) : vec3(0.0, 0.0, 1.0);
    // Vertices without a normal are lit by the slope of the triangle. Surfaces are seen from both sides.
    vec3 n = normalize(dot(eyeNormal, eyeNormal) > 0.0 ? eyeNormal : cross(dFdx(eyePosition), dFdy(eyePosition)));
    n = dot(n, toEye) < 0.0 ? -n : n;
    vec3 received = ambient.rgb;
    vec3 reflected = vec3(0.0);
    for (int i = 0; i < c_numLights; ++i) {
        vec4 place = lightPlaces[i];
        vec3 toLight = c_hasPositions ? normalize(place.xyz - place.w * eyePosition) : place.xyz;
        float falling = dot(n, toLight);
        // No light falls from behind, from nowhere or out of a cone; the comparison also fails for what is no number.
        bool isReached = falling > 0.0;
        if (c_hasCones) {
            isReached = isReached && !(dot(-toLight, lightCones[i].xyz) < lightCones[i].w);
        }
        received += isReached ? lightDiffuse[i].rgb * falling : vec3(0.0);
        if (c_hasHighlights) {
            float mirrored = max(dot(n, normalize(toLight + toEye)), 0.0);
            reflected += isReached ? lightSpecular[i].rgb * pow(mirrored, shininess) : vec3(0.0);
        }
    }
    return min(color * received + reflected, vec3(1.0));
}

void main()
{
    if (c_isRestricted && isHidden(u)) {
        discard;
    }
    vec3 color = materialColor(u);
    result = vec4(c_isLit ? lit(color) : color, uniformColor.a);
}
)";

/// A switch that the compiler knows, so that it drops what is off.
std::string constant(const char* name, bool isOn)
{
    return "const bool c_" + std::string(name) + (isOn ? " = true;\n" : " = false;\n");
}

} // namespace

std::string MeshShader::vertexSource() const
{
    return std::string(c_vertexBlocks) + (isInstanced ? c_instancedMain : c_singleMain);
}

std::string MeshShader::fragmentSource() const
{
    return constant("isRestricted", isRestricted) + constant("isLit", isLit) + constant("hasPositions", hasPositions) +
           constant("hasCones", hasCones) + constant("hasHighlights", hasHighlights) +
           "const int c_numLights = " + std::to_string(numLights) + ";\n" + Material::c_source + c_fragmentMain;
}

} // namespace vxrenderer
