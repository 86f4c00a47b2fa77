package com.vexane.producer;

import com.vexane.base.NativeLibrary;
import com.vexane.base.NativePeer;
import java.util.Objects;

/**
 * A geometry in the plane that can be edited: vertices, and edges between them that are rational B-splines. {@link
 * EditGeometryBuilder} makes one, and {@code OverlayRenderEdit2d} edits it.
 *
 * <p>Edits change the record itself and flag what they have changed. The owner reads it, and clears the flags:
 *
 * <pre>{@code
 * for (int edge = 0; edge < geometry.getNumEdges(); ++edge) {
 *     if (geometry.isEdgeModified(edge)) {
 *         save(geometry.getControlPoints(edge));
 *     }
 * }
 * geometry.clearModified();
 * }</pre>
 *
 * <p>All methods that return values return copies. Vertices and edges are numbered from 0 in the order in which they
 * were added.
 */
public final class RenderDrawEdit2D extends NativePeer {
    RenderDrawEdit2D() {
        NativeLibrary.require(RenderDrawEdit2D.class, "vxproducer");
        createNative(this);
    }

    /** {@return the number of vertices, hidden ones included} */
    public int getNumVertices() {
        return getNumVertices(this);
    }

    /** {@return the number of edges, hidden ones included} */
    public int getNumEdges() {
        return getNumEdges(this);
    }

    /**
     * {@return the position of a vertex: x and y}
     *
     * @param vertex the vertex, from 0
     */
    public double[] getVertex(int vertex) {
        return getVertex(this, requireVertex(vertex));
    }

    /**
     * {@return whether a vertex has been moved since the flags were cleared}
     *
     * @param vertex the vertex, from 0
     */
    public boolean isVertexModified(int vertex) {
        return isVertexModified(this, requireVertex(vertex));
    }

    /**
     * {@return the degree of an edge}
     *
     * @param edge the edge, from 0
     */
    public int getDegree(int edge) {
        return getDegree(this, requireEdge(edge));
    }

    /**
     * {@return the knots of an edge}
     *
     * @param edge the edge, from 0
     */
    public double[] getKnots(int edge) {
        return getKnots(this, requireEdge(edge));
    }

    /**
     * {@return the control points of an edge, as arrays of x, y and weight}
     *
     * @param edge the edge, from 0
     */
    public double[][] getControlPoints(int edge) {
        return getControlPoints(this, requireEdge(edge));
    }

    /**
     * Computes the polyline of an edge as an overlay does, at a tolerance of the caller's choice.
     *
     * @param edge the edge, from 0
     * @param tolerance how far the middle of a segment may be from the curve, in x and in y; an edge is split at its
     *     knots, and then at most 101 times
     * @return the vertices in single precision, as arrays of x and y
     */
    public double[][] tessellate(int edge, double tolerance) {
        return tessellate(this, requireEdge(edge), tolerance);
    }

    /**
     * {@return whether an edge has changed since the flags were cleared}
     *
     * @param edge the edge, from 0
     */
    public boolean isEdgeModified(int edge) {
        return isEdgeModified(this, requireEdge(edge));
    }

    /** Clears the flags of all vertices and edges. */
    public void clearModified() {
        clearModified(this);
    }

    private int requireVertex(int vertex) {
        return Objects.checkIndex(vertex, getNumVertices());
    }

    private int requireEdge(int edge) {
        return Objects.checkIndex(edge, getNumEdges());
    }

    @Override
    protected void cleanup() {
        cleanupNative(this);
    }

    private static native void createNative(RenderDrawEdit2D peer);

    private static native void cleanupNative(RenderDrawEdit2D peer);

    static native void addVertex(RenderDrawEdit2D peer, double x, double y);

    static native void addLine(RenderDrawEdit2D peer, int startVertex, int endVertex);

    static native void addArc(RenderDrawEdit2D peer, int startVertex, int endVertex, double centreX, double centreY);

    static native void addEllipse(RenderDrawEdit2D peer, int startVertex, int endVertex, double centreX, double centreY,
            double semiAxisX, double semiAxisY, double angle);

    static native void addSpline(RenderDrawEdit2D peer, int startVertex, int endVertex, int degree, double[] knots,
            double[] x, double[] y, double[] weights);

    static native void hideVertex(RenderDrawEdit2D peer, int vertex);

    static native void hideEdge(RenderDrawEdit2D peer, int edge);

    private static native int getNumVertices(RenderDrawEdit2D peer);

    private static native int getNumEdges(RenderDrawEdit2D peer);

    private static native double[] getVertex(RenderDrawEdit2D peer, int vertex);

    private static native boolean isVertexModified(RenderDrawEdit2D peer, int vertex);

    private static native int getDegree(RenderDrawEdit2D peer, int edge);

    private static native double[] getKnots(RenderDrawEdit2D peer, int edge);

    private static native double[][] getControlPoints(RenderDrawEdit2D peer, int edge);

    private static native double[][] tessellate(RenderDrawEdit2D peer, int edge, double tolerance);

    private static native boolean isEdgeModified(RenderDrawEdit2D peer, int edge);

    private static native void clearModified(RenderDrawEdit2D peer);
}
