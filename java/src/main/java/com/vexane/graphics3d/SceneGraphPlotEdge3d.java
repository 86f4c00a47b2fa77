package com.vexane.graphics3d;

import com.vexane.base.NativeException;

/**
 * The edges of elements in space as lines.
 *
 * <p>A fill reads the first group of the record: points, elements of up to four corners and, if present, colour data. A
 * line element has one edge, a triangle three and a tetrahedron six; an edge of several elements is drawn for each. A
 * point takes 20 bytes of native memory and an edge 8 (4 for up to 65535 points).
 */
public final class SceneGraphPlotEdge3d extends SceneGraphPlot {
    /**
     * Makes an empty plot.
     *
     * @param id the id of the plot in its group
     */
    public SceneGraphPlotEdge3d(int id) {
        createNative(this, id);
    }

    private SceneGraphPlotEdge3d() {}

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
    public static SceneGraphPlotEdge3d connect(SceneGraphPlotGroup group, int plotId) {
        SceneGraphPlotEdge3d plot = new SceneGraphPlotEdge3d();
        connectNative(plot, requireOpen(group, "group"), plotId);
        plot.takeMember(group, plotId);
        return plot;
    }

    /** {@return the width of the lines, 0.25 at first} */
    public float getLineWidth() {
        return getLineWidth(this);
    }

    /**
     * Sets the width of the lines. The lines are not built again.
     *
     * @param width in pixels of the screen; how lines of less than a pixel look is up to the renderer
     */
    public void setLineWidth(float width) {
        setLineWidth(this, width);
    }

    private static native void setLineWidth(SceneGraphPlotEdge3d peer, float width);

    private static native float getLineWidth(SceneGraphPlotEdge3d peer);

    private static native void createNative(SceneGraphPlotEdge3d peer, int id);

    private static native void connectNative(SceneGraphPlotEdge3d peer, SceneGraphPlotGroup owner, int plotId);
}
