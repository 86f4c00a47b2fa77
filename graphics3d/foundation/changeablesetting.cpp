#include "graphics3d/foundation/changeablesetting.h"

namespace vxgraphics3d {

ChangeableSetting::~ChangeableSetting() = default;

} // namespace vxgraphics3d
