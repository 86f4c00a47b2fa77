package com.vexane.graphics3d;

import com.vexane.base.NativeException;

/**
 * A plot of contours in the plane or in space: lines of equal value, or filled bands between them.
 *
 * <p>A group of the record whose elements have three corners is a band; one with two corners is the lines of a level,
 * which get a {@linkplain #setLabels label}. A record of the kind {@code CONTOUR_3D} is drawn in space, where bands need
 * normals, and one of any other kind in the plane; in one of the kind {@code CONTOUR_2D} labels keep clear of the edges.
 */
public final class SceneGraphPlotContour extends SceneGraphPlotIso {
    /**
     * Makes an empty plot.
     *
     * @param id the id of the plot in its group
     */
    public SceneGraphPlotContour(int id) {
        createNative(this, id);
    }

    private SceneGraphPlotContour() {}

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
    public static SceneGraphPlotContour connect(SceneGraphPlotGroup group, int plotId) {
        SceneGraphPlotContour plot = new SceneGraphPlotContour();
        connectNative(plot, requireOpen(group, "group"), plotId);
        plot.takeMember(group, plotId);
        return plot;
    }

    private static native void createNative(SceneGraphPlotContour peer, int id);

    private static native void connectNative(SceneGraphPlotContour peer, SceneGraphPlotGroup owner, int plotId);
}
