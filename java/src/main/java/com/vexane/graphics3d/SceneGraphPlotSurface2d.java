package com.vexane.graphics3d;

import com.vexane.base.NativeException;

/**
 * A plot of a field on a flat domain: flat in the plane, or raised by a second array of the record into a height map.
 *
 * <p>A fill reads the first group of the record: points, triangles and colour data. Ten million points take 320 MB of
 * native memory, and each triangle another 12 bytes (6 for up to 65535 points).
 */
public final class SceneGraphPlotSurface2d extends SceneGraphPlot {
    /**
     * Makes an empty plot.
     *
     * @param id the id of the plot in its group
     */
    public SceneGraphPlotSurface2d(int id) {
        createNative(this, id);
    }

    private SceneGraphPlotSurface2d() {}

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
    public static SceneGraphPlotSurface2d connect(SceneGraphPlotGroup group, int plotId) {
        SceneGraphPlotSurface2d plot = new SceneGraphPlotSurface2d();
        connectNative(plot, requireOpen(group, "group"), plotId);
        plot.takeMember(group, plotId);
        return plot;
    }

    private static native void createNative(SceneGraphPlotSurface2d peer, int id);

    private static native void connectNative(SceneGraphPlotSurface2d peer, SceneGraphPlotGroup owner, int plotId);
}
