#include "graphics3d/overlays/overlaytwopointsobject.h"

namespace vxgraphics3d {

OverlayTwoPointsObject::~OverlayTwoPointsObject() = default;

void OverlayTwoPointsObject::setStart(double x, double y)
{
    m_startX = x;
    m_startY = y;
    onPointsChanged();
}

void OverlayTwoPointsObject::setEnd(double x, double y)
{
    m_endX = x;
    m_endY = y;
    onPointsChanged();
}

void OverlayTwoPointsObject::onPointsChanged() {}

} // namespace vxgraphics3d
