package com.vexane.graphics3d;

import com.vexane.base.NativePeer;
import java.util.Objects;

/**
 * The camera of a 2D view: the rectangle of the plane that it shows, kept in step with the shape of the canvas.
 *
 * <p>Limits that are set are adapted to the canvas, so {@link #getViewLimits()} may report more than was asked for.
 * Every method costs no more than a few sums. Values are taken as they are; a scale of 0 or a value that is no number
 * makes a picture of nothing until good values come, and no error.
 */
public final class Camera2d extends NativePeer {
    /** What the limits mean. */
    public enum UseMode {
        /** Radii about a pole. */
        POLAR(0),
        /** A range in x; y always runs from -1 to 1. */
        ONE_DIMENSIONAL(1),
        /** Ranges in x and y. */
        PLANE(2);

        private final int number;

        UseMode(int number) {
            this.number = number;
        }

        /**
         * The number by which native code knows the mode.
         *
         * @return 0 to 2
         */
        public int number() {
            return number;
        }
    }

    /** Makes a camera of its own that shows 0 to 1 on both axes. */
    public Camera2d() {
        createNative(this);
    }

    private Camera2d(Canvas3dSettings settings) {
        connectNative(this, requireOpen(settings, "settings"));
    }

    /**
     * Makes a peer of the 2D camera of a view. The camera lives as long as the peer, also when the view is gone.
     *
     * @param settings the settings of the view
     * @return the peer
     * @throws NullPointerException if the settings are null
     * @throws IllegalStateException if the settings are closed
     */
    public static Camera2d connect(Canvas3dSettings settings) {
        return new Camera2d(settings);
    }

    /**
     * Sets the radii of the polar mode.
     *
     * @param outer the radius at the border; one that does not exceed the inner one becomes the inner one plus 1
     * @param inner the radius at the pole
     */
    public void setPolarLimits(float outer, float inner) {
        setPolarLimits(this, outer, inner);
    }

    /**
     * Sets what the limits mean. The picture follows with the next limits, zoom or size of the canvas.
     *
     * @param mode the mode, {@link UseMode#PLANE} at the start
     * @throws NullPointerException if the mode is null
     */
    public void setUseMode(UseMode mode) {
        setUseMode(this, Objects.requireNonNull(mode, "mode").number());
    }

    /**
     * How much the x axis is stretched on the screen.
     *
     * @return the scale, 1 at the start
     */
    public float getAxisViewScaleX() {
        return getAxisViewScaleX(this);
    }

    /**
     * How much the y axis is stretched on the screen.
     *
     * @return the scale, 1 at the start
     */
    public float getAxisViewScaleY() {
        return getAxisViewScaleY(this);
    }

    /** Takes the stretch of the axes back and stops it from following the scene. */
    public void resetAxisViewScales() {
        resetAxisViewScales(this);
    }

    /** Stretches the axes so that the box of the scene becomes a square, now and whenever the scene changes. */
    public void setAxisViewScalesAuto() {
        setAxisViewScalesAuto(this);
    }

    /**
     * Whether the stretch of the axes follows the scene.
     *
     * @return true at the start
     */
    public boolean getAxisViewScalesAuto() {
        return getAxisViewScalesAuto(this);
    }

    /**
     * Sets the stretch of the axes. It takes effect with the next limits; a stretch that follows the scene replaces it
     * when the scene changes.
     *
     * @param x the scale of the x axis, above 0
     * @param y the scale of the y axis, above 0
     */
    public void setAxisViewScales(float x, float y) {
        setAxisViewScales(this, x, y);
    }

    /**
     * The limits that are displayed.
     *
     * @return lower x, upper x, lower y, upper y; in polar mode the inner and the outer radius, 0 and 0
     */
    public float[] getViewLimits() {
        return getViewLimits(this);
    }

    /**
     * Sets the limits of x. With the aspect ratio preserved y follows about its centre; otherwise y stays.
     *
     * @param x0 the lower limit
     * @param x1 the upper limit
     * @return false if the range is empty and the aspect ratio is not preserved; then nothing changes
     */
    public boolean setViewLimitsX(float x0, float x1) {
        return setViewLimitsX(this, x0, x1);
    }

    /**
     * Sets the limits of y. With the aspect ratio preserved x follows about its centre; otherwise x stays.
     *
     * @param y0 the lower limit
     * @param y1 the upper limit
     * @return false if the range is empty and the aspect ratio is not preserved; then nothing changes
     */
    public boolean setViewLimitsY(float y0, float y1) {
        return setViewLimitsY(this, y0, y1);
    }

    /**
     * Sets the limits so that all of them are visible, with the aspect ratio preserved or not as set.
     *
     * @param x0 the lower limit of x
     * @param x1 the upper limit of x
     * @param y0 the lower limit of y
     * @param y1 the upper limit of y
     * @return whether the limits were accepted; see {@link #setViewLimitsWithPreserve}
     */
    public boolean setViewLimits(float x0, float x1, float y0, float y1) {
        return setViewLimits(this, x0, x1, y0, y1);
    }

    /**
     * Sets the limits so that all of them are visible.
     *
     * <p>Preserving the aspect ratio, more is shown of one axis than was asked for if the canvas has another shape. An
     * empty range of one axis then follows from the other, and if both are empty, one unit to each side is shown.
     * Otherwise the axes are stretched so that the limits fill the canvas, and an empty range is refused.
     *
     * @param x0 the lower limit of x
     * @param x1 the upper limit of x
     * @param y0 the lower limit of y
     * @param y1 the upper limit of y
     * @param preserve true to preserve the aspect ratio
     * @return false if a range is empty and the aspect ratio is not to be preserved; then nothing changes
     */
    public boolean setViewLimitsWithPreserve(float x0, float x1, float y0, float y1, boolean preserve) {
        return setViewLimitsWithPreserve(this, x0, x1, y0, y1, preserve);
    }

    /**
     * Whether setting limits and zooming preserve the aspect ratio.
     *
     * @return true at the start
     */
    public boolean isPreserveAspectRatio() {
        return isPreserveAspectRatio(this);
    }

    /**
     * Sets whether setting limits and zooming preserve the aspect ratio.
     *
     * @param preserve true to preserve it
     */
    public void setPreserveAspectRatio(boolean preserve) {
        setPreserveAspectRatio(this, preserve);
    }

    /**
     * Magnifies the picture about its centre and commits whatever is displayed. Magnification ends, without an error,
     * where the range of an axis is so small against its distance from zero that floats hardly tell its ends apart.
     *
     * @param factor how much larger things become, above 0; below 1 they become smaller
     */
    public void zoomCenter(float factor) {
        zoomCenter(this, factor);
    }

    /**
     * Makes the camera follow a resize behaviour of its own, or the one of {@link Canvas3dGlobalSettings}.
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

    private static native void createNative(Camera2d peer);

    private static native void connectNative(Camera2d peer, Canvas3dSettings owner);

    private static native void cleanupNative(Camera2d peer);

    private static native void setPolarLimits(Camera2d peer, float outer, float inner);

    private static native void setUseMode(Camera2d peer, int mode);

    private static native float getAxisViewScaleX(Camera2d peer);

    private static native float getAxisViewScaleY(Camera2d peer);

    private static native void resetAxisViewScales(Camera2d peer);

    private static native void setAxisViewScalesAuto(Camera2d peer);

    private static native boolean getAxisViewScalesAuto(Camera2d peer);

    private static native void setAxisViewScales(Camera2d peer, float x, float y);

    private static native float[] getViewLimits(Camera2d peer);

    private static native boolean setViewLimitsX(Camera2d peer, float x0, float x1);

    private static native boolean setViewLimitsY(Camera2d peer, float y0, float y1);

    private static native boolean setViewLimits(Camera2d peer, float x0, float x1, float y0, float y1);

    private static native boolean setViewLimitsWithPreserve(Camera2d peer, float x0, float x1, float y0, float y1,
            boolean preserve);

    private static native boolean isPreserveAspectRatio(Camera2d peer);

    private static native void setPreserveAspectRatio(Camera2d peer, boolean preserve);

    private static native void zoomCenter(Camera2d peer, float factor);

    private static native void setOverrideResizeBehaviour(Camera2d peer, boolean overrideGlobal, int behaviour);
}
