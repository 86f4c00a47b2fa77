#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace vxrenderer {

/// Completes an SVG file that the vector library wrote: adds its texts, and replaces the numbers in the names of its
/// elements, which count all that the process has drawn, by those within the file.
/// @param title,creator UTF-8; empty ones are left out
std::vector<std::uint8_t> completeSvg(const std::vector<std::uint8_t>& file, const std::string& title,
                                      const std::string& creator);

} // namespace vxrenderer
