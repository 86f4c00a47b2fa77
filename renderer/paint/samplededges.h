#pragma once

#include <epoxy/gl.h>

#include <array>

namespace vxrenderer {

/// Where the samples of a pixel are, for shaders that draw edges across triangles with as many steps as those of their
/// borders: where a restriction begins to hide values, and where a colour table jumps. It is the uniform block
/// `Samples`.
///
/// Values at the samples follow from the one at the middle of the pixel and its slope, which are not `centroid`. At a
/// sample that a triangle covers this is a value of the triangle, also where the middle of the pixel is outside of it,
/// so that no sample is lost where triangles meet.
struct SampledEdges {
    static constexpr const char* c_block = "Samples";
    static constexpr GLuint c_binding = 12;
    static constexpr int c_mostSamples = 16;
    /// The block, with `float atSample(float middle, int i)`, for fragment shaders with the constant `c_numSamples`.
    static const char* const c_source;

    /// From the middle of a pixel to two samples each, in pixels.
    std::array<std::array<float, 4>, c_mostSamples / 2> places{};

    /// The samples of the framebuffer that is bound.
    static SampledEdges of(int numSamples);
};

} // namespace vxrenderer
