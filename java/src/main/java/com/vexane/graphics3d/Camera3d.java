package com.vexane.graphics3d;

import com.vexane.base.NativePeer;
import java.util.Objects;

/**
 * The camera of a 3D view: where the eye is, how it is turned, and what it projects.
 *
 * <p>Positions and directions are in the world as the axis scales stretch it; without axis scales that is the world
 * itself. Every method costs no more than a few matrices. Values are taken as they are: a direction without length, or
 * a factor or size of 0, makes a picture of nothing until good values come, and no error.
 *
 * <p>Interaction changes what is displayed and commits it at its end. Position, direction and up direction are the
 * committed ones; the view offset is the displayed one.
 */
public final class Camera3d extends NativePeer {
    /** How depth shows on the screen. */
    public enum ProjectionType {
        /** What is farther away is smaller. */
        PERSPECTIVE(0),
        /** Size does not depend on depth. */
        ORTHOGRAPHIC(1);

        private final int number;

        ProjectionType(int number) {
            this.number = number;
        }

        /**
         * The number by which native code knows the projection.
         *
         * @return 0 or 1
         */
        public int number() {
            return number;
        }
    }

    /** Makes a camera of its own, with a perspective projection and an angle of view of 20 degrees. */
    public Camera3d() {
        createNative(this);
    }

    private Camera3d(Canvas3dSettings settings) {
        connectNative(this, requireOpen(settings, "settings"));
    }

    /**
     * Makes a peer of the 3D camera of a view. The camera lives as long as the peer, also when the view is gone.
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
     * Places the eye and turns it. Only the length of the direction is kept, not used; zoom and view offset stay.
     *
     * @param px the position of the eye, x
     * @param py the position of the eye, y
     * @param pz the position of the eye, z
     * @param dx the direction from the eye into the scene, x; of any length above 0
     * @param dy the direction, y
     * @param dz the direction, z
     * @param ux what is up, x; of any length above 0, in any direction but the one that the eye looks
     * @param uy what is up, y
     * @param uz what is up, z
     */
    public void setPosition(float px, float py, float pz, float dx, float dy, float dz, float ux, float uy, float uz) {
        setPosition(this, px, py, pz, dx, dy, dz, ux, uy, uz);
    }

    /**
     * The committed position of the eye, x.
     *
     * @return the coordinate
     */
    public float getPositionX() {
        return getPositionX(this);
    }

    /**
     * The committed position of the eye, y.
     *
     * @return the coordinate
     */
    public float getPositionY() {
        return getPositionY(this);
    }

    /**
     * The committed position of the eye, z.
     *
     * @return the coordinate
     */
    public float getPositionZ() {
        return getPositionZ(this);
    }

    /**
     * The committed direction into the scene, x, at the length with which the eye was placed.
     *
     * @return the component
     */
    public float getLookAtDirectionX() {
        return getLookAtDirectionX(this);
    }

    /**
     * The committed direction into the scene, y.
     *
     * @return the component
     */
    public float getLookAtDirectionY() {
        return getLookAtDirectionY(this);
    }

    /**
     * The committed direction into the scene, z.
     *
     * @return the component
     */
    public float getLookAtDirectionZ() {
        return getLookAtDirectionZ(this);
    }

    /**
     * The committed up direction of the picture, x: of length 1 and at right angles to the direction into the scene.
     *
     * @return the component
     */
    public float getUpDirectionX() {
        return getUpDirectionX(this);
    }

    /**
     * The committed up direction of the picture, y.
     *
     * @return the component
     */
    public float getUpDirectionY() {
        return getUpDirectionY(this);
    }

    /**
     * The committed up direction of the picture, z.
     *
     * @return the component
     */
    public float getUpDirectionZ() {
        return getUpDirectionZ(this);
    }

    /**
     * Sets the point that the scene turns about and that the eye moves towards.
     *
     * @param x the point in the world, x; not stretched by the axis scales
     * @param y the point, y
     * @param z the point, z
     */
    public void setRotationPoint(float x, float y, float z) {
        setRotationPoint(this, x, y, z);
    }

    /**
     * The point that the scene turns about, x.
     *
     * @return the coordinate in the world
     */
    public float getRotationPointX() {
        return getRotationPointX(this);
    }

    /**
     * The point that the scene turns about, y.
     *
     * @return the coordinate in the world
     */
    public float getRotationPointY() {
        return getRotationPointY(this);
    }

    /**
     * The point that the scene turns about, z.
     *
     * @return the coordinate in the world
     */
    public float getRotationPointZ() {
        return getRotationPointZ(this);
    }

    /**
     * Sets the angle of view of the perspective projection, in both directions.
     *
     * @param degrees the angle between the middle and the border of the picture, above 0 and below 90
     */
    public void setFieldOfView(float degrees) {
        setFieldOfView(this, degrees);
    }

    /**
     * The angle of view that decides how large the perspective picture is.
     *
     * @return the angle between the middle and the border of the picture in degrees; 0 under a resize behaviour by which
     *     no angle decides it, {@link ResizeBehaviour#PIXELS} or {@link ResizeBehaviour#KEEP}
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
     * The extent that decides how large the orthographic picture is.
     *
     * @return the extent from border to border; the geometric mean of width and height where neither decides
     */
    public float getOrthographicSize() {
        return getOrthographicSize(this);
    }

    /**
     * Sets how many pixels a unit at the near clipping plane covers under {@link ResizeBehaviour#PIXELS}.
     *
     * @param scale pixels a unit, above 0
     */
    public void setViewingScale(float scale) {
        setViewingScale(this, scale);
    }

    /**
     * How many pixels a unit at the near clipping plane covers under {@link ResizeBehaviour#PIXELS}.
     *
     * @return pixels a unit
     */
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

    /**
     * How far the displayed picture is moved to the right.
     *
     * @return a fraction of the width
     */
    public float getRelativeViewOffsetX() {
        return getRelativeViewOffsetX(this);
    }

    /**
     * How far the displayed picture is moved upwards.
     *
     * @return a fraction of the height
     */
    public float getRelativeViewOffsetY() {
        return getRelativeViewOffsetY(this);
    }

    /**
     * Changes the projection. Angle, extent and pixel scale change with it, so that what lies at the rotation point keeps
     * its size on the screen.
     *
     * @param type the projection
     * @throws NullPointerException if the type is null
     */
    public void setProjectionType(ProjectionType type) {
        setProjectionType(this, Objects.requireNonNull(type, "type").number());
    }

    /**
     * The projection.
     *
     * @return the projection
     */
    public ProjectionType getProjectionType() {
        return ProjectionType.values()[getProjectionType(this)];
    }

    /**
     * Magnifies the picture about its centre and commits whatever is displayed. Magnification ends, without an error,
     * where the view is tiny against the range between the clipping planes.
     *
     * @param factor how much larger things become, above 0; below 1 they become smaller
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

    /** Stretches the axes so that the box of the scene becomes a cube; once, not whenever the scene changes. */
    public void setAxisViewScalesAuto() {
        setAxisViewScalesAuto(this);
    }

    /** Takes the stretch of the axes back. */
    public void resetAxisViewScales() {
        resetAxisViewScales(this);
    }

    /**
     * How much the x axis is stretched.
     *
     * @return the scale, 1 at the start
     */
    public float getAxisViewScaleX() {
        return getAxisViewScaleX(this);
    }

    /**
     * How much the y axis is stretched.
     *
     * @return the scale, 1 at the start
     */
    public float getAxisViewScaleY() {
        return getAxisViewScaleY(this);
    }

    /**
     * How much the z axis is stretched.
     *
     * @return the scale, 1 at the start
     */
    public float getAxisViewScaleZ() {
        return getAxisViewScaleZ(this);
    }

    /**
     * Makes the camera follow a resize behaviour of its own, or the one of {@link Canvas3dGlobalSettings}. The picture
     * follows when it is computed next, at the latest when the canvas is drawn in another size.
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
