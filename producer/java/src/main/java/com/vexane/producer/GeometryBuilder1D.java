package com.vexane.producer;

/**
 * Collects intervals and points on an axis, and makes the record of a draw object or of a physics object.
 *
 * <pre>{@code
 * try (RenderDraw1D rod = new GeometryBuilder1D().points(new double[] {0, 2}).addCurve(new double[] {0, 2})
 *         .buildDraw(1, "Rod")) {
 *     curve.fillObject1D(rod);
 * }
 * }</pre>
 *
 * <p>Relations that are not given, boxes are derived, and all inverse relations follow from the others.
 * Parts are numbered from 0 in the order in which they are added. A builder keeps references to the arrays and may be
 * used again: every build reads them again and makes another record.
 */
public final class GeometryBuilder1D {
    private final GeometryParts parts = new GeometryParts();

    /** Starts without any parts. */
    public GeometryBuilder1D() {}

    /**
     * Sets the points: the ends of curves, and those on their own.
     *
     * @param x their coordinates
     * @return this builder
     */
    public GeometryBuilder1D points(double[] x) {
        parts.setPoints(x);
        return this;
    }

    /**
     * Adds a curve by its vertices, in their order.
     *
     * @param x their coordinates
     * @return this builder
     */
    public GeometryBuilder1D addCurve(double[] x) {
        parts.addCurve(x);
        return this;
    }

    /**
     * Adds a curve without geometry, which only has an index.
     *
     * @return this builder
     */
    public GeometryBuilder1D addEmptyCurve() {
        parts.addEmptyCurve();
        return this;
    }

    /**
     * Sets the points at the ends of each curve. Without this call they are those with the same
     * coordinates as its first and its last vertex, in single precision.
     *
     * @param rows one array per curve, with the indices of its points
     * @return this builder
     */
    public GeometryBuilder1D lineToPoint(int[]... rows) {
        parts.setRelation("lineToPoint", 0, rows);
        return this;
    }

    /**
     * Makes the record of a draw object. If arrays do not fit together, no record is made and the message names the
     * part, the array and the row.
     *
     * @param id the id of the draw object
     * @param name the object's name, its label
     * @return the record, to be closed by the caller
     * @throws com.vexane.base.NativeException if arrays do not fit together, a coordinate is not finite in single
     *     precision, or an index is out of range
     */
    public RenderDraw1D buildDraw(int id, String name) {
        return new RenderDraw1D(parts, id, name);
    }

    /**
     * Makes the record of a physics object, as {@link #buildDraw} makes that of a draw object.
     *
     * @return the record, to be closed by the caller
     * @throws com.vexane.base.NativeException as for a draw object
     */
    public RenderGeom1D buildGeom() {
        return new RenderGeom1D(parts);
    }
}
