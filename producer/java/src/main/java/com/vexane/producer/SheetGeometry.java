package com.vexane.producer;

import java.util.Objects;

/**
 * A sheet for {@link GeometryBuilder2D} or {@link GeometryBuilder3D}: vertices and triangles, and in space normals and the
 * domains on its two sides. One without coordinates has no geometry, and only an index and domains.
 *
 * <p>It keeps references to the arrays, which are read when a record is built. Every method returns the sheet itself.
 */
public final class SheetGeometry {
    /** Null for a sheet without geometry. */
    double[][] coordinates;
    int[][] triangles;
    /** Null if they are to be computed. */
    float[][] normals;
    int upDomain = -1;
    int downDomain = -1;

    /** Makes a sheet without geometry and without domains. */
    public SheetGeometry() {}

    /**
     * Sets the vertices.
     *
     * @param axes x and y, in space also z, of all vertices
     * @return this sheet
     */
    public SheetGeometry coordinates(double[]... axes) {
        coordinates = GeometryParts.requireArrays("coordinates", axes);
        return this;
    }

    /**
     * Sets the triangles.
     *
     * @param a the first corner of each triangle, as the index of a vertex of this sheet, from 0
     * @param b the second corner of each triangle
     * @param c the third corner of each triangle
     * @return this sheet
     */
    public SheetGeometry triangles(int[] a, int[] b, int[] c) {
        triangles = new int[][] {Objects.requireNonNull(a, "a"), Objects.requireNonNull(b, "b"),
            Objects.requireNonNull(c, "c")};
        return this;
    }

    /**
     * Sets the normals of a sheet in space. Without this call, each vertex gets the mean of the normals (b - a) x (c - a)
     * of its triangles, each with equal weight.
     *
     * @param x the x component of the unit normal at each vertex
     * @param y the y component of the unit normal at each vertex
     * @param z the z component of the unit normal at each vertex
     * @return this sheet
     */
    public SheetGeometry normals(float[] x, float[] y, float[] z) {
        normals = new float[][] {Objects.requireNonNull(x, "x"), Objects.requireNonNull(y, "y"),
            Objects.requireNonNull(z, "z")};
        return this;
    }

    /**
     * Sets the domains on the two sides of a sheet in space.
     *
     * @param up the index of the domain on the side that the normals (b - a) x (c - a) of the triangles point to, -1 for
     *     none
     * @param down the index of the domain on the other side, -1 for none
     * @return this sheet
     */
    public SheetGeometry domains(int up, int down) {
        upDomain = up;
        downDomain = down;
        return this;
    }
}
