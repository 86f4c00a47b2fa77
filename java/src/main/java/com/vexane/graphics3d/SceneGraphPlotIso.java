package com.vexane.graphics3d;

import java.util.Objects;

/**
 * A plot of the level sets of a field. Each group of a record is one level, which can be hidden without a new fill.
 *
 * <p>Levels are coloured by the record's colour data or, without these, by their values. The legend has a stripe for
 * each of the {@linkplain #setLegendLevels legend levels}; without them it is a continuous scale.
 */
public abstract class SceneGraphPlotIso extends SceneGraphPlot {
    /** For the classes of this package, one per kind of plot. */
    SceneGraphPlotIso() {}

    /** {@return the number of levels, which is that of the groups of the last record} */
    public final int getNumberOfSurfaces() {
        return getNumberOfSurfaces(this);
    }

    /**
     * {@return whether a level is drawn}
     *
     * @param index the index of the level, from 0
     * @throws IndexOutOfBoundsException if there is no such level
     */
    public final boolean isSurfaceShown(int index) {
        return isSurfaceShown(this, Objects.checkIndex(index, getNumberOfSurfaces()));
    }

    /**
     * Shows or hides a level with its label. A fill shows all levels again.
     *
     * @param index the index of the level, from 0
     * @param shown true to draw the level
     * @throws IndexOutOfBoundsException if there is no such level
     */
    public final void setSurfaceShown(int index, boolean shown) {
        setSurfaceShown(this, Objects.checkIndex(index, getNumberOfSurfaces()), shown);
    }

    /**
     * Shows or hides all levels.
     *
     * @param shown true to draw all levels
     */
    public final void setSurfaceShownForAll(boolean shown) {
        setSurfaceShownForAll(this, shown);
    }

    /**
     * Sets the texts that label the levels of contour lines. They are kept by fills.
     *
     * @param labels one text per level; further levels have no label
     * @throws NullPointerException if the array or a text is null
     */
    public final void setLabels(String... labels) {
        for (String label : labels) {
            Objects.requireNonNull(label, "label");
        }
        setLabels(this, labels);
    }

    /**
     * Shows or hides the labels.
     *
     * @param show true to show them, the initial state
     */
    public final void setShowLabels(boolean show) {
        setShowLabels(this, show);
    }

    /**
     * Sets the colour of the labels, initially black.
     *
     * @param color {@code 0xRRGGBB}
     */
    public final void setLabelColor(int color) {
        setLabelColor(this, color);
    }

    /**
     * Sets the values for which the legend has stripes. If the record of the last fill had no colour data, the levels
     * are also coloured again, by their positions between the smallest and the largest of these values; this costs one
     * pass over the vertices, but no fill. A later fill colours levels by the range of its own record.
     *
     * @param levels the values, from the lowest stripe upwards; none for a continuous legend
     * @throws NullPointerException if the array is null
     */
    public final void setLegendLevels(double... levels) {
        setLegendLevels(this, Objects.requireNonNull(levels, "levels"));
    }

    private static native void setLabelColor(SceneGraphPlotIso peer, int color);

    private static native void setShowLabels(SceneGraphPlotIso peer, boolean show);

    private static native void setLabels(SceneGraphPlotIso peer, String[] labels);

    private static native void setLegendLevels(SceneGraphPlotIso peer, double[] levels);

    private static native void setSurfaceShownForAll(SceneGraphPlotIso peer, boolean shown);

    private static native boolean isSurfaceShown(SceneGraphPlotIso peer, int index);

    private static native void setSurfaceShown(SceneGraphPlotIso peer, int index, boolean shown);

    private static native int getNumberOfSurfaces(SceneGraphPlotIso peer);
}
