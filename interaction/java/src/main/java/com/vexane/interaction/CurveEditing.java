package com.vexane.interaction;

import com.vexane.base.NativeLibrary;
import com.vexane.base.NativePeer;
import com.vexane.graphics3d.OverlayCurve;

/**
 * Moves vertices and control points of a curve. A press takes the nearest one, a vertex rather than a control point, and
 * the drag moves it; all edges at a vertex follow. What is taken is marked until the next press elsewhere.
 *
 * <p>A press takes time in proportion to the points of the curve. A movement of a control point takes the time of one
 * edge, that of a vertex of an {@link com.vexane.graphics3d.OverlayDrawCurve} the time of all its edges.
 */
public final class CurveEditing extends OverlayInteraction {
    private CurveEditing() {}

    /**
     * Makes an interaction that edits a curve.
     *
     * @param renderer the peer of the renderer's view
     * @param curve the curve, which is in the overlay of the view
     * @param canvasHeight the number of rows of the picture, at least 1
     * @return the interaction
     * @throws NullPointerException if a peer is null
     * @throws IllegalStateException if a peer is closed
     * @throws IllegalArgumentException if the height is below 1
     * @throws com.vexane.base.NativeException if the renderer's peer is not a view of a renderer
     * @throws UnsatisfiedLinkError if the native library or one that it needs cannot be loaded
     */
    public static CurveEditing connect(NativePeer renderer, OverlayCurve curve, int canvasHeight) {
        requireOpen(renderer, "renderer");
        requireOpen(curve, "curve");
        requireHeight(canvasHeight);
        NativeLibrary.require(CurveEditing.class, "vxinteraction");
        CurveEditing interaction = new CurveEditing();
        connectNative(interaction, renderer, curve, canvasHeight);
        return interaction;
    }

    /** {@return the number of the vertex that was taken last; -1 if that was a control point or nothing} */
    public int getVertex() {
        return getVertex(this);
    }

    /** {@return the id of the control point that was taken last; -1 if that was a vertex or nothing} */
    public int getControlPoint() {
        return getControlPoint(this);
    }

    private static native void connectNative(
            CurveEditing peer, NativePeer renderer, OverlayCurve curve, int canvasHeight);

    private static native int getVertex(CurveEditing peer);

    private static native int getControlPoint(CurveEditing peer);
}
