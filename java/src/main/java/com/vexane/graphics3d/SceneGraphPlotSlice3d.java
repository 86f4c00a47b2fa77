package com.vexane.graphics3d;

import com.vexane.base.NativeException;

/**
 * A plot of a field on slices through a domain in space, one per group of the record, each with its outline.
 *
 * <p>A fill reads points, normals, triangles, line elements and colour data of every group. All slices share one colour
 * scale, so equal values have equal colours on all of them.
 */
public final class SceneGraphPlotSlice3d extends SceneGraphPlot {
    /**
     * Makes an empty plot.
     *
     * @param id the id of the plot in its group
     */
    public SceneGraphPlotSlice3d(int id) {
        createNative(this, id);
    }

    private SceneGraphPlotSlice3d() {}

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
    public static SceneGraphPlotSlice3d connect(SceneGraphPlotGroup group, int plotId) {
        SceneGraphPlotSlice3d plot = new SceneGraphPlotSlice3d();
        connectNative(plot, requireOpen(group, "group"), plotId);
        plot.takeMember(group, plotId);
        return plot;
    }

    private static native void createNative(SceneGraphPlotSlice3d peer, int id);

    private static native void connectNative(SceneGraphPlotSlice3d peer, SceneGraphPlotGroup owner, int plotId);
}
