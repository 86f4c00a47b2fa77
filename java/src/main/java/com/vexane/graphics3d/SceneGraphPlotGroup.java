package com.vexane.graphics3d;

import com.vexane.base.NativeException;
import java.util.Objects;

/**
 * A node of the scene tree that contains plots.
 *
 * <p>A group has 256 texture handles, of which most plots take two and a mesh plot four while they are in the group, so
 * it has space for 128 plots of the usual kind. The title of the group is shown above its plots, together with theirs.
 */
public final class SceneGraphPlotGroup extends SceneGraphNode {
    /** Makes a group without plots. */
    public SceneGraphPlotGroup() {
        this(true);
        createNative(this);
    }

    private SceneGraphPlotGroup(boolean unattached) {}

    /**
     * Makes another peer of a plot group that has a parent.
     *
     * @param parent the parent of the group
     * @param childId the id of the group under its parent; a parent with a single child ignores it
     * @return the peer
     * @throws NativeException if the parent has no such child, or one that is not a plot group
     * @throws NullPointerException if the parent is null
     * @throws IllegalStateException if the parent's peer is closed
     */
    public static SceneGraphPlotGroup connect(SceneGraphParent parent, int childId) {
        SceneGraphPlotGroup group = new SceneGraphPlotGroup(true);
        connectNative(group, requireOpen(parent, "parent"), childId);
        return group;
    }

    /**
     * Adds a plot under its own id. Another plot with that id is replaced, and its texture handles are lost to the
     * group. If the group has too few handles left, the plot is not added and the log has a warning; check with
     * {@link #doesPlotExist}.
     *
     * <p>Remove a plot before adding it again, to this group or another: each addition takes new texture handles, and
     * the earlier ones are lost or returned to the wrong group.
     *
     * @param plot the plot
     * @throws NullPointerException if the plot is null
     * @throws IllegalStateException if the plot's peer is closed
     */
    public void addPlot(SceneGraphPlot plot) {
        addPlot(this, requireOpen(plot, "plot"));
    }

    /**
     * Removes a plot. It stays usable and can be added to a group again.
     *
     * @param plotId the id of the plot; an id without plot is ignored
     */
    public void removePlot(int plotId) {
        removePlot(this, plotId);
    }

    /** Removes all plots. */
    public void removeAllPlots() {
        removeAllPlots(this);
    }

    /**
     * {@return whether the group has a plot with an id}
     *
     * @param plotId the id
     */
    public boolean doesPlotExist(int plotId) {
        return doesPlotExist(this, plotId);
    }

    /** {@return the number of plots in the group} */
    public int getNoOfPlots() {
        return getNoOfPlots(this);
    }

    /**
     * Sets the group's own part of the title, which precedes those of its plots.
     *
     * @param format how the text is written
     * @param text the text; empty for no title
     * @throws NullPointerException if an argument is null
     */
    public void setTitle(TextFormat format, String text) {
        setTitle(this, format.number(), Objects.requireNonNull(text, "text"));
    }

    private static native void createNative(SceneGraphPlotGroup peer);

    private static native void connectNative(SceneGraphPlotGroup peer, SceneGraphNode owner, int childId);

    private static native void addPlot(SceneGraphPlotGroup peer, SceneGraphPlot plot);

    private static native void removePlot(SceneGraphPlotGroup peer, int plotId);

    private static native void removeAllPlots(SceneGraphPlotGroup peer);

    private static native boolean doesPlotExist(SceneGraphPlotGroup peer, int plotId);

    private static native int getNoOfPlots(SceneGraphPlotGroup peer);

    private static native void setTitle(SceneGraphPlotGroup peer, int format, String text);
}
