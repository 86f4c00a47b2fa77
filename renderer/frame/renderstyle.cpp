#include "renderer/frame/renderstyle.h"

#include <stdexcept>
#include <string>

namespace vxrenderer {

void RenderStyle::validate() const
{
    // The comparison also fails for what is no number.
    if (!(creaseAngle >= 0.0f && creaseAngle <= c_widestAngle)) {
        throw std::invalid_argument("A crease angle is 0 to 180 degrees, not " + std::to_string(creaseAngle) + ".");
    }
    if (supersampling < 1 || supersampling > c_mostSupersampling) {
        throw std::invalid_argument("Exports are drawn with 1 to 4 pixels for each pixel and direction, not " +
                                    std::to_string(supersampling) + ".");
    }
}

} // namespace vxrenderer
