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
    /** Shared with the other peers of this group; null before there is a native group and after closing. */
    private PlotGroupMembers members;

    /** Makes a group without plots. */
    public SceneGraphPlotGroup() {
        this(true);
        createNative(this);
        members = PlotGroupMembers.ofNew(objectNumber());
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
        group.members = PlotGroupMembers.of(group.objectNumber());
        return group;
    }

    PlotGroupMembers members() {
        return members;
    }

    /**
     * Adds a plot under its own id. Another plot with that id is replaced, and its texture handles are lost to the
     * group. If the group has too few handles left, the plot is not added and the log has a warning; check with
     * {@link #doesPlotExist}. That check cannot tell two plots with one id apart, so remove the earlier one first.
     *
     * <p>A plot can be in one group only. Remove it before adding it again, to this group or another: otherwise it
     * would take new texture handles, and the earlier ones would be lost or returned to the wrong group. A plot that
     * any peer of a group has added is refused while a peer of that group is open. When the last peer of a group is
     * closed, its plots are no longer known, because the group may have ceased to exist; nor are plots known that
     * native code has added.
     *
     * @param plot the plot
     * @throws NullPointerException if the plot is null
     * @throws IllegalStateException if the plot's peer is closed, or if the plot is known to be in a group
     */
    public void addPlot(SceneGraphPlot plot) {
        if (requireOpen(plot, "plot").member().isInGroup()) {
            throw new IllegalStateException(
                    "Plot " + plot.getId() + " is already in a plot group. Remove it from that group first.");
        }
        addPlot(this, plot);
        int id = plot.getId();
        if (doesPlotExist(id)) {
            members.put(id, plot.member());
        }
    }

    /**
     * Removes a plot. It stays usable and can be added to a group again.
     *
     * @param plotId the id of the plot; an id without plot is ignored
     */
    public void removePlot(int plotId) {
        removePlot(this, plotId);
        members.remove(plotId);
    }

    /** Removes all plots. */
    public void removeAllPlots() {
        removeAllPlots(this);
        members.removeAll();
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
     * Sets the group's own part of the title, which precedes those of its plots. A scene shows the title of a group that
     * is the child of its root.
     *
     * @param format how the text is written
     * @param text the text; empty for no title
     * @throws NullPointerException if an argument is null
     */
    public void setTitle(TextFormat format, String text) {
        setTitle(this, format.number(), Objects.requireNonNull(text, "text"));
    }

    @Override
    protected void cleanup() {
        super.cleanup();
        if (members != null) {
            members.leave();
            members = null;
        }
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
