package com.vexane.graphics3d;

import com.vexane.base.NativeException;

/**
 * A plot of surfaces of equal value in space, one per group of the record, with the normals of the record.
 *
 * <p>A fill reads points, normals and triangles of every group, its iso level data and, if present, colour data. A group
 * without triangles is a level that has no surface.
 */
public final class SceneGraphPlotIsoSurface3d extends SceneGraphPlotIso {
    /**
     * Makes an empty plot.
     *
     * @param id the id of the plot in its group
     */
    public SceneGraphPlotIsoSurface3d(int id) {
        createNative(this, id);
    }

    private SceneGraphPlotIsoSurface3d() {}

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
    public static SceneGraphPlotIsoSurface3d connect(SceneGraphPlotGroup group, int plotId) {
        SceneGraphPlotIsoSurface3d plot = new SceneGraphPlotIsoSurface3d();
        connectNative(plot, requireOpen(group, "group"), plotId);
        plot.takeMember(group, plotId);
        return plot;
    }

    private static native void createNative(SceneGraphPlotIsoSurface3d peer, int id);

    private static native void connectNative(SceneGraphPlotIsoSurface3d peer, SceneGraphPlotGroup owner, int plotId);
}
