package com.vexane.interaction;

import com.vexane.base.NativeLibrary;
import com.vexane.base.NativePeer;
import com.vexane.graphics3d.Overlay;
import com.vexane.graphics3d.OverlayRectangle;

/**
 * A rectangle that the user drags open, to select or to zoom. It needs an overlay whose coordinates are pixels of the
 * picture, such as the screen overlay of the renderer.
 *
 * <pre>{@code
 * public void mouseReleased(MouseEvent e) {
 *     int[] corners = band.release();
 *     if (corners != null) {
 *         camera.zoomToRectangle(corners[0], corners[1], corners[2], corners[3]);
 *     }
 *     redraw();
 * }
 * }</pre>
 *
 * <p>The rectangle is in the overlay from the first movement to the end of the drag. Closing the band removes it. All
 * calls take constant time, except that the end searches the overlay. They must come from one thread at a time, never
 * while the view is drawn.
 */
public final class RubberBand extends NativePeer {
    /**
     * Makes a rubber band.
     *
     * @param overlay the overlay
     * @param rectangle the rectangle, which is drawn with its own look
     * @throws NullPointerException if a peer is null
     * @throws IllegalStateException if a peer is closed
     * @throws UnsatisfiedLinkError if the native library or one that it needs cannot be loaded
     */
    public RubberBand(Overlay overlay, OverlayRectangle rectangle) {
        requireOpen(overlay, "overlay");
        requireOpen(rectangle, "rectangle");
        NativeLibrary.require(RubberBand.class, "vxinteraction");
        createNative(this, overlay, rectangle);
    }

    /**
     * Begins a band at a pixel. A current band ends.
     *
     * @param x column of the pointer
     * @param y row of the pointer, from the top
     */
    public void press(int x, int y) {
        press(this, x, y);
    }

    /**
     * Moves the free corner. Without a band nothing happens.
     *
     * @param x column of the pointer
     * @param y row of the pointer, from the top
     * @return whether the picture may have changed
     */
    public boolean drag(int x, int y) {
        return drag(this, x, y);
    }

    /**
     * Ends the band.
     *
     * @return column and row of the press and of the pointer, or null if the pointer has not moved
     */
    public int[] release() {
        int[] corners = new int[4];
        return release(this, corners) ? corners : null;
    }

    /**
     * Ends the band without a result, for example on the Escape key.
     *
     * @return whether the picture may have changed
     */
    public boolean cancel() {
        return cancel(this);
    }

    /** {@return whether there is a band: true from a press to its end} */
    public boolean isActive() {
        return isActive(this);
    }

    @Override
    protected void cleanup() {
        cleanupNative(this);
    }

    private static native void createNative(RubberBand peer, Overlay overlay, OverlayRectangle rectangle);

    private static native void cleanupNative(RubberBand peer);

    private static native void press(RubberBand peer, int x, int y);

    private static native boolean drag(RubberBand peer, int x, int y);

    private static native boolean release(RubberBand peer, int[] corners);

    private static native boolean cancel(RubberBand peer);

    private static native boolean isActive(RubberBand peer);
}
