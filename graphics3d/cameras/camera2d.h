#pragma once

#include "graphics3d/cameras/renderarea.h"
#include "graphics3d/settings/canvas3dglobalsettings.h"
#include "graphics3d/viewing/icameraactions.h"
#include "graphics3d/viewing/icameratransforms.h"

namespace vxgraphics3d {

/// The camera of a 2D view: a rectangle of view limits that is adapted to the shape of the render area.
///
/// Base limits are the requested limits, adapted to the area; displayed limits are the base with uncommitted zoom and
/// pan. The axis view scales stretch the axes on the screen: a unit of y is as long as `y scale / x scale` units of x.
/// The one-dimensional mode fixes the y range; in polar mode the limits are radii. The camera counts no changes, and
/// its area is never smaller than one pixel. A canvas owns its camera as this class (there is no virtual destructor)
/// and shares it with Java peers.
class VX_API Camera2d final : public ICameraTransforms, public ICameraActions {
public:
    enum CameraMode2D { ModeOrdinary = 0, ModeOneDimensional = 1, ModePolar = 2 };
    using ResizeBehaviour = Canvas3dGlobalSettings::ResizeBehaviour;

    /// Shows 0 to 1 on both axes. The projections are computed with the first render area, limits or merge.
    Camera2d() = default;
    /// Copies everything except the rotation point and the rotation, which start as in a new camera.
    Camera2d(const Camera2d& other);

    /// Copies the settings and the base state of another camera, but not its render area, canvas size and rotation
    /// point. Uncommitted zoom and pan are discarded; nothing is recomputed. Does nothing for the camera itself.
    void import(const Camera2d& other);

    /// Stores the mode; it takes effect when the view is computed next.
    void setCameraMode(CameraMode2D mode) { m_cameraMode = mode; }
    /// Whether both axes keep their ratio on the screen when limits are set or the view is zoomed.
    void setPreserveAspectRatio(bool preserve) { m_preserveAspectRatio = preserve; }
    /// Makes the camera use its own resize behaviour or, with false, the global one.
    void setOverrideResizeBehaviour(bool overrideGlobal, ResizeBehaviour behaviour);
    /// Stores the stretch of the axes and nothing else; scales derived from the scene box continue to follow it.
    void setAxisViewScales(float x, float y);

    // Under ResizePixels a pixel has a fixed size in the world, which setting limits determines. So the next change of
    // the render area and the next merge of an additional transformation adapt the limits to that size about their
    // centre: a zoom is lost when it is merged, and limits that were widened to the shape of the area change again.

    /// Sets the base limits so that the whole rectangle is visible, with the camera's own setting for the aspect ratio.
    /// @return whether the limits were accepted
    bool setViewLimits(float x0, float x1, float y0, float y1);
    /// If the aspect ratio is preserved, an empty range is derived from the other one, and two empty ranges show one
    /// unit to each side. Otherwise the axes are stretched to fill the area, and an empty range is refused.
    /// @return whether the limits were accepted
    bool setViewLimits(float x0, float x1, float y0, float y1, bool preserve);
    /// Sets the limits of one axis; the other follows if the aspect ratio is preserved, and otherwise stays unchanged.
    bool setViewLimitsX(float x0, float x1);
    bool setViewLimitsY(float y0, float y1);
    /// The displayed limits, x first. In polar mode the displayed radial limits in a and b; c and d are unchanged.
    void getViewLimits(float& a, float& b, float& c, float& d) const;
    /// Sets the radial limits. An outer limit that does not exceed the inner one becomes the inner one plus 1.
    void setPolarLimits(float outer, float inner);
    /// Zooms to a box, with a margin around it given as a fraction of its extents. A box without extent gets a default
    /// margin.
    void moveToBoundingBox(const BoundingBox& box, float margin);

    CameraMode2D getCameraMode() const { return m_cameraMode; }
    bool isPreserveAspectRatio() const { return m_preserveAspectRatio; }
    bool isAxisViewScalesAuto() const { return m_axisViewScalesAuto; }
    bool isOverrideResizeBehaviour() const { return m_overrideResizeBehaviour; }
    ResizeBehaviour getOwnResizeBehaviour() const { return m_ownResizeBehaviour; }
    /// World units per pixel.
    float getViewingScaleX() const { return m_viewingScaleX; }
    float getViewingScaleY() const { return m_viewingScaleY; }
    /// The base limits.
    float getViewMinX() const { return m_viewMinX; }
    float getViewMaxX() const { return m_viewMaxX; }
    float getViewMinY() const { return m_viewMinY; }
    float getViewMaxY() const { return m_viewMaxY; }
    /// The displayed limits.
    float getActualMinX() const { return m_actualMinX; }
    float getActualMaxX() const { return m_actualMaxX; }
    float getActualMinY() const { return m_actualMinY; }
    float getActualMaxY() const { return m_actualMaxY; }
    /// The base and displayed radial limits, and the radii between them.
    float getPolarMin() const { return m_polarMin; }
    float getPolarMax() const { return m_polarMax; }
    float getActualPolarMin() const { return m_actualPolarMin; }
    float getActualPolarMax() const { return m_actualPolarMax; }
    float getActualPolarRadius() const { return m_actualPolarRadius; }
    const BoundingBox& getSceneBox() const { return m_sceneBox; }
    const Matrixf& getInvProjectionTransformRH() const { return m_invProjectionTransformRH; }

    /// A size below 1 becomes 1; an origin outside the canvas moves to its far edge. The base limits follow the new
    /// shape according to the resize behaviour.
    void setRenderArea(int canvasWidth, int canvasHeight, int left, int bottom, int width, int height) override;
    int getRenderAreaWidth() const override { return m_renderArea.width; }
    int getRenderAreaHeight() const override { return m_renderArea.height; }
    int getRenderAreaLeft() const override { return m_renderArea.left; }
    int getRenderAreaBottom() const override { return m_renderArea.bottom; }
    void setBoundingBox(const BoundingBox& box) override;
    /// The box flattened to z = 0, not scaled; an empty box stays empty.
    BoundingBox getViewBoundingBox(const BoundingBox& box) const override;
    const Matrixf& getViewTransform() const override { return m_viewTransform; }
    const Matrixf& getInvViewTransform() const override { return m_invViewTransform; }
    const Matrixf& getRotationTransform() const override { return m_rotationTransform; }
    const Matrixf& getInvRotationTransform() const override { return m_invViewTransform; }
    const Matrixf& getProjectionTransformRH() const override { return m_projectionTransformRH; }
    const Matrixf& getProjectionTransformLH() const override { return m_projectionTransformLH; }
    bool hasViewScaleTransform() const override { return false; }
    /// The identity: the axis view scales act through the view limits.
    const Matrixf& getAxisViewScaleTransform() const override;
    const Matrixf& getInvAxisViewScaleTransform() const override;
    float getAxisViewScaleX() const override { return m_axisViewScaleX; }
    float getAxisViewScaleY() const override { return m_axisViewScaleY; }
    float getAxisViewScaleZ() const override { return 1.0f; }
    Vector3f screenToWorld(int x, int y, float z) const override;
    /// Pixels count from the lower left corner of the drawable.
    Vector3f worldToScreenRH(const Vector3f& point) const override;
    Vector3f worldToScreenLH(const Vector3f& point) const override;
    const Vector3f& getRotationPoint() const override { return m_rotationPoint; }
    float getNearClippingPlane() const override { return 1.0f; }
    float getFarClippingPlane() const override { return -1.0f; }
    void jitterPerspective(float dx, float dy) override;
    void setAxisViewScalesAuto() override;
    void resetAxisViewScales() override;
    /// The same everywhere: the smaller of the pixels per unit of both axes.
    float worldToPixelScale(const Vector3f& point) const override;
    Vector3f getLookAtDirection() const override { return {0.0f, 0.0f, -1.0f}; }
    Vector3f getUpDirection() const override { return {0.0f, 1.0f, 0.0f}; }

    float getPanSpeed() const override;
    /// The four operations that rotate or move a camera in space do nothing in a 2D view; panning uses the view offset.
    void setAdditionalSceneRotation(float, float, float) override {}
    void setAdditionalRotation(float, float, float) override {}
    void setAdditionalSceneTranslation(float, float, float) override {}
    void setAdditionalTranslation(float, float, float) override {}
    /// Zooms about the point (cx, cy), relative to the base view.
    void setAdditionalScale(float cx, float cy, float s) override;
    /// If the aspect ratio is preserved, the larger factor applies to both axes. A factor of 1 or less is refused, for
    /// both axes, where the range is too small relative to its distance from zero for floats to distinguish its ends.
    void setAdditionalScale(float cx, float cy, float sx, float sy) override;
    /// Pans by a fraction of the view size.
    void setAdditionalRelativeViewOffset(float x, float y) override;
    void mergeAdditionalTransformation() override;
    void discardAdditionalTransformation() override;
    float getDollySpeedScale() const override { return 1.0f; }

private:
    Camera2d& operator=(const Camera2d&) = default;

    ResizeBehaviour resizeBehaviour() const;
    void resetAdditionalTransformation();
    void intSetViewLimits(float x0, float x1, float y0, float y1, bool fit);
    void calculateViewLimits(int width, int height, ResizeBehaviour behaviour);
    void calculateViewWidth(float aspect);
    void calculateViewHeight(float aspect);
    void calculateViewingScales();
    void calculateDisplayedLimits();
    void calculatePerspective();
    void calculateViewMatrix();
    void calcViewScalesFromSceneBB();
    void shiftProjection(float x, float y);
    Vector3f worldToScreen(const Vector3f& point, const Matrixf& projection) const;

    BoundingBox m_sceneBox;
    bool m_overrideResizeBehaviour = false;
    ResizeBehaviour m_ownResizeBehaviour = ResizeBehaviour::ResizeFill;
    bool m_preserveAspectRatio = true;
    float m_additionalScaleX = 1.0f;
    float m_additionalScaleY = 1.0f;
    float m_viewingScaleX = 1.0f;
    float m_viewingScaleY = 1.0f;
    RenderArea m_renderArea;
    float m_viewMinX = 0.0f;
    float m_viewMaxX = 1.0f;
    float m_viewMinY = 0.0f;
    float m_viewMaxY = 1.0f;
    float m_actualMinX = 0.0f;
    float m_actualMaxX = 1.0f;
    float m_actualMinY = 0.0f;
    float m_actualMaxY = 1.0f;
    float m_scaleCentreX = 0.0f;
    float m_scaleCentreY = 0.0f;
    float m_offsetX = 0.0f;
    float m_offsetY = 0.0f;
    Vector3f m_rotationPoint;
    Vector3f m_position;
    Vector3f m_actualPosition;
    Matrixf m_rotationTransform{Matrixf::MatrixIdentity};
    Matrixf m_viewTransform{Matrixf::MatrixIdentity};
    Matrixf m_invViewTransform{Matrixf::MatrixIdentity};
    Matrixf m_projectionTransformRH{Matrixf::MatrixIdentity};
    Matrixf m_projectionTransformLH{Matrixf::MatrixIdentity};
    Matrixf m_invProjectionTransformRH{Matrixf::MatrixIdentity};
    float m_axisViewScaleX = 1.0f;
    float m_axisViewScaleY = 1.0f;
    float m_actualPolarMin = -1.0f;
    float m_actualPolarMax = 1.0f;
    float m_actualPolarRadius = 0.0f;
    float m_polarMin = -1.0f;
    float m_polarMax = 1.0f;
    bool m_axisViewScalesAuto = true;
    CameraMode2D m_cameraMode = ModeOrdinary;
};

} // namespace vxgraphics3d
