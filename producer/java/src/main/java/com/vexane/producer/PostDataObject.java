package com.vexane.producer;

import com.vexane.base.NativeLibrary;
import com.vexane.base.NativePeer;
import java.util.Arrays;
import java.util.Map;
import java.util.Objects;
import java.util.OptionalInt;

/**
 * A record of post-processing results, from which a plot is filled. {@link PostDataBuilder} makes it from arrays; one
 * made by {@link #forFile} is empty and waits for a file reader.
 *
 * <p>A plot copies what it needs, so the record may be closed as soon as the plot is filled. All methods that read
 * values return copies.
 */
public final class PostDataObject extends NativePeer {
    PostDataObject(PlotKind kind, Map<DataRole, Integer> roles) {
        NativeLibrary.require(PostDataObject.class, "vxproducer");
        int[] arrays = new int[DataRole.COUNT];
        Arrays.fill(arrays, -1);
        roles.forEach((role, array) -> arrays[role.number()] = array);
        createNative(this, kind.number(), arrays);
    }

    /**
     * Makes an empty record that a file reader can fill. The kind says how the file is read and which data arrays that
     * gives:
     *
     * <ul>
     *   <li>{@link PlotKind#SURFACE_2D}: array 0 is the file's data, array 1 the third coordinate
     *   <li>{@link PlotKind#SURFACE_3D}: array 0 is the file's data
     *   <li>{@link PlotKind#ISO_SURFACE}: array 0 is the level of each group, array 1 the file's data
     * </ul>
     *
     * @param kind one of these kinds
     * @param roles which array plays which role
     * @return the record, to be closed by the caller
     * @throws IllegalArgumentException if no file reader knows the kind
     * @throws IndexOutOfBoundsException if a role names an array that the reader does not give
     */
    public static PostDataObject forFile(PlotKind kind, Map<DataRole, Integer> roles) {
        int arrays = switch (Objects.requireNonNull(kind, "kind")) {
            case SURFACE_3D -> 1;
            case SURFACE_2D, ISO_SURFACE -> 2;
            default -> throw new IllegalArgumentException("No file holds data of kind " + kind);
        };
        roles.forEach((role, array) -> {
            if (array < 0 || array >= arrays) {
                throw new IndexOutOfBoundsException("role " + role + " names data[" + array + "] of " + arrays);
            }
        });
        return new PostDataObject(kind, roles);
    }

    /** Copies a group, whose arrays fit together, into the record. */
    void addGroup(PostDataGroup group) {
        double[] limits = group.limits.stream().flatMapToDouble(Arrays::stream).toArray();
        addGroup(this, group.coordinates, group.elements, group.data.toArray(), limits, group.normals,
                group.lineElements);
    }

    /** Sets the bounds, or computes them from the points where none are given. */
    void setBounds(double[][] bounds) {
        if (bounds != null) {
            setBounds(this, bounds);
        } else {
            computeBounds(this);
        }
    }

    /**
     * What the data are.
     *
     * @return the kind
     */
    public PlotKind getPlotKind() {
        return PlotKind.of(getPlotKind(this));
    }

    /**
     * Which data array plays a role.
     *
     * @param role the role
     * @return the number of the array, or nothing if the role is not filled
     */
    public OptionalInt getArrayOf(DataRole role) {
        int array = getDataIndex(this, role.number());
        return array < 0 ? OptionalInt.empty() : OptionalInt.of(array);
    }

    /**
     * The number of groups.
     *
     * @return 0 for a record that waits for a file, else 1 or more
     */
    public int getNumGroups() {
        return getNumGroups(this);
    }

    /**
     * The points of a group.
     *
     * @param group the group, from 0
     * @return an array for each axis
     */
    public double[][] getCoordinates(int group) {
        return getCoordinates(this, requireGroup(group));
    }

    /**
     * The elements of a group.
     *
     * @param group the group, from 0
     * @return an array for each corner; none if the group has no elements
     */
    public int[][] getElements(int group) {
        return getElements(this, requireGroup(group));
    }

    /**
     * The data arrays of a group.
     *
     * @param group the group, from 0
     * @return an array for each quantity
     */
    public double[][] getData(int group) {
        return getData(this, requireGroup(group));
    }

    /**
     * The minima of the data arrays of a group.
     *
     * @param group the group, from 0
     * @return a value for each data array
     */
    public double[] getDataMin(int group) {
        return getDataMin(this, requireGroup(group));
    }

    /**
     * The maxima of the data arrays of a group.
     *
     * @param group the group, from 0
     * @return a value for each data array
     */
    public double[] getDataMax(int group) {
        return getDataMax(this, requireGroup(group));
    }

    /**
     * The normals of a group.
     *
     * @param group the group, from 0
     * @return arrays of x, y and z; none if the group has no normals
     */
    public float[][] getNormals(int group) {
        return getNormals(this, requireGroup(group));
    }

    /**
     * The lines of a group that are drawn with its triangles.
     *
     * @param group the group, from 0
     * @return the beginnings and the ends; none if the group has no such lines
     */
    public int[][] getLineElements(int group) {
        return getLineElements(this, requireGroup(group));
    }

    /**
     * The bounds of the whole record.
     *
     * @return minimum and maximum for each axis; nothing for a record that waits for a file
     */
    public double[][] getBounds() {
        return getBounds(this);
    }

    private int requireGroup(int group) {
        return Objects.checkIndex(group, getNumGroups(this));
    }

    @Override
    protected void cleanup() {
        cleanupNative(this);
    }

    private static native void createNative(PostDataObject peer, int plotKind, int[] dataIndex);

    private static native void cleanupNative(PostDataObject peer);

    private static native void addGroup(PostDataObject peer, Object[] coordinates, Object[] elements, Object[] data,
            double[] limits, Object[] normals, Object[] lineElements);

    private static native void setBounds(PostDataObject peer, double[][] bounds);

    private static native void computeBounds(PostDataObject peer);

    private static native int getPlotKind(PostDataObject peer);

    private static native int getDataIndex(PostDataObject peer, int role);

    private static native int getNumGroups(PostDataObject peer);

    private static native double[][] getCoordinates(PostDataObject peer, int group);

    private static native int[][] getElements(PostDataObject peer, int group);

    private static native double[][] getData(PostDataObject peer, int group);

    private static native double[] getDataMin(PostDataObject peer, int group);

    private static native double[] getDataMax(PostDataObject peer, int group);

    private static native float[][] getNormals(PostDataObject peer, int group);

    private static native int[][] getLineElements(PostDataObject peer, int group);

    private static native double[][] getBounds(PostDataObject peer);
}
