#pragma once

#include "base/export.h"
#include "graphics3d/foundation/vector3f.h"

#include <boost/shared_ptr.hpp>

#include <array>
#include <optional>

namespace vxgraphics3d {
class Canvas3dSettings;
class ICameraTransforms;
} // namespace vxgraphics3d

namespace vxinteraction {

/// A position in a picture, in pixels from its top left corner, or a position in the plane of an overlay.
struct PlanePoint {
    double x = 0.0;
    double y = 0.0;

    /// The middle of a pixel.
    static PlanePoint ofPixel(int x, int y) { return {x + 0.5, y + 0.5}; }
    PlanePoint operator+(const PlanePoint& other) const { return {x + other.x, y + other.y}; }
    PlanePoint operator-(const PlanePoint& other) const { return {x - other.x, y - other.y}; }
};

/// How a camera shows the plane z = 0 of the scene, in which the shapes of an overlay are: converts between positions
/// there and positions in the picture.
class VX_API OverlayPlane {
public:
    /// @param canvasHeight rows of the picture
    OverlayPlane(const vxgraphics3d::ICameraTransforms& camera, int canvasHeight);

    /// The point of the plane that is seen at a position of the picture; nothing if the plane is not seen there.
    std::optional<PlanePoint> toPlane(const PlanePoint& picture) const;
    /// Where a point of the scene is seen; nothing for one that is not in front of the eye.
    std::optional<PlanePoint> toPicture(const vxgraphics3d::Vector3f& point) const;

private:
    double product(std::size_t row, const std::array<double, 4>& point) const;

    /// From the world to clip coordinates.
    std::array<std::array<double, 4>, 4> m_rows{};
    double m_left;
    double m_top;
    double m_width;
    double m_height;
};

/// A view whose overlay the user works on: its settings, which it keeps alive, and the height of its picture.
class VX_API OverlayView {
public:
    /// @throws std::invalid_argument for settings that are null or a height below 1
    OverlayView(boost::shared_ptr<vxgraphics3d::Canvas3dSettings> settings, int canvasHeight);

    /// @throws std::invalid_argument for a height below 1
    void setCanvasHeight(int canvasHeight);
    /// The plane as the current camera shows it now.
    OverlayPlane plane() const;

private:
    boost::shared_ptr<vxgraphics3d::Canvas3dSettings> m_settings;
    int m_canvasHeight;
};

/// How far from what is drawn a pointer may be to hit it, in pixels: the picking tolerance of the process, 0 or more.
VX_API double pickingTolerance();

} // namespace vxinteraction
