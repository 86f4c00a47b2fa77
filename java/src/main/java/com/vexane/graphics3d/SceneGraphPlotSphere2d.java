package com.vexane.graphics3d;

import com.vexane.base.NativeException;

/**
 * Points in the plane, each drawn as a disc. A million points take 16 MB of native memory.
 */
public final class SceneGraphPlotSphere2d extends SceneGraphPlotSphere {
    /**
     * Makes an empty plot.
     *
     * @param id the id of the plot in its group
     */
    public SceneGraphPlotSphere2d(int id) {
        createNative(this, id);
    }

    private SceneGraphPlotSphere2d() {}

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
    public static SceneGraphPlotSphere2d connect(SceneGraphPlotGroup group, int plotId) {
        SceneGraphPlotSphere2d plot = new SceneGraphPlotSphere2d();
        connectNative(plot, requireOpen(group, "group"), plotId);
        plot.takeMember(group, plotId);
        return plot;
    }

    private static native void createNative(SceneGraphPlotSphere2d peer, int id);

    private static native void connectNative(SceneGraphPlotSphere2d peer, SceneGraphPlotGroup owner, int plotId);
}
