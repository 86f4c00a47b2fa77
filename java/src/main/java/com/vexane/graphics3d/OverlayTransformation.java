package com.vexane.graphics3d;

import java.util.Objects;

/**
 * A frame around something in the view, with eight handles by which the user moves and scales it.
 *
 * <p>The renderer gives the frame the box that it is to enclose whenever it draws it. The frame is drawn with the
 * transformation of this object, so it shows where the content of the box is moved to. The handles are numbered around
 * the rectangle of the box in x and y, counterclockwise from its lower left corner: even numbers are corners, odd ones
 * middles of sides. They are in the plane z = 0.
 */
public final class OverlayTransformation extends OverlayObject {
    /** The number of handles. */
    public static final int HANDLES = 8;

    /** Makes a frame without marked handles. */
    public OverlayTransformation() {
        createNative(this);
    }

    /**
     * Marks a handle, which is then drawn filled, or removes the mark.
     *
     * @param handle 0 to 7
     * @param marked true to mark it
     * @throws IndexOutOfBoundsException if there is no such handle
     */
    public void markHandle(int handle, boolean marked) {
        markHandle(this, Objects.checkIndex(handle, HANDLES), marked);
    }

    /**
     * {@return the position of a handle in the overlay: x, y and z} It follows the box of the picture drawn last; until
     * the frame is drawn, the handle is at the origin, transformed.
     *
     * @param handle 0 to 7
     * @throws IndexOutOfBoundsException if there is no such handle
     */
    public double[] getHandlePosition(int handle) {
        double[] position = new double[3];
        getHandlePosition(this, Objects.checkIndex(handle, HANDLES), position);
        return position;
    }

    @Override
    protected void cleanup() {
        cleanupNative(this);
    }

    private static native void createNative(OverlayTransformation peer);

    private static native void cleanupNative(OverlayTransformation peer);

    private static native void markHandle(OverlayTransformation peer, int handle, boolean marked);

    private static native void getHandlePosition(OverlayTransformation peer, int handle, double[] out);
}
