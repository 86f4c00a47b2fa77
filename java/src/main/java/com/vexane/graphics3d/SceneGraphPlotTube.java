package com.vexane.graphics3d;

/**
 * A plot of lines whose thickness and colour follow data.
 *
 * <p>{@link #resetPlotData} has no effect: tubes stay until the next fill.
 */
public abstract class SceneGraphPlotTube extends SceneGraphPlot {
    /** For the classes of this package. */
    SceneGraphPlotTube() {}

    /**
     * Sets the factor by which all radii are multiplied, and rebuilds the tubes; no record is needed.
     *
     * @param factor the factor, initially 1; tubes in space have no thickness if it is negative
     * @throws com.vexane.base.NativeException if memory runs out; the plot then draws nothing and has the earlier factor
     */
    public final void setRadiusScaleFactor(float factor) {
        setRadiusScaleFactor(this, factor);
    }

    private static native void setRadiusScaleFactor(SceneGraphPlotTube peer, float factor);
}
