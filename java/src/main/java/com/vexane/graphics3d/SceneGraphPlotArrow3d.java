package com.vexane.graphics3d;

import com.vexane.base.NativeException;
import java.nio.file.Path;
import java.util.Objects;

/**
 * A plot of vectors in space as lit arrows.
 *
 * <p>A fill reads the first group of the record: points, three components of vectors and, if present, colour data. Ten
 * million arrows take 280 MB of native memory. All lengths are scaled so that the longest arrow is a little shorter than
 * the mean distance of the points; {@link #readFile} and {@link #update} keep the lengths as they are.
 */
public final class SceneGraphPlotArrow3d extends SceneGraphPlotArrow {
    /**
     * Makes an empty plot.
     *
     * @param id the id of the plot in its group
     */
    public SceneGraphPlotArrow3d(int id) {
        createNative(this, id);
    }

    private SceneGraphPlotArrow3d() {}

    /**
     * Makes another peer of a plot in a group.
     *
     * @param group the group
     * @param plotId the id of the plot
     * @return the peer
     * @throws NativeException if the group has no plot with that id, or one of another kind
     * @throws NullPointerException if the group is null
     * @throws IllegalStateException if the group's peer is closed
     */
    public static SceneGraphPlotArrow3d connect(SceneGraphPlotGroup group, int plotId) {
        SceneGraphPlotArrow3d plot = new SceneGraphPlotArrow3d();
        connectNative(plot, requireOpen(group, "group"), plotId);
        plot.takeMember(group, plotId);
        return plot;
    }

    /**
     * Fills the plot from a text file with points, vectors and, if present, values; the page
     * {@code docs/plot-data-format.md} describes the format. Lengths stay as they are, values are scaled to 0 to 1, and
     * the legend is not affected.
     *
     * @param path the file
     * @return whether the plot was filled; if not, it is unchanged and the log says why
     * @throws NullPointerException if the path is null
     */
    public boolean readFile(Path path) {
        return readFile(this, Objects.requireNonNull(path, "path").toString());
    }

    /**
     * Fills the plot from arrays: the fastest way to show vectors that change, such as those of an animation. Lengths
     * stay as they are, and so do the bounding box and the legend.
     *
     * @param positions x, y and z of the points: three arrays of the same length
     * @param vectors x, y and z of the vectors: three arrays of that length
     * @param values coordinates in the colour table from 0 to 1, one per point; null for 0
     * @return true
     * @throws IllegalArgumentException if there are not three arrays of the same length, or too few values
     * @throws NullPointerException if positions or vectors are null, or one of their arrays is
     */
    public boolean update(float[][] positions, float[][] vectors, float[] values) {
        requireThree(positions, "positions");
        requireThree(vectors, "vectors");
        int count = positions[0].length;
        if (vectors[0].length != count || values != null && values.length < count) {
            throw new IllegalArgumentException("There are " + count + " positions, but " + vectors[0].length
                    + " vectors" + (values != null ? " and " + values.length + " values" : ""));
        }
        return update(this, positions, vectors, values);
    }

    private static void requireThree(float[][] rows, String name) {
        if (rows.length != 3) {
            throw new IllegalArgumentException(name + " have " + rows.length + " arrays, not 3");
        }
        for (float[] row : rows) {
            if (Objects.requireNonNull(row, "array of " + name).length != rows[0].length) {
                throw new IllegalArgumentException(name + " have arrays of different length");
            }
        }
    }

    private static native void createNative(SceneGraphPlotArrow3d peer, int id);

    private static native void connectNative(SceneGraphPlotArrow3d peer, SceneGraphPlotGroup owner, int plotId);

    private static native boolean readFile(SceneGraphPlotArrow3d peer, String path);

    private static native boolean update(
            SceneGraphPlotArrow3d peer, Object[] positions, Object[] vectors, float[] values);
}
