#include "interaction/rubberband.h"

#include "graphics3d/overlays/overlay.h"
#include "graphics3d/overlays/overlayrectangle.h"
#include "interaction/overlayplane.h"

#include <stdexcept>
#include <utility>

namespace vxinteraction {

using vxgraphics3d::Overlay;
using vxgraphics3d::OverlayRectangle;

RubberBand::RubberBand(boost::shared_ptr<Overlay> overlay, boost::shared_ptr<OverlayRectangle> rectangle)
    : m_overlay(std::move(overlay)), m_rectangle(std::move(rectangle))
{
    if (!m_overlay || !m_rectangle) {
        throw std::invalid_argument("There is no overlay or no rectangle for a rubber band.");
    }
}

void RubberBand::press(int x, int y)
{
    release();
    m_isActive = true;
    m_corners = {x, y, x, y};
}

bool RubberBand::drag(int x, int y)
{
    if (!m_isActive || (!m_hasMoved && x == m_corners[0] && y == m_corners[1])) {
        return false;
    }
    m_corners[2] = x;
    m_corners[3] = y;
    const PlanePoint start = PlanePoint::ofPixel(m_corners[0], m_corners[1]);
    const PlanePoint end = PlanePoint::ofPixel(x, y);
    m_rectangle->setStart(start.x, start.y);
    m_rectangle->setEnd(end.x, end.y);
    if (!m_hasMoved) {
        m_overlay->addOverlayObject(m_rectangle, m_rectangle->getObjectPickID());
        m_hasMoved = true;
    }
    return true;
}

std::optional<RubberBand::Corners> RubberBand::release()
{
    m_isActive = false;
    if (!m_hasMoved) {
        return std::nullopt;
    }
    m_hasMoved = false;
    m_overlay->removeOverlayObject(m_rectangle);
    return m_corners;
}

} // namespace vxinteraction
