#include "graphics3d/overlays/overlayobject.h"

namespace vxgraphics3d {

OverlayObject::~OverlayObject() = default;

Matrixf& OverlayObject::startTransformation(bool reset)
{
    if (reset) {
        m_transformation.identity();
    }
    return m_transformation;
}

void OverlayObject::rotate(float x, float y, float z, float angle, bool reset)
{
    startTransformation(reset).rotate(x, y, z, angle);
}

void OverlayObject::translate(float x, float y, float z, bool reset)
{
    startTransformation(reset).translate(x, y, z);
}

void OverlayObject::scale(float x, float y, float z, bool reset)
{
    startTransformation(reset).scale(x, y, z);
}

} // namespace vxgraphics3d
