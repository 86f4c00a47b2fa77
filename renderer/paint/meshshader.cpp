#include "renderer/paint/meshshader.h"

#include "renderer/paint/material.h"
#include "renderer/paint/partrows.h"
#include "renderer/paint/samplededges.h"
#include "renderer/paint/sphereshader.h"
#include "renderer/paint/studiolight.h"

namespace vxrenderer {
namespace {

constexpr const char* c_viewBlock = R"(
layout(std140) uniform View {
    mat4 projection;
    vec2 grid;
    bool isPerspective;
    bool isFlat;
    // The size of a pixel for each unit of w.
    float pixel;
    int numSamples;
};
)";

constexpr const char* c_modelBlock = R"(
layout(std140) uniform Model {
    mat4 modelView;
    mat4 normalMatrix;
    float radiusScale;
    // The smallest radius of spheres in pixels.
    float leastRadius;
};
)";

// With several samples per pixel, values at the border of a triangle are taken outside of it unless they are
// `centroid`: the restriction would punch holes along all edges, and normals would turn over along outlines. The slope
// of a triangle is the difference between pixels, whose distance is fixed only at their centres.
constexpr const char* c_vertexInputs = R"(
layout(location = 0) in vec3 position;
layout(location = 1) in vec3 normal;
centroid out float u;
centroid out vec3 eyePosition;
centroid out vec3 eyeNormal;
out vec3 slopePosition;
#ifdef SAMPLED
out float middleU;
#endif

// Graphics hardware rounds corners to parts of a pixel before it finds out which samples a triangle covers, yet takes its
// depths from the corners as they were: next to an outline the back of a surface would come before its front. Rounding
// corners here keeps both together.
vec4 clipPlace(vec4 eye)
{
    vec4 place = projection * eye;
    vec2 steps = grid / place.w;
    return vec4(place.w > 0.0 ? round(place.xy * steps) / steps : place.xy, place.zw);
}

// What is not finite is as good as absent.
vec3 usable(vec3 v)
{
    return any(isnan(v)) || any(isinf(v)) ? vec3(0.0) : v;
}
)";

constexpr const char* c_singleMain = R"(
layout(location = 3) in vec2 texturePlace;

void main()
{
    vec4 eye = modelView * vec4(position, 1.0);
    eyePosition = eye.xyz;
    slopePosition = eye.xyz;
    eyeNormal = mat3(normalMatrix) * usable(normal);
    u = texturePlace.x;
#ifdef SAMPLED
    middleU = u;
#endif
    gl_Position = clipPlace(eye);
}
)";

constexpr const char* c_instancedMain = R"(
layout(location = 6) in vec3 instancePosition;
layout(location = 7) in vec3 instanceAxis;
layout(location = 8) in float instanceU;
layout(location = 9) in float instanceThickness;

void main()
{
    float size = length(instanceAxis);
    vec3 z = size > 0.0 ? instanceAxis / size : vec3(0.0, 0.0, 1.0);
    vec3 x = normalize(cross(abs(z.y) < 0.9 ? vec3(0.0, 1.0, 0.0) : vec3(1.0, 0.0, 0.0), z));
    mat3 turn = mat3(x, cross(z, x), z);
    vec3 shaped = size * vec3(instanceThickness * position.xy, position.z);
    vec4 eye = modelView * vec4(instancePosition + turn * shaped, 1.0);
    eyePosition = eye.xyz;
    slopePosition = eye.xyz;
    vec3 shapedNormal = usable(normal) * vec3(1.0, 1.0, instanceThickness);
    eyeNormal = mat3(normalMatrix) * (turn * shapedNormal);
    u = instanceU;
#ifdef SAMPLED
    middleU = u;
#endif
    gl_Position = clipPlace(eye);
}
)";

// All parts of an object. Those that are not shown are moved out of the view.
constexpr const char* c_partMain = R"(
layout(location = 10) in uint part;
flat out vec3 partColor;
#ifdef LAYERED
flat out float partOpacity;
#endif
flat out int partRow;
out vec3 imagePosition;

void main()
{
    partRow = rowOfPart(int(part));
    PartRow row = partRows[partRow];
    imagePosition = (position - imagePlace.xyz) * imagePlace.w;
    vec4 eye = modelView * vec4(position, 1.0);
    eyePosition = eye.xyz;
    slopePosition = eye.xyz;
    eyeNormal = mat3(normalMatrix) * usable(normal);
    u = 0.0;
    partColor = row.color.rgb;
#ifdef LAYERED
    partOpacity = row.color.a;
#endif
    vec4 place = clipPlace(eye);
    place.z = (place.z + row.towardsEye.x * place.w) / (1.0 + row.towardsEye.y);
    gl_Position = row.isVisible ? place : vec4(2.0, 2.0, 2.0, 1.0);
}
)";

// What a surface shows of the light that it receives.
constexpr const char* c_lightBlock = R"(
const int c_maxLights = 8;

layout(std140) uniform Light {
    vec4 ambient;
    vec4 lightPlaces[c_maxLights];
    vec4 lightDiffuse[c_maxLights];
    vec4 lightSpecular[c_maxLights];
    vec4 lightCones[c_maxLights];
};
OUTPUT vec4 result;

// The part of a pixel within a cone of light whose border it may lie on, by the cosines of angles from its axis. Pixels
// in which these change by more are on an outline, not on the border of a cone; the last comparison also fails for what
// is no number.
float coneCoverage(float cosine, float limit)
{
    float change = clamp(fwidth(cosine), 1e-6, 0.02);
    float part = clamp(0.5 + (cosine - limit) / change, 0.0, 1.0);
    return limit < -1.0 ? 1.0 : part > 0.0 ? part : 0.0;
}
)";

// The normal on the side that is seen is n, the point has the eye's coordinates.
constexpr const char* c_litStart = R"(
vec3 lit(vec3 color, vec3 n, vec3 point)
{
    vec3 toEye = isPerspective ? normalize(-point) : vec3(0.0, 0.0, 1.0);
)";
constexpr const char* c_plainAmbient = R"(
    vec3 received = ambient.rgb;
)";
constexpr const char* c_studioAmbient = R"(
    vec3 received = softLight(n, toEye, point);
)";
constexpr const char* c_lamps = R"(
    vec3 reflected = vec3(0.0);
    for (int i = 0; i < c_numLights; ++i) {
        vec4 place = lightPlaces[i];
        vec3 toLight = c_hasPositions ? normalize(place.xyz - place.w * point) : place.xyz;
        float falling = dot(n, toLight);
        // No light falls from behind, from nowhere or out of a cone; the comparison also fails for what is no number.
        bool isReached = falling > 0.0;
        float inCone = 1.0;
        if (c_hasCones) {
            inCone = coneCoverage(dot(-toLight, lightCones[i].xyz), lightCones[i].w);
            isReached = isReached && inCone > 0.0;
            falling *= inCone;
        }
        received += isReached ? lightDiffuse[i].rgb * falling : vec3(0.0);
        if (c_hasHighlights) {
            float mirrored = max(dot(n, normalize(toLight + toEye)), 0.0);
            reflected += isReached ? inCone * lightSpecular[i].rgb * pow(mirrored, shininess) : vec3(0.0);
        }
    }
)";
constexpr const char* c_plainEnd = R"(
    return min(color * received + reflected, vec3(1.0));
}
)";
constexpr const char* c_studioEnd = R"(
    return limited(color * received + (hasTable ? highlights.x : highlights.y) * reflected);
}
)";

constexpr const char* c_shape = R"(
vec3 lit(vec3 color, vec3 n, vec3 point)
{
    return any(isnan(n)) ? vec3(0.0, 0.0, 1.0) : n;
}
)";

constexpr const char* c_dataColor = R"(
vec3 surfaceColor(float u)
{
    return c_hasTable ? tableTexel(u).rgb : uniformColor.rgb;
}
)";

// The image lies in the coordinate plane that the triangle is closest to, upright seen from outside of a box.
constexpr const char* c_partColor = R"(
#ifdef LAYERED
flat in float partOpacity;
#define OPACITY partOpacity
#endif
uniform sampler2D materialImage;
flat in vec3 partColor;
flat in int partRow;
in vec3 imagePosition;

vec3 surfaceColor(float u)
{
    if (!c_isTextured) {
        return partColor;
    }
    vec3 p = imagePosition;
    vec3 slope = abs(cross(dFdx(p), dFdy(p)));
    vec2 place = slope.z >= max(slope.x, slope.y) ? p.xy : slope.x >= slope.y ? p.yz : p.xz;
    vec4 texel = texture(materialImage, vec2(place.x, -place.y));
    return partRow == 0 ? partColor * (1.0 - texel.a) + texel.rgb : partColor;
}
)";

constexpr const char* c_fragmentMain = R"(
centroid in float u;
centroid in vec3 eyePosition;
centroid in vec3 eyeNormal;
in vec3 slopePosition;

// The normal on the side that is seen. Along an outline it may point away from the eye, as it belongs to a surface that
// bends away within the triangle: the triangle knows its side, the angle between normal and eye does not.
vec3 seenNormal()
{
    vec3 n = gl_FrontFacing ? eyeNormal : -eyeNormal;
    if (c_lacksNormals) {
        vec3 slope = cross(dFdx(slopePosition), dFdy(slopePosition));
        n = dot(n, n) > 0.0 ? n : slope;
    }
    return normalize(n);
}

#ifdef SAMPLED
in float middleU;

// Hides the samples of the pixel whose values are. A shader that writes a mask, or discards, keeps the driver from
// testing depths before it runs.
void hideSamples()
{
#ifdef RESTRICTED
#ifdef GL_ARB_sample_shading
    int shown = 0;
    for (int i = 0; i < c_numSamples; ++i) {
        shown |= isHidden(atSample(middleU, i)) ? 0 : 1 << i;
    }
    gl_SampleMask[0] = shown;
    bool isShown = shown != 0;
#else
    bool isShown = !isHidden(u);
#endif
    if (!isShown) {
        discard;
    }
#endif
}

// The mean of the samples that the triangle covers: others may have values that it does not have. What a restriction
// hides has no part in it. Pixels without a jump have the colour of their middle.
vec3 sampledColor()
{
    vec2 range = clamp(restriction, 0.0, 1.0);
    float ownU = c_isRestricted ? clamp(u, range.x, range.y) : u;
    if (!c_hasSteps) {
        return surfaceColor(ownU);
    }
#ifdef GL_ARB_gpu_shader5
    int covered = gl_SampleMaskIn[0];
#else
    int covered = ~0;
#endif
    vec4 texel = tableTexel(ownU);
    // Samples and the value at `centroid` are at most half a pixel from the middle in each direction.
    bool isJumpFar = inTexels(fwidth(middleU)) < floor(255.0 * texel.a + 0.5);
    int count = isJumpFar ? 0 : c_numSamples;
    vec4 sum = vec4(0.0);
    for (int i = 0; i < count; ++i) {
        vec4 color = vec4(tableTexel(clamp(atSample(middleU, i), range.x, range.y)).rgb, 1.0);
        sum += (covered >> i & 1) != 0 ? color : vec4(0.0);
    }
    return isJumpFar ? texel.rgb : sum.rgb / max(sum.a, 1.0);
}
#else
void hideSamples()
{
    if (c_isRestricted && isHidden(u)) {
        discard;
    }
}

vec3 sampledColor()
{
    return surfaceColor(u);
}
#endif

void main()
{
    hideSamples();
    vec3 color = sampledColor();
    result = vec4(c_isLit ? lit(color, seenNormal(), eyePosition) : color, uniformColor.a);
}
)";

/// A switch that the compiler knows, so that it drops what is off.
std::string constant(const char* name, bool isOn)
{
    return "const bool c_" + std::string(name) + (isOn ? " = true;\n" : " = false;\n");
}

} // namespace

std::string MeshShader::shapeConstants() const
{
    return constant("areDiscs", shape == Shape::discs) + constant("arePoints", arePoints);
}

std::string MeshShader::vertexSource() const
{
    if (shape != Shape::triangles) {
        return shapeConstants() + c_viewBlock + c_modelBlock + Material::c_source + c_sphereVertexMain;
    }
    const std::string inputs =
        std::string(numSamples > 1 ? "#define SAMPLED\n" : "") + c_viewBlock + c_modelBlock + c_vertexInputs;
    if (hasParts) {
        return layersDefinition(output) + inputs + PartRows::c_source + c_partMain;
    }
    return inputs + (isInstanced ? c_instancedMain : c_singleMain);
}

std::string MeshShader::mainOfFragments() const
{
    if (shape != Shape::triangles) {
        return c_sphereFragmentMain;
    }
    return std::string(hasParts ? c_partColor : c_dataColor) + c_fragmentMain;
}

std::string MeshShader::lightSource() const
{
    if (isShape) {
        return std::string(c_lightBlock) + c_shape;
    }
    if (isStudio) {
        return constant("hasOcclusion", hasOcclusion) + c_lightBlock + StudioLight::c_source + c_litStart +
               c_studioAmbient + c_lamps + c_studioEnd;
    }
    return std::string(c_lightBlock) + c_litStart + c_plainAmbient + c_lamps + c_plainEnd;
}

std::string MeshShader::sampledSource() const
{
    return numSamples == 1 ? ""
                           : std::string(isRestricted ? "#define RESTRICTED\n" : "") +
                                 "#define SAMPLED\nconst int c_numSamples = " + std::to_string(numSamples) + ";\n" +
                                 constant("hasSteps", hasSteps) + SampledEdges::c_source;
}

std::string MeshShader::fragmentSource() const
{
    const std::string source =
        std::string(shape == Shape::triangles && numSamples == 1 ? "" : "#extension GL_ARB_sample_shading : enable\n") +
        (numSamples == 1 ? "" : "#extension GL_ARB_gpu_shader5 : enable\n") + constant("isRestricted", isRestricted) +
        constant("isLit", isLit) + constant("lacksNormals", lacksNormals) + constant("hasPositions", hasPositions) +
        constant("hasCones", hasCones) + constant("hasHighlights", hasHighlights) + constant("isTextured", isTextured) +
        constant("hasTable", hasTable) + "const int c_numLights = " + std::to_string(numLights) + ";\n" +
        shapeConstants() + c_viewBlock + Material::c_source + lightSource() + sampledSource() + mainOfFragments();
    return withOutput(output, source, shape != Shape::triangles);
}

} // namespace vxrenderer
