package com.vexane.graphics3d;

import com.vexane.base.NativeException;

/**
 * A plot of vectors in the plane as flat arrows.
 *
 * <p>A fill reads the first group of the record: points, two components of vectors and, if present, colour data. Ten
 * million arrows take 200 MB of native memory. All lengths are scaled so that the longest arrow is a little shorter than
 * the mean distance of the points.
 */
public final class SceneGraphPlotArrow2d extends SceneGraphPlotArrow {
    /**
     * Makes an empty plot.
     *
     * @param id the id of the plot in its group
     */
    public SceneGraphPlotArrow2d(int id) {
        createNative(this, id);
    }

    private SceneGraphPlotArrow2d() {}

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
    public static SceneGraphPlotArrow2d connect(SceneGraphPlotGroup group, int plotId) {
        SceneGraphPlotArrow2d plot = new SceneGraphPlotArrow2d();
        connectNative(plot, requireOpen(group, "group"), plotId);
        plot.takeMember(group, plotId);
        return plot;
    }

    private static native void createNative(SceneGraphPlotArrow2d peer, int id);

    private static native void connectNative(SceneGraphPlotArrow2d peer, SceneGraphPlotGroup owner, int plotId);
}
