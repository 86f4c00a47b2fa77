package com.vexane.interaction;

import com.vexane.base.NativeLibrary;
import com.vexane.base.NativePeer;
import com.vexane.graphics3d.Overlay;

/**
 * Drags vertices and control points of the curves of an overlay over a 2D view, from mouse events.
 *
 * <p>A press takes hold of the point that is nearest to the pointer, within 8 pixels. While the pointer moves, the point
 * moves with it, and with it all edges that depend on it; the release keeps the result, and cancelling, for example on
 * the Escape key, moves the point back.
 *
 * <pre>{@code
 * public void mousePressed(MouseEvent e) {
 *     if (!curves.press(e.getX(), e.getY())) {
 *         camera.press(e.getButton(), 0, e.getX(), e.getY());
 *     }
 * }
 *
 * public void mouseDragged(MouseEvent e) {
 *     if (curves.drag(e.getX(), e.getY()) || camera.drag(e.getX(), e.getY())) {
 *         renderer.draw();
 *     }
 * }
 * }</pre>
 *
 * <p>Positions are pixels from the top left corner of the picture, also outside of it. The interaction keeps the
 * settings of the view and the overlay alive until it is closed, which leaves the point where it is.
 */
public final class CurveInteraction extends NativePeer {
    private CurveInteraction() {}

    /**
     * Makes an interaction with the curves of an overlay.
     *
     * @param renderer the peer of the renderer's view
     * @param overlay the overlay that the view draws over its scene
     * @param canvasHeight the number of rows of the picture, at least 1
     * @return the interaction
     * @throws NullPointerException if a peer is null
     * @throws IllegalStateException if a peer is closed
     * @throws IllegalArgumentException if the height is below 1
     * @throws com.vexane.base.NativeException if the peer is not a view of a renderer, or the view has no settings
     * @throws UnsatisfiedLinkError if the native library or one that it needs cannot be loaded
     */
    public static CurveInteraction connect(NativePeer renderer, Overlay overlay, int canvasHeight) {
        requireOpen(renderer, "renderer");
        requireOpen(overlay, "overlay");
        CameraInteraction.requireHeight(canvasHeight);
        NativeLibrary.require(CurveInteraction.class, "vxinteraction");
        CurveInteraction interaction = new CurveInteraction();
        connectNative(interaction, renderer, overlay, canvasHeight);
        return interaction;
    }

    /**
     * Sets the number of rows of the picture. A current drag is still measured from its press.
     *
     * @param canvasHeight the number of rows, at least 1
     * @throws IllegalArgumentException if the height is below 1
     */
    public void setCanvasHeight(int canvasHeight) {
        CameraInteraction.requireHeight(canvasHeight);
        setCanvasHeight(this, canvasHeight);
    }

    /**
     * Begins a drag, if the view is a 2D view and there is a vertex or control point within reach in the area in which
     * it draws. A curve is preferred to those below it, and a vertex to a control point at the same position. Ends a
     * current drag as {@link #release()} does.
     *
     * @param x column of the pointer
     * @param y row of the pointer, from the top
     * @return whether a drag has begun
     */
    public boolean press(int x, int y) {
        return press(this, x, y);
    }

    /**
     * Moves the point by the movement of the pointer since the press. Without a drag nothing happens.
     *
     * @param x column of the pointer
     * @param y row of the pointer, from the top
     * @return whether the picture may have changed
     */
    public boolean drag(int x, int y) {
        return drag(this, x, y);
    }

    /** Ends the drag and keeps what it shows. */
    public void release() {
        release(this);
    }

    /**
     * Ends the drag and moves the point back.
     *
     * @return whether the picture may have changed
     */
    public boolean cancel() {
        return cancel(this);
    }

    /** {@return whether there is a drag: true from a press to its end} */
    public boolean isDragging() {
        return isDragging(this);
    }

    /** {@return the pick id of the curve of which a point is dragged; -1 without a drag} */
    public int getPickId() {
        return getPickId(this);
    }

    /** {@return the number of the vertex that is dragged; -1 if there is none} */
    public int getVertex() {
        return getVertex(this);
    }

    /** {@return the id of the control point that is dragged; -1 if there is none} */
    public int getControlPoint() {
        return getControlPoint(this);
    }

    @Override
    protected void cleanup() {
        cleanupNative(this);
    }

    private static native void connectNative(
            CurveInteraction peer, NativePeer renderer, Overlay overlay, int canvasHeight);

    private static native void cleanupNative(CurveInteraction peer);

    private static native void setCanvasHeight(CurveInteraction peer, int canvasHeight);

    private static native boolean press(CurveInteraction peer, int x, int y);

    private static native boolean drag(CurveInteraction peer, int x, int y);

    private static native void release(CurveInteraction peer);

    private static native boolean cancel(CurveInteraction peer);

    private static native boolean isDragging(CurveInteraction peer);

    private static native int getPickId(CurveInteraction peer);

    private static native int getVertex(CurveInteraction peer);

    private static native int getControlPoint(CurveInteraction peer);
}
