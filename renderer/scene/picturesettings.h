#pragma once

#include "graphics3d/foundation/color.h"
#include "renderer/scene/view.h"

#include <string>

namespace vxrenderer {

/// How a picture is drawn, beyond what the scene itself says.
struct PictureSettings {
    ViewDirection direction;
    /// Without light, surfaces show the bare colours of their table.
    bool isLit = true;
    bool showTitle = true;
    bool showLegends = true;
    bool showBox = true;
    vxgraphics3d::Color background{255, 255, 255, 255};
    std::string fontName = "default";
    /// In pixels; the title is larger.
    int fontSize = 14;
};

} // namespace vxrenderer
