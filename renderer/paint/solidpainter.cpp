#include "renderer/paint/solidpainter.h"

#include "renderer/paint/material.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <numbers>
#include <string>
#include <vector>

namespace vxrenderer {
namespace {

using vxgraphics3d::Vector3f;

constexpr const char* c_block = R"(
layout(std140) uniform Solid {
    mat4 toClip;
};
)";

constexpr const char* c_vertexMain = R"(
layout(location = 0) in vec3 position;
layout(location = 1) in vec3 normal;
layout(location = 2) in vec3 color;
out vec3 direction;
out vec3 ownColor;

void main()
{
    direction = normal;
    ownColor = color;
    gl_Position = toClip * vec4(position, 1.0);
}
)";

constexpr const char* c_fragmentMain = R"(
in vec3 direction;
in vec3 ownColor;
out vec4 result;

void main()
{
    const vec3 toLight = vec3(-0.38, 0.54, 0.75);
    const vec3 halfway = vec3(-0.203, 0.289, 0.936);
    vec3 normal = normalize(direction);
    float lit = 0.45 + 0.55 * max(dot(normal, toLight), 0.0);
    float shine = 0.35 * pow(max(dot(normal, halfway), 0.0), 24.0);
    result = vec4(mix(ownColor * lit, vec3(1.0), shine), 1.0);
}
)";

/// Sides of what is round.
constexpr int c_sides = 32;
constexpr int c_rings = 12;

} // namespace

vxgraphics3d::Color litColor(const vxgraphics3d::Color& color, const Vector3f& normal)
{
    // As in the shader, which repeats the light.
    const float lit = 0.45f + 0.55f * std::max(normal.dot(c_signLight), 0.0f);
    const float shine = 0.35f * std::pow(std::max(normal.dot(Vector3f(-0.203f, 0.289f, 0.936f)), 0.0f), 24.0f);
    const auto channel = [&](int own) {
        return std::clamp(static_cast<int>(std::lround(std::lerp(static_cast<float>(own) * lit, 255.0f, shine))), 0,
                          255);
    };
    return {channel(color.red), channel(color.green), channel(color.blue), 255};
}

struct SolidPainter::SolidBlock {
    static constexpr const char* c_block = "Solid";
    static constexpr GLuint c_binding = 9;

    std::array<float, 16> toClip;
};

struct SolidPainter::Vertex {
    Vector3f position;
    Vector3f normal;
    std::array<float, 3> color;
};

namespace {

/// Collects the triangles of bodies, counter-clockwise from outside.
template <class Vertex>
class Triangles {
public:
    void add(const Solid& solid)
    {
        const std::array<float, 4> channels = channelsOf(solid.color);
        m_color = {channels[0], channels[1], channels[2]};
        if (solid.shape == Solid::Shape::ball) {
            addBall(solid);
        } else {
            addPointed(solid);
        }
    }

    const std::vector<Vertex>& get() const { return m_vertices; }

private:
    void corner(const Vector3f& position, const Vector3f& normal) { m_vertices.push_back({position, normal, m_color}); }

    void addBall(const Solid& ball)
    {
        const auto direction = [](int ring, int side) {
            const float polar = std::numbers::pi_v<float> * static_cast<float>(ring) / c_rings;
            const float turn = 2.0f * std::numbers::pi_v<float> * static_cast<float>(side) / c_sides;
            return Vector3f(std::sin(polar) * std::cos(turn), std::sin(polar) * std::sin(turn), std::cos(polar));
        };
        const auto at = [&](int ring, int side) {
            const Vector3f normal = direction(ring, side);
            corner(ball.from + normal * ball.radius, normal);
        };
        for (int ring = 0; ring < c_rings; ++ring) {
            for (int side = 0; side < c_sides; ++side) {
                at(ring, side), at(ring + 1, side), at(ring + 1, side + 1);
                at(ring, side), at(ring + 1, side + 1), at(ring, side + 1);
            }
        }
    }

    void addPointed(const Solid& solid)
    {
        const Vector3f whole = solid.to - solid.from;
        const float length = whole.length();
        if (!(length > 0.0f)) {
            return;
        }
        const Vector3f axis = whole * (1.0f / length);
        const Vector3f first = axis.orthogonal();
        const Vector3f second = axis.cross(first);
        const bool isCone = solid.shape == Solid::Shape::cone;
        const auto outwards = [&](int side) {
            const float turn = 2.0f * std::numbers::pi_v<float> * static_cast<float>(side) / c_sides;
            return first * std::cos(turn) + second * std::sin(turn);
        };
        const auto slanted = [&](const Vector3f& out) {
            return isCone ? (out * length + axis * solid.radius).normalized() : out;
        };
        for (int side = 0; side < c_sides; ++side) {
            const Vector3f here = outwards(side);
            const Vector3f next = outwards(side + 1);
            const Vector3f low = solid.from + here * solid.radius;
            const Vector3f lowNext = solid.from + next * solid.radius;
            const Vector3f high = isCone ? solid.to : solid.to + here * solid.radius;
            const Vector3f highNext = isCone ? solid.to : solid.to + next * solid.radius;
            corner(low, slanted(here)), corner(lowNext, slanted(next)), corner(highNext, slanted(next));
            corner(low, slanted(here)), corner(highNext, slanted(next)), corner(high, slanted(here));
            corner(solid.from, -axis), corner(lowNext, -axis), corner(low, -axis);
            if (!isCone) {
                corner(solid.to, axis), corner(high, axis), corner(highNext, axis);
            }
        }
    }

    std::vector<Vertex> m_vertices;
    std::array<float, 3> m_color{};
};

} // namespace

SolidPainter::SolidPainter() : m_program("solids", (std::string(c_block) + c_vertexMain).c_str(), c_fragmentMain)
{
    m_block.attach(m_program);
    glBindVertexArray(m_array.name());
    glBindBuffer(GL_ARRAY_BUFFER, m_buffer.name());
    const auto attribute = [](GLuint location, std::ptrdiff_t offset) {
        glEnableVertexAttribArray(location);
        glVertexAttribPointer(location, 3, GL_FLOAT, GL_FALSE, sizeof(Vertex), offsetPointer(offset));
    };
    attribute(0, offsetof(Vertex, position));
    attribute(1, offsetof(Vertex, normal));
    attribute(2, offsetof(Vertex, color));
    glBindVertexArray(0);
}

void SolidPainter::draw(std::span<const Solid> solids, const vxgraphics3d::Matrixf& toClip) const
{
    Triangles<Vertex> triangles;
    for (const Solid& solid : solids) {
        triangles.add(solid);
    }
    if (triangles.get().empty()) {
        return;
    }
    SolidBlock block{};
    std::copy_n(toClip.data(), block.toClip.size(), block.toClip.begin());
    m_program.use();
    m_block.set(block);
    glBindVertexArray(m_array.name());
    glBindBuffer(GL_ARRAY_BUFFER, m_buffer.name());
    glBufferData(GL_ARRAY_BUFFER, static_cast<GLsizeiptr>(triangles.get().size() * sizeof(Vertex)),
                 triangles.get().data(), GL_STREAM_DRAW);
    glEnable(GL_CULL_FACE);
    glDrawArrays(GL_TRIANGLES, 0, static_cast<GLsizei>(triangles.get().size()));
    glDisable(GL_CULL_FACE);
}

} // namespace vxrenderer
