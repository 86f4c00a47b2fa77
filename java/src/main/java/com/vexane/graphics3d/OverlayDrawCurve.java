package com.vexane.graphics3d;

/**
 * A curve that the user draws point by point: straight lines, arcs and cubic Bezier curves between vertices.
 *
 * <pre>{@code
 * OverlayDrawCurve curve = new OverlayDrawCurve();
 * int edge = curve.addEdge(curve.addVertex(0, 0), curve.addVertex(1, 1));
 * curve.addControlPoint(edge, 0, 0);
 * curve.addControlPoint(edge, 1, 0); // the corner of a quarter of a circle
 * curve.addControlPoint(edge, 1, 1);
 * }</pre>
 *
 * <p>The control points of an edge are those of its whole polygon, ends included. With two of them the edge is straight;
 * with three it is a rational quadratic curve, an arc of a circle if the polygon has a right angle between sides of
 * equal length; with four it is a cubic curve; with fewer or with five it is not drawn. An edge begins and ends at its
 * vertices; its first and last control points have no influence on it. A curve only grows.
 */
public final class OverlayDrawCurve extends OverlayCurve {
    /** Makes a curve without vertices. */
    public OverlayDrawCurve() {
        createNative(this);
    }

    /**
     * Appends a vertex.
     *
     * @param x the position in x
     * @param y the position in y
     * @return the number of the vertex
     */
    public int addVertex(double x, double y) {
        return addVertex(this, x, y);
    }

    /**
     * Appends an edge without control points. When a vertex is moved, two edges follow it: of those that begin there the
     * one added last, and of those that end there the one added last.
     *
     * @param startVertex the number of the vertex at which the edge begins
     * @param endVertex the number of the vertex at which it ends
     * @return the number of the edge
     * @throws com.vexane.base.NativeException if there is no such vertex
     */
    public int addEdge(int startVertex, int endVertex) {
        return addEdge(this, startVertex, endVertex);
    }

    /**
     * Appends an edge like {@link #addEdge}, without returning its number.
     *
     * @param startVertex the number of the vertex at which the edge begins
     * @param endVertex the number of the vertex at which it ends
     * @throws com.vexane.base.NativeException if there is no such vertex
     */
    public void setEdge(int startVertex, int endVertex) {
        setEdge(this, startVertex, endVertex);
    }

    /**
     * Appends a control point to an edge.
     *
     * @param edge the number of the edge
     * @param x the position in x
     * @param y the position in y
     * @return the id of the control point, or -1 if the edge has five already
     * @throws com.vexane.base.NativeException if there is no such edge
     */
    public int addControlPoint(int edge, double x, double y) {
        return addControlPoint(this, edge, x, y);
    }

    @Override
    protected void cleanup() {
        cleanupNative(this);
    }

    private static native void createNative(OverlayDrawCurve peer);

    private static native void cleanupNative(OverlayDrawCurve peer);

    private static native int addVertex(OverlayDrawCurve peer, double x, double y);

    private static native int addControlPoint(OverlayDrawCurve peer, int edge, double x, double y);

    private static native int addEdge(OverlayDrawCurve peer, int startVertex, int endVertex);

    private static native void setEdge(OverlayDrawCurve peer, int startVertex, int endVertex);
}
