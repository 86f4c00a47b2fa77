#pragma once

#include "base/export.h"

namespace vxgraphics3d {

/// What a renderer keeps for a scene that one of its views shows. Settings of the scene name it, so that the renderer
/// finds the way back from them; nothing here calls it. A renderer derives its own class and declares what it needs.
class VX_API IRendererSetup {
public:
    virtual ~IRendererSetup() = 0;
};

} // namespace vxgraphics3d
