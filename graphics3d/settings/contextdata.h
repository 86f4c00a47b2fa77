#pragma once

#include "base/export.h"

namespace vxgraphics3d {

/// The properties of a renderer's drawing context. A plain record that the renderer fills; all fields are zero if
/// nothing is known.
struct VX_API ContextData {
    int colorBits = 0;
    int redBits = 0;
    int greenBits = 0;
    int blueBits = 0;
    int alphaBits = 0;
    int depthBits = 0;
    int stencilBits = 0;
    int accumBufferRedBits = 0;
    int accumBufferGreenBits = 0;
    int accumBufferBlueBits = 0;
    int accumBufferAlphaBits = 0;
    bool doubleBuffered = false;
    bool hardwareAccelerated = false;
    int antialiasingType = 0; ///< as `RendererInfo::getAntialiasingType`
    int multipleSamples = 0;  ///< samples per pixel
};

} // namespace vxgraphics3d
