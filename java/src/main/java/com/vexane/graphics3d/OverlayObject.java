package com.vexane.graphics3d;

import com.vexane.base.NativePeer;

/**
 * A flat shape that an {@link Overlay} shows: its transformation and its look. The subclasses add the shape.
 *
 * <p>A renderer reads the object for every picture; changes are visible in the next one. An object that is in an overlay
 * stays there when its peer is closed. Unless stated otherwise, values are not checked, and calls take constant time.
 */
public abstract sealed class OverlayObject extends NativePeer
        permits OverlayCurve, OverlayPoint, OverlaySymbol, OverlayTransformation, OverlayTwoPointsObject {
    OverlayObject() {}

    /** {@return the id that reports a hit on the object: that of the last {@link Overlay#addOverlayObject}, initially 0} */
    public int getObjectPickID() {
        return getObjectPickID(this);
    }

    /**
     * Rotates the object about an axis through the origin.
     *
     * @param x the axis in x
     * @param y the axis in y
     * @param z the axis in z; the three need not have length 1
     * @param angle the angle in radians, counterclockwise where the axis points towards the viewer
     * @param reset whether to replace the transformation; otherwise points are transformed by this step first and then
     *     by the transformation that the object has
     */
    public void setRotation(float x, float y, float z, float angle, boolean reset) {
        setRotation(this, x, y, z, angle, reset);
    }

    /**
     * Moves the object.
     *
     * @param x the distance in x
     * @param y the distance in y
     * @param z the distance in z
     * @param reset whether to replace the transformation; otherwise points are transformed by this step first and then
     *     by the transformation that the object has
     */
    public void setTranslation(float x, float y, float z, boolean reset) {
        setTranslation(this, x, y, z, reset);
    }

    /**
     * Scales the object about the origin.
     *
     * @param x the factor in x
     * @param y the factor in y
     * @param z the factor in z
     * @param reset whether to replace the transformation; otherwise points are transformed by this step first and then
     *     by the transformation that the object has
     */
    public void setScale(float x, float y, float z, boolean reset) {
        setScale(this, x, y, z, reset);
    }

    /**
     * Sets the width of lines and the size of points, initially 1.
     *
     * @param size the width in pixels of the screen
     */
    public void setLineSize(float size) {
        setLineSize(this, size);
    }

    /**
     * Sets the colour of the area inside the outline, initially opaque black. It is drawn in if {@link #setUseColor} is on.
     *
     * @param red 0 to 255
     * @param green 0 to 255
     * @param blue 0 to 255
     * @param alpha from 0, invisible, to 255, opaque
     * @throws IllegalArgumentException if a channel is outside its range
     */
    public void setFillColor(int red, int green, int blue, int alpha) {
        requireChannels(red, green, blue, alpha);
        setFillColor(this, red, green, blue, alpha);
    }

    /**
     * Sets the colour of lines and points, initially opaque black. It is drawn in if {@link #setUseColor} is on.
     *
     * @param red 0 to 255
     * @param green 0 to 255
     * @param blue 0 to 255
     * @param alpha from 0, invisible, to 255, opaque
     * @throws IllegalArgumentException if a channel is outside its range
     */
    public void setOutlineColor(int red, int green, int blue, int alpha) {
        requireChannels(red, green, blue, alpha);
        setOulineColor(this, red, green, blue, alpha);
    }

    /**
     * Sets whether the object is drawn in its own colours, initially false: the renderer then chooses a colour that
     * contrasts with the background.
     *
     * @param use true for its own colours
     */
    public void setUseColor(boolean use) {
        setUseColor(this, use);
    }

    /**
     * Sets whether the outline is drawn, initially true.
     *
     * @param outlined true to draw it
     */
    public void setIsOutlined(boolean outlined) {
        setIsOutlined(this, outlined);
    }

    /**
     * Sets whether the area inside the outline is filled, initially false.
     *
     * @param filled true to fill it
     */
    public void setFilled(boolean filled) {
        setFilled(this, filled);
    }

    static void requireChannels(int... channels) {
        for (int channel : channels) {
            if (channel < 0 || channel > 255) {
                throw new IllegalArgumentException("a channel of the colour is not 0 to 255: " + channel);
            }
        }
    }

    @Override
    protected void cleanup() {
        cleanupNative(this);
    }

    private static native void cleanupNative(OverlayObject peer);

    private static native int getObjectPickID(OverlayObject peer);

    private static native void setRotation(
            OverlayObject peer, float x, float y, float z, float angle, boolean reset);

    private static native void setTranslation(OverlayObject peer, float x, float y, float z, boolean reset);

    private static native void setScale(OverlayObject peer, float x, float y, float z, boolean reset);

    private static native void setLineSize(OverlayObject peer, float size);

    private static native void setFillColor(OverlayObject peer, int red, int green, int blue, int alpha);

    private static native void setOulineColor(OverlayObject peer, int red, int green, int blue, int alpha);

    private static native void setUseColor(OverlayObject peer, boolean use);

    private static native void setIsOutlined(OverlayObject peer, boolean outlined);

    private static native void setFilled(OverlayObject peer, boolean filled);
}
