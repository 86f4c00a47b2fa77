#pragma once

#include "graphics3d/overlays/overlayobject.h"

namespace vxgraphics3d {

/// A shape that two points determine.
class VX_API OverlayTwoPointsObject : public OverlayObject {
public:
    ~OverlayTwoPointsObject() override;

    double getStartX() const { return m_startX; }
    double getStartY() const { return m_startY; }
    double getEndX() const { return m_endX; }
    double getEndY() const { return m_endY; }
    void setStart(double x, double y);
    void setEnd(double x, double y);

protected:
    using OverlayObject::OverlayObject;

    /// Called after one of the points was set, for shapes that compute something from them.
    virtual void onPointsChanged();

private:
    double m_startX = 0.0;
    double m_startY = 0.0;
    double m_endX = 0.0;
    double m_endY = 0.0;
};

} // namespace vxgraphics3d
