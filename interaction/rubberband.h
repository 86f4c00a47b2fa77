#pragma once

#include "base/export.h"

#include <boost/shared_ptr.hpp>

#include <array>
#include <optional>

namespace vxgraphics3d {
class Overlay;
class OverlayRectangle;
} // namespace vxgraphics3d

namespace vxinteraction {

/// A rectangle that the user drags open, in an overlay whose coordinates are pixels of the picture. The rectangle is in
/// the overlay from the first movement to the end of the drag.
///
/// The destructor leaves the overlay as it is, because it may run on a thread that must not access it: cancel() before.
class VX_API RubberBand {
public:
    /// Two opposite corners: the pixels of the press and of the pointer.
    using Corners = std::array<int, 4>;

    /// @param rectangle is drawn with its own look
    /// @throws std::invalid_argument if an argument is null
    RubberBand(boost::shared_ptr<vxgraphics3d::Overlay> overlay,
               boost::shared_ptr<vxgraphics3d::OverlayRectangle> rectangle);
    RubberBand(const RubberBand&) = delete;
    RubberBand& operator=(const RubberBand&) = delete;

    /// Begins a band; a current one ends.
    void press(int x, int y);
    /// @return whether the picture may have changed
    bool drag(int x, int y);
    /// Ends the band.
    /// @return its corners; nothing if the pointer has not moved
    std::optional<Corners> release();
    /// @return whether the picture may have changed
    bool cancel() { return release().has_value(); }
    bool isActive() const { return m_isActive; }

private:
    boost::shared_ptr<vxgraphics3d::Overlay> m_overlay;
    boost::shared_ptr<vxgraphics3d::OverlayRectangle> m_rectangle;
    bool m_isActive = false;
    bool m_hasMoved = false;
    Corners m_corners{};
};

} // namespace vxinteraction
