#pragma once

#include <algorithm>

namespace vxrenderer {

/// The size of the symbols of a line, in pixels of the screen like its width.
inline float symbolSize(float lineWidth)
{
    return 7.0f + 2.0f * std::max(lineWidth, 0.0f);
}

} // namespace vxrenderer
