package com.vexane.graphics3d;

import com.vexane.base.NativeException;

/**
 * A plot of lines in space as round tubes with hemispherical ends.
 *
 * <p>A fill reads the first group of the record: points, lines, colour data and radii; the kind of the record has to be
 * {@code LINES_3D}, otherwise all points are in the plane. Consecutive lines that continue each other form one tube; where
 * two tubes meet, one of them has an end. A tube has 24 segments around, and fewer, down to 8, if the record has more than
 * 10,000 lines. A million lines take up to 600 MB of native memory.
 */
public final class SceneGraphPlotTube3d extends SceneGraphPlotTube {
    /**
     * Makes an empty plot.
     *
     * @param id the id of the plot in its group
     */
    public SceneGraphPlotTube3d(int id) {
        createNative(this, id);
    }

    private SceneGraphPlotTube3d() {}

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
    public static SceneGraphPlotTube3d connect(SceneGraphPlotGroup group, int plotId) {
        SceneGraphPlotTube3d plot = new SceneGraphPlotTube3d();
        connectNative(plot, requireOpen(group, "group"), plotId);
        plot.takeMember(group, plotId);
        return plot;
    }

    private static native void createNative(SceneGraphPlotTube3d peer, int id);

    private static native void connectNative(SceneGraphPlotTube3d peer, SceneGraphPlotGroup owner, int plotId);
}
