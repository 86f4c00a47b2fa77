package com.vexane.producer;

/**
 * Collects sheets, curves and points in space, and makes the record of a draw object or of a physics object.
 *
 * <pre>{@code
 * try (RenderGeom3D model = new GeometryBuilder3D().points(x, y, z)
 *         .addSheet(new SheetGeometry().coordinates(x, y, z).triangles(a, b, c).domains(-1, 0))
 *         .buildGeom()) {
 *     physics.fillObject(model);
 * }
 * }</pre>
 *
 * <p>Relations that are not given, boxes and normals are derived, and all inverse relations follow from the others.
 * Parts are numbered from 0 in the order in which they are added. A builder keeps references to the arrays and may be
 * used again: every build reads them again and makes another record.
 */
public final class GeometryBuilder3D {
    private final GeometryParts parts = new GeometryParts();

    /** Starts without any parts. */
    public GeometryBuilder3D() {}

    /**
     * Sets the points: the ends of curves, and those on their own.
     *
     * @param x their x coordinates
     * @param y their y coordinates
     * @param z their z coordinates
     * @return this builder
     */
    public GeometryBuilder3D points(double[] x, double[] y, double[] z) {
        parts.setPoints(x, y, z);
        return this;
    }

    /**
     * Adds a curve by its vertices, in their order.
     *
     * @param x their x coordinates
     * @param y their y coordinates
     * @param z their z coordinates
     * @return this builder
     */
    public GeometryBuilder3D addCurve(double[] x, double[] y, double[] z) {
        parts.addCurve(x, y, z);
        return this;
    }

    /**
     * Adds a curve without geometry, which only has an index.
     *
     * @return this builder
     */
    public GeometryBuilder3D addEmptyCurve() {
        parts.addEmptyCurve();
        return this;
    }

    /**
     * Adds a sheet.
     *
     * @param sheet its vertices and triangles; they are read when a record is built
     * @return this builder
     */
    public GeometryBuilder3D addSheet(SheetGeometry sheet) {
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
    public GeometryBuilder3D lineToPoint(int[]... rows) {
        parts.setRelation("lineToPoint", 0, rows);
        return this;
    }

    /**
     * Sets the curves around each sheet. Without this call the record does not have this relation.
     *
     * @param rows one array per sheet, with the indices of its curves
     * @return this builder
     */
    public GeometryBuilder3D sheetToLine(int[]... rows) {
        parts.setRelation("sheetToLine", 1, rows);
        return this;
    }

    /**
     * Sets the points around each sheet. Without this call they are those of its curves.
     *
     * @param rows one array per sheet, with the indices of its points
     * @return this builder
     */
    public GeometryBuilder3D sheetToPoint(int[]... rows) {
        parts.setRelation("sheetToPoint", 2, rows);
        return this;
    }

    /**
     * Sets the sheets around each subdomain. Without this call they follow from the domains of the sheets.
     *
     * @param rows one array per subdomain, with the indices of its sheets
     * @return this builder
     */
    public GeometryBuilder3D subdomainToSheet(int[]... rows) {
        parts.setRelation("subdomainToSheet", 3, rows);
        return this;
    }

    /**
     * Sets the curves around each subdomain. Without this call they are those of its sheets.
     *
     * @param rows one array per subdomain, with the indices of its curves
     * @return this builder
     */
    public GeometryBuilder3D subdomainToLine(int[]... rows) {
        parts.setRelation("subdomainToLine", 4, rows);
        return this;
    }

    /**
     * Sets the points around each subdomain. Without this call they are those of its sheets.
     *
     * @param rows one array per subdomain, with the indices of its points
     * @return this builder
     */
    public GeometryBuilder3D subdomainToPoint(int[]... rows) {
        parts.setRelation("subdomainToPoint", 5, rows);
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
    public RenderDraw3D buildDraw(int id, String name) {
        return new RenderDraw3D(parts, id, name);
    }

    /**
     * Makes the record of a physics object, as {@link #buildDraw} makes that of a draw object.
     *
     * @return the record, to be closed by the caller
     * @throws com.vexane.base.NativeException as for a draw object
     */
    public RenderGeom3D buildGeom() {
        return new RenderGeom3D(parts);
    }
}
