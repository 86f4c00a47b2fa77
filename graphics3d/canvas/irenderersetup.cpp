#include "graphics3d/canvas/irenderersetup.h"

namespace vxgraphics3d {

IRendererSetup::~IRendererSetup() = default;

} // namespace vxgraphics3d
