package com.vexane.graphics3d;

import com.vexane.base.NativeEnum;
import com.vexane.base.NativePeer;
import java.util.Objects;

/**
 * The camera of a 3D view: where the eye is, how it is turned, and how it projects.
 *
 * <p>Positions and directions are in the world as stretched by the axis scales; without axis scales that is the world
 * itself. All calls take constant time. Values are not checked: a direction of length 0, or a factor or size of 0, is
 * not an error, but leaves the picture empty until valid values are set.
 *
 * <p>Interaction changes what is displayed and commits it at its end. Position, direction and up direction are the
 * committed ones; the view offset is the displayed one.
 */
public final class Camera3d extends NativePeer {
    /** The projections. */
    public enum ProjectionType implements NativeEnum {
        /** What is farther away appears smaller. */
        PERSPECTIVE(0),
        /** Size does not depend on depth. */
        ORTHOGRAPHIC(1);

        private final int number;

        ProjectionType(int number) {
            this.number = number;
        }

        @Override
        public int number() {
            return number;
        }
    }

    /** Makes a camera that belongs to no view, with a perspective projection and an angle of view of 20 degrees. */
    public Camera3d() {
        createNative(this);
    }

    private Camera3d(Canvas3dSettings settings) {
        connectNative(this, requireOpen(settings, "settings"));
    }

    /**
     * Makes a peer of the 3D camera of a view. The camera lives as long as the peer, even after the view is gone.
     *
     * @param settings the settings of the view
     * @return the peer
     * @throws NullPointerException if the settings are null
     * @throws IllegalStateException if the settings are closed
     */
    public static Camera3d connect(Canvas3dSettings settings) {
        return new Camera3d(settings);
    }

    /**
     * Sets the position of the eye, the viewing direction and the up direction. Zoom and view offset stay.
     *
     * @param px the position of the eye, x
     * @param py the position of the eye, y
     * @param pz the position of the eye, z
     * @param dx the viewing direction, x; its length is any number above 0, and is stored but not used
     * @param dy the viewing direction, y
     * @param dz the viewing direction, z
     * @param ux the up direction, x; its length is any number above 0, and it is not parallel to the viewing direction
     * @param uy the up direction, y
     * @param uz the up direction, z
     */
    public void setPosition(float px, float py, float pz, float dx, float dy, float dz, float ux, float uy, float uz) {
        setPosition(this, px, py, pz, dx, dy, dz, ux, uy, uz);
    }

    /** {@return the x coordinate of the committed position of the eye} */
    public float getPositionX() {
        return getPositionX(this);
    }

    /** {@return the y coordinate of the committed position of the eye} */
    public float getPositionY() {
        return getPositionY(this);
    }

    /** {@return the z coordinate of the committed position of the eye} */
    public float getPositionZ() {
        return getPositionZ(this);
    }

    /**
     * {@return the x component of the committed viewing direction, which has the length that {@link #setPosition} gave
     * it}
     */
    public float getLookAtDirectionX() {
        return getLookAtDirectionX(this);
    }

    /** {@return the y component of the committed viewing direction} */
    public float getLookAtDirectionY() {
        return getLookAtDirectionY(this);
    }

    /** {@return the z component of the committed viewing direction} */
    public float getLookAtDirectionZ() {
        return getLookAtDirectionZ(this);
    }

    /**
     * {@return the x component of the committed up direction of the picture, which has length 1 and is perpendicular to
     * the viewing direction}
     */
    public float getUpDirectionX() {
        return getUpDirectionX(this);
    }

    /** {@return the y component of the committed up direction of the picture} */
    public float getUpDirectionY() {
        return getUpDirectionY(this);
    }

    /** {@return the z component of the committed up direction of the picture} */
    public float getUpDirectionZ() {
        return getUpDirectionZ(this);
    }

    /**
     * Sets the point about which the scene turns and towards which the eye moves.
     *
     * @param x the point in the world, x; not stretched by the axis scales
     * @param y the point, y
     * @param z the point, z
     */
    public void setRotationPoint(float x, float y, float z) {
        setRotationPoint(this, x, y, z);
    }

    /** {@return the x coordinate of the point in the world about which the scene turns} */
    public float getRotationPointX() {
        return getRotationPointX(this);
    }

    /** {@return the y coordinate of the point in the world about which the scene turns} */
    public float getRotationPointY() {
        return getRotationPointY(this);
    }

    /** {@return the z coordinate of the point in the world about which the scene turns} */
    public float getRotationPointZ() {
        return getRotationPointZ(this);
    }

    /**
     * Sets the angle of view of the perspective projection, in both directions.
     *
     * @param degrees the angle between the centre and the border of the picture, above 0 and below 90
     */
    public void setFieldOfView(float degrees) {
        setFieldOfView(this, degrees);
    }

    /**
     * {@return the angle in degrees between the centre and the border of the perspective picture; 0 under a resize
     * behaviour that uses no angle, {@link ResizeBehaviour#PIXELS} or {@link ResizeBehaviour#KEEP}}
     */
    public float getFieldOfView() {
        return getFieldOfView(this);
    }

    /**
     * Sets the extent of the view of the orthographic projection, in both directions.
     *
     * @param size the extent from border to border in stretched units of the world, above 0
     */
    public void setOrthographicSize(float size) {
        setOrthographicSize(this, size);
    }

    /**
     * {@return the extent of the orthographic picture from border to border; the geometric mean of width and height
     * where neither of them decides}
     */
    public float getOrthographicSize() {
        return getOrthographicSize(this);
    }

    /**
     * Sets the number of pixels per unit at the near clipping plane under {@link ResizeBehaviour#PIXELS}.
     *
     * @param scale pixels per unit, above 0
     */
    public void setViewingScale(float scale) {
        setViewingScale(this, scale);
    }

    /** {@return the number of pixels per unit at the near clipping plane under {@link ResizeBehaviour#PIXELS}} */
    public float getViewingScale() {
        return getViewingScale(this);
    }

    /**
     * Moves the picture on the canvas.
     *
     * @param x to the right, as a fraction of the width
     * @param y upwards, as a fraction of the height
     */
    public void setRelativeViewOffset(float x, float y) {
        setRelativeViewOffset(this, x, y);
    }

    /** {@return how far the displayed picture is shifted to the right, as a fraction of its width} */
    public float getRelativeViewOffsetX() {
        return getRelativeViewOffsetX(this);
    }

    /** {@return how far the displayed picture is shifted upwards, as a fraction of its height} */
    public float getRelativeViewOffsetY() {
        return getRelativeViewOffsetY(this);
    }

    /**
     * Changes the projection. Angle, extent and pixel scale change as well, so that things at the rotation point keep
     * their size on the screen.
     *
     * @param type the projection
     * @throws NullPointerException if the type is null
     */
    public void setProjectionType(ProjectionType type) {
        setProjectionType(this, Objects.requireNonNull(type, "type").number());
    }

    /** {@return the projection} */
    public ProjectionType getProjectionType() {
        return NativeEnum.of(ProjectionType.class, getProjectionType(this));
    }

    /**
     * Magnifies the picture about its centre and commits what is displayed. Magnification ends, without an error, where
     * the view is tiny compared to the range between the clipping planes.
     *
     * @param factor the factor by which things become larger, above 0; below 1 they become smaller
     */
    public void zoomCenter(float factor) {
        zoomCenter(this, factor);
    }

    /**
     * Stretches the axes of the world.
     *
     * @param x the scale of the x axis, above 0
     * @param y the scale of the y axis, above 0
     * @param z the scale of the z axis, above 0
     */
    public void setAxisViewScales(float x, float y, float z) {
        setAxisViewScales(this, x, y, z);
    }

    /**
     * Stretches the axes so that the box of the scene becomes a cube. The scales do not follow later changes of the
     * scene.
     */
    public void setAxisViewScalesAuto() {
        setAxisViewScalesAuto(this);
    }

    /** Resets the stretch of the axes to 1. */
    public void resetAxisViewScales() {
        resetAxisViewScales(this);
    }

    /** {@return the factor by which the x axis is stretched, initially 1} */
    public float getAxisViewScaleX() {
        return getAxisViewScaleX(this);
    }

    /** {@return the factor by which the y axis is stretched, initially 1} */
    public float getAxisViewScaleY() {
        return getAxisViewScaleY(this);
    }

    /** {@return the factor by which the z axis is stretched, initially 1} */
    public float getAxisViewScaleZ() {
        return getAxisViewScaleZ(this);
    }

    /**
     * Sets whether the camera uses a resize behaviour of its own or that of {@link Canvas3dGlobalSettings}. The change
     * takes effect when the view is computed next, at the latest when the canvas is drawn in another size.
     *
     * @param override true for its own behaviour
     * @param behaviour its own behaviour
     * @throws NullPointerException if the behaviour is null
     */
    public void setOverrideResizeBehaviour(boolean override, ResizeBehaviour behaviour) {
        setOverrideResizeBehaviour(this, override, Objects.requireNonNull(behaviour, "behaviour").number());
    }

    @Override
    protected void cleanup() {
        cleanupNative(this);
    }

    private static native void createNative(Camera3d peer);

    private static native void connectNative(Camera3d peer, Canvas3dSettings owner);

    private static native void cleanupNative(Camera3d peer);

    private static native void setPosition(Camera3d peer, float px, float py, float pz, float dx, float dy, float dz,
            float ux, float uy, float uz);

    private static native float getPositionX(Camera3d peer);

    private static native float getPositionY(Camera3d peer);

    private static native float getPositionZ(Camera3d peer);

    private static native float getLookAtDirectionX(Camera3d peer);

    private static native float getLookAtDirectionY(Camera3d peer);

    private static native float getLookAtDirectionZ(Camera3d peer);

    private static native float getUpDirectionX(Camera3d peer);

    private static native float getUpDirectionY(Camera3d peer);

    private static native float getUpDirectionZ(Camera3d peer);

    private static native void setRotationPoint(Camera3d peer, float x, float y, float z);

    private static native float getRotationPointX(Camera3d peer);

    private static native float getRotationPointY(Camera3d peer);

    private static native float getRotationPointZ(Camera3d peer);

    private static native void setFieldOfView(Camera3d peer, float degrees);

    private static native float getFieldOfView(Camera3d peer);

    private static native void setOrthographicSize(Camera3d peer, float size);

    private static native float getOrthographicSize(Camera3d peer);

    private static native void setViewingScale(Camera3d peer, float scale);

    private static native float getViewingScale(Camera3d peer);

    private static native void setRelativeViewOffset(Camera3d peer, float x, float y);

    private static native float getRelativeViewOffsetX(Camera3d peer);

    private static native float getRelativeViewOffsetY(Camera3d peer);

    private static native void setProjectionType(Camera3d peer, int type);

    private static native int getProjectionType(Camera3d peer);

    private static native void zoomCenter(Camera3d peer, float factor);

    private static native void setAxisViewScales(Camera3d peer, float x, float y, float z);

    private static native void setAxisViewScalesAuto(Camera3d peer);

    private static native void resetAxisViewScales(Camera3d peer);

    private static native float getAxisViewScaleX(Camera3d peer);

    private static native float getAxisViewScaleY(Camera3d peer);

    private static native float getAxisViewScaleZ(Camera3d peer);

    private static native void setOverrideResizeBehaviour(Camera3d peer, boolean overrideGlobal, int behaviour);
}
