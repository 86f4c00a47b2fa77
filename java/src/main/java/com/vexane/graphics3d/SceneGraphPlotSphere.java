package com.vexane.graphics3d;

/**
 * A cloud of points, each drawn as a sphere or disc with a radius and a colour of its own.
 *
 * <p>A fill reads the first group of the record: points and, if present, colour data and radius data. Without colour
 * data all are in the middle of the colour table, without radius data all radii are 1; a negative radius counts as 0.
 * Points whose coordinates are not finite are left out. The box of the plot is that of the centres.
 *
 * <p>{@link #resetPlotData} does not free the spheres; a fill replaces them.
 */
public abstract class SceneGraphPlotSphere extends SceneGraphPlot {
    /** For the classes of this package. */
    SceneGraphPlotSphere() {}

    /**
     * Sets the factor by which all radii are multiplied, which is 1 at first. The spheres are not built again.
     *
     * @param factor the factor
     */
    public final void setRadiusScaleFactor(float factor) {
        setRadiusScaleFactor(this, factor);
    }

    private static native void setRadiusScaleFactor(SceneGraphPlotSphere peer, float factor);
}
