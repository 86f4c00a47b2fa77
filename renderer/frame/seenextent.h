#pragma once

#include "graphics3d/foundation/boundingbox.h"
#include "renderer/frame/pointrun.h"

#include <array>
#include <limits>

namespace vxgraphics3d {
class ICameraTransforms;
}

namespace vxrenderer {

/// How far points reach to the sides as a camera sees them from its position, whatever it magnifies and wherever it
/// moves the image: in perspective as tangents of angles from the line of sight, in parallel projection as distances
/// from it.
///
/// Adding points is a single pass over them. Those that are not finite, or not in front of an eye in perspective, do
/// not count.
class SeenExtent {
public:
    explicit SeenExtent(const vxgraphics3d::ICameraTransforms& camera);

    void add(const PointRun& points);
    void add(const vxgraphics3d::Vector3f& point);
    /// A sphere in coordinates of the eye.
    void addAtEye(const vxgraphics3d::Vector3f& center, float radius);

    bool isEmpty() const { return !(m_left <= m_right && m_bottom <= m_top); }
    double left() const { return static_cast<double>(m_left); }
    double right() const { return static_cast<double>(m_right); }
    double bottom() const { return static_cast<double>(m_bottom); }
    double top() const { return static_cast<double>(m_top); }

private:
    template <bool isPerspective>
    void addPoints(const PointRun& points);
    void addSpheres(const PointRun& points);

    bool m_isPerspective;
    /// Rows of the matrix from the world to the eye.
    std::array<std::array<float, 4>, 3> m_rows{};
    /// Length of a radius as the eye sees it.
    float m_radiusScale;
    float m_left = std::numeric_limits<float>::max();
    float m_right = -std::numeric_limits<float>::max();
    float m_bottom = std::numeric_limits<float>::max();
    float m_top = -std::numeric_limits<float>::max();
};

/// The box of the points that are finite.
class PointBox {
public:
    /// Without the radii of points.
    PointBox() = default;
    /// @param radiusX,radiusY how far a radius of 1 reaches along x and y
    PointBox(float radiusX, float radiusY) : m_radii{radiusX, radiusY, 0.0f} {}

    void add(const PointRun& points);
    /// Empty without points.
    vxgraphics3d::BoundingBox get() const;

private:
    std::array<float, 3> m_radii = {};
    std::array<float, 3> m_low = {c_none, c_none, c_none};
    std::array<float, 3> m_high = {-c_none, -c_none, -c_none};

    static constexpr float c_none = std::numeric_limits<float>::max();
};

} // namespace vxrenderer
