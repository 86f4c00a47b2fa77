package com.vexane.producer;

import com.vexane.base.NativeLibrary;
import com.vexane.base.NativePeer;
import java.nio.file.Path;
import java.util.Arrays;
import java.util.Map;
import java.util.Objects;
import java.util.OptionalInt;

/**
 * A record of post-processing results, from which a plot is filled. {@link PostDataBuilder} makes one from arrays, {@link
 * #read} from a file.
 *
 * <p>A plot copies what it needs, so the record may be closed as soon as the plot is filled. All methods that return
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
     * Reads a plot file into a new record. The page on the plot data format describes the files. The kind decides how
     * the file is read and which data arrays the record gets:
     *
     * <ul>
     * <li>{@link PlotKind#SURFACE_2D}: array 0 is the data of the file, array 1 the third coordinate
     * <li>{@link PlotKind#SURFACE_3D}: array 0 is the data of the file
     * <li>{@link PlotKind#ISO_SURFACE}: array 0 is the level of each group, array 1 the data of the file
     * </ul>
     *
     * <p>The data of the file are scaled to the range from 0 to 1.
     *
     * @param kind one of these kinds
     * @param roles the index of the array of each role
     * @param file the file
     * @return the record, to be closed by the caller
     * @throws PlotFileException if the file cannot be opened, is not a regular file, or is invalid; the exception has
     *     the reason and, if there is one, the row
     * @throws IllegalArgumentException if there is no file reader for the kind
     * @throws IndexOutOfBoundsException if a role refers to an array that the record does not get
     * @throws com.vexane.base.NativeException if memory runs out
     */
    public static PostDataObject read(PlotKind kind, Map<DataRole, Integer> roles, Path file) throws PlotFileException {
        Objects.requireNonNull(file, "file");
        PostDataObject record = forFile(kind, roles);
        int[] row = new int[1];
        String reason;
        try {
            reason = read(record, file.toString(), row);
        } catch (Throwable failure) {
            record.close();
            throw failure;
        }
        if (reason != null) {
            record.close();
            throw new PlotFileException(reason, file, row[0]);
        }
        return record;
    }

    /**
     * Makes an empty record for {@link com.vexane.graphics3d.PostDataReader}. Usually {@link #read} is the better
     * choice: it reports the reason if a file is invalid.
     *
     * @param kind a kind that {@link #read} accepts
     * @param roles the index of the array of each role
     * @return the record, to be closed by the caller
     * @throws IllegalArgumentException if there is no file reader for the kind
     * @throws IndexOutOfBoundsException if a role refers to an array that the record does not get
     */
    public static PostDataObject forFile(PlotKind kind, Map<DataRole, Integer> roles) {
        int arrays = switch (Objects.requireNonNull(kind, "kind")) {
            case SURFACE_3D -> 1;
            case SURFACE_2D, ISO_SURFACE -> 2;
            default -> throw new IllegalArgumentException("No file holds data of PlotKind." + kind);
        };
        roles.forEach((role, array) -> {
            if (array < 0 || array >= arrays) {
                throw new IndexOutOfBoundsException(
                        "There is no data[" + array + "] for DataRole." + role + "; number of data arrays: " + arrays);
            }
        });
        return new PostDataObject(kind, roles);
    }

    /** Copies a group, whose arrays have been checked, into the record. */
    void addGroup(PostDataGroup group) {
        double[] limits = group.limits.stream().flatMapToDouble(Arrays::stream).toArray();
        addGroup(this, group.coordinates, group.elements, group.data.toArray(), limits, group.normals,
                group.computesNormals, group.lineElements, group.computesOutline);
    }

    /** Sets the bounds, or computes them from the points if none are given. */
    void setBounds(double[][] bounds) {
        if (bounds != null) {
            setBounds(this, bounds);
        } else {
            computeBounds(this);
        }
    }

    /** {@return the kind of the data} */
    public PlotKind getPlotKind() {
        return PlotKind.of(getPlotKind(this));
    }

    /**
     * {@return the index of the data array of a role, or nothing if the role is not filled}
     *
     * @param role the role
     */
    public OptionalInt getArrayOf(DataRole role) {
        int array = getDataIndex(this, role.number());
        return array < 0 ? OptionalInt.empty() : OptionalInt.of(array);
    }

    /** {@return the number of groups; 0 for a record that no file has been read into} */
    public int getNumGroups() {
        return getNumGroups(this);
    }

    /**
     * {@return the points of a group, one array per axis}
     *
     * @param group the group, from 0
     */
    public double[][] getCoordinates(int group) {
        return getCoordinates(this, requireGroup(group));
    }

    /**
     * {@return the elements of a group, one array per corner; empty if the group has no elements}
     *
     * @param group the group, from 0
     */
    public int[][] getElements(int group) {
        return getElements(this, requireGroup(group));
    }

    /**
     * {@return the data arrays of a group, one per quantity}
     *
     * @param group the group, from 0
     */
    public double[][] getData(int group) {
        return getData(this, requireGroup(group));
    }

    /**
     * {@return the minimum of each data array of a group}
     *
     * @param group the group, from 0
     */
    public double[] getDataMin(int group) {
        return getDataMin(this, requireGroup(group));
    }

    /**
     * {@return the maximum of each data array of a group}
     *
     * @param group the group, from 0
     */
    public double[] getDataMax(int group) {
        return getDataMax(this, requireGroup(group));
    }

    /**
     * {@return the normals of a group as arrays of x, y and z; empty if the group has no normals}
     *
     * @param group the group, from 0
     */
    public float[][] getNormals(int group) {
        return getNormals(this, requireGroup(group));
    }

    /**
     * {@return the start and the end points of the lines of a group that are drawn with its triangles; empty if the
     * group has no such lines}
     *
     * @param group the group, from 0
     */
    public int[][] getLineElements(int group) {
        return getLineElements(this, requireGroup(group));
    }

    /**
     * {@return the minimum and the maximum of the whole record on each axis; empty for a record that no file has been
     * read into}
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
            double[] limits, Object[] normals, boolean computeNormals, Object[] lineElements,
            boolean computeOutline);

    /** Returns what is wrong and stores the row, or 0, in an array of one entry; null if the file was read. */
    private static native String read(PostDataObject peer, String file, int[] row);

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
