package com.vexane.graphics3d;

import com.vexane.base.NativeException;

/**
 * Points in space, each drawn as a sphere. A million points take 20 MB of native memory.
 */
public final class SceneGraphPlotSphere3d extends SceneGraphPlotSphere {
    /**
     * Makes an empty plot.
     *
     * @param id the id of the plot in its group
     */
    public SceneGraphPlotSphere3d(int id) {
        createNative(this, id);
    }

    private SceneGraphPlotSphere3d() {}

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
    public static SceneGraphPlotSphere3d connect(SceneGraphPlotGroup group, int plotId) {
        SceneGraphPlotSphere3d plot = new SceneGraphPlotSphere3d();
        connectNative(plot, requireOpen(group, "group"), plotId);
        plot.takeMember(group, plotId);
        return plot;
    }

    private static native void createNative(SceneGraphPlotSphere3d peer, int id);

    private static native void connectNative(SceneGraphPlotSphere3d peer, SceneGraphPlotGroup owner, int plotId);
}
