#include "renderer/paint/linepainter.h"

#include "renderer/gl/scenecopy.h"
#include "renderer/upload/linemesh.h"
#include "renderer/upload/parttable.h"

#include <algorithm>
#include <string>
#include <vector>

namespace vxrenderer {
namespace {

// Lines are smooth by the part of each pixel that they cover, whatever the number of samples: the profile of a line is
// the same in every pixel that it crosses in the same way.
constexpr const char* c_vertexInputs = R"(
layout(std140) uniform Line {
    mat4 toClip;
    vec2 viewport;
    float lineWidth;
    // How far the ends reach beyond the points where no piece follows, in units of half the width.
    float reach;
    // What is added to z and w for each unit of w to bring a point nearer to the eye.
    vec2 towardsEye;
    float roundness;
    // How far the rectangle of a piece reaches beyond the line, in pixels, to have all samples of the pixels that the
    // line touches.
    float fringe;
    // Above 0, lines along a side of the viewport lie on whole pixels.
    float snapping;
    // Half the side of the square whose part that the line covers is found.
    float halfBox;
};
layout(location = 0) in vec3 from;
layout(location = 1) in vec3 to;
layout(location = 2) in vec2 texturePlaces;
layout(location = 3) in vec3 before;
layout(location = 4) in vec3 after;
centroid out float u;
// In pixels from the start of the piece: along it, and aside from its middle.
noperspective out vec2 local;
// Length and half the width of the piece, how far its free ends reach, and whether ends are round.
flat out vec4 shape;
// In the directions of `local`, the normals of the borders to the pieces before and after; 0 at free ends.
flat out vec4 borders;
flat out float box;

vec2 pixelOf(vec4 clip)
{
    return 0.5 * viewport * clip.xy / clip.w;
}

bool isSnapped(vec2 step)
{
    return snapping > 0.0 && min(abs(step.x), abs(step.y)) < 0.01;
}

// The nearest position where a line of odd width covers whole pixels, or one of even width.
vec2 snapped(vec2 pixel)
{
    vec2 corner = pixel + 0.5 * viewport;
    float width = floor(lineWidth + 0.5);
    vec2 middle = width - 2.0 * floor(0.5 * width) > 0.5 ? ceil(corner) - 0.5 : floor(corner + 0.5);
    return middle - 0.5 * viewport;
}

// A point, or where the way from it to another one enters the view through the near plane.
vec4 inView(vec4 point, vec4 other)
{
    float depth = point.z + point.w;
    return depth < 0.0 ? mix(point, other, depth / (depth - other.z - other.w)) : point;
}

void leaveOut()
{
    u = 0.0;
    local = vec2(0.0);
    shape = vec4(0.0);
    borders = vec4(0.0);
    box = 0.5;
    gl_Position = vec4(2.0, 2.0, 2.0, 1.0);
}
)";

// All lines look alike, except for the colour, which may be that of their data.
constexpr const char* c_linesStart = R"(
void main()
{
)";

// Lines are parts of an object, with their numbers instead of texture coordinates. Their rows say what the block says
// of other lines, under the same names. The shader of other lines is not touched by that: drivers round a shader's
// numbers in another way when its text differs.
constexpr const char* c_renamed = R"(
#define lineWidth commonWidth
#define towardsEye commonTowardsEye
)";
constexpr const char* c_namedAgain = R"(
#undef lineWidth
#undef towardsEye
)";
constexpr const char* c_partsStart = R"(
flat out vec3 partColor;
#ifdef LAYERED
flat out float partOpacity;
#endif

void main()
{
    PartRow row = partRows[rowOfPart(int(texturePlaces.x))];
    float lineWidth = row.size;
    vec2 towardsEye = row.towardsEye;
    partColor = row.color.rgb;
#ifdef LAYERED
    partOpacity = row.color.a;
#endif
    if (!row.isVisible) {
        leaveOut();
        return;
    }
)";

// The part of a line in front of the near plane is cut off here: its ends are moved aside by pixels, and what lies
// behind the eye has no position on the screen.
//
// Two pieces that meet share the pixels along the line that halves their angle. Where the angle is so sharp, or a piece
// so short, that this would cut off more than the corner, both have free ends.
constexpr const char* c_vertexMain = R"(
    vec4 a = toClip * vec4(from, 1.0);
    vec4 b = toClip * vec4(to, 1.0);
    float depthA = a.z + a.w;
    float depthB = b.z + b.w;
    vec2 places = texturePlaces;
    if (depthA < 0.0 && depthB < 0.0) {
        leaveOut();
        return;
    }
    vec4 wayIn = inView(toClip * vec4(before, 1.0), a);
    vec4 wayOut = inView(toClip * vec4(after, 1.0), b);
    if (depthA < 0.0) {
        float part = depthA / (depthA - depthB);
        a = mix(a, b, part);
        wayIn = a;
        places.x = mix(places.x, places.y, part);
    } else if (depthB < 0.0) {
        float part = depthB / (depthB - depthA);
        b = mix(b, a, part);
        wayOut = b;
        places.y = mix(places.y, places.x, part);
    }
    vec2 start = pixelOf(a);
    vec2 end = pixelOf(b);
    vec2 former = pixelOf(wayIn);
    vec2 next = pixelOf(wayOut);
    former = isSnapped(start - former) ? snapped(former) : former;
    next = isSnapped(next - end) ? snapped(next) : next;
    if (isSnapped(end - start)) {
        start = snapped(start);
        end = snapped(end);
    }
    vec2 along = end - start;
    float size = length(along);
    along = size > 0.0 ? along / size : vec2(1.0, 0.0);
    vec2 side = vec2(-along.y, along.x);
    float halfWidth = 0.5 * lineWidth;
    box = halfBox;
    vec2 reaches = vec2(reach > 0.0 ? reach * halfWidth + fringe : 0.0);
    borders = vec4(0.0);
    for (int i = 0; i < 2; ++i) {
        vec2 step = i == 0 ? start - former : next - end;
        float nextSize = length(step);
        float cosine = nextSize > 0.0 ? dot(along, step) / nextSize : -1.0;
        float tangent = sqrt(max(1.0 - cosine, 0.0) / max(1.0 + cosine, 1e-6));
        if (cosine > -0.6 && halfWidth * tangent <= min(size, nextSize)) {
            vec2 normal = normalize(along + step / nextSize);
            vec2 inPiece = vec2(dot(normal, along), dot(normal, side));
            borders = i == 0 ? vec4(inPiece, borders.zw) : vec4(borders.xy, inPiece);
            reaches[i] = (halfWidth + fringe) * tangent + fringe;
        }
    }
    bool isEnd = gl_VertexID > 1;
    vec4 place = isEnd ? b : a;
    local = vec2(isEnd ? size + reaches.y : -reaches.x,
                 (gl_VertexID & 1) == 0 ? halfWidth + fringe : -halfWidth - fringe);
    shape = vec4(size, halfWidth, reach * halfWidth, roundness);
    u = isEnd ? places.y : places.x;
    vec2 offset = along * (isEnd ? reaches.y : -reaches.x) + side * local.y;
    place.xy = 2.0 * ((isEnd ? end : start) + offset) / viewport * place.w;
    // The near plane cuts lines off only where it cuts off what they lie on.
    place.z = max((place.z + towardsEye.x * place.w) / (1.0 + towardsEye.y), -place.w);
    gl_Position = place;
}
)";

constexpr const char* c_partColor = R"(
#ifdef LAYERED
flat in float partOpacity;
#define OPACITY partOpacity
#endif
flat in vec3 partColor;
#define materialColor(u) partColor
)";

// Without textures, which would be read in each pixel whether a material has a table or not.
constexpr const char* c_oneColor = R"(
#define materialColor(u) uniformColor.rgb
#define isHidden(u) false
)";

constexpr const char* c_coverage = R"(
centroid in float u;
noperspective in vec2 local;
flat in vec4 shape;
flat in vec4 borders;
flat in float box;
OUTPUT vec4 result;

// The part of the box around the middle of the pixel that the line covers.
float covered()
{
    const float slack = 1.0 / 128.0;
    float size = shape.x;
    float halfWidth = shape.y;
    vec2 fromEnd = local - vec2(size, 0.0);
    if (dot(local, borders.xy) < -slack || dot(fromEnd, borders.zw) > slack) {
        return 0.0;
    }
    bool isStart = -local.x > fromEnd.x;
    float beyond = isStart ? -local.x : fromEnd.x;
    bool isFree = (isStart ? borders.xy : borders.zw) == vec2(0.0);
    float aside = abs(local.y);
    float part = 1.0;
    if (shape.w > 0.0) {
        aside = length(vec2(max(beyond, 0.0), aside));
    } else if (isFree && shape.z > 0.0) {
        part = clamp((shape.z + box - beyond) / (2.0 * box), 0.0, 1.0);
    }
    return part * clamp((min(halfWidth, aside + box) - max(-halfWidth, aside - box)) / (2.0 * box), 0.0, 1.0);
}
)";

constexpr const char* c_fragmentMain = R"(
void main()
{
    float part = covered();
    if (isHidden(u) || part < 0.5 / 255.0) {
        discard;
    }
    result = vec4(materialColor(u), uniformColor.a * part);
}
)";

// A line that is mixed with what is behind it, and made darker or lighter where it could not be told from that: in the
// direction of its own colour unless that is at the end of the scale.
constexpr const char* c_shadedMain = R"(
uniform sampler2D behind;

const float c_contrast = 1.55;

vec3 linearOf(vec3 stored)
{
    return mix(stored / 12.92, pow((stored + 0.055) / 1.055, vec3(2.4)), greaterThan(stored, vec3(0.04045)));
}

vec3 storedOf(vec3 linear)
{
    return mix(linear * 12.92, 1.055 * pow(linear, vec3(1.0 / 2.4)) - 0.055, greaterThan(linear, vec3(0.0031308)));
}

float luminanceOf(vec3 linear)
{
    return dot(linear, vec3(0.2126, 0.7152, 0.0722));
}

void main()
{
    float part = covered();
    if (part < 0.5 / 255.0) {
        discard;
    }
    vec3 own = uniformColor.rgb;
    vec3 under = texelFetch(behind, ivec2(gl_FragCoord.xy), 0).rgb;
    vec3 color = mix(under, own, uniformColor.a);
    vec3 linear = linearOf(under);
    float light = luminanceOf(linear);
    float ratio = (luminanceOf(linearOf(color)) + 0.05) / (light + 0.05);
    if (max(ratio, 1.0 / ratio) < c_contrast) {
        float darker = (light + 0.05) / c_contrast - 0.05;
        float lighter = (light + 0.05) * c_contrast - 0.05;
        bool isDarker = (luminanceOf(linearOf(own)) < light && darker > 0.0) || lighter > 1.0;
        linear = isDarker ? linear * (darker / light) : mix(linear, vec3(1.0), (lighter - light) / (1.0 - light));
        color = storedOf(linear);
    }
    result = vec4(color, part);
}
)";

std::string linesVertexSource()
{
    return std::string(c_vertexInputs) + c_linesStart + c_vertexMain;
}

/// @param colors how lines get their colours, if not by their data
std::string linesFragmentSource(FragmentOutput output, const char* colors)
{
    return withOutput(output, std::string(Material::c_source) + colors + c_coverage + c_fragmentMain);
}

/// From the middle of a pixel to where a line begins to touch it, and to its farthest sample from there.
constexpr float c_fringe = 0.5f;
constexpr float c_sampledFringe = 1.25f;

/// What the lines of this class are blended by, which is part of how they are smooth.
class Blending {
public:
    explicit Blending(FragmentOutput output) : m_wasOn(glIsEnabled(GL_BLEND) == GL_TRUE)
    {
        if (output == FragmentOutput::picture) {
            glEnable(GL_BLEND);
            glBlendFuncSeparate(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA, GL_ONE, GL_ONE_MINUS_SRC_ALPHA);
        }
    }
    ~Blending()
    {
        if (!m_wasOn) {
            glDisable(GL_BLEND);
        }
    }
    Blending(const Blending&) = delete;
    Blending& operator=(const Blending&) = delete;

private:
    bool m_wasOn;
};

} // namespace

struct LinePainter::LineBlock {
    static constexpr const char* c_block = "Line";
    static constexpr GLuint c_binding = 4;

    std::array<float, 16> toClip;
    std::array<float, 2> viewport;
    float lineWidth;
    float reach;
    std::array<float, 2> towardsEye;
    float roundness;
    float fringe;
    float snapping;
    float halfBox;
    std::array<float, 2> unused{};
};

LinePainter::Programs::Programs(FragmentOutput output)
    : dataLines("lines", linesVertexSource().c_str(), linesFragmentSource(output, "").c_str()),
      plainLines("lines of one color", linesVertexSource().c_str(), linesFragmentSource(output, c_oneColor).c_str()),
      parts("the lines of objects",
            (layersDefinition(output) + c_renamed + c_vertexInputs + c_namedAgain + PartRows::c_source + c_partsStart +
             c_vertexMain)
                .c_str(),
            linesFragmentSource(output, c_partColor).c_str())
{
    if (output == FragmentOutput::layers) {
        attachLayers(dataLines);
        attachLayers(plainLines);
        attachLayers(parts);
    }
}

void LinePainter::attach(const Programs& programs) const
{
    for (const GlProgram* program : {&programs.dataLines, &programs.plainLines, &programs.parts}) {
        m_line.attach(*program);
        m_material.attach(*program);
    }
    m_rows.attach(programs.parts);
    PartRows::attachTextures(programs.parts);
}

void LinePainter::setOutput(FragmentOutput output, int numSamples)
{
    m_output = output;
    // The samples of layers are pictures with one sample each, moved by parts of a pixel. Boxes as wide as their
    // distances add up to a pixel.
    m_halfBox = output == FragmentOutput::layers ? 0.5f / static_cast<float>(numSamples) : 0.5f;
    if (output == FragmentOutput::layers && !m_layerPrograms) {
        m_layerPrograms = std::make_unique<Programs>(output);
        attach(*m_layerPrograms);
    }
}

LinePainter::LinePainter()
    : m_shadedProgram(
          "shaded lines", linesVertexSource().c_str(),
          withOutput(FragmentOutput::picture, std::string(Material::c_source) + c_coverage + c_shadedMain).c_str())
{
    attach(m_programs);
    m_line.attach(m_shadedProgram);
    m_material.attach(m_shadedProgram);
    m_shadedProgram.setSampler("behind", SceneCopy::c_unit);
    glBindVertexArray(m_array.name());
    glBindBuffer(GL_ARRAY_BUFFER, m_buffer.name());
    JointedPiece::describe();
    glBindVertexArray(0);
}

void LinePainter::setUp(const GlProgram& program, const Frame& frame, const Material& material, bool isClosed) const
{
    LineBlock block{};
    std::copy_n(frame.toClip.data(), block.toClip.size(), block.toClip.begin());
    block.viewport = {static_cast<float>(frame.width), static_cast<float>(frame.height)};
    block.lineWidth = frame.lineWidth;
    block.reach = isClosed ? 1.0f : 0.0f;
    block.towardsEye = {frame.towardsEye.z, frame.towardsEye.w};
    block.roundness = frame.isRound ? 1.0f : 0.0f;
    block.snapping = frame.isSnapped ? 1.0f : 0.0f;
    GLint samples = 0;
    glGetIntegerv(GL_SAMPLES, &samples);
    block.halfBox = m_halfBox;
    block.fringe = samples > 1 ? c_sampledFringe : c_fringe;
    program.use();
    m_line.set(block);
    m_material.set(material);
}

void LinePainter::draw(std::span<const LineSegment> lines, const Frame& frame, const vxgraphics3d::Color& color) const
{
    const Material material = Material::of(color);
    setUp(programs().plainLines, frame, material, !material.isTranslucent());
    drawPieces(lines);
}

void LinePainter::drawShaded(std::span<const LineSegment> lines, const Frame& frame,
                             const vxgraphics3d::Color& color) const
{
    setUp(m_shadedProgram, frame, Material::of(color), false);
    drawPieces(lines);
}

void LinePainter::drawPieces(std::span<const LineSegment> lines) const
{
    if (lines.empty()) {
        return;
    }
    std::vector<LinePiece> pieces;
    pieces.reserve(lines.size());
    for (const LineSegment& line : lines) {
        pieces.push_back({line.from, line.to});
    }
    const std::vector<JointedPiece> joined = joinRuns(pieces);
    const Blending blending(m_output);
    glBindVertexArray(m_array.name());
    glBindBuffer(GL_ARRAY_BUFFER, m_buffer.name());
    glBufferData(GL_ARRAY_BUFFER, static_cast<GLsizeiptr>(joined.size() * sizeof(JointedPiece)), joined.data(),
                 GL_STREAM_DRAW);
    glDrawArraysInstanced(GL_TRIANGLE_STRIP, 0, 4, static_cast<GLsizei>(joined.size()));
}

void LinePainter::draw(const LineMesh& lines, const Frame& frame, const Material& material) const
{
    const bool isPlain = material.hasTable == 0 && !material.isRestricted();
    setUp(isPlain ? programs().plainLines : programs().dataLines, frame, material, !material.isTranslucent());
    const Blending blending(m_output);
    lines.draw();
}

void LinePainter::draw(const LineMesh& lines, const PartLook& parts, const Frame& frame, const Material& material) const
{
    setUp(programs().parts, frame, material, !material.isTranslucent());
    m_rows.set(parts.rows);
    parts.table.bind();
    const Blending blending(m_output);
    lines.draw();
}

vxgraphics3d::Matrixf pixelsToClip(int width, int height)
{
    vxgraphics3d::Matrixf matrix(vxgraphics3d::Matrixf::MatrixIdentity);
    matrix.translate(-1.0f, 1.0f, 0.0f)
        .scale(2.0f / static_cast<float>(width), -2.0f / static_cast<float>(height), 1.0f);
    return matrix;
}

} // namespace vxrenderer
