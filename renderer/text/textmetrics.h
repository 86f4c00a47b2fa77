#pragma once

#include "renderer/text/textstyle.h"

namespace vxrenderer {

/// What the layout of a text has to know of its font, in pixels.
class TextMetrics {
public:
    virtual ~TextMetrics() = default;

    /// Size of normal text, the unit of `TextStyle::rise`.
    virtual float fontSize() const = 0;
    /// How far the pen moves on after a character.
    virtual float advance(char32_t character, const TextStyle& style) = 0;
    /// What the pen moves additionally between two neighbours of one style.
    virtual float kerning(char32_t left, char32_t right, const TextStyle& style) = 0;
    /// Space above and below the baseline that text of this style takes.
    virtual float ascent(const TextStyle& style) = 0;
    virtual float descent(const TextStyle& style) = 0;
};

} // namespace vxrenderer
