package com.vexane.graphics3d;

import com.vexane.base.NativeEnum;
import com.vexane.base.NativePeer;
import java.util.Objects;

/**
 * The camera of a 2D view: the rectangle of the plane that it shows, adapted to the shape of the canvas.
 *
 * <p>Limits that are set are adapted to the canvas, so {@link #getViewLimits()} may report more than was requested. All
 * calls take constant time. Values are not checked: a scale of 0 or a NaN is not an error, but leaves the picture empty
 * until valid values are set.
 *
 * <p>Under {@link ResizeBehaviour#PIXELS} the size of the canvas decides how much is shown: limits that are set, and
 * zooming, last only until the next resize or the end of the next interaction.
 */
public final class Camera2d extends NativePeer {
    /** What the limits mean. */
    public enum UseMode implements NativeEnum {
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

        @Override
        public int number() {
            return number;
        }
    }

    /** Makes a camera that belongs to no view and shows 0 to 1 on both axes. */
    public Camera2d() {
        createNative(this);
    }

    private Camera2d(Canvas3dSettings settings) {
        connectNative(this, requireOpen(settings, "settings"));
    }

    /**
     * Makes a peer of the 2D camera of a view. The camera lives as long as the peer, even after the view is gone.
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
     * @param outer the radius at the border; if it does not exceed the inner radius, the inner radius plus 1 is used
     * @param inner the radius at the pole
     */
    public void setPolarLimits(float outer, float inner) {
        setPolarLimits(this, outer, inner);
    }

    /**
     * Sets what the limits mean. The picture changes when limits are set next, or at the next zoom or resize.
     *
     * @param mode the mode, initially {@link UseMode#PLANE}
     * @throws NullPointerException if the mode is null
     */
    public void setUseMode(UseMode mode) {
        setUseMode(this, Objects.requireNonNull(mode, "mode").number());
    }

    /** {@return the factor by which the x axis is stretched on the screen, initially 1} */
    public float getAxisViewScaleX() {
        return getAxisViewScaleX(this);
    }

    /** {@return the factor by which the y axis is stretched on the screen, initially 1} */
    public float getAxisViewScaleY() {
        return getAxisViewScaleY(this);
    }

    /** Resets the stretch of the axes to 1 and stops it from following the scene. */
    public void resetAxisViewScales() {
        resetAxisViewScales(this);
    }

    /** Stretches the axes so that the box of the scene becomes a square, now and whenever the scene changes. */
    public void setAxisViewScalesAuto() {
        setAxisViewScalesAuto(this);
    }

    /** {@return whether the stretch of the axes follows the scene, initially true} */
    public boolean getAxisViewScalesAuto() {
        return getAxisViewScalesAuto(this);
    }

    /**
     * Sets the stretch of the axes. It takes effect when limits are set next; a stretch that follows the scene replaces
     * it when the scene changes.
     *
     * @param x the scale of the x axis, above 0
     * @param y the scale of the y axis, above 0
     */
    public void setAxisViewScales(float x, float y) {
        setAxisViewScales(this, x, y);
    }

    /**
     * {@return the displayed limits: lower x, upper x, lower y, upper y; in polar mode the inner and the outer radius,
     * 0 and 0}
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
     * <p>Under {@link ResizeBehaviour#PIXELS} a pixel has a fixed size in the world, which the limits determine. When
     * the canvas changes its size, or a drag or zoom ends, the limits are adapted to that size about their centre. So
     * limits set here last until then, and a zoom does not last.
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
     * <p>If the aspect ratio is preserved and the canvas has another shape, more of one axis is shown than requested.
     * An empty range of one axis then follows from the other, and if both are empty, one unit to each side is shown.
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

    /** {@return whether setting limits and zooming preserve the aspect ratio, initially true} */
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
     * Magnifies the picture about its centre and commits what is displayed. Magnification ends, without an error, where
     * the range of an axis is so small compared to its distance from zero that floats hardly distinguish its ends.
     *
     * <p>Under {@link ResizeBehaviour#PIXELS} a pixel has a fixed size in the world, so this has no effect; use
     * {@link #setViewLimits}.
     *
     * @param factor the factor by which things become larger, above 0; below 1 they become smaller
     */
    public void zoomCenter(float factor) {
        zoomCenter(this, factor);
    }

    /**
     * Sets whether the camera uses a resize behaviour of its own or that of {@link Canvas3dGlobalSettings}.
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
