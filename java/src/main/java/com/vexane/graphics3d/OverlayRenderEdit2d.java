package com.vexane.graphics3d;

import com.vexane.base.NativePeer;

/**
 * A geometry in the plane that the user edits: its vertices, and the control points of its edges, which are rational
 * B-splines.
 *
 * <pre>{@code
 * OverlayRenderEdit2d curve = new OverlayRenderEdit2d();
 * curve.connectRenderDrawEdit(geometry);
 * overlay.addOverlayObject(curve, 1);
 * curve.setVertex(0, 2, 1); // all edges at the vertex follow
 * if (curve.isEdgeModified(0)) {
 *     double[][] controlPoints = curve.getEdgeData(0);
 * }
 * }</pre>
 *
 * <p>The geometry is a record of the producer, which is not copied: edits change the record and flag there what they
 * have changed, and the owner of the record clears the flags. The record's peer may be closed.
 *
 * <p>The control points of edges that are not hidden get ids when the record is connected: in the order of edges and of
 * their control points, from 0 on, or from where those of the previous record ended.
 *
 * <p>Edges are drawn as polylines that differ from the curves by about a thousandth of the size of the geometry. An edit
 * takes time in proportion to the edges that change, and a little for each of the others. Before a record is connected,
 * there are no vertices and edges.
 */
public final class OverlayRenderEdit2d extends OverlayCurve {
    /** Makes an object without geometry. */
    public OverlayRenderEdit2d() {
        createNative(this);
    }

    /**
     * Replaces the current geometry. Marks stay.
     *
     * @param record the peer of a geometry for editing
     * @throws com.vexane.base.NativeException if the peer is not such a record, or if an edge of the record is not a
     *     B-spline: the message names edge and array, and nothing has changed
     * @throws NullPointerException if the record is null
     * @throws IllegalStateException if the record's peer is closed
     */
    public void connectRenderDrawEdit(NativePeer record) {
        connectRenderDrawEditObject(this, requireOpen(record, "record"));
    }

    /**
     * Whether an edit has changed an edge since its owner cleared the flag.
     *
     * @param edge the number of the edge
     * @return false for a hidden edge
     * @throws com.vexane.base.NativeException if there is no such edge
     */
    public boolean isEdgeModified(int edge) {
        return isEdgeModified(this, edge);
    }

    /**
     * Whether an edit has moved a vertex since its owner cleared the flag.
     *
     * @param vertex the number of the vertex
     * @return false for a hidden vertex
     * @throws com.vexane.base.NativeException if there is no such vertex
     */
    public boolean isVertexModified(int vertex) {
        return isVertexModified(this, vertex);
    }

    /**
     * {@return the control points of an edge: x, y and weight of each}
     *
     * @param edge the number of the edge
     * @throws com.vexane.base.NativeException if there is no such edge
     */
    public double[][] getEdgeData(int edge) {
        return getEdgeData(this, edge);
    }

    /**
     * {@return the degree of an edge}
     *
     * @param edge the number of the edge
     * @throws com.vexane.base.NativeException if there is no such edge
     */
    public int getEdgeDegree(int edge) {
        return getEdgeDegree(this, edge);
    }

    @Override
    protected void cleanup() {
        OverlayRenderEdit2D.cleanupNative(this);
    }

    private static native void createNative(OverlayRenderEdit2d peer);

    private static native void connectRenderDrawEditObject(OverlayRenderEdit2d peer, Object record);

    private static native boolean isEdgeModified(OverlayRenderEdit2d peer, int edge);

    private static native boolean isVertexModified(OverlayRenderEdit2d peer, int vertex);

    private static native double[][] getEdgeData(OverlayRenderEdit2d peer, int edge);

    private static native int getEdgeDegree(OverlayRenderEdit2d peer, int edge);
}
