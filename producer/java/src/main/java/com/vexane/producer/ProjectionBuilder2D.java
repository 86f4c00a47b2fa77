package com.vexane.producer;

import java.util.ArrayList;
import java.util.List;
import java.util.Objects;

/**
 * Collects the points and curves of geometry that is projected to a plane, and makes the record. Parts of kind {@link
 * #PRIMARY} are of the first class, all others of the second.
 *
 * <p>A builder keeps references to the arrays and may be used again.
 */
public final class ProjectionBuilder2D {
    /** The kind of parts of the first class. */
    public static final int PRIMARY = 1;

    private double[][] points = {};
    private int[] pointKinds = {};
    private final List<double[][]> curves = new ArrayList<>();
    private final List<Integer> curveKinds = new ArrayList<>();

    /** Starts without any parts. */
    public ProjectionBuilder2D() {}

    /**
     * Sets the points.
     *
     * @param x their x coordinates
     * @param y their y coordinates
     * @param kinds the kind of each point
     * @return this builder
     */
    public ProjectionBuilder2D points(double[] x, double[] y, int[] kinds) {
        points = GeometryParts.requireArrays("points", x, y);
        pointKinds = Objects.requireNonNull(kinds, "kinds");
        return this;
    }

    /**
     * Adds a curve by its vertices, in their order.
     *
     * @param kind the kind of the curve
     * @param x their x coordinates
     * @param y their y coordinates
     * @return this builder
     */
    public ProjectionBuilder2D addCurve(int kind, double[] x, double[] y) {
        curves.add(GeometryParts.requireArrays("curve " + curves.size(), x, y));
        curveKinds.add(kind);
        return this;
    }

    /**
     * Makes the record.
     *
     * @param id the id of the object that the record is for
     * @param name the object's name
     * @return the record, to be closed by the caller
     * @throws com.vexane.base.NativeException if arrays do not fit together, or a coordinate is not finite in single
     *     precision; the message names the array
     */
    public RenderDrawProj2D build(int id, String name) {
        return new RenderDrawProj2D(id, Objects.requireNonNull(name, "name"), points, pointKinds,
                curves.toArray(double[][][]::new), curveKinds.stream().mapToInt(Integer::intValue).toArray());
    }
}
