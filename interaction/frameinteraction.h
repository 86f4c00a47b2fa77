#pragma once

#include "graphics3d/foundation/matrixf.h"
#include "interaction/overlayinteraction.h"

#include <optional>

namespace vxgraphics3d {
class OverlayTransformation;
}

namespace vxinteraction {

/// Moves and scales a transformation frame: a drag of a handle scales it about the opposite handle, along its own axes
/// however it is rotated; a drag of its inside moves it. The transformation of the frame changes at once, and tells how
/// its content is to be transformed. Handles in the middle of a side scale in one direction. A scale factor does not go
/// below a hundredth. The frame must have been drawn, so that its handles are known.
///
/// While the pointer is over a handle, or drags it, the handle is marked.
class VX_API FrameInteraction : public OverlayInteraction {
public:
    /// @throws std::invalid_argument if the frame is null
    FrameInteraction(OverlayView view, boost::shared_ptr<vxgraphics3d::OverlayTransformation> frame);
    ~FrameInteraction() override;

    bool press(int x, int y) override;
    bool drag(int x, int y) override;
    bool release() override;
    bool cancel() override;
    bool isActive() const override { return m_drag.has_value(); }

    const vxgraphics3d::Matrixf& getTransformation() const;

private:
    struct Drag {
        /// -1 to move the frame.
        int handle;
        vxgraphics3d::Matrixf before;
        vxgraphics3d::Matrixf inverse;
        PlanePoint start;
    };

    /// The handle at a position, -1 if there is none.
    int handleAt(const PlanePoint& picture) const;
    bool isInside(const PlanePoint& picture) const;
    bool mark(int handle);
    vxgraphics3d::Matrixf scaled(const Drag& drag, const PlanePoint& moved) const;

    boost::shared_ptr<vxgraphics3d::OverlayTransformation> m_frame;
    std::optional<Drag> m_drag;
    int m_markedHandle = -1;
};

} // namespace vxinteraction
