package com.vexane.graphics3d;

import com.vexane.base.NativeException;

/**
 * A plot of lines in space as flat bands, such as ribbons along the streamlines of a flow.
 *
 * <p>A fill reads the first group of the record: points, lines, colour data, half widths in the role of radii, the first
 * direction, in which the band extends, and the second direction, its normal. Consecutive lines that continue each other
 * are drawn as one band.
 */
public final class SceneGraphPlotRibbon3d extends SceneGraphPlot {
    /**
     * Makes an empty plot.
     *
     * @param id the id of the plot in its group
     */
    public SceneGraphPlotRibbon3d(int id) {
        createNative(this, id);
    }

    /**
     * Sets the factor by which all widths are multiplied, and rebuilds the ribbons; no record is needed.
     *
     * @param factor the factor, initially 1
     * @throws NativeException if memory runs out; the plot then draws nothing and has the earlier factor
     */
    public void setWidthScaleFactor(float factor) {
        setWidthScaleFactor(this, factor);
    }

    private static native void setWidthScaleFactor(SceneGraphPlotRibbon3d peer, float factor);

    private static native void createNative(SceneGraphPlotRibbon3d peer, int id);
}
