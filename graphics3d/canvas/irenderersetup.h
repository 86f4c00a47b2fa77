#pragma once

#include "base/export.h"

namespace vxgraphics3d {

/// What a renderer stores for a scene that one of its views shows. The scene's settings refer to it, so that the
/// renderer can find it from them; nothing here calls it. A renderer derives its own class and declares what it needs.
class VX_API IRendererSetup {
public:
    virtual ~IRendererSetup() = 0;
};

} // namespace vxgraphics3d
