#pragma once

#include <cstdint>
#include <vector>

namespace vxrenderer {

/// Reduces a picture to the means of squares of its pixels, rounded to the nearest. An area of one colour keeps it.
///
/// The mean is that of the encoded values, as where samples of a pixel are resolved and where texts are blended: lines
/// and letters look as heavy as in a picture that is not reduced.
/// @param pixels of four channels; their number of columns and of rows is a multiple of `factor`
/// @param width of the result, in pixels
/// @param factor the side of a square, in pixels
std::vector<std::uint8_t> reduced(const std::vector<std::uint8_t>& pixels, int width, int factor);

} // namespace vxrenderer
