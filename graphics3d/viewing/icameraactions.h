#pragma once

#include "base/export.h"

namespace vxgraphics3d {

/// The operations by which interaction code controls a camera.
///
/// A camera has a base state and a displayed one. Each `setAdditional...` call computes the displayed state from the
/// base and its own arguments, so the calls of one drag replace each other. `mergeAdditionalTransformation` makes the
/// displayed state the new base; `discardAdditionalTransformation` restores the base. Angles are in radians. A camera
/// is owned as its own class, never through this interface, so there is no virtual destructor.
class VX_API ICameraActions {
public:
    virtual int getRenderAreaWidth() const = 0;
    virtual int getRenderAreaHeight() const = 0;
    virtual int getRenderAreaLeft() const = 0;
    virtual int getRenderAreaBottom() const = 0;

    /// World units that a pixel covers at the rotation point.
    virtual float getPanSpeed() const = 0;

    /// Rotates the scene about the rotation point: about the horizontal axis by a, the vertical axis by b, the line of
    /// sight by c.
    virtual void setAdditionalSceneRotation(float a, float b, float c) = 0;
    /// Rotates the camera about itself: about its right axis by a, its up axis by b, its forward axis by c.
    virtual void setAdditionalRotation(float a, float b, float c) = 0;
    /// Moves the camera relative to the line from the eye to the rotation point: to the right by a, up by b, towards
    /// the point by c.
    virtual void setAdditionalSceneTranslation(float a, float b, float c) = 0;
    /// Moves the camera along its own axes: right by a, up by b, forward by c.
    virtual void setAdditionalTranslation(float a, float b, float c) = 0;
    /// Zooms about the point (cx, cy) of the render area, where (0.5, 0.5) is its centre. A factor below 1 magnifies.
    virtual void setAdditionalScale(float cx, float cy, float s) = 0;
    /// The same with a factor for each axis of the screen.
    virtual void setAdditionalScale(float cx, float cy, float sx, float sy) = 0;
    /// Moves the image by a fraction of the render area.
    virtual void setAdditionalRelativeViewOffset(float x, float y) = 0;

    virtual void mergeAdditionalTransformation() = 0;
    virtual void discardAdditionalTransformation() = 0;

    /// The size of the object that the camera looks at, by which a dolly step is scaled.
    virtual float getDollySpeedScale() const = 0;

protected:
    ~ICameraActions() = default;
};

} // namespace vxgraphics3d
