#pragma once

#include "graphics3d/overlays/overlayobject.h"

namespace vxgraphics3d {

/// A point, drawn as a dot.
class VX_API OverlayPoint : public OverlayObject {
public:
    OverlayPoint() : OverlayObject(TypePoint) {}
    ~OverlayPoint() override;

    double getX() const { return m_x; }
    double getY() const { return m_y; }
    void setX(double x) { m_x = x; }
    void setY(double y) { m_y = y; }

private:
    double m_x = 0.0;
    double m_y = 0.0;
};

} // namespace vxgraphics3d
