package com.vexane.graphics3d;

import com.vexane.base.NativeEnum;
import com.vexane.base.NativeException;
import com.vexane.base.NativePeer;
import java.util.Objects;

/**
 * A plot: one record of post-processing results with a colour scale, a legend and a title.
 *
 * <p>{@link #fillPlot} builds the buffers that a renderer draws; it costs one pass over the record. Every other method
 * sets a few numbers outside the buffers and costs no more than the call, except for a new colour table, which is
 * computed once per name.
 *
 * <p>A plot is drawn while it is in a {@link SceneGraphPlotGroup}. Values are those of the record; colours are
 * {@code 0xRRGGBB}.
 */
public abstract class SceneGraphPlot extends NativePeer {
    /** The kinds of plots, as far as they are distinguished. */
    public enum Kind implements NativeEnum {
        /** A {@link SceneGraphPlotSurface3d}. */
        SURFACE_3D(2),
        /** A {@link SceneGraphPlotArrow3d}. */
        ARROW_3D(3),
        /** A {@link SceneGraphPlotEdge3d}. */
        EDGE_3D(4),
        /** Iso surfaces. */
        ISO_SURFACE_3D(5),
        /** Slices. */
        SLICE_3D(6),
        /** A {@link SceneGraphPlotTube3d}. */
        TUBE_3D(7),
        /** A {@link SceneGraphPlotSurface2d}. */
        SURFACE_2D(8),
        /** A {@link SceneGraphPlotSphere3d}. */
        SPHERE_3D(10),
        /** Any other plot. */
        OTHER(-1);

        private final int number;

        Kind(int number) {
            this.number = number;
        }

        @Override
        public int number() {
            return number;
        }
    }

    private PlotGroupMembers.Member member = new PlotGroupMembers.Member();

    /** For the classes of this package, one per kind of plot. */
    SceneGraphPlot() {}

    /** Called when this peer has been connected to a plot in a group. */
    final void takeMember(SceneGraphPlotGroup group, int plotId) {
        member = group.members().memberOf(plotId);
    }

    final PlotGroupMembers.Member member() {
        return member;
    }

    /**
     * Fills the plot from a record. The legend limits follow the values of the record again and a value restriction is
     * removed; colours, symmetry, height scale, offset and title stay. The plot keeps no reference to the record.
     *
     * <p>The box becomes that of the record. Height scale and plane offset still apply to what is drawn, but not to
     * this box: set them to 1 and 0 before filling again, and set them again afterwards.
     *
     * <p>If native memory runs out during the fill, either nothing has changed, or the plot has lost its buffers, draws
     * nothing and already shows the value range and legend limits of the new record. It can be filled again.
     *
     * @param record the peer of a record of post-processing results
     * @throws NativeException if the peer is not a record, or if the record lacks something that this plot draws; the
     *     message names it, and the plot is unchanged; or if memory runs out
     * @throws NullPointerException if the record is null
     * @throws IllegalStateException if the record's peer is closed
     */
    public final void fillPlot(NativePeer record) {
        fillPlot(this, requireOpen(record, "record"));
    }

    /** Frees the buffers, so that nothing is drawn. Value range, legend and colours stay. */
    public final void resetPlotData() {
        resetPlotData(this);
    }

    /** {@return the id of the plot in its group, which was given when the plot was made} */
    public final int getId() {
        return getId(this);
    }

    /** {@return the kind of the plot, as far as kinds are distinguished} */
    public final Kind getKind() {
        return NativeEnum.of(Kind.class, getType(this));
    }

    /** {@return whether the plot is drawn, initially true} */
    public final boolean isActive() {
        return isActive(this);
    }

    /**
     * Switches the plot on or off. A plot that is switched off adds nothing to the box, the title and the legends of
     * its group.
     *
     * @param active true to draw the plot
     */
    public final void setActive(boolean active) {
        setActive(this, active);
    }

    /**
     * Sets the plot's part of the title of its group.
     *
     * @param format how the text is written
     * @param text the text; empty for no title
     * @throws NullPointerException if an argument is null
     */
    public final void setTitle(TextFormat format, String text) {
        setTitle(this, format.number(), Objects.requireNonNull(text, "text"));
    }

    /** {@return the smallest value of the last fill; 0 before the first fill or without colour and iso level data} */
    public final double getValueMin() {
        return getValueMin(this);
    }

    /** {@return the largest value of the last fill; 1 before the first fill or without colour and iso level data} */
    public final double getValueMax() {
        return getValueMax(this);
    }

    /**
     * Sets the values at the ends of the legend, and ends automatic limits. With a symmetric colour table the applied
     * limits are plus and minus the larger magnitude of the two.
     *
     * @param min the value at the lower end
     * @param max the value at the upper end
     */
    public final void setLegendLimits(double min, double max) {
        setLegendLimits(this, min, max);
    }

    /**
     * Lets the legend span all values of the fill. {@link #getLegendMin} and {@link #getLegendMax} report the
     * previous limits until the next fill or {@link #resetValueRestrictions}.
     */
    public final void setAutoLegendLimits() {
        setAutoLegendLimits(this);
    }

    /** {@return the value at the lower end of the legend, as currently applied} */
    public final double getLegendMin() {
        return getLegendMin(this);
    }

    /** {@return the value at the upper end of the legend, as currently applied} */
    public final double getLegendMax() {
        return getLegendMax(this);
    }

    /** {@return whether the legend of the plot is shown} */
    public final boolean isShowLegend() {
        return isShowLegend(this);
    }

    /**
     * Shows or hides the legend of the plot.
     *
     * @param show true to show it
     */
    public final void setShowLegend(boolean show) {
        setShowLegend(this, show);
    }

    /**
     * Hides what is outside a range of values. The range is clamped to the values of the fill; a limit that is not a
     * number hides nothing.
     *
     * @param min the smallest value shown
     * @param max the largest value shown
     */
    public final void setValueRestrictions(double min, double max) {
        setValueRestrictions(this, min, max);
    }

    /** Shows all values again. */
    public final void resetValueRestrictions() {
        resetValueRestrictions(this);
    }

    /**
     * {@return the smallest value shown: the lower end of the restriction or, without one, the smallest value of the
     * fill}
     */
    public final double getValueRestrictionMin() {
        return getValueRestrictionMin(this);
    }

    /**
     * {@return the largest value shown: the upper end of the restriction or, without one, the largest value of the
     * fill}
     */
    public final double getValueRestrictionMax() {
        return getValueRestrictionMax(this);
    }

    /**
     * Sets whether the limits of the legend are symmetric about 0. A change applies the limits requested last again,
     * which ends automatic limits.
     *
     * @param symmetric true for symmetric limits
     */
    public final void setSymmetricColorTable(boolean symmetric) {
        setSymmetricColorTable(this, symmetric);
    }

    /**
     * Sets whether the colour table is reversed.
     *
     * @param reverse true to reverse it
     */
    public final void setReverseColorTable(boolean reverse) {
        setReverseColorTable(this, reverse);
    }

    /** {@return the name of the colour table, or null for a plot of one uniform colour} */
    public final String getColorTable() {
        return getColorTable(this);
    }

    /**
     * Draws the plot with a colour table. Tables are known by name in the whole process: the first call with a name
     * makes the table from the rows, later ones find it and ignore theirs. So a name is bound to its first colours, and
     * to their bands or blending, until the process ends; use another name for other colours.
     *
     * @param name the name of the table
     * @param colors one row per colour: red, green and blue from 0 to 1, and optionally the relative width of the
     *     colour, which is 1 otherwise
     * @param continuous true if the colours of a new table blend into each other, false if they form bands
     * @return whether the plot uses the table now
     * @throws NativeException if the name is new and there is no row, a row has fewer than 3 values, or the widths are
     *     negative, not finite or all 0; no table is made then
     * @throws NullPointerException if an argument or a row is null
     */
    public final boolean setColorTable(String name, double[][] colors, boolean continuous) {
        Objects.requireNonNull(name, "name");
        for (double[] row : colors) {
            Objects.requireNonNull(row, "row of colors");
        }
        return setColorTable(this, name, colors, continuous);
    }

    /** {@return the uniform colour as {@code 0xRRGGBB}} */
    public final int getColor() {
        return getColor(this);
    }

    /**
     * Draws the plot in one uniform colour, without a colour table.
     *
     * @param color {@code 0xRRGGBB}; higher bits are ignored
     */
    public final void setColor(int color) {
        setColor(this, color);
    }

    /** {@return the specular exponent, 1 to 128} */
    public final float getShininess() {
        return getShininess(this);
    }

    /**
     * Sets the specular exponent: the higher, the smaller the highlights.
     *
     * @param shininess the exponent, clamped to 1 to 128
     */
    public final void setShininess(float shininess) {
        setShininess(this, shininess);
    }

    /**
     * Stretches the plot in z about its plane, and its box with it. A fill replaces the box, so set the scale after it.
     *
     * @param scale the factor; one that is not above 0 is ignored
     * @throws IllegalArgumentException if the factor is infinite
     */
    public final void setHeightScale(float scale) {
        if (scale == Float.POSITIVE_INFINITY) {
            throw new IllegalArgumentException("The height scale is infinite.");
        }
        setHeightScale(this, scale);
    }

    /**
     * Moves the plot along z, and its box with it. A fill replaces the box, so set the offset after it.
     *
     * @param offset the distance from its original position, in the units of the scene
     * @throws IllegalArgumentException if the offset is not finite
     */
    public final void setPlotPlaneOffset(float offset) {
        if (!Float.isFinite(offset)) {
            throw new IllegalArgumentException("The plane offset is not finite: " + offset);
        }
        setPlotPlaneOffset(this, offset);
    }

    @Override
    protected final void cleanup() {
        cleanupNative(this);
    }

    private static native void setPlotPlaneOffset(SceneGraphPlot peer, float offset);

    private static native void setHeightScale(SceneGraphPlot peer, float scale);

    private static native float getShininess(SceneGraphPlot peer);

    private static native void setShininess(SceneGraphPlot peer, float shininess);

    private static native double getValueRestrictionMin(SceneGraphPlot peer);

    private static native double getValueRestrictionMax(SceneGraphPlot peer);

    private static native void resetValueRestrictions(SceneGraphPlot peer);

    private static native void setValueRestrictions(SceneGraphPlot peer, double min, double max);

    private static native boolean isShowLegend(SceneGraphPlot peer);

    private static native void setShowLegend(SceneGraphPlot peer, boolean show);

    private static native void setSymmetricColorTable(SceneGraphPlot peer, boolean symmetric);

    private static native void setReverseColorTable(SceneGraphPlot peer, boolean reverse);

    private static native double getLegendMin(SceneGraphPlot peer);

    private static native double getLegendMax(SceneGraphPlot peer);

    private static native void setAutoLegendLimits(SceneGraphPlot peer);

    private static native void setLegendLimits(SceneGraphPlot peer, double min, double max);

    private static native double getValueMin(SceneGraphPlot peer);

    private static native double getValueMax(SceneGraphPlot peer);

    private static native int getColor(SceneGraphPlot peer);

    private static native void setColor(SceneGraphPlot peer, int color);

    private static native String getColorTable(SceneGraphPlot peer);

    private static native boolean setColorTable(SceneGraphPlot peer, String name, double[][] colors, boolean continuous);

    private static native void setTitle(SceneGraphPlot peer, int format, String text);

    private static native void resetPlotData(SceneGraphPlot peer);

    private static native void fillPlot(SceneGraphPlot peer, Object record);

    private static native boolean isActive(SceneGraphPlot peer);

    private static native void setActive(SceneGraphPlot peer, boolean active);

    private static native int getType(SceneGraphPlot peer);

    private static native int getId(SceneGraphPlot peer);

    private static native void cleanupNative(SceneGraphPlot peer);
}
