#pragma once

namespace vxrenderer {

/// How a character of a laid out text looks, relative to the font that the text is set in.
struct TextStyle {
    /// 0 for normal text, 1 for an index or exponent, 2 for one within it; deeper ones stay at 2.
    int scriptLevel = 0;
    /// Height of the baseline above that of the line, in units of the normal font size.
    float rise = 0.0f;
    bool bold = false;
    bool italic = false;

    bool operator==(const TextStyle&) const = default;
};

/// Size of an index or exponent of each level, relative to normal text.
inline constexpr float c_scriptSizes[3] = {1.0f, 0.72f, 0.56f};

} // namespace vxrenderer
