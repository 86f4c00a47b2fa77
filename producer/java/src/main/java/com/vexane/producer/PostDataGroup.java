package com.vexane.producer;

import java.nio.DoubleBuffer;
import java.nio.FloatBuffer;
import java.nio.IntBuffer;
import java.util.ArrayList;
import java.util.List;

/**
 * One part of a record: points, what they are joined to, and values at them. A level, a slice or a line of a graph is
 * a group of its own; most records have one.
 *
 * <p>All values are arrays by axis, corner or quantity, never one object a point. Each can be a Java array or a direct
 * buffer in native byte order, of which the values from its position to its limit count. A group only keeps
 * references: the values are read when {@link PostDataBuilder#build} copies them, once. A buffer on a mapped file must
 * keep its file at full length until then: where a file has been cut shorter, reading its memory ends the process, and
 * no check of the buffer can see it.
 *
 * <p>Every method returns the group itself, and refuses what cannot be right by itself with a message that names the
 * array: {@link NullPointerException} for a missing array, {@link IllegalArgumentException} for a wrong number of
 * arrays, unequal lengths, or a buffer that is not direct or has another byte order. What has to fit together, such as
 * values and points, is tested by the builder.
 */
public final class PostDataGroup {
    Object[] coordinates;
    Object[] elements = {};
    Object[] lineElements = {};
    Object[] normals = {};
    final List<Object> data = new ArrayList<>();
    /** Minimum and maximum of each data array, or NaN where they are to be computed. */
    final List<double[]> limits = new ArrayList<>();

    /** Makes a group without anything; it needs coordinates at least. */
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
     * @param axes x, y and z of all points: one to three direct buffers with equally many values left
     * @return this group
     */
    public PostDataGroup coordinates(DoubleBuffer... axes) {
        coordinates = Values.rows("coordinates", 1, 3, axes);
        return this;
    }

    /**
     * Sets the elements. The number of arrays is the kind: one for points, two for lines, three for triangles, four for
     * tetrahedra.
     *
     * @param corners one array for each corner: the points that the elements have there, counted from 0 in this group
     * @return this group
     */
    public PostDataGroup elements(int[]... corners) {
        elements = Values.rows("elements", 1, 4, corners);
        return this;
    }

    /**
     * Sets the elements, as {@link #elements(int[]...)}.
     *
     * @param corners one direct buffer for each corner
     * @return this group
     */
    public PostDataGroup elements(IntBuffer... corners) {
        elements = Values.rows("elements", 1, 4, corners);
        return this;
    }

    /**
     * Sets the elements to the triangles of a grid, two in each cell, for points that lie row by row. Seen with columns
     * to the right and rows upwards, their corners go round counterclockwise.
     *
     * @param columns points in a row, at least 2
     * @param rows rows of points, at least 2
     * @return this group
     * @throws IllegalArgumentException if a number is below 2, or the points or triangles are more than an int counts
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
     * Adds lines that are drawn with triangles, such as the outline of a slice.
     *
     * @param from the points where the lines begin, counted from 0 in this group
     * @param to the points where they end
     * @return this group
     */
    public PostDataGroup lineElements(int[] from, int[] to) {
        lineElements = Values.rows("lineElements", 2, 2, new Object[] {from, to});
        return this;
    }

    /**
     * Adds lines that are drawn with triangles, as {@link #lineElements(int[], int[])}.
     *
     * @param from a direct buffer with the points where the lines begin
     * @param to a direct buffer with the points where they end
     * @return this group
     */
    public PostDataGroup lineElements(IntBuffer from, IntBuffer to) {
        lineElements = Values.rows("lineElements", 2, 2, new Object[] {from, to});
        return this;
    }

    /**
     * Sets the normals of all points. They are taken as they are and have to be of unit length.
     *
     * @param x first components
     * @param y second components
     * @param z third components
     * @return this group
     */
    public PostDataGroup normals(float[] x, float[] y, float[] z) {
        normals = Values.rows("normals", 3, 3, new Object[] {x, y, z});
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
        return this;
    }

    /**
     * Adds a data array; the first one added has the number 0. Its limits are computed: they span the finite values,
     * so that a hole marked by NaN or an infinite outlier does not spoil the colours of all others. An array without
     * any finite value gets plus infinity as its minimum and minus infinity as its maximum, which count for nothing
     * beside the limits of other groups.
     *
     * @param values one value for each point, or a single one for the level of the whole group
     * @return this group
     */
    public PostDataGroup data(double[] values) {
        return addData(values, Double.NaN, Double.NaN);
    }

    /**
     * Adds a data array, as {@link #data(double[])}.
     *
     * @param values a direct buffer with one value for each point
     * @return this group
     */
    public PostDataGroup data(DoubleBuffer values) {
        return addData(values, Double.NaN, Double.NaN);
    }

    /**
     * Adds a data array with limits that are known. Plots trust them: colours run from the one to the other.
     *
     * @param values one value for each point
     * @param min the smallest value
     * @param max the largest value
     * @return this group
     * @throws IllegalArgumentException if a limit is not a number or the smallest is above the largest
     */
    public PostDataGroup data(double[] values, double min, double max) {
        return addData(values, requireOrdered(min, max), max);
    }

    /**
     * Adds a data array with limits that are known, as {@link #data(double[], double, double)}.
     *
     * @param values a direct buffer with one value for each point
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
