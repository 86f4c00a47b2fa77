#pragma once

#include "renderer/text/textmetrics.h"

namespace vxrenderer {

/// A font whose characters are as wide as it is high: 10 pixels, in scripts 7 and 5. A and V move together by 2.
class SquareMetrics : public TextMetrics {
public:
    float fontSize() const override { return 10.0f; }
    float advance(char32_t, const TextStyle& style) override { return sizeOf(style); }
    float kerning(char32_t left, char32_t right, const TextStyle&) override
    {
        return left == U'A' && right == U'V' ? -2.0f : 0.0f;
    }
    float ascent(const TextStyle& style) override { return 0.8f * sizeOf(style); }
    float descent(const TextStyle& style) override { return 0.2f * sizeOf(style); }

private:
    static float sizeOf(const TextStyle& style)
    {
        constexpr float sizes[] = {10.0f, 7.0f, 5.0f};
        return sizes[style.scriptLevel];
    }
};

} // namespace vxrenderer
