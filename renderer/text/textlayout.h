#pragma once

#include "renderer/text/textmetrics.h"
#include "renderer/text/titlemarkup.h"

#include <vector>

namespace vxrenderer {

/// A character at its position: `x` to the right and `y` down to its baseline, from the top left corner of the text.
struct PlacedCharacter {
    char32_t character;
    TextStyle style;
    float x;
    float y;
};

/// A text as lines of placed characters, in pixels.
struct TextLayout {
    std::vector<PlacedCharacter> characters;
    float width = 0.0f;
    float height = 0.0f;
    int numLines = 0;
};

/// Space that a text may take. Lines that do not fit into the height are left out, but never the first one.
struct TextSpace {
    float width;
    float height;
};

/// Sets a parsed title in lines.
///
/// A line that is too wide is broken at the last blank between boxes, if there is none at the last blank within a box,
/// and if there is none anywhere between two characters. Centred lines are centred within the widest line.
TextLayout layoutTitle(const std::vector<TitleItem>& items, TextMetrics& metrics, TextSpace room);

} // namespace vxrenderer
