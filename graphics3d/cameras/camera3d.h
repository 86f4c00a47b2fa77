#pragma once

#include "graphics3d/cameras/halfangle.h"
#include "graphics3d/cameras/renderarea.h"
#include "graphics3d/foundation/changeablesetting.h"
#include "graphics3d/settings/canvas3dglobalsettings.h"
#include "graphics3d/viewing/icameraactions.h"
#include "graphics3d/viewing/icameratransforms.h"

#include <array>

namespace vxgraphics3d {

/// The camera of a 3D view: position and orientation of the eye, the projection, and the position of the image in the
/// render area, with every matrix that a renderer needs.
///
/// Positions and axes are in axis-scaled space, which is the world stretched by the axis view scales; rotation point
/// and boxes are given in world coordinates. The eye looks along negative z of the view. A view offset moves the image
/// by a fraction of the render area. There is no protection against a render area, size or clipping distance of 0, or a
/// direction of length 0: the results are then not finite.
///
/// Every operation counts a change unless documented otherwise. A canvas owns its camera and shares it with Java peers.
/// The matrices of a new camera are those of an eye at the origin that looks along negative z; its committed axes take
/// effect with the first `lookAt`.
class VX_API Camera3d : public ChangeableSetting, public ICameraTransforms, public ICameraActions {
public:
    enum ProjectionType { ProjectionOrthographic = 0, ProjectionPerspective = 1 };
    using ResizeBehaviour = Canvas3dGlobalSettings::ResizeBehaviour;

    Camera3d();
    /// Copies the whole state; the change number of a copy starts at 1.
    Camera3d(const Camera3d& other);

    /// Copies the settings of another camera except its canvas size, render area and dolly speed, and counts two
    /// changes. Does nothing for the camera itself.
    void import(const Camera3d& other);

    /// Positions and orients the eye, in axis-scaled space. The base and the displayed position and axes become the
    /// same; uncommitted zoom and offset are kept.
    /// @param direction from the eye into the scene; only its direction and, for getLookAtLength(), its length are used
    /// @param upHint any direction except the line of sight; the up axis is the nearest perpendicular direction
    void lookAt(const Vector3f& position, const Vector3f& direction, const Vector3f& upHint);
    /// Zooms to a box: looks at it along the current direction and shows the whole of it, with the margin of the global
    /// settings. An existing view offset takes some of that margin.
    /// @param focus the box to show, in world coordinates; for a box of zero size, its surroundings are shown
    /// @param scene the box of the whole scene, which determines the distance of the eye
    /// @param expansion the free space around the box, as a fraction of its radius
    void moveToBoundingBox(const BoundingBox& focus, const BoundingBox& scene, float expansion);

    /// Sets both base angles of view, each measured from the axis of the view, in degrees.
    void setFOV(float degrees);
    void setHorizontalFOV(float degrees);
    void setVerticalFOV(float degrees);
    /// Sets both base extents of the view for orthographic projection, in axis-scaled units.
    void setOrthographicSize(float size);
    /// Sets one base extent, and the other from the shape of the render area.
    void setOrthographicWidth(float width);
    void setOrthographicHeight(float height);
    /// Sets the pixels per unit of the near plane, used if the pixel scale is fixed.
    void setViewingScale(float scale);
    /// Sets the base and the displayed offset of the image, as a fraction of the render area.
    void setRelativeViewOffset(float x, float y);
    /// Changes the projection and converts angles, extents and viewing scale so that objects at the rotation point keep
    /// their size on the screen.
    void setProjectionType(ProjectionType type);
    /// Sets the point about which the scene rotates, in world coordinates. No change is counted.
    void setRotationPoint(const Vector3f& point);
    /// Makes the camera use its own resize behaviour or, with false, the global one. It takes effect when the view is
    /// computed next; no change is counted.
    void setOverrideResizeBehaviour(bool overrideGlobal, ResizeBehaviour behaviour);
    /// Stretches the axes of the world. No change is counted and no view matrix changes.
    void setAxisViewScales(float x, float y, float z);

    bool isPerspectiveProjection() const { return m_projectionType == ProjectionPerspective; }
    bool isOrthographicProjection() const { return m_projectionType == ProjectionOrthographic; }
    ProjectionType getProjectionType() const { return m_projectionType; }
    /// The base angle of view in degrees that determines the view, measured from the axis; 0 if no angle does.
    float getFOV() const;
    float getHorizontalFOV() const;
    float getVerticalFOV() const;
    /// The displayed angles of view in radians, measured from the axis; 0 in orthographic projection.
    float getActualHorizontalFOV() const { return m_actualHorizontalFov; }
    float getActualVerticalFOV() const { return m_actualVerticalFov; }
    /// The base extent that determines the view in orthographic projection; the geometric mean of both extents if
    /// neither does.
    float getOrthographicSize() const;
    float getViewingScale() const { return m_viewingScale; }
    /// The displayed offset of the image.
    float getRelativeViewOffsetX() const { return m_relativeViewOffsetX; }
    float getRelativeViewOffsetY() const { return m_relativeViewOffsetY; }
    /// The size of the view rectangle: at the near plane in perspective, of the view in orthographic projection.
    float getNearWidth() const { return m_nearWidth; }
    float getNearHeight() const { return m_nearHeight; }
    bool isOverrideResizeBehaviour() const { return m_overrideResizeBehaviour; }
    ResizeBehaviour getOwnResizeBehaviour() const { return m_ownResizeBehaviour; }

    /// The committed eye position, and the displayed one.
    const Vector3f& getPosition() const { return m_position; }
    const Vector3f& getActualPosition() const { return m_actualPosition; }
    /// The committed axes, of length 1.
    const Vector3f& getRight() const { return m_right; }
    const Vector3f& getUp() const { return m_up; }
    const Vector3f& getForward() const { return m_forward; }
    /// The length of the direction that was last passed to `lookAt`.
    float getLookAtLength() const { return m_lookAtLength; }
    const BoundingBox& getSceneBoundingBox() const { return m_sceneBoundingBox; }
    const Matrixf& getInvProjectionTransformRH() const { return m_invProjectionTransformRH; }
    /// The axes (0 to 2), ordered by the depth of their ends in the view, farthest first.
    const std::array<int, 3>& getDepthOrder() const { return m_depthOrder; }

    /// The displayed direction, with any uncommitted rotation.
    Vector3f getLookAtDirection() const override;
    Vector3f getUpDirection() const override;
    float getPanSpeed() const override;
    void setAdditionalSceneRotation(float a, float b, float c) override;
    void setAdditionalRotation(float a, float b, float c) override;
    void setAdditionalSceneTranslation(float a, float b, float c) override;
    void setAdditionalTranslation(float a, float b, float c) override;
    /// Further magnification is refused, without a change, once the view is tiny relative to the clipping range.
    void setAdditionalScale(float cx, float cy, float s) override;
    /// Zooms by the larger factor.
    void setAdditionalScale(float cx, float cy, float sx, float sy) override;
    void setAdditionalRelativeViewOffset(float x, float y) override;
    void mergeAdditionalTransformation() override;
    void discardAdditionalTransformation() override;

    const Matrixf& getViewTransform() const override { return m_viewTransform; }
    const Matrixf& getInvViewTransform() const override { return m_invViewTransform; }
    const Matrixf& getRotationTransform() const override { return m_rotationTransform; }
    const Matrixf& getInvRotationTransform() const override { return m_invRotationTransform; }
    const Matrixf& getProjectionTransformRH() const override { return m_projectionTransformRH; }
    const Matrixf& getProjectionTransformLH() const override { return m_projectionTransformLH; }
    bool hasViewScaleTransform() const override { return m_hasAxisViewScale; }
    const Matrixf& getAxisViewScaleTransform() const override { return m_axisViewScaleTransform; }
    const Matrixf& getInvAxisViewScaleTransform() const override { return m_invAxisViewScaleTransform; }
    /// In orthographic projection the point is on the line of sight of the pixel, but nearer to the viewer than the
    /// visible point by the sum of near and far distance.
    Vector3f screenToWorld(int x, int y, float z) const override;
    /// Pixels count from the lower left corner of the render area; those of `screenToWorld` from that of the drawable.
    Vector3f worldToScreenRH(const Vector3f& point) const override;
    Vector3f worldToScreenLH(const Vector3f& point) const override;
    float worldToPixelScale(const Vector3f& point) const override;
    const Vector3f& getRotationPoint() const override { return m_rotationPoint; }
    /// Always recomputes the projection, but counts a change only if a value differs.
    void setRenderArea(int canvasWidth, int canvasHeight, int left, int bottom, int width, int height) override;
    int getRenderAreaWidth() const override { return m_renderArea.width; }
    int getRenderAreaHeight() const override { return m_renderArea.height; }
    int getRenderAreaLeft() const override { return m_renderArea.left; }
    int getRenderAreaBottom() const override { return m_renderArea.bottom; }
    /// Fits the clipping planes to the scene if that moves one of them by more than a tenth of their distance; only
    /// then is a change counted.
    void setBoundingBox(const BoundingBox& box) override;
    /// The box in axis-scaled space; an empty box stays empty.
    BoundingBox getViewBoundingBox(const BoundingBox& box) const override;
    float getNearClippingPlane() const override { return m_nearClip; }
    float getFarClippingPlane() const override { return m_farClip; }
    /// No change is counted.
    void jitterPerspective(float dx, float dy) override;
    /// Stretches the scene box to a cube; without a scene box, resets the scales. No change is counted.
    void setAxisViewScalesAuto() override;
    /// No change is counted.
    void resetAxisViewScales() override;
    float getAxisViewScaleX() const override { return m_axisViewScaleX; }
    float getAxisViewScaleY() const override { return m_axisViewScaleY; }
    float getAxisViewScaleZ() const override { return m_axisViewScaleZ; }
    float getDollySpeedScale() const override { return m_dollySpeedScale; }

private:
    Camera3d& operator=(const Camera3d&) = default;

    ResizeBehaviour resizeBehaviour() const;
    bool widthGoverns(ResizeBehaviour behaviour, double baseRatio) const;
    float renderAreaRatio() const;
    float distanceToRotationPoint() const;
    void recalculateIn(ProjectionType type);
    void calculateViewRectangle();
    void calculatePerspective();
    void shiftProjection(float x, float y);
    void calculateRotationMatrix(const Vector3f& right, const Vector3f& up, const Vector3f& forward);
    void calculateViewMatrix();
    void calculateDepthOrder();
    void fitTightly(const BoundingBox& viewBox, float margin);
    Vector3f toPixels(const Vector3f& viewPoint, const Matrixf& projection) const;
    Vector3f worldToScreen(const Vector3f& point, const Matrixf& projection) const;

    BoundingBox m_sceneBoundingBox;
    bool m_overrideResizeBehaviour = false;
    ResizeBehaviour m_ownResizeBehaviour = ResizeBehaviour::ResizeFill;
    HalfAngle m_horizontalFov;
    HalfAngle m_verticalFov;
    float m_orthographicWidth = 10.0f;
    float m_orthographicHeight = 10.0f;
    float m_additionalScale = 1.0f;
    float m_nearClip = 0.1f;
    float m_farClip = 100.0f;
    float m_viewingScale = 1.0f;
    ProjectionType m_projectionType = ProjectionPerspective;
    RenderArea m_renderArea;
    float m_baseRelativeViewOffsetX = 0.0f;
    float m_baseRelativeViewOffsetY = 0.0f;
    float m_relativeViewOffsetX = 0.0f;
    float m_relativeViewOffsetY = 0.0f;
    float m_nearWidth = 1.0f;
    float m_nearHeight = 1.0f;
    float m_actualHorizontalFov = 0.0f;
    float m_actualVerticalFov = 0.0f;
    Vector3f m_rotationPoint;
    Vector3f m_scaledRotationPoint;
    Vector3f m_position;
    Vector3f m_right{1.0f, 0.0f, 0.0f};
    Vector3f m_up{0.0f, 1.0f, 0.0f};
    Vector3f m_forward{0.0f, 0.0f, 1.0f};
    float m_lookAtLength = 1.0f;
    Matrixf m_rotationTransform{Matrixf::MatrixIdentity};
    Matrixf m_invRotationTransform{Matrixf::MatrixIdentity};
    Vector3f m_actualPosition;
    Matrixf m_viewTransform{Matrixf::MatrixIdentity};
    Matrixf m_invViewTransform{Matrixf::MatrixIdentity};
    Matrixf m_projectionTransformRH{Matrixf::MatrixIdentity};
    Matrixf m_invProjectionTransformRH{Matrixf::MatrixIdentity};
    Matrixf m_projectionTransformLH{Matrixf::MatrixIdentity};
    bool m_hasAxisViewScale = false;
    Matrixf m_axisViewScaleTransform{Matrixf::MatrixIdentity};
    Matrixf m_invAxisViewScaleTransform{Matrixf::MatrixIdentity};
    std::array<int, 3> m_depthOrder{2, 0, 1};
    float m_axisViewScaleX = 1.0f;
    float m_axisViewScaleY = 1.0f;
    float m_axisViewScaleZ = 1.0f;
    float m_dollySpeedScale = 1.0f;
};

} // namespace vxgraphics3d
