package com.vexane.graphics3d;

/**
 * The edges of elements in the plane as lines, flat or raised by height data.
 *
 * <p>A fill reads the first group of the record: points, elements of up to four corners and, if present, colour and
 * height data. A line element has one edge, a triangle three and a tetrahedron six; an edge of several elements is drawn
 * for each. Heights are scaled so that their range, extended to include 0, is the mean width of the plot. A point takes
 * 20 bytes of native memory and an edge 8 (4 for up to 65535 points).
 */
public final class SceneGraphPlotEdge2d extends SceneGraphPlot {
    /**
     * Makes an empty plot.
     *
     * @param id the id of the plot in its group
     */
    public SceneGraphPlotEdge2d(int id) {
        createNative(this, id);
    }

    private static native void createNative(SceneGraphPlotEdge2d peer, int id);
}
