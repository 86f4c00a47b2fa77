package com.vexane.producer;

import java.util.ArrayList;
import java.util.Arrays;
import java.util.EnumMap;
import java.util.List;
import java.util.Map;
import java.util.Objects;

/**
 * Collects the content of a record and makes the record.
 *
 * <pre>{@code
 * try (PostDataObject record = new PostDataBuilder(PlotKind.SURFACE_3D)
 *         .role(DataRole.COLOR, 0)
 *         .addGroup(new PostDataGroup().coordinates(x, y, z).elements(a, b, c).computeNormals().data(stress))
 *         .build()) {
 *     plot.fillPlot(record);
 * }
 * }</pre>
 *
 * <p>The values are copied once, directly from the arrays or direct buffers into the record. A builder may be used
 * again: every {@link #build} reads the arrays again and makes another record.
 */
public final class PostDataBuilder {
    private final PlotKind kind;
    private final Map<DataRole, Integer> roles = new EnumMap<>(DataRole.class);
    private final List<PostDataGroup> groups = new ArrayList<>();
    private double[][] bounds;

    /**
     * Starts a record without groups and roles.
     *
     * @param kind the kind of the data
     * @throws NullPointerException if the kind is null
     */
    public PostDataBuilder(PlotKind kind) {
        this.kind = Objects.requireNonNull(kind, "kind");
    }

    /**
     * Sets the data array of a role, in all groups. Roles that are not set stay empty.
     *
     * @param role the role
     * @param array the index of the data array, in the order in which they are added to a group
     * @return this builder
     * @throws IndexOutOfBoundsException if the index is negative
     */
    public PostDataBuilder role(DataRole role, int array) {
        Objects.requireNonNull(role, "role");
        if (array < 0) {
            throw new IndexOutOfBoundsException("There is no data[" + array + "] for DataRole." + role);
        }
        roles.put(role, array);
        return this;
    }

    /**
     * Adds a group.
     *
     * @param group the group; it is read by {@link #build}
     * @return this builder
     */
    public PostDataBuilder addGroup(PostDataGroup group) {
        groups.add(Objects.requireNonNull(group, "group"));
        return this;
    }

    /**
     * Sets the bounds of the whole record instead of having them computed from the finite coordinates of all groups.
     *
     * @param axes one array of minimum and maximum per axis, for one to three axes
     * @return this builder
     * @throws IllegalArgumentException if there are other than one to three axes, or an axis is not a range of two
     *     finite numbers
     */
    public PostDataBuilder bounds(double[]... axes) {
        Objects.requireNonNull(axes, "bounds");
        if (axes.length < 1 || axes.length > 3) {
            throw new IllegalArgumentException("bounds: " + axes.length + " axes, not 1 to 3");
        }
        double[][] copy = new double[axes.length][];
        for (int i = 0; i < axes.length; ++i) {
            double[] range = Objects.requireNonNull(axes[i], "bounds[" + i + "]").clone();
            if (range.length != 2 || !(range[0] <= range[1]) || !Double.isFinite(range[1] - range[0])) {
                throw new IllegalArgumentException("bounds[" + i + "] is not a range: " + Arrays.toString(range));
            }
            copy[i] = range;
        }
        bounds = copy;
        return this;
    }

    /**
     * Makes the record. If arrays do not fit together, no record is made and the message names the group and the array.
     *
     * @return the record, to be closed by the caller
     * @throws IllegalStateException if there is no group, or a group has no coordinates
     * @throws IllegalArgumentException if arrays do not fit together: another number of axes or data arrays than in the
     *     first group, or not one value or normal per point; a single value for the whole group is accepted where
     *     {@link DataRole#ISO_LEVEL} is the only role of the array; or if normals are to be computed and there are no
     *     triangles in space, or an outline and there are no triangles
     * @throws IndexOutOfBoundsException if a role refers to an array that the groups do not have
     * @throws com.vexane.base.NativeException if an element refers to a point that its group does not have
     */
    public PostDataObject build() {
        if (groups.isEmpty()) {
            throw new IllegalStateException("The record has no group.");
        }
        for (int i = 0; i < groups.size(); ++i) {
            if (groups.get(i).coordinates == null) {
                throw new IllegalStateException("group " + i + " has no coordinates");
            }
            requireFitting(groups.get(i), "group " + i + ": ");
        }
        PostDataObject record = new PostDataObject(kind, roles);
        try {
            for (PostDataGroup group : groups) {
                record.addGroup(group);
            }
            record.setBounds(bounds);
            return record;
        } catch (Throwable failure) {
            record.close();
            throw failure;
        }
    }

    private void requireFitting(PostDataGroup group, String place) {
        PostDataGroup first = groups.get(0);
        if (group.coordinates.length != first.coordinates.length) {
            throw new IllegalArgumentException(place + "coordinates have " + group.coordinates.length
                    + " axes, those of group 0 have " + first.coordinates.length);
        }
        if (group.data.size() != first.data.size()) {
            throw new IllegalArgumentException(
                    place + group.data.size() + " data arrays, group 0 has " + first.data.size());
        }
        roles.forEach((role, array) -> {
            if (array >= group.data.size()) {
                throw new IndexOutOfBoundsException(place + "there is no data[" + array + "] for DataRole." + role
                        + "; number of data arrays: " + group.data.size());
            }
        });
        int points = Values.count(group.coordinates[0]);
        for (int i = 0; i < group.data.size(); ++i) {
            int count = Values.count(group.data.get(i));
            if (count != points && !(count == 1 && isLevelOnly(i))) {
                throw new IllegalArgumentException(
                        place + "data[" + i + "] has " + count + " values for " + points + " points");
            }
        }
        if (group.computesNormals) {
            requireTriangles(group, place);
        }
        if (group.computesOutline && group.elements.length != 3) {
            throw new IllegalArgumentException(
                    place + "computeOutline needs triangles; there are " + group.elements.length + " corners");
        }
        if (group.normals.length > 0 && Values.count(group.normals[0]) != points) {
            throw new IllegalArgumentException(place + "normals have " + Values.count(group.normals[0]) + " entries for "
                    + points + " points");
        }
    }

    private static void requireTriangles(PostDataGroup group, String place) {
        if (group.coordinates.length != 3 || group.elements.length != 3) {
            throw new IllegalArgumentException(place + "computeNormals needs triangles in space; there are "
                    + group.coordinates.length + " axes and " + group.elements.length + " corners");
        }
    }

    private boolean isLevelOnly(int array) {
        return roles.containsValue(array)
                && roles.entrySet().stream().allMatch(e -> e.getValue() != array || e.getKey() == DataRole.ISO_LEVEL);
    }
}
