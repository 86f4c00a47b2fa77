#pragma once

#include "base/export.h"
#include "graphics3d/foundation/boundingbox.h"
#include "graphics3d/foundation/matrixf.h"
#include "graphics3d/foundation/vector3f.h"

namespace vxgraphics3d {

/// What a renderer and picking need from a camera, in a 3D or a 2D view: the area it draws to, its matrices, and the
/// conversions between world and screen.
///
/// A point goes from the world to normalised device coordinates through the axis view scale, the view and the
/// projection, in this order. Pixels count from the lower left corner. A camera is owned as its own class, never
/// through this interface, so there is no virtual destructor.
class VX_API ICameraTransforms {
public:
    /// Sets the size of the whole drawable and the part of it that the camera draws to, in pixels.
    virtual void setRenderArea(int canvasWidth, int canvasHeight, int left, int bottom, int width, int height) = 0;
    virtual int getRenderAreaWidth() const = 0;
    virtual int getRenderAreaHeight() const = 0;
    virtual int getRenderAreaLeft() const = 0;
    virtual int getRenderAreaBottom() const = 0;

    /// Sets the box of the whole scene in world coordinates.
    virtual void setBoundingBox(const BoundingBox& box) = 0;
    /// A box of world coordinates in the space that the view matrix transforms.
    virtual BoundingBox getViewBoundingBox(const BoundingBox& box) const = 0;

    virtual const Matrixf& getViewTransform() const = 0;
    virtual const Matrixf& getInvViewTransform() const = 0;
    /// The rotation of the view without its translation.
    virtual const Matrixf& getRotationTransform() const = 0;
    virtual const Matrixf& getInvRotationTransform() const = 0;
    /// The projection to depths from -1 at the near plane to 1 at the far plane.
    virtual const Matrixf& getProjectionTransformRH() const = 0;
    /// The projection to depths from 0 at the near plane to 1 at the far plane.
    virtual const Matrixf& getProjectionTransformLH() const = 0;

    /// Whether `getAxisViewScaleTransform` differs from the identity.
    virtual bool hasViewScaleTransform() const = 0;
    virtual const Matrixf& getAxisViewScaleTransform() const = 0;
    virtual const Matrixf& getInvAxisViewScaleTransform() const = 0;
    virtual float getAxisViewScaleX() const = 0;
    virtual float getAxisViewScaleY() const = 0;
    virtual float getAxisViewScaleZ() const = 0;

    /// The world point of a pixel of the drawable at a depth as defined by `getProjectionTransformRH`.
    virtual Vector3f screenToWorld(int x, int y, float z) const = 0;
    /// The pixel position and the depth of a world point, from -1 to 1 within the clipping planes.
    virtual Vector3f worldToScreenRH(const Vector3f& point) const = 0;
    /// The same with a depth from 0 to 1.
    virtual Vector3f worldToScreenLH(const Vector3f& point) const = 0;

    virtual const Vector3f& getRotationPoint() const = 0;
    virtual float getNearClippingPlane() const = 0;
    virtual float getFarClippingPlane() const = 0;

    /// Shifts the projection by a fraction of a pixel, for pictures made of several passes. The shift lasts until the
    /// projection is computed again.
    virtual void jitterPerspective(float dx, float dy) = 0;

    /// Scales the axes so that the scene box has equal edges.
    virtual void setAxisViewScalesAuto() = 0;
    virtual void resetAxisViewScales() = 0;

    /// The number of pixels that a unit step in the plane of the screen covers at a world point.
    virtual float worldToPixelScale(const Vector3f& point) const = 0;
    virtual Vector3f getLookAtDirection() const = 0;
    virtual Vector3f getUpDirection() const = 0;

protected:
    ~ICameraTransforms() = default;
};

} // namespace vxgraphics3d
