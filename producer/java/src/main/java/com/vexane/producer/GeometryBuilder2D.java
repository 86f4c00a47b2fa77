package com.vexane.producer;

/**
 * Collects areas, curves and points in the plane, and makes the record of a draw object or of a physics object.
 *
 * <pre>{@code
 * try (RenderDraw2D triangle = new GeometryBuilder2D().points(x, y)
 *         .addCurve(x, y)
 *         .addSheet(new SheetGeometry().coordinates(x, y).triangles(a, b, c))
 *         .sheetToLine(new int[] {0})
 *         .buildDraw(1, "Triangle")) {
 *     face.fillObject2D(triangle);
 * }
 * }</pre>
 *
 * <p>Relations that are not given, boxes are derived, and all inverse relations follow from the others.
 * Parts are numbered from 0 in the order in which they are added. A builder keeps references to the arrays and may be
 * used again: every build reads them again and makes another record.
 */
public final class GeometryBuilder2D {
    private final GeometryParts parts = new GeometryParts();

    /** Starts without any parts. */
    public GeometryBuilder2D() {}

    /**
     * Sets the points: the ends of curves, and those on their own.
     *
     * @param x their x coordinates
     * @param y their y coordinates
     * @return this builder
     */
    public GeometryBuilder2D points(double[] x, double[] y) {
        parts.setPoints(x, y);
        return this;
    }

    /**
     * Adds a curve by its vertices, in their order.
     *
     * @param x their x coordinates
     * @param y their y coordinates
     * @return this builder
     */
    public GeometryBuilder2D addCurve(double[] x, double[] y) {
        parts.addCurve(x, y);
        return this;
    }

    /**
     * Adds a curve without geometry, which only has an index.
     *
     * @return this builder
     */
    public GeometryBuilder2D addEmptyCurve() {
        parts.addEmptyCurve();
        return this;
    }

    /**
     * Adds a sheet.
     *
     * @param sheet its vertices and triangles; they are read when a record is built
     * @return this builder
     */
    public GeometryBuilder2D addSheet(SheetGeometry sheet) {
        parts.addSheet(sheet);
        return this;
    }

    /**
     * Sets the points at the ends of each curve. Without this call they are those with the same
     * coordinates as its first and its last vertex, in single precision.
     *
     * @param rows one array per curve, with the indices of its points
     * @return this builder
     */
    public GeometryBuilder2D lineToPoint(int[]... rows) {
        parts.setRelation("lineToPoint", 0, rows);
        return this;
    }

    /**
     * Sets the curves around each sheet. Without this call the record does not have this relation.
     *
     * @param rows one array per sheet, with the indices of its curves
     * @return this builder
     */
    public GeometryBuilder2D sheetToLine(int[]... rows) {
        parts.setRelation("sheetToLine", 1, rows);
        return this;
    }

    /**
     * Sets the points around each sheet. Without this call they are those of its curves.
     *
     * @param rows one array per sheet, with the indices of its points
     * @return this builder
     */
    public GeometryBuilder2D sheetToPoint(int[]... rows) {
        parts.setRelation("sheetToPoint", 2, rows);
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
    public RenderDraw2D buildDraw(int id, String name) {
        return new RenderDraw2D(parts, id, name);
    }

    /**
     * Makes the record of a physics object, as {@link #buildDraw} makes that of a draw object.
     *
     * @return the record, to be closed by the caller
     * @throws com.vexane.base.NativeException as for a draw object
     */
    public RenderGeom2D buildGeom() {
        return new RenderGeom2D(parts);
    }
}
