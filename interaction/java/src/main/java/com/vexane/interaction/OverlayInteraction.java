package com.vexane.interaction;

import com.vexane.base.NativePeer;

/**
 * Converts mouse actions over a view into changes of an overlay object that the view shows in its scene.
 *
 * <pre>{@code
 * public void mousePressed(MouseEvent e) {
 *     redrawIf(interaction.press(e.getX(), e.getY()));
 * }
 *
 * public void mouseDragged(MouseEvent e) { // and mouseMoved
 *     redrawIf(interaction.drag(e.getX(), e.getY()));
 * }
 *
 * public void mouseReleased(MouseEvent e) {
 *     redrawIf(interaction.release());
 * }
 * }</pre>
 *
 * <p>Pointer positions are pixels of the picture as in mouse events: from the top left corner, also outside the picture.
 * What is within the {@linkplain com.vexane.graphics3d.Canvas3dGlobalSettings picking tolerance} of the pointer is hit.
 * The interaction keeps the settings of the view and its overlay object alive. Closing it cancels it; if it is dropped
 * without being closed, the object stays as it is. Calls must come from one thread at a time, never while the view is
 * drawn.
 */
public abstract sealed class OverlayInteraction extends NativePeer
        permits CurveDrawing, CurveEditing, FrameInteraction {
    OverlayInteraction() {}

    /**
     * Sets the number of rows of the picture.
     *
     * @param canvasHeight the number of rows, at least 1
     * @throws IllegalArgumentException if the height is below 1
     */
    public void setCanvasHeight(int canvasHeight) {
        setCanvasHeight(this, requireHeight(canvasHeight));
    }

    /**
     * Handles a button that goes down.
     *
     * @param x column of the pointer
     * @param y row of the pointer, from the top
     * @return whether the picture may have changed
     */
    public boolean press(int x, int y) {
        return press(this, x, y);
    }

    /**
     * Handles a movement of the pointer, with or without a button held down.
     *
     * @param x column of the pointer
     * @param y row of the pointer, from the top
     * @return whether the picture may have changed
     */
    public boolean drag(int x, int y) {
        return drag(this, x, y);
    }

    /**
     * Handles a button that goes up.
     *
     * @return whether the picture may have changed
     */
    public boolean release() {
        return release(this);
    }

    /**
     * Restores what was before, for example on the Escape key.
     *
     * @return whether the picture may have changed
     */
    public boolean cancel() {
        return cancel(this);
    }

    /** {@return whether something has begun that can be cancelled} */
    public boolean isActive() {
        return isActive(this);
    }

    static int requireHeight(int canvasHeight) {
        if (canvasHeight < 1) {
            throw new IllegalArgumentException("canvasHeight is below 1: " + canvasHeight);
        }
        return canvasHeight;
    }

    @Override
    protected void cleanup() {
        cleanupNative(this);
    }

    private static native void cleanupNative(OverlayInteraction peer);

    private static native void setCanvasHeight(OverlayInteraction peer, int canvasHeight);

    private static native boolean press(OverlayInteraction peer, int x, int y);

    private static native boolean drag(OverlayInteraction peer, int x, int y);

    private static native boolean release(OverlayInteraction peer);

    private static native boolean cancel(OverlayInteraction peer);

    private static native boolean isActive(OverlayInteraction peer);
}
