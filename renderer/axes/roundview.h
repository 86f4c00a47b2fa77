#pragma once

#include "renderer/axes/projector.h"
#include "renderer/frame/pixelarea.h"

#include <optional>

namespace vxgraphics3d {
class Camera2d;
}

namespace vxrenderer {

/// Polar coordinates about the origin, as a flat view with limits in x and y shows them.
class RoundView {
public:
    /// @param area what the camera draws to, not empty
    RoundView(const vxgraphics3d::Camera2d& camera, const PixelArea& area);

    /// Radii and angles in sight, in degrees from -180 on. A view that shows the origin has all angles.
    double nearest() const { return m_nearest; }
    double farthest() const { return m_farthest; }
    double firstDegrees() const { return m_firstDegrees; }
    double lastDegrees() const { return m_lastDegrees; }
    bool showsOrigin() const { return m_nearest == 0.0; }
    /// Pixels of a unit of radius, along the axis on which they are fewer.
    double pixelsPerUnit() const;

    Pixel at(double radius, double degrees) const;
    /// Where the ray of an angle leaves the area; nothing if it passes by.
    std::optional<Pixel> exit(double degrees) const;

private:
    PixelArea m_area;
    /// Pixels per unit; both may be negative for limits in falling order.
    double m_unitX;
    double m_unitY;
    Pixel m_origin;
    double m_nearest = 0.0;
    double m_farthest = 0.0;
    double m_firstDegrees = -180.0;
    double m_lastDegrees = 180.0;
};

} // namespace vxrenderer
