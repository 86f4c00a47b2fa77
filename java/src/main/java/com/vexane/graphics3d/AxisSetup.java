package com.vexane.graphics3d;

import com.vexane.base.NativePeer;
import java.util.Objects;

/**
 * How the axes of a 2D view are laid out: their type, logarithmic scales, grid spacing and titles, and where legends
 * go. Numbers that have no name here mean what the renderer makes of them.
 */
public final class AxisSetup extends NativePeer {
    /** The type of polar axes. */
    public static final int TYPE_POLAR = 1;

    /** The type of the axes of graphs. */
    public static final int TYPE_GRAPH = 4;

    /** The type at the start. */
    public static final int TYPE_DEFAULT = 5;

    private AxisSetup() {}

    /**
     * Makes a peer of the axis setup of a view. The setup lives as long as the peer, also when the view is gone.
     *
     * @param settings the settings of the view
     * @return the peer
     * @throws NullPointerException if the settings are null
     * @throws IllegalStateException if the settings are closed
     */
    public static AxisSetup connect(Canvas3dSettings settings) {
        AxisSetup setup = new AxisSetup();
        connectNative(setup, requireOpen(settings, "settings"));
        return setup;
    }

    /**
     * Sets the type of the axes.
     *
     * @param type 0 to 6; anything else is {@link #TYPE_DEFAULT}
     */
    public void setAxisType(int type) {
        setAxisType(this, type);
    }

    /**
     * Whether the axes are polar.
     *
     * @return true for {@link #TYPE_POLAR}
     */
    public boolean isPolar() {
        return isPolar(this);
    }

    /**
     * Whether the axes are those of graphs.
     *
     * @return true for {@link #TYPE_GRAPH}
     */
    public boolean isGraph() {
        return isGraph(this);
    }

    /**
     * Whether the x axis is logarithmic.
     *
     * @return false at the start
     */
    public boolean getXAxisLog() {
        return getXAxisLog(this);
    }

    /**
     * Sets whether the x axis is logarithmic.
     *
     * @param logScale true for a logarithmic axis
     */
    public void setXAxisLog(boolean logScale) {
        setXAxisLog(this, logScale);
    }

    /**
     * Whether the y axis is logarithmic.
     *
     * @return false at the start
     */
    public boolean getYAxisLog() {
        return getYAxisLog(this);
    }

    /**
     * Sets whether the y axis is logarithmic.
     *
     * @param logScale true for a logarithmic axis
     */
    public void setYAxisLog(boolean logScale) {
        setYAxisLog(this, logScale);
    }

    /**
     * Sets whether the renderer chooses the grid spacing. It does at the start.
     *
     * @param autoSpacing false for the spacings that are set here
     */
    public void setAutoSpacing(boolean autoSpacing) {
        setAutoSpacing(this, autoSpacing);
    }

    /**
     * The distance of grid lines on the x axis.
     *
     * @return the distance in data units, 0 at the start
     */
    public double getXAxisSpacing() {
        return getXAxisSpacing(this);
    }

    /**
     * Sets the distance of grid lines on the x axis.
     *
     * @param spacing the distance in data units; not checked
     */
    public void setXSpacing(double spacing) {
        setXSpacing(this, spacing);
    }

    /**
     * The distance of grid lines on the y axis.
     *
     * @return the distance in data units, 0 at the start
     */
    public double getYAxisSpacing() {
        return getYAxisSpacing(this);
    }

    /**
     * Sets the distance of grid lines on the y axis.
     *
     * @param spacing the distance in data units; not checked
     */
    public void setYSpacing(double spacing) {
        setYSpacing(this, spacing);
    }

    /**
     * Further grid positions on the x axis.
     *
     * @return the positions in data units, as they were set; none at the start
     */
    public double[] getExtraX() {
        return getExtraX(this);
    }

    /**
     * Sets further grid positions on the x axis.
     *
     * @param positions the positions in data units, which are copied
     * @throws NullPointerException if the array is null
     */
    public void setExtraX(double... positions) {
        setExtraX(this, Objects.requireNonNull(positions, "positions"));
    }

    /**
     * Further grid positions on the y axis.
     *
     * @return the positions in data units, as they were set; none at the start
     */
    public double[] getExtraY() {
        return getExtraY(this);
    }

    /**
     * Sets further grid positions on the y axis.
     *
     * @param positions the positions in data units, which are copied
     * @throws NullPointerException if the array is null
     */
    public void setExtraY(double... positions) {
        setExtraY(this, Objects.requireNonNull(positions, "positions"));
    }

    /**
     * Sets where legends of lines stand.
     *
     * @param position 0 to 3; anything else is 0, as at the start
     */
    public void setLegendPosition(int position) {
        setLegendPosition(this, position);
    }

    /**
     * How legends are laid out.
     *
     * @return 0 to 5, 1 at the start
     */
    public int getLegendLayoutStrategy() {
        return getLegendLayoutStrategy(this);
    }

    /**
     * Sets how legends are laid out.
     *
     * @param strategy 0 to 5; anything else is reported in the log and becomes 0
     */
    public void setLegendLayoutStrategy(int strategy) {
        setLegendLayoutStrategy(this, strategy);
    }

    /**
     * Sets the title of the x axis.
     *
     * @param text plain text; an empty one for no title
     * @throws NullPointerException if the text is null
     */
    public void setXAxisTitle(String text) {
        setXAxisTitle(this, TextFormat.PLAIN.number(), Objects.requireNonNull(text, "text"));
    }

    /**
     * Sets the title of the y axis.
     *
     * @param text plain text; an empty one for no title
     * @throws NullPointerException if the text is null
     */
    public void setYAxisTitle(String text) {
        setYAxisTitle(this, TextFormat.PLAIN.number(), Objects.requireNonNull(text, "text"));
    }

    /**
     * Names the axis of symmetry. It is titled with the name and "=0".
     *
     * @param text the name as plain text, such as "r"; an empty one for no title
     * @throws NullPointerException if the text is null
     */
    public void setSymmetryAxis(String text) {
        setSymmetryAxis(this, TextFormat.PLAIN.number(), Objects.requireNonNull(text, "text"));
    }

    @Override
    protected void cleanup() {
        cleanupNative(this);
    }

    private static native void connectNative(AxisSetup peer, Canvas3dSettings owner);

    private static native void cleanupNative(AxisSetup peer);

    private static native void setAxisType(AxisSetup peer, int type);

    private static native boolean isPolar(AxisSetup peer);

    private static native boolean isGraph(AxisSetup peer);

    private static native void setXAxisLog(AxisSetup peer, boolean logScale);

    private static native void setYAxisLog(AxisSetup peer, boolean logScale);

    private static native boolean getXAxisLog(AxisSetup peer);

    private static native boolean getYAxisLog(AxisSetup peer);

    private static native void setAutoSpacing(AxisSetup peer, boolean autoSpacing);

    private static native void setXSpacing(AxisSetup peer, double spacing);

    private static native void setYSpacing(AxisSetup peer, double spacing);

    private static native double getXAxisSpacing(AxisSetup peer);

    private static native double getYAxisSpacing(AxisSetup peer);

    private static native void setExtraX(AxisSetup peer, double[] positions);

    private static native void setExtraY(AxisSetup peer, double[] positions);

    private static native double[] getExtraX(AxisSetup peer);

    private static native double[] getExtraY(AxisSetup peer);

    private static native void setLegendPosition(AxisSetup peer, int position);

    private static native void setLegendLayoutStrategy(AxisSetup peer, int strategy);

    private static native int getLegendLayoutStrategy(AxisSetup peer);

    private static native void setXAxisTitle(AxisSetup peer, int format, String text);

    private static native void setYAxisTitle(AxisSetup peer, int format, String text);

    private static native void setSymmetryAxis(AxisSetup peer, int format, String text);
}
