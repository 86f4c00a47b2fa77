package com.vexane.interaction;

import com.vexane.base.NativeLibrary;
import com.vexane.base.NativePeer;
import com.vexane.graphics3d.Overlay;
import com.vexane.graphics3d.PickedObject.PartType;
import com.vexane.graphics3d.PickedObjectCollection;

/**
 * Finds the objects of an overlay under the pointer. The overlay is one that a view draws over its scene.
 *
 * <p>Results have the pick id of {@link Overlay#addOverlayObject}. Parts of a curve are its vertices
 * ({@link PartType#POINT}), its edges ({@link PartType#LINE}) and its control points ({@link #CONTROL_POINT}, by their
 * ids); those of a frame are its handles ({@link #HANDLE}). Other objects are hit as a whole.
 */
public final class OverlayPicker extends NativePeer {
    /** The kind of part of a control point. */
    public static final PartType CONTROL_POINT = PartType.RENDERER_5;

    /** The kind of part of a handle. */
    public static final PartType HANDLE = PartType.RENDERER_6;

    private OverlayPicker() {}

    /**
     * Makes a picker.
     *
     * @param renderer the peer of the renderer's view
     * @param overlay the overlay
     * @param canvasHeight the number of rows of the picture, at least 1
     * @return the picker
     * @throws NullPointerException if a peer is null
     * @throws IllegalStateException if a peer is closed
     * @throws IllegalArgumentException if the height is below 1
     * @throws com.vexane.base.NativeException if the renderer's peer is not a view of a renderer
     * @throws UnsatisfiedLinkError if the native library or one that it needs cannot be loaded
     */
    public static OverlayPicker connect(NativePeer renderer, Overlay overlay, int canvasHeight) {
        requireOpen(renderer, "renderer");
        requireOpen(overlay, "overlay");
        OverlayInteraction.requireHeight(canvasHeight);
        NativeLibrary.require(OverlayPicker.class, "vxinteraction");
        OverlayPicker picker = new OverlayPicker();
        connectNative(picker, renderer, overlay, canvasHeight);
        return picker;
    }

    /**
     * Sets the number of rows of the picture.
     *
     * @param canvasHeight the number of rows, at least 1
     * @throws IllegalArgumentException if the height is below 1
     */
    public void setCanvasHeight(int canvasHeight) {
        setCanvasHeight(this, OverlayInteraction.requireHeight(canvasHeight));
    }

    /**
     * Appends the objects at a pixel to a collection, those that are drawn last first. Of each object there is one
     * result: points and handles are preferred to lines, lines to areas. An object is hit near its outline, within the
     * picking tolerance, and inside if it is filled. Takes time in proportion to the number of lines of all objects.
     *
     * @param x column of the pointer
     * @param y row of the pointer, from the top
     * @param picked the collection
     * @return whether there was any object
     * @throws NullPointerException if the collection is null
     * @throws IllegalStateException if the collection is closed
     */
    public boolean pick(int x, int y, PickedObjectCollection picked) {
        return pick(this, x, y, requireOpen(picked, "picked"));
    }

    /**
     * Finds the position in the overlay that is seen at a pixel, in the plane z = 0.
     *
     * @param x column of the pointer
     * @param y row of the pointer, from the top
     * @return x and y at the middle of the pixel, or null if the plane is not seen there
     */
    public double[] locate(int x, int y) {
        double[] out = new double[2];
        return toPlane(this, x, y, out) ? out : null;
    }

    /**
     * Finds the pixel at which a point of the scene is seen, also outside the picture.
     *
     * @param x the position in x
     * @param y the position in y
     * @param z the position in z
     * @return column and row, or null if the point is not in front of the eye
     */
    public int[] pixelOf(double x, double y, double z) {
        double[] out = new double[2];
        return toPicture(this, x, y, z, out) ? new int[] {(int) Math.floor(out[0]), (int) Math.floor(out[1])} : null;
    }

    @Override
    protected void cleanup() {
        cleanupNative(this);
    }

    private static native void connectNative(
            OverlayPicker peer, NativePeer renderer, Overlay overlay, int canvasHeight);

    private static native void cleanupNative(OverlayPicker peer);

    private static native void setCanvasHeight(OverlayPicker peer, int canvasHeight);

    private static native boolean toPlane(OverlayPicker peer, int x, int y, double[] out);

    private static native boolean toPicture(OverlayPicker peer, double x, double y, double z, double[] out);

    private static native boolean pick(OverlayPicker peer, int x, int y, PickedObjectCollection picked);
}
