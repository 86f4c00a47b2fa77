#pragma once

#include "renderer/gl/globject.h"

#include <cstdint>
#include <span>
#include <vector>

namespace vxrenderer {

/// How each part of an object looks, on the graphics hardware: a byte per part, the number of its row in the marking
/// table. Shaders look it up by the number of the part that each vertex has. So marks change without another upload of
/// vertices, and all parts are drawn at once.
class PartTable {
public:
    /// The texture unit that shaders read it from.
    static constexpr GLint c_unit = 2;
    /// The table is a texture with rows of this many texels.
    static constexpr int c_width = 1024;

    /// Replaces all rows, if they differ from those set before.
    /// @return whether they did
    /// @throws std::runtime_error if there are more parts than the driver allows, at least a million
    bool set(std::span<const std::uint8_t> rows);
    /// Lets shaders read it.
    void bind() const;

private:
    GlTexture m_texture;
    std::vector<std::uint8_t> m_rows;
};

} // namespace vxrenderer
