package com.vexane.graphics3d;

import java.util.Objects;

/**
 * Lines in a view with x and y axes, one for each group of the record.
 *
 * <p>x is the first coordinate of a point, y its height data. The points of a group without elements form a line in
 * their order; elements with two corners are edges in any order, which the fill joins to lines and closed rings. Points
 * that are not finite are omitted, and on a logarithmic axis what is not positive.
 *
 * <p>Settings of lines (colours, symbols, styles, numbers of markers, descriptions) apply to the lines of the last fill:
 * make them after the fill, as a fill starts with new lines. Settings of the plot (legend, unit circle, line width,
 * interpolation of markers, whether colours cycle) stay. A fill makes the {@linkplain #setColor colour} black.
 */
public final class SceneGraphPlotGraph extends SceneGraphPlot {
    /**
     * Makes an empty plot.
     *
     * @param id the id of the plot in its group
     */
    public SceneGraphPlotGraph(int id) {
        createNative(this, id);
    }

    /**
     * Sets whether the markers are spread along each line.
     *
     * @param interpolate true, as initially, for as many markers as {@link #setNMarkers} sets, at equal distances; false for
     *     a marker at each point
     */
    public void setMarkersInterpolation(boolean interpolate) {
        setMarkersInterpolation(this, interpolate);
    }

    /**
     * Sets how many markers each line has, if they are {@linkplain #setMarkersInterpolation interpolated}.
     *
     * @param count the number of markers, initially 0
     */
    public void setNMarkers(int count) {
        setNMarkers(this, count);
    }

    /**
     * Sets whether the circle of radius 1 about the origin is drawn.
     *
     * @param show true to draw it, initially false
     */
    public void setShowUnitCircle(boolean show) {
        setShowUnitCircle(this, show);
    }

    /**
     * Sets whether the lines are in the legend.
     *
     * @param show true to list them, initially false
     */
    public void setShowLegends(boolean show) {
        setShowLegends(this, show);
    }

    /**
     * Sets the text of a line in the legend. An index without a line is ignored.
     *
     * @param index the index of the line, from 0
     * @param text plain text
     * @throws NullPointerException if the text is null
     */
    public void setLegendDescription(int index, String text) {
        setLegendDescription(this, index, Objects.requireNonNull(text, "text"));
    }

    /**
     * Sets the colours of the lines. Number -1 is white, 0 to 6 are blue, green, red, cyan, magenta, yellow and black, and
     * all other numbers are black.
     *
     * @param cycle true for a colour of its own for each line: numbers from {@code first} up, with 0 after 6; false to
     *     draw all lines in the {@linkplain #setColor colour} of the plot
     * @param first the number of the colour of the first line
     * @return the number of the next colour, for the first line of another plot
     */
    public int setCycleColor(boolean cycle, int first) {
        return setCycleColor(this, cycle, first);
    }

    /**
     * Sets the symbols of the lines.
     *
     * @param cycle true for symbols in turn, with {@link RenderSymbol#CIRCLE} after the last one; false for the same symbol
     *     on all lines
     * @param first the symbol of the first line
     * @throws NullPointerException if the symbol is null
     */
    public void setMarkerType(boolean cycle, RenderSymbol first) {
        setMarkerType(this, cycle, Objects.requireNonNull(first, "first").number());
    }

    /**
     * Sets the styles of the lines.
     *
     * @param cycle true for styles in turn, with {@link LineStyle#SOLID} after the last one; false for the same style on all
     *     lines
     * @param first the style of the first line
     * @throws NullPointerException if the style is null
     */
    public void setLineStyle(boolean cycle, LineStyle first) {
        setLineStyle(this, cycle, Objects.requireNonNull(first, "first").number());
    }

    /**
     * Sets the width of all lines.
     *
     * @param width the width in pixels of the screen, initially 1; not checked
     */
    public void setLineWidth(int width) {
        setLineWidth(this, width);
    }

    private static native void setMarkersInterpolation(SceneGraphPlotGraph peer, boolean interpolate);

    private static native void setShowUnitCircle(SceneGraphPlotGraph peer, boolean show);

    private static native void setShowLegends(SceneGraphPlotGraph peer, boolean show);

    private static native void setLegendDescription(SceneGraphPlotGraph peer, int index, String text);

    private static native void setNMarkers(SceneGraphPlotGraph peer, int count);

    private static native int setCycleColor(SceneGraphPlotGraph peer, boolean cycle, int first);

    private static native void setMarkerType(SceneGraphPlotGraph peer, boolean cycle, int first);

    private static native void setLineStyle(SceneGraphPlotGraph peer, boolean cycle, int first);

    private static native void setLineWidth(SceneGraphPlotGraph peer, int width);

    private static native void createNative(SceneGraphPlotGraph peer, int id);
}
