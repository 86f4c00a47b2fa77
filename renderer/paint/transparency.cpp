#include "renderer/paint/transparency.h"

#include "renderer/frame/view.h"
#include "renderer/gl/target.h"
#include "renderer/paint/layeroutput.h"

#include <algorithm>
#include <stdexcept>
#include <string>

namespace vxrenderer {
namespace {

/// The steps of `layeroutput.cpp`: the depth of the first layer is searched; a layer is added up and the next one is
/// searched; what lies behind the layers is added up; everything is.
enum Step : int { StepFirst, StepLayer, StepRest, StepAll };

/// Pixels of the buffers; larger pictures are mixed in bands of them. One takes 56 bytes.
constexpr int c_mostPixels = 1 << 21;

/// Layers are peeled off as long as they have more pixels than one of this number.
constexpr int c_fewPixels = 1000;

constexpr GLint c_coverUnit = 7;
/// The depths of the scene are read where no layer is.
constexpr GLint c_depthUnit = LayersBlock::c_layerUnit;

constexpr const char* c_quadMain = R"(
void main()
{
    gl_Position = vec4(gl_VertexID == 1 ? 3.0 : -1.0, gl_VertexID == 2 ? 3.0 : -1.0, 0.0, 1.0);
}
)";

constexpr const char* c_block = R"(
layout(std140) uniform Layers {
    vec4 depthRows;
    vec2 depthPlanes;
    ivec2 layersOrigin;
    int layersSample;
    int layersStep;
};
)";

constexpr const char* c_depthMain = R"(
uniform sampler2D depths;
out float limit;

void main()
{
    limit = 1.0 - texelFetch(depths, ivec2(gl_FragCoord.xy) + layersOrigin, 0).r;
}
)";

constexpr const char* c_multisampledDepthMain = R"(
uniform sampler2DMS depths;
out float limit;

void main()
{
    limit = 1.0 - texelFetch(depths, ivec2(gl_FragCoord.xy) + layersOrigin, layersSample).r;
}
)";

constexpr const char* c_layerInputs = R"(
uniform sampler2D formerLayer;
uniform sampler2D formerCover;
out vec4 result;
)";

// For each pixel in which a layer follows, a depth a little before it: what is in front of that is mixed already, and
// need not be looked at again.
constexpr const char* c_nextMain = R"(
void main()
{
    float nearness = texelFetch(formerLayer, ivec2(gl_FragCoord.xy), 0).a;
    if (nearness == 0.0) {
        discard;
    }
    gl_FragDepth = 1.0 - nearness - 1.0 / 1048576.0;
}
)";

// The colour that a layer adds, and what it lets through.
constexpr const char* c_layerMain = R"(
void main()
{
    vec3 color = texelFetch(formerLayer, ivec2(gl_FragCoord.xy), 0).rgb;
    vec2 sums = texelFetch(formerCover, ivec2(gl_FragCoord.xy), 0).rg;
    if (sums.x == 0.0) {
        discard;
    }
    result = vec4(color / sums.y, 1.0 - sums.x / sums.y);
}
)";

constexpr const char* c_tailMain = R"(
void main()
{
    vec3 color = texelFetch(formerLayer, ivec2(gl_FragCoord.xy), 0).rgb;
    vec2 sums = texelFetch(formerCover, ivec2(gl_FragCoord.xy), 0).rg;
    if (sums.x == 0.0) {
        discard;
    }
    float through = exp2(-sums.y);
    result = vec4(color / sums.x * (1.0 - through), through);
}
)";

// All layers over the scene.
constexpr const char* c_coverMain = R"(
void main()
{
    vec4 mixed = texelFetch(formerLayer, ivec2(gl_FragCoord.xy) - layersOrigin, 0);
    if (mixed.a == 1.0) {
        discard;
    }
    result = vec4(mixed.rgb, 1.0 - mixed.a);
}
)";

void bindTexture(GLint unit, GLenum kind, GLuint texture)
{
    glActiveTexture(GL_TEXTURE0 + static_cast<GLenum>(unit));
    glBindTexture(kind, texture);
    glActiveTexture(GL_TEXTURE0);
}

void attachTexture(const GlTexture& texture, GLenum point, GLenum format, int width, int height)
{
    bindTexture(LayersBlock::c_layerUnit, GL_TEXTURE_2D, texture.name());
    glActiveTexture(GL_TEXTURE0 + static_cast<GLenum>(LayersBlock::c_layerUnit));
    const GLenum channels = format == GL_R32F ? GL_RED : format == GL_RG32F ? GL_RG : GL_RGBA;
    glTexImage2D(GL_TEXTURE_2D, 0, static_cast<GLint>(format), width, height, 0, channels, GL_FLOAT, nullptr);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_NEAREST);
    glActiveTexture(GL_TEXTURE0);
    glFramebufferTexture2D(GL_FRAMEBUFFER, point, GL_TEXTURE_2D, texture.name(), 0);
}

void requireComplete()
{
    if (glCheckFramebufferStatus(GL_FRAMEBUFFER) != GL_FRAMEBUFFER_COMPLETE) {
        throw std::runtime_error("The driver does not give the layers of what is translucent.");
    }
}

/// Where a sample is in its pixel, from its lower left corner.
std::array<float, 2> positionOf(int sample, int numSamples)
{
    std::array<float, 2> position = {0.5f, 0.5f};
    if (numSamples > 1) {
        glGetMultisamplefv(GL_SAMPLE_POSITION, static_cast<GLuint>(sample), position.data());
    }
    return position;
}

/// A view whose pixels have their middle where those of another have a sample.
View shifted(View view, const std::array<float, 2>& position)
{
    const std::array<float, 2> shift = {
        2.0f * (0.5f - position[0]) / static_cast<float>(view.area.width),
        2.0f * (0.5f - position[1]) / static_cast<float>(view.area.height),
    };
    for (int row = 1; row <= 2; ++row) {
        for (int column = 1; column <= 4; ++column) {
            view.projection.set(row, column,
                                view.projection.get(row, column) +
                                    shift[static_cast<std::size_t>(row - 1)] * view.projection.get(4, column));
        }
    }
    return view;
}

LayersBlock blockOf(const View& view)
{
    LayersBlock block;
    const auto at = [&](int row, int column) { return view.projection.get(row, column); };
    block.depthRows = {at(3, 3), at(3, 4), at(4, 3), at(4, 4)};
    const auto eyeDepthOf = [&](float z) { return (at(3, 4) - z * at(4, 4)) / (z * at(4, 3) - at(3, 3)); };
    block.planes = {eyeDepthOf(-1.0f), eyeDepthOf(1.0f)};
    return block;
}

} // namespace

/// What the layers of a part of the picture are found with. Two passes take turns: one adds up a layer, whose depth the
/// other has found.
struct Transparency::Buffers {
    Buffers(int bufferWidth, int bufferHeight) : width(bufferWidth), height(bufferHeight)
    {
        glBindRenderbuffer(GL_RENDERBUFFER, depth.name());
        glRenderbufferStorage(GL_RENDERBUFFER, GL_DEPTH_COMPONENT32F, width, height);
        for (std::size_t i = 0; i < 2; ++i) {
            glBindFramebuffer(GL_FRAMEBUFFER, passes[i].name());
            attachTexture(layers[i], GL_COLOR_ATTACHMENT0, GL_RGBA32F, width, height);
            attachTexture(covers, GL_COLOR_ATTACHMENT1, GL_RG32F, width, height);
            glFramebufferRenderbuffer(GL_FRAMEBUFFER, GL_DEPTH_ATTACHMENT, GL_RENDERBUFFER, depth.name());
            constexpr std::array<GLenum, 2> c_points = {GL_COLOR_ATTACHMENT0, GL_COLOR_ATTACHMENT1};
            glDrawBuffers(static_cast<GLsizei>(c_points.size()), c_points.data());
            requireComplete();
        }
        glBindFramebuffer(GL_FRAMEBUFFER, mixing.name());
        attachTexture(mixed, GL_COLOR_ATTACHMENT0, GL_RGBA16F, width, height);
        glFramebufferRenderbuffer(GL_FRAMEBUFFER, GL_DEPTH_ATTACHMENT, GL_RENDERBUFFER, depth.name());
        requireComplete();
        glBindFramebuffer(GL_FRAMEBUFFER, limiting.name());
        attachTexture(limits, GL_COLOR_ATTACHMENT0, GL_R32F, width, height);
        requireComplete();
    }

    int width;
    int height;
    std::array<GlFramebuffer, 2> passes;
    std::array<GlTexture, 2> layers;
    GlTexture covers;
    /// A little before the layer that is added up.
    GlRenderbuffer depth;
    GlFramebuffer mixing;
    GlTexture mixed;
    GlFramebuffer limiting;
    GlTexture limits;
};

/// Some rows of the area of the scene, and one sample of their pixels.
struct Transparency::Band {
    /// Shifted by the position of the sample.
    const View& view;
    /// From the lowest row of the area.
    int firstRow;
    int height;
    bool isMultisampled;
    LayersBlock block;
};

Transparency::Transparency()
    : m_depthProgram("depths", c_quadMain, (std::string(c_block) + c_depthMain).c_str()),
      m_multisampledDepthProgram("depths of samples", c_quadMain,
                                 (std::string(c_block) + c_multisampledDepthMain).c_str()),
      m_nextProgram("the search for layers", c_quadMain, (std::string(c_layerInputs) + c_nextMain).c_str()),
      m_layerProgram("layers", c_quadMain, (std::string(c_layerInputs) + c_layerMain).c_str()),
      m_tailProgram("what is behind layers", c_quadMain, (std::string(c_layerInputs) + c_tailMain).c_str()),
      m_coverProgram("mixed layers", c_quadMain, (std::string(c_block) + c_layerInputs + c_coverMain).c_str())
{
    for (const GlProgram* program : {&m_depthProgram, &m_multisampledDepthProgram, &m_coverProgram}) {
        m_block.attach(*program);
    }
    m_depthProgram.setSampler("depths", c_depthUnit);
    m_multisampledDepthProgram.setSampler("depths", c_depthUnit);
    for (const GlProgram* program : {&m_nextProgram, &m_layerProgram, &m_tailProgram, &m_coverProgram}) {
        program->setSampler("formerLayer", LayersBlock::c_layerUnit);
        program->setSampler("formerCover", c_coverUnit);
    }
}

Transparency::~Transparency() = default;

void Transparency::release()
{
    m_buffers.reset();
}

void Transparency::draw(const Target& target, const View& view, int numLayers, const Draw& draw)
{
    const int width = view.area.width;
    const int bandHeight = std::min(view.area.height, std::max(1, c_mostPixels / width));
    if (!m_buffers || m_buffers->width != width || m_buffers->height != bandHeight) {
        m_buffers.reset();
        m_buffers = std::make_unique<Buffers>(width, bandHeight);
    }
    const int bottom = target.getHeight() - view.area.y - view.area.height;
    const int numSamples = target.getSamples();
    LayersBlock block = blockOf(view);
    glDisable(GL_SCISSOR_TEST);
    for (int first = 0; first < view.area.height; first += bandHeight) {
        const int height = std::min(bandHeight, view.area.height - first);
        block.origin = {view.area.x, bottom + first};
        for (block.sample = 0; block.sample < numSamples; ++block.sample) {
            target.bindScene();
            const View sampleView = shifted(view, positionOf(block.sample, numSamples));
            bindTexture(c_depthUnit, numSamples > 1 ? GL_TEXTURE_2D_MULTISAMPLE : GL_TEXTURE_2D,
                        target.getDepths().name());
            drawSample({sampleView, first, height, numSamples > 1, block}, numLayers, draw);

            target.bindScene();
            glViewport(view.area.x, bottom + first, width, height);
            glEnable(GL_BLEND);
            glBlendEquation(GL_FUNC_ADD);
            glBlendFunc(GL_ONE, GL_ONE_MINUS_SRC_ALPHA);
            if (numSamples > 1) {
                glEnable(GL_SAMPLE_MASK);
                glSampleMaski(0, GLbitfield{1} << block.sample);
            }
            bindTexture(LayersBlock::c_layerUnit, GL_TEXTURE_2D, m_buffers->mixed.name());
            m_block.set(block);
            drawQuad(m_coverProgram);
            glDisable(GL_SAMPLE_MASK);
            glDisable(GL_BLEND);
        }
    }
    glViewport(view.area.x, bottom, width, view.area.height);
    glEnable(GL_SCISSOR_TEST);
    glEnable(GL_DEPTH_TEST);
    glDepthMask(GL_TRUE);
    glDepthFunc(GL_LEQUAL);
}

void Transparency::drawSample(const Band& band, int numLayers, const Draw& draw) const
{
    glViewport(0, 0, band.view.area.width, band.height);
    glDisable(GL_BLEND);
    glDisable(GL_DEPTH_TEST);
    m_block.set(band.block);
    glBindFramebuffer(GL_FRAMEBUFFER, m_buffers->limiting.name());
    drawQuad(band.isMultisampled ? m_multisampledDepthProgram : m_depthProgram);
    glBindFramebuffer(GL_FRAMEBUFFER, m_buffers->mixing.name());
    const std::array<float, 4> nothing = {0.0f, 0.0f, 0.0f, 1.0f};
    glClearBufferfv(GL_COLOR, 0, nothing.data());
    const float nearest = 0.0f;
    glDepthMask(GL_TRUE);
    glClearBufferfv(GL_DEPTH, 0, &nearest);
    bindTexture(LayersBlock::c_limitUnit, GL_TEXTURE_2D, m_buffers->limits.name());

    if (numLayers < 1) {
        drawPass(band, 0, StepAll, draw);
        merge(0, true);
        return;
    }
    const int few = band.view.area.width * band.height / c_fewPixels;
    drawPass(band, 0, StepFirst, draw);
    int pass = 0;
    int numNext = countNextLayer(pass);
    while (pass < numLayers && (numNext > few || (pass == 0 && numNext > 0))) {
        drawPass(band, ++pass, StepLayer, draw);
        merge(pass, false);
        numNext = countNextLayer(pass);
    }
    if (numNext > 0) {
        drawPass(band, ++pass, StepRest, draw);
        merge(pass, true);
    }
}

void Transparency::drawPass(const Band& band, int pass, int step, const Draw& draw) const
{
    glBindFramebuffer(GL_FRAMEBUFFER, m_buffers->passes[static_cast<std::size_t>(pass % 2)].name());
    const std::array<float, 4> nothing{};
    glClearBufferfv(GL_COLOR, 0, nothing.data());
    glClearBufferfv(GL_COLOR, 1, nothing.data());
    // The area may be larger than the band: what is outside of it is cut off.
    glViewport(0, -band.firstRow, band.view.area.width, band.view.area.height);
    glEnable(GL_DEPTH_TEST);
    glDepthMask(GL_FALSE);
    glDepthFunc(GL_GEQUAL);
    glEnable(GL_BLEND);
    glBlendEquationSeparate(GL_FUNC_ADD, GL_MAX);
    glBlendFunc(GL_ONE, GL_ONE);
    bindTexture(LayersBlock::c_layerUnit, GL_TEXTURE_2D,
                m_buffers->layers[static_cast<std::size_t>((pass + 1) % 2)].name());
    LayersBlock block = band.block;
    block.step = step;
    m_block.set(block);
    draw(band.view);
    glBlendEquation(GL_FUNC_ADD);
    glDisable(GL_BLEND);
    glDisable(GL_DEPTH_TEST);
    glViewport(0, 0, band.view.area.width, band.height);
}

int Transparency::countNextLayer(int pass) const
{
    glBindFramebuffer(GL_FRAMEBUFFER, m_buffers->mixing.name());
    bindTexture(LayersBlock::c_layerUnit, GL_TEXTURE_2D, m_buffers->layers[static_cast<std::size_t>(pass % 2)].name());
    glEnable(GL_DEPTH_TEST);
    glDepthMask(GL_TRUE);
    glDepthFunc(GL_ALWAYS);
    glColorMask(GL_FALSE, GL_FALSE, GL_FALSE, GL_FALSE);
    // Where no layer follows, nothing can be behind this.
    const float farthest = 1.0f;
    glClearBufferfv(GL_DEPTH, 0, &farthest);
    const GlQuery query;
    glBeginQuery(GL_SAMPLES_PASSED, query.name());
    drawQuad(m_nextProgram);
    glEndQuery(GL_SAMPLES_PASSED);
    glColorMask(GL_TRUE, GL_TRUE, GL_TRUE, GL_TRUE);
    glDisable(GL_DEPTH_TEST);
    GLuint count = 0;
    glGetQueryObjectuiv(query.name(), GL_QUERY_RESULT, &count);
    return static_cast<int>(count);
}

void Transparency::merge(int pass, bool isTail) const
{
    glBindFramebuffer(GL_FRAMEBUFFER, m_buffers->mixing.name());
    bindTexture(LayersBlock::c_layerUnit, GL_TEXTURE_2D, m_buffers->layers[static_cast<std::size_t>(pass % 2)].name());
    bindTexture(c_coverUnit, GL_TEXTURE_2D, m_buffers->covers.name());
    glEnable(GL_BLEND);
    // Colours count as far as the layers in front let them through.
    glBlendFuncSeparate(GL_DST_ALPHA, GL_ONE, GL_ZERO, GL_SRC_ALPHA);
    drawQuad(isTail ? m_tailProgram : m_layerProgram);
    glDisable(GL_BLEND);
}

void Transparency::drawQuad(const GlProgram& program) const
{
    program.use();
    glBindVertexArray(m_array.name());
    glDrawArrays(GL_TRIANGLES, 0, 3);
}

} // namespace vxrenderer
