package com.vexane.graphics3d;

import com.vexane.base.NativeException;

/**
 * A plot of lines in the plane as flat bands with round ends. A record with height data raises the lines, which are then
 * tubes in space.
 *
 * <p>A fill reads the first group of the record: points, lines, colour data and radii. Consecutive lines that continue
 * each other are drawn as one band.
 */
public final class SceneGraphPlotTube2d extends SceneGraphPlotTube {
    /**
     * Makes an empty plot.
     *
     * @param id the id of the plot in its group
     */
    public SceneGraphPlotTube2d(int id) {
        createNative(this, id);
    }

    private SceneGraphPlotTube2d() {}

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
    public static SceneGraphPlotTube2d connect(SceneGraphPlotGroup group, int plotId) {
        SceneGraphPlotTube2d plot = new SceneGraphPlotTube2d();
        connectNative(plot, requireOpen(group, "group"), plotId);
        plot.takeMember(group, plotId);
        return plot;
    }

    private static native void createNative(SceneGraphPlotTube2d peer, int id);

    private static native void connectNative(SceneGraphPlotTube2d peer, SceneGraphPlotGroup owner, int plotId);
}
