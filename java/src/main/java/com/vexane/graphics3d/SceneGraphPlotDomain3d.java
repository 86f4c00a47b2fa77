package com.vexane.graphics3d;

import com.vexane.base.NativeException;

/**
 * A plot of a field on the surfaces of a domain in space, with the normals of the record.
 *
 * <p>A fill reads the first group of the record: points, triangles and colour data. Ten million points take 320 MB of
 * native memory, and each triangle another 12 bytes (6 for up to 65535 points).
 */
public final class SceneGraphPlotDomain3d extends SceneGraphPlot {
    /**
     * Makes an empty plot.
     *
     * @param id the id of the plot in its group
     */
    public SceneGraphPlotDomain3d(int id) {
        createNative(this, id);
    }

    private SceneGraphPlotDomain3d() {}

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
    public static SceneGraphPlotDomain3d connect(SceneGraphPlotGroup group, int plotId) {
        SceneGraphPlotDomain3d plot = new SceneGraphPlotDomain3d();
        connectNative(plot, requireOpen(group, "group"), plotId);
        plot.takeMember(group, plotId);
        return plot;
    }

    private static native void createNative(SceneGraphPlotDomain3d peer, int id);

    private static native void connectNative(SceneGraphPlotDomain3d peer, SceneGraphPlotGroup owner, int plotId);
}
