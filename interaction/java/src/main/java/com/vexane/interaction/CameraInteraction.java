package com.vexane.interaction;

import com.vexane.base.NativeEnum;
import com.vexane.base.NativeLibrary;
import com.vexane.base.NativePeer;
import com.vexane.graphics3d.Canvas3dGlobalSettings.CameraMouseAction;
import com.vexane.graphics3d.Canvas3dGlobalSettings;

/**
 * Converts mouse actions over a view into movements of its camera.
 *
 * <p>A press begins a drag with the current camera of the view and the action that
 * {@link Canvas3dGlobalSettings#getCameraMouseAction} returns for the button and the keys; call
 * {@link Canvas3dGlobalSettings#setDefaultCameraMouseActions()} once, since the table is initially empty. While the
 * pointer moves, the camera shows the movement since the press, so the number of events makes no difference. The
 * release keeps it; cancelling, for example on the Escape key, restores the previous view.
 *
 * <pre>{@code
 * public void mousePressed(MouseEvent e) {
 *     if (e.getButton() >= 1 && e.getButton() <= 3) {
 *         int keys = CameraInteraction.keyMask(e.isShiftDown(), e.isControlDown(), e.isAltDown());
 *         interaction.press(e.getButton(), keys, e.getX(), e.getY());
 *     }
 * }
 *
 * public void mouseDragged(MouseEvent e) {
 *     if (interaction.drag(e.getX(), e.getY())) {
 *         redraw();
 *     }
 * }
 * }</pre>
 *
 * <p>Pointer positions are pixels of the picture as in mouse events: from the top left corner, also outside the
 * picture. The interaction keeps the settings of the view alive. Closing it during a drag cancels the drag; if it is
 * dropped without being closed, the camera stays as the drag shows it. All calls take constant time. As for all peers,
 * they must come from one thread at a time, never while the view is drawn.
 */
public final class CameraInteraction extends NativePeer {
    /** The bit of the Shift key in a set of keys. */
    public static final int SHIFT = 1;

    /** The bit of the Control key in a set of keys. */
    public static final int CONTROL = 2;

    /** The bit of the Alt key in a set of keys. */
    public static final int ALT = 4;

    private CameraInteraction() {}

    /**
     * Makes an interaction with a view.
     *
     * @param renderer the peer of the renderer's view
     * @param canvasHeight the number of rows of the picture, at least 1
     * @return the interaction
     * @throws NullPointerException if the view's peer is null
     * @throws IllegalStateException if the view's peer is closed
     * @throws IllegalArgumentException if the height is below 1
     * @throws com.vexane.base.NativeException if the peer is not a view of a renderer, or the view has no settings
     * @throws UnsatisfiedLinkError if the native library or one that it needs cannot be loaded
     */
    public static CameraInteraction connect(NativePeer renderer, int canvasHeight) {
        requireOpen(renderer, "renderer");
        requireHeight(canvasHeight);
        NativeLibrary.require(CameraInteraction.class, "vxinteraction");
        CameraInteraction interaction = new CameraInteraction();
        connectNative(interaction, renderer, canvasHeight);
        return interaction;
    }

    /**
     * {@return the set of keys for {@link #press}, 0 to 7}
     *
     * @param shift whether Shift is held down
     * @param control whether Control is held down
     * @param alt whether Alt is held down
     */
    public static int keyMask(boolean shift, boolean control, boolean alt) {
        return (shift ? SHIFT : 0) | (control ? CONTROL : 0) | (alt ? ALT : 0);
    }

    /**
     * Sets the number of rows of the picture. A current drag is still measured from its press.
     *
     * @param canvasHeight the number of rows, at least 1
     * @throws IllegalArgumentException if the height is below 1
     */
    public void setCanvasHeight(int canvasHeight) {
        requireHeight(canvasHeight);
        setCanvasHeight(this, canvasHeight);
    }

    /**
     * Begins a drag, if the button has an action with these keys, the camera supports the action (that of a 2D view
     * supports only {@link CameraMouseAction#PAN} and {@link CameraMouseAction#ZOOM}), and the pointer is in the area
     * in which the view draws. During a drag other buttons are ignored. A second press of the same button means that
     * its release was lost: the drag ends as by {@link #release()}, and a new one may begin.
     *
     * @param button 1 to 3, as mouse events count
     * @param keyMask the keys held down: {@link #SHIFT}, {@link #CONTROL} and {@link #ALT} together, 0 for none
     * @param x column of the pointer
     * @param y row of the pointer, from the top
     * @return whether a drag has begun
     * @throws IllegalArgumentException if there is no such button or set of keys
     */
    public boolean press(int button, int keyMask, int x, int y) {
        if (button < 1 || button > Canvas3dGlobalSettings.MOUSE_BUTTONS) {
            throw new IllegalArgumentException(
                    "button is not 1 to " + Canvas3dGlobalSettings.MOUSE_BUTTONS + ": " + button);
        }
        if ((keyMask & ~(SHIFT | CONTROL | ALT)) != 0) {
            throw new IllegalArgumentException("keyMask is not 0 to 7: " + keyMask);
        }
        return press(this, button, keyMask, x, y);
    }

    /**
     * Moves the camera by the movement of the pointer since the press. Without a drag nothing happens.
     *
     * @param x column of the pointer
     * @param y row of the pointer, from the top
     * @return whether the picture may have changed
     */
    public boolean drag(int x, int y) {
        return drag(this, x, y);
    }

    /** Ends the drag and keeps what it shows. Nothing changes if the pointer has not moved, or if there is no drag. */
    public void release() {
        release(this);
    }

    /**
     * Ends the drag and restores the view before it.
     *
     * @return whether the picture may have changed
     */
    public boolean cancel() {
        return cancel(this);
    }

    /**
     * Zooms about the pointer and keeps the result. Ignored during a drag, and outside the area in which the view
     * draws.
     *
     * @param notches how far the wheel was turned, above 0 towards the user, which makes the picture smaller; fractions
     *     are fine
     * @param x column of the pointer
     * @param y row of the pointer, from the top
     * @return whether the picture may have changed
     */
    public boolean wheel(double notches, int x, int y) {
        return wheel(this, notches, x, y);
    }

    /**
     * Zooms to a rectangle: its centre moves to the centre of the view, and all of it that the view shows stays
     * visible. Ignored during a drag, and for a rectangle with less than 2 columns or rows in the view.
     *
     * @param x0 column of a corner
     * @param y0 row of that corner, from the top
     * @param x1 column of the opposite corner
     * @param y1 row of the opposite corner
     * @return whether the picture may have changed
     */
    public boolean zoomToRectangle(int x0, int y0, int x1, int y1) {
        return zoomToRectangle(this, x0, y0, x1, y1);
    }

    /** {@return whether there is a drag: true from a press to its end} */
    public boolean isDragging() {
        return isDragging(this);
    }

    /** {@return what the current drag does; {@link CameraMouseAction#NONE} if there is no drag} */
    public CameraMouseAction getAction() {
        return NativeEnum.of(CameraMouseAction.class, getAction(this));
    }

    private static void requireHeight(int canvasHeight) {
        if (canvasHeight < 1) {
            throw new IllegalArgumentException("canvasHeight is below 1: " + canvasHeight);
        }
    }

    @Override
    protected void cleanup() {
        cleanupNative(this);
    }

    private static native void connectNative(CameraInteraction peer, NativePeer renderer, int canvasHeight);

    private static native void cleanupNative(CameraInteraction peer);

    private static native void setCanvasHeight(CameraInteraction peer, int canvasHeight);

    private static native boolean press(CameraInteraction peer, int button, int keyMask, int x, int y);

    private static native boolean drag(CameraInteraction peer, int x, int y);

    private static native void release(CameraInteraction peer);

    private static native boolean cancel(CameraInteraction peer);

    private static native boolean wheel(CameraInteraction peer, double notches, int x, int y);

    private static native boolean zoomToRectangle(CameraInteraction peer, int x0, int y0, int x1, int y1);

    private static native boolean isDragging(CameraInteraction peer);

    private static native int getAction(CameraInteraction peer);
}
