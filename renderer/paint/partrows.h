#pragma once

#include <epoxy/gl.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

namespace vxrenderer {

class GlProgram;
class PartTable;
struct PartRange;

/// How the parts of an object look that have a row of the marking table: their faces, lines or points. It is the
/// uniform block `PartRows`; which row a part has is in a `PartTable`.
struct PartRows {
    static constexpr const char* c_block = "PartRows";
    static constexpr GLuint c_binding = 8;
    static constexpr std::size_t c_numRows = 10;
    /// The block, with `int rowOfPart(int part)`, for vertex shaders.
    static const char* const c_source;

    struct Row {
        /// Channels from 0 to 1. Alpha is an opacity, which a flat view does not have.
        std::array<float, 4> color{};
        /// By how much parts are nearer to the eye than their points.
        std::array<float, 2> towardsEye{};
        /// Width of lines or size of points, in pixels of the picture.
        float size = 0.0f;
        std::int32_t isVisible = 0;
    };
    std::array<Row, c_numRows> rows{};
    /// For faces with an image: a point that has its corner, and its repetitions for each unit of length.
    std::array<float, 4> imagePlace{};

    bool hasVisible() const
    {
        return std::ranges::any_of(rows, [](const Row& row) { return row.isVisible != 0; });
    }

    /// Lets a program read the table of parts, and images of materials if it uses them. Changes the program in use.
    static void attachTextures(const GlProgram& program);
};
static_assert(sizeof(PartRows::Row) == 32 && offsetof(PartRows::Row, towardsEye) == 16 &&
              offsetof(PartRows::Row, isVisible) == 28);

/// How the parts of an object are drawn, and which.
struct PartLook {
    const PartTable& table;
    const PartRows& rows;
    /// Of faces those that are drawn; of lines and points all are.
    std::span<const PartRange> ranges{};
    /// Whether faces that are not marked show the image that is bound.
    bool isTextured = false;
};

} // namespace vxrenderer
