package com.vexane.interaction;

import com.vexane.base.NativeLibrary;
import com.vexane.base.NativePeer;
import com.vexane.graphics3d.Overlay;
import com.vexane.graphics3d.OverlayDrawCurve;

/**
 * Draws a chain of edges point by point. Each press sets the next point of the polygon of an edge: its start, its control
 * points and its end, which is the start of the next edge. While the pointer moves, the overlay has one more object,
 * which shows the edge as it would be with its end at the pointer. A press at the first vertex of the chain closes it.
 *
 * <p>An edge is added to the curve with its last point. {@link #finish()} ends the chain, for example after a double
 * click, and drops the points of an unfinished edge; {@link #cancel()} does the same. All calls take constant time,
 * except that the overlay is searched for the object that shows the next edge.
 */
public final class CurveDrawing extends OverlayInteraction {
    private CurveDrawing() {}

    /**
     * Makes an interaction that draws a curve.
     *
     * @param renderer the peer of the renderer's view
     * @param overlay the overlay of the view
     * @param curve the curve that grows; to be seen, it must be in the overlay
     * @param canvasHeight the number of rows of the picture, at least 1
     * @return the interaction
     * @throws NullPointerException if a peer is null
     * @throws IllegalStateException if a peer is closed
     * @throws IllegalArgumentException if the height is below 1
     * @throws com.vexane.base.NativeException if the renderer's peer is not a view of a renderer
     * @throws UnsatisfiedLinkError if the native library or one that it needs cannot be loaded
     */
    public static CurveDrawing connect(NativePeer renderer, Overlay overlay, OverlayDrawCurve curve, int canvasHeight) {
        requireOpen(renderer, "renderer");
        requireOpen(overlay, "overlay");
        requireOpen(curve, "curve");
        requireHeight(canvasHeight);
        NativeLibrary.require(CurveDrawing.class, "vxinteraction");
        CurveDrawing interaction = new CurveDrawing();
        connectNative(interaction, renderer, overlay, curve, canvasHeight);
        return interaction;
    }

    /**
     * Sets the form of the next edges, initially straight. The points of an unfinished edge are dropped, except for its
     * start.
     *
     * @param degree 1 for straight lines, 2 for arcs, 3 for cubic curves
     * @throws IllegalArgumentException if the degree is not 1 to 3
     */
    public void setDegree(int degree) {
        if (degree < 1 || degree > 3) {
            throw new IllegalArgumentException("degree is not 1 to 3: " + degree);
        }
        setDegree(this, degree);
    }

    /**
     * Ends the chain.
     *
     * @return whether the picture may have changed
     */
    public boolean finish() {
        return finish(this);
    }

    private static native void connectNative(
            CurveDrawing peer, NativePeer renderer, Overlay overlay, OverlayDrawCurve curve, int canvasHeight);

    private static native void setDegree(CurveDrawing peer, int degree);

    private static native boolean finish(CurveDrawing peer);
}
