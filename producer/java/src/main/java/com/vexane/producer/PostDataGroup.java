package com.vexane.producer;

import java.nio.DoubleBuffer;
import java.nio.FloatBuffer;
import java.nio.IntBuffer;
import java.util.ArrayList;
import java.util.List;

/**
 * One part of a record: points, the elements that connect them, and values at the points. A level, a slice or a line of
 * a graph is a group of its own; most records have one group.
 *
 * <p>All values are arrays per axis, corner or quantity, never one object per point. Each can be a Java array or a
 * direct buffer in native byte order, whose values are those from its position to its limit. A group only keeps
 * references: {@link PostDataBuilder#build} reads the values once, when it copies them. The file of a mapped buffer must
 * not become shorter before that: reading memory beyond its end terminates the process, which no check can prevent.
 *
 * <p>A triangle is drawn only if the coordinates and the values of all its corners are finite. So a NaN among the data
 * cuts a hole: the triangles at that point are not drawn, and the limits, and with them the colours of all other points,
 * do not change.
 *
 * <p>Every method returns the group itself, and refuses an invalid argument with a message that names the array: {@link
 * NullPointerException} for a missing array, {@link IllegalArgumentException} for a wrong number of arrays, unequal
 * lengths, or a buffer that is not direct or has another byte order. Whether arrays fit together, such as values and
 * points, is checked by the builder.
 */
public final class PostDataGroup {
    Object[] coordinates;
    Object[] elements = {};
    Object[] lineElements = {};
    Object[] normals = {};
    boolean computesNormals;
    boolean computesOutline;
    final List<Object> data = new ArrayList<>();
    /** Minimum and maximum of each data array; NaN if they are to be computed. */
    final List<double[]> limits = new ArrayList<>();

    /** Makes an empty group, which needs at least coordinates. */
    public PostDataGroup() {}

    /**
     * Sets the points.
     *
     * @param axes x, y and z of all points: one to three arrays of equal length
     * @return this group
     */
    public PostDataGroup coordinates(double[]... axes) {
        coordinates = Values.rows("coordinates", 1, 3, axes);
        return this;
    }

    /**
     * Sets the points.
     *
     * @param axes x, y and z of all points: one to three direct buffers with the same number of remaining values
     * @return this group
     */
    public PostDataGroup coordinates(DoubleBuffer... axes) {
        coordinates = Values.rows("coordinates", 1, 3, axes);
        return this;
    }

    /**
     * Sets the elements. The number of arrays decides their kind: one for points, two for lines, three for triangles,
     * four for tetrahedra.
     *
     * @param corners one array per corner: the index of the point in this group, from 0, of each element
     * @return this group
     */
    public PostDataGroup elements(int[]... corners) {
        elements = Values.rows("elements", 1, 4, corners);
        return this;
    }

    /**
     * Sets the elements, as {@link #elements(int[]...)}.
     *
     * @param corners one direct buffer per corner
     * @return this group
     */
    public PostDataGroup elements(IntBuffer... corners) {
        elements = Values.rows("elements", 1, 4, corners);
        return this;
    }

    /**
     * Sets the elements to the triangles of a grid, two per cell, for points that are stored row by row. Seen with
     * columns to the right and rows upwards, their corners are in counterclockwise order.
     *
     * @param columns points in a row, at least 2
     * @param rows rows of points, at least 2
     * @return this group
     * @throws IllegalArgumentException if a number is below 2, or there are more points or triangles than an int can
     *     count
     */
    public PostDataGroup gridElements(int columns, int rows) {
        long cells = (columns - 1L) * (rows - 1L);
        if (columns < 2 || rows < 2 || (long) columns * rows > Integer.MAX_VALUE || 2 * cells > Integer.MAX_VALUE) {
            throw new IllegalArgumentException("A grid of " + columns + " by " + rows + " points");
        }
        int[][] corners = new int[3][(int) (2 * cells)];
        int next = 0;
        for (int row = 0; row + 1 < rows; ++row) {
            for (int point = row * columns; point + 1 < (row + 1) * columns; ++point, next += 2) {
                corners[0][next] = point;
                corners[1][next] = point + 1;
                corners[2][next] = point + columns;
                corners[0][next + 1] = point + 1;
                corners[1][next + 1] = point + columns + 1;
                corners[2][next + 1] = point + columns;
            }
        }
        return elements(corners);
    }

    /**
     * Sets the elements to lines that connect consecutive points, such as those of streamlines. A line that ends
     * where it starts needs {@link #elements(int[]...)}.
     *
     * @param counts the number of points of each polyline, at least 2; their points follow each other
     * @return this group
     * @throws IllegalArgumentException if a number is below 2, or there are more points than an int can count
     */
    public PostDataGroup polylineElements(int... counts) {
        long points = 0;
        for (int count : counts) {
            points += count;
            if (count < 2 || points > Integer.MAX_VALUE) {
                throw new IllegalArgumentException("A polyline of " + count + " points");
            }
        }
        int[][] ends = new int[2][(int) points - counts.length];
        int next = 0;
        int point = 0;
        for (int count : counts) {
            for (int i = 1; i < count; ++i, ++next, ++point) {
                ends[0][next] = point;
                ends[1][next] = point + 1;
            }
            ++point;
        }
        return elements(ends);
    }

    /**
     * Adds lines that are drawn with triangles, such as the outline of a slice.
     *
     * @param from the indices of the points in this group, from 0, at which the lines start
     * @param to the indices of the points at which they end
     * @return this group
     */
    public PostDataGroup lineElements(int[] from, int[] to) {
        lineElements = Values.rows("lineElements", 2, 2, new Object[] {from, to});
        computesOutline = false;
        return this;
    }

    /**
     * Adds lines that are drawn with triangles, as {@link #lineElements(int[], int[])}.
     *
     * @param from a direct buffer with the start points
     * @param to a direct buffer with the end points
     * @return this group
     */
    public PostDataGroup lineElements(IntBuffer from, IntBuffer to) {
        lineElements = Values.rows("lineElements", 2, 2, new Object[] {from, to});
        computesOutline = false;
        return this;
    }

    /**
     * Computes the lines that are drawn with triangles as their outline: the edges that exactly one triangle has. Slices
     * need an outline.
     *
     * <p>The group needs triangles, set in any order; otherwise {@link PostDataBuilder#build} refuses it. The last call
     * of this method or {@link #lineElements(int[], int[])} takes effect.
     *
     * @return this group
     */
    public PostDataGroup computeOutline() {
        lineElements = new Object[0];
        computesOutline = true;
        return this;
    }

    /**
     * Sets the normals of all points. They must have unit length, which is not checked.
     *
     * @param x first components
     * @param y second components
     * @param z third components
     * @return this group
     */
    public PostDataGroup normals(float[] x, float[] y, float[] z) {
        normals = Values.rows("normals", 3, 3, new Object[] {x, y, z});
        computesNormals = false;
        return this;
    }

    /**
     * Sets the normals of all points, as {@link #normals(float[], float[], float[])}.
     *
     * @param x a direct buffer with the first components
     * @param y a direct buffer with the second components
     * @param z a direct buffer with the third components
     * @return this group
     */
    public PostDataGroup normals(FloatBuffer x, FloatBuffer y, FloatBuffer z) {
        normals = Values.rows("normals", 3, 3, new Object[] {x, y, z});
        computesNormals = false;
        return this;
    }

    /**
     * Computes the normals of all points from the triangles, as the file readers do: at each point the normalised sum of
     * the unit normals of its triangles, with equal weights. The normal of a triangle points to the side from which its
     * corners are in counter-clockwise order. Surfaces in space need normals.
     *
     * <p>They are computed in single precision, in which plots draw the points. A triangle without a normal is ignored:
     * one without area, or with a corner that is not finite. A point without any other triangle gets the normal
     * (0, 0, 0).
     *
     * <p>The group needs three axes and triangles, set in any order; otherwise {@link PostDataBuilder#build} refuses it.
     * The last call of this method or {@link #normals(float[], float[], float[])} takes effect.
     *
     * @return this group
     */
    public PostDataGroup computeNormals() {
        normals = new Object[0];
        computesNormals = true;
        return this;
    }

    /**
     * Adds a data array; the first one added has the index 0. Its limits are computed from the finite values only, so
     * that a hole marked by NaN or an infinite outlier does not spoil the colours of all other values. An array without
     * finite values has plus infinity as its minimum and minus infinity as its maximum, which do not affect the limits
     * of other groups.
     *
     * <p>NaN marks a hole: plots do not draw triangles with a value that is not finite, see the description of this
     * class.
     *
     * @param values one value per point, or a single one for the level of the whole group
     * @return this group
     */
    public PostDataGroup data(double[] values) {
        return addData(values, Double.NaN, Double.NaN);
    }

    /**
     * Adds a data array, as {@link #data(double[])}.
     *
     * @param values a direct buffer with one value per point
     * @return this group
     */
    public PostDataGroup data(DoubleBuffer values) {
        return addData(values, Double.NaN, Double.NaN);
    }

    /**
     * Adds a data array with known limits. Plots do not check them: colours range from one to the other.
     *
     * @param values one value per point
     * @param min the smallest value
     * @param max the largest value
     * @return this group
     * @throws IllegalArgumentException if a limit is not a number or the smallest is above the largest
     */
    public PostDataGroup data(double[] values, double min, double max) {
        return addData(values, requireOrdered(min, max), max);
    }

    /**
     * Adds a data array with known limits, as {@link #data(double[], double, double)}.
     *
     * @param values a direct buffer with one value per point
     * @param min the smallest value
     * @param max the largest value
     * @return this group
     * @throws IllegalArgumentException if a limit is not a number or the smallest is above the largest
     */
    public PostDataGroup data(DoubleBuffer values, double min, double max) {
        return addData(values, requireOrdered(min, max), max);
    }

    private PostDataGroup addData(Object values, double min, double max) {
        data.add(Values.row("data[" + data.size() + "]", values));
        limits.add(new double[] {min, max});
        return this;
    }

    private double requireOrdered(double min, double max) {
        if (!(min <= max)) {
            throw new IllegalArgumentException("data[" + data.size() + "]: no limits " + min + " to " + max);
        }
        return min;
    }
}
