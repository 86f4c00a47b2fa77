#include "renderer/paint/backgroundpainter.h"

#include "graphics3d/canvas/canvasbackgroundimage.h"
#include "graphics3d/foundation/image.h"
#include "renderer/paint/material.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <string>

namespace vxrenderer {
namespace {

using vxgraphics3d::CanvasBackgroundImage;
using vxgraphics3d::Image;

// Corners are clip coordinates; the position between them runs from 0 at the top left to 1 at the bottom right.
constexpr const char* c_block = R"(
layout(std140) uniform Background {
    vec4 corners;
    vec4 topColor;
    vec4 bottomColor;
    vec2 imagePart;
};
)";

constexpr const char* c_vertexMain = R"(
out vec2 place;

void main()
{
    place = vec2(gl_VertexID & 1, gl_VertexID >> 1);
    gl_Position = vec4(mix(corners.xy, corners.zw, place), 0.0, 1.0);
}
)";

constexpr const char* c_colorsMain = R"(
in vec2 place;
out vec4 result;

void main()
{
    result = mix(topColor, bottomColor, place.y);
}
)";

// Colours between two texels at the rim of the image must not take in the empty part of the texture beyond it.
constexpr const char* c_imageMain = R"(
uniform sampler2D image;
in vec2 place;
out vec4 result;

void main()
{
    vec2 texel = 1.0 / vec2(textureSize(image, 0));
    result = texture(image, clamp(place * imagePart, 0.5 * texel, imagePart - 0.5 * texel));
}
)";

/// Copies the levels of an image that the driver takes to the texture that is bound.
void load(const CanvasBackgroundImage& image)
{
    GLint largest = 0;
    glGetIntegerv(GL_MAX_TEXTURE_SIZE, &largest);
    const auto sideOf = [&](int level) {
        const Image& pixels = *image.getImage(level);
        return std::max(pixels.getWidth(), pixels.getHeight());
    };
    int first = image.getMinLevel();
    while (first < image.getMaxLevel() && sideOf(first) > largest) {
        ++first;
    }
    for (int level = first; level <= image.getMaxLevel(); ++level) {
        const Image& pixels = *image.getImage(level);
        glTexImage2D(GL_TEXTURE_2D, level - first, GL_RGBA8, pixels.getWidth(), pixels.getHeight(), 0, GL_RGBA,
                     GL_UNSIGNED_INT_8_8_8_8, pixels.getData());
    }
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAX_LEVEL, image.getMaxLevel() - first);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_LINEAR_MIPMAP_NEAREST);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_LINEAR);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, GL_CLAMP_TO_EDGE);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, GL_CLAMP_TO_EDGE);
}

} // namespace

struct BackgroundPainter::BackgroundBlock {
    static constexpr const char* c_block = "Background";
    static constexpr GLuint c_binding = 5;

    std::array<float, 4> corners{-1.0f, 1.0f, 1.0f, -1.0f};
    std::array<float, 4> topColor{};
    std::array<float, 4> bottomColor{};
    std::array<float, 2> imagePart{};
    std::array<float, 2> unused{};
};

BackgroundPainter::BackgroundPainter()
    : m_colors("the background", (std::string(c_block) + c_vertexMain).c_str(),
               (std::string(c_block) + c_colorsMain).c_str()),
      m_image("the image of the background", (std::string(c_block) + c_vertexMain).c_str(),
              (std::string(c_block) + c_imageMain).c_str())
{
    m_block.attach(m_colors);
    m_block.attach(m_image);
}

void BackgroundPainter::draw(const Appearance::Backdrop& backdrop, int width, int height, float scale) const
{
    glDisable(GL_DEPTH_TEST);
    glDisable(GL_BLEND);
    glBindVertexArray(m_array.name());
    const std::array<float, 4> top = channelsOf(backdrop.top);
    if (backdrop.top == backdrop.bottom) {
        // Far cheaper than a rectangle where the processor draws.
        glClearColor(top[0], top[1], top[2], top[3]);
        glClear(GL_COLOR_BUFFER_BIT);
    } else {
        m_colors.use();
        m_block.set({.topColor = top, .bottomColor = channelsOf(backdrop.bottom)});
        glDrawArrays(GL_TRIANGLE_STRIP, 0, 4);
    }
    const CanvasBackgroundImage* image = backdrop.image.get();
    if (image != nullptr && image->wasImageSet() && image->getImage(image->getMinLevel()) != nullptr) {
        drawImage(backdrop, width, height, scale);
    }
}

void BackgroundPainter::drawImage(const Appearance::Backdrop& backdrop, int width, int height, float scale) const
{
    const CanvasBackgroundImage& image = *backdrop.image;
    const Image& pixels = *image.getImage(image.getMinLevel());
    glActiveTexture(GL_TEXTURE0);
    glBindTexture(GL_TEXTURE_2D, m_texture.name());
    // An image has no change number, so the one that was loaded for the last frame may differ.
    load(image);

    // Half as many pixels come with half the scale and take the same space. An image without a scale counts as one of
    // screen size.
    const float density = pixels.getScale() > 0.0f && std::isfinite(pixels.getScale()) ? pixels.getScale() : 1.0f;
    const auto sideOf = [&](int size, float part) {
        return std::round(static_cast<float>(size) * part) * scale / density;
    };
    const float imageWidth = sideOf(pixels.getWidth(), image.getWidthFraction());
    const float imageHeight = sideOf(pixels.getHeight(), image.getHeightFraction());
    const auto startOf = [](float room, float size, int position) {
        return std::round(0.5f * static_cast<float>(position) * (room - size));
    };
    const float left = startOf(static_cast<float>(width), imageWidth, backdrop.horizontal);
    const float top = startOf(static_cast<float>(height), imageHeight, backdrop.vertical);
    const auto clipX = [&](float x) { return 2.0f * x / static_cast<float>(width) - 1.0f; };
    const auto clipY = [&](float y) { return 1.0f - 2.0f * y / static_cast<float>(height); };

    glEnable(GL_BLEND);
    glBlendFuncSeparate(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA, GL_ONE, GL_ONE_MINUS_SRC_ALPHA);
    m_image.use();
    m_block.set({.corners = {clipX(left), clipY(top), clipX(left + imageWidth), clipY(top + imageHeight)},
                 .imagePart = {image.getWidthFraction(), image.getHeightFraction()}});
    glDrawArrays(GL_TRIANGLE_STRIP, 0, 4);
    glDisable(GL_BLEND);
}

} // namespace vxrenderer
