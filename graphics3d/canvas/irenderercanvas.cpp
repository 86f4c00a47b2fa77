#include "graphics3d/canvas/irenderercanvas.h"

namespace vxgraphics3d {

IRendererCanvas::~IRendererCanvas() = default;

} // namespace vxgraphics3d
