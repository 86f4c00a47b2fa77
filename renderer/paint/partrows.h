#pragma once

#include "graphics3d/foundation/color.h"
#include "renderer/frame/view.h"

#include <epoxy/gl.h>

#include <array>
#include <cstddef>
#include <cstdint>

namespace vxrenderer {

class GlProgram;

/// How the parts of an object look that have a row of the marking table: their faces, lines or points. It is the
/// uniform block `PartRows`; which row a part has is in a `PartTable`.
struct PartRows {
    static constexpr const char* c_block = "PartRows";
    static constexpr GLuint c_binding = 7;
    static constexpr std::size_t c_numRows = 10;
    /// The block, with `PartRow partRow(int part)`, for vertex shaders.
    static const char* const c_source;

    struct Row {
        /// Channels from 0 to 1; alpha is not used.
        std::array<float, 4> color{};
        /// By how much parts are nearer to the eye than their points.
        std::array<float, 2> towardsEye{};
        /// Width of lines or size of points, in pixels of the picture.
        float size = 0.0f;
        std::int32_t isVisible = 0;
    };
    std::array<Row, c_numRows> rows{};

    /// Lets a program read the table of parts. Changes the program in use.
    static void attachTable(const GlProgram& program);
};
static_assert(sizeof(PartRows::Row) == 32 && offsetof(PartRows::Row, towardsEye) == 16 &&
              offsetof(PartRows::Row, isVisible) == 28);

} // namespace vxrenderer
