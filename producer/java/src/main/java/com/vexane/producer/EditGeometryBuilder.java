package com.vexane.producer;

import java.util.ArrayList;
import java.util.List;
import java.util.Objects;
import java.util.function.Consumer;

/**
 * Collects the vertices and edges of a geometry that can be edited, and makes the record.
 *
 * <pre>{@code
 * EditGeometryBuilder builder = new EditGeometryBuilder();
 * int a = builder.addVertex(0, 0);
 * int b = builder.addVertex(2, 0);
 * builder.addLine(a, b);
 * builder.addArc(b, a, 1, 0); // the upper half of the circle about (1, 0)
 * try (RenderDrawEdit2D geometry = builder.build()) {
 *     curve.connectRenderDrawEdit(geometry);
 * }
 * }</pre>
 *
 * <p>The methods that add something return its number, from 0. Whether everything fits together is checked by {@link
 * #build}. A builder may be used again: every {@code build} makes another record of all that has been added.
 */
public final class EditGeometryBuilder {
    /** The number of a vertex that an end of a spline does not have. */
    public static final int NO_VERTEX = -1;

    private final List<Consumer<RenderDrawEdit2D>> steps = new ArrayList<>();
    private int numVertices;
    private int numEdges;

    /** Starts without vertices and edges. */
    public EditGeometryBuilder() {}

    /**
     * Adds a vertex.
     *
     * @param x its position in x
     * @param y its position in y
     * @return its number
     */
    public int addVertex(double x, double y) {
        steps.add(record -> RenderDrawEdit2D.addVertex(record, x, y));
        return numVertices++;
    }

    /**
     * Adds a straight edge between two different vertices.
     *
     * @param startVertex the vertex at which it begins
     * @param endVertex the vertex at which it ends
     * @return the number of the edge
     */
    public int addLine(int startVertex, int endVertex) {
        return addEdge(record -> RenderDrawEdit2D.addLine(record, startVertex, endVertex));
    }

    /**
     * Adds an arc of a circle, counter-clockwise from a vertex to another at the same distance from the centre, or the
     * whole circle from a vertex to itself.
     *
     * @param startVertex the vertex at which it begins
     * @param endVertex the vertex at which it ends
     * @param centreX the centre in x
     * @param centreY the centre in y
     * @return the number of the edge
     */
    public int addArc(int startVertex, int endVertex, double centreX, double centreY) {
        return addEdge(record -> RenderDrawEdit2D.addArc(record, startVertex, endVertex, centreX, centreY));
    }

    /**
     * Adds an arc of an ellipse on which both vertices are, counter-clockwise, or the whole ellipse from a vertex to
     * itself.
     *
     * @param startVertex the vertex at which it begins
     * @param endVertex the vertex at which it ends
     * @param centreX the centre in x
     * @param centreY the centre in y
     * @param semiAxisX half the length of the first axis, above 0
     * @param semiAxisY half the length of the second axis, above 0
     * @param angle by how much the axes are turned from those of the plane, counter-clockwise, in radians
     * @return the number of the edge
     */
    public int addEllipse(int startVertex, int endVertex, double centreX, double centreY, double semiAxisX,
            double semiAxisY, double angle) {
        return addEdge(record -> RenderDrawEdit2D.addEllipse(
                record, startVertex, endVertex, centreX, centreY, semiAxisX, semiAxisY, angle));
    }

    /**
     * Adds a B-spline with weights 1.
     *
     * @param startVertex the vertex at which the first control point is, or {@link #NO_VERTEX}
     * @param endVertex the vertex at which the last control point is, or {@link #NO_VERTEX}
     * @param degree the degree, 1 to 100
     * @param knots non-decreasing, as many as control points plus the degree plus 1; an end that has a vertex begins or
     *     ends with {@code degree + 1} equal knots
     * @param x the control points in x
     * @param y the control points in y
     * @return the number of the edge
     */
    public int addSpline(int startVertex, int endVertex, int degree, double[] knots, double[] x, double[] y) {
        return addSpline(startVertex, endVertex, degree, knots, x, y, new double[0]);
    }

    /**
     * Adds a rational B-spline.
     *
     * @param startVertex the vertex at which the first control point is, or {@link #NO_VERTEX}
     * @param endVertex the vertex at which the last control point is, or {@link #NO_VERTEX}
     * @param degree the degree, 1 to 100
     * @param knots non-decreasing, as many as control points plus the degree plus 1; an end that has a vertex begins or
     *     ends with {@code degree + 1} equal knots
     * @param x the control points in x
     * @param y the control points in y
     * @param weights the weights of the control points, above 0
     * @return the number of the edge
     */
    public int addSpline(
            int startVertex, int endVertex, int degree, double[] knots, double[] x, double[] y, double[] weights) {
        Objects.requireNonNull(knots, "knots");
        Objects.requireNonNull(x, "x");
        Objects.requireNonNull(y, "y");
        Objects.requireNonNull(weights, "weights");
        return addEdge(record -> RenderDrawEdit2D.addSpline(
                record, startVertex, endVertex, degree, knots, x, y, weights));
    }

    /**
     * Makes a vertex neither drawn nor editable.
     *
     * @param vertex the number of a vertex that has been added
     * @throws IndexOutOfBoundsException if there is none
     */
    public void hideVertex(int vertex) {
        Objects.checkIndex(vertex, numVertices);
        steps.add(record -> RenderDrawEdit2D.hideVertex(record, vertex));
    }

    /**
     * Makes an edge neither drawn nor editable.
     *
     * @param edge the number of an edge that has been added
     * @throws IndexOutOfBoundsException if there is none
     */
    public void hideEdge(int edge) {
        Objects.checkIndex(edge, numEdges);
        steps.add(record -> RenderDrawEdit2D.hideEdge(record, edge));
    }

    /**
     * Makes the record.
     *
     * @return the record, to be closed by the caller
     * @throws com.vexane.base.NativeException if something does not fit together: a vertex that does not exist when the
     *     edge is added, an arc on which a vertex is not, arrays of different lengths, or an edge that is not a
     *     B-spline; the message names the edge and the array
     */
    public RenderDrawEdit2D build() {
        RenderDrawEdit2D record = new RenderDrawEdit2D();
        try {
            steps.forEach(step -> step.accept(record));
            return record;
        } catch (Throwable failure) {
            record.close();
            throw failure;
        }
    }

    private int addEdge(Consumer<RenderDrawEdit2D> step) {
        steps.add(step);
        return numEdges++;
    }
}
