package com.vexane.graphics3d;

/**
 * A chain of vertices and curved edges that the user edits in a 2D view. Vertices and edges are numbered from 0; control
 * points of edges have ids, which are unique in the curve and never used again.
 *
 * <p>Marked vertices, control points and edges are drawn larger and in the {@linkplain #setMarkingColor marking colour}.
 * Points are looked up in logarithmic time; {@link #clearMarkings()} and {@link #setEdgeMarking} take time in
 * proportion to the marks that they change.
 */
public abstract sealed class OverlayCurve extends OverlayObject permits OverlayDrawCurve, OverlayRenderEdit2d {
    OverlayCurve() {}

    /** {@return the number of vertices} */
    public int getNumberOfVertices() {
        return getNumberOfVertices(this);
    }

    /** {@return the number of edges} */
    public int getNumberOfEdges() {
        return getNumberOfEdges(this);
    }

    /**
     * Moves a vertex.
     *
     * @param vertex the number of the vertex
     * @param x the new position in x
     * @param y the new position in y
     * @throws com.vexane.base.NativeException if there is no such vertex
     */
    public void setVertex(int vertex, double x, double y) {
        setVertex(this, vertex, x, y);
    }

    /**
     * {@return the position of a vertex: x and y}
     *
     * @param vertex the number of the vertex
     * @throws com.vexane.base.NativeException if there is no such vertex
     */
    public double[] getVertex(int vertex) {
        double[] out = new double[3];
        getVertex(this, vertex, out);
        return new double[] {out[0], out[1]};
    }

    /**
     * Moves a control point. An unknown id is ignored.
     *
     * @param id the id of the control point
     * @param x the new position in x
     * @param y the new position in y
     */
    public void setControlPoint(int id, double x, double y) {
        setControlPoint(this, id, x, y);
    }

    /**
     * {@return the position x and y of a control point, and its weight if it has one, otherwise 0; three zeros for an
     * unknown id}
     *
     * @param id the id of the control point
     */
    public double[] getControlPoint(int id) {
        double[] out = new double[3];
        getControlPoint(this, id, out);
        return out;
    }

    /**
     * Sets the colour of what is marked, initially opaque black.
     *
     * @param red 0 to 255
     * @param green 0 to 255
     * @param blue 0 to 255
     * @param alpha from 0, invisible, to 255, opaque
     * @throws IllegalArgumentException if a channel is outside its range
     */
    public void setMarkingColor(int red, int green, int blue, int alpha) {
        requireChannels(red, green, blue, alpha);
        setMarkingColor(this, red, green, blue, alpha);
    }

    /**
     * Marks a control point, or removes its mark.
     *
     * @param id the id of the control point; the mark of an unknown one is kept, too
     * @param on true to mark, false to remove the mark
     */
    public void setPointMarking(int id, boolean on) {
        setPointMarking(this, id, on);
    }

    /**
     * Marks a vertex, or removes its mark. Edges keep their marks.
     *
     * @param vertex the number of the vertex; the mark of an unknown one is kept, too
     * @param on true to mark, false to remove the mark
     */
    public void setVertexMarking(int vertex, boolean on) {
        setVertexMarking(this, vertex, on);
    }

    /**
     * Marks an edge with its two vertices and its control points, or removes the marks of all of them. Unmarking removes
     * the marks of the vertices even if another marked edge ends there.
     *
     * @param edge the number of the edge; an unknown one is ignored
     * @param on true to mark, false to remove the mark
     */
    public void setEdgeMarking(int edge, boolean on) {
        setEdgeMarking(this, edge, on);
    }

    /** Removes all marks. */
    public void clearMarkings() {
        clearMarkings(this);
    }

    /**
     * Sets whether the numbers of vertices are drawn, initially false.
     *
     * @param display true to draw them
     */
    public void setDisplayVertexNumbers(boolean display) {
        setDisplayVertexNumbers(this, display);
    }

    /**
     * Sets whether the numbers of edges are drawn, initially false.
     *
     * @param display true to draw them
     */
    public void setDisplayEdgeNumbers(boolean display) {
        setDisplayEdgeNumbers(this, display);
    }

    private static native void setVertex(OverlayCurve peer, int vertex, double x, double y);

    private static native void getVertex(OverlayCurve peer, int vertex, double[] out);

    private static native void setControlPoint(OverlayCurve peer, int id, double x, double y);

    private static native void getControlPoint(OverlayCurve peer, int id, double[] out);

    private static native void setMarkingColor(OverlayCurve peer, int red, int green, int blue, int alpha);

    private static native void setPointMarking(OverlayCurve peer, int id, boolean on);

    private static native void setVertexMarking(OverlayCurve peer, int vertex, boolean on);

    private static native void setEdgeMarking(OverlayCurve peer, int edge, boolean on);

    private static native void clearMarkings(OverlayCurve peer);

    private static native int getNumberOfVertices(OverlayCurve peer);

    private static native int getNumberOfEdges(OverlayCurve peer);

    private static native void setDisplayVertexNumbers(OverlayCurve peer, boolean display);

    private static native void setDisplayEdgeNumbers(OverlayCurve peer, boolean display);
}
