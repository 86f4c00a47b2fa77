package com.vexane.graphics3d;

import java.util.Objects;

/**
 * Points and lines that a program shows while its user works, such as the line from a start to the pointer.
 *
 * <p>They come from three sources, each of which replaces its own only: {@link #setPoints}, {@link #setLinePoints}, and
 * the elements of all groups of a record, whose first two corners are the ends of a line in space.
 *
 * <p>The plot has no box of its own, so views are fitted to what else the scene shows. A point or end of a line takes
 * about 150 bytes of native memory.
 */
public final class SceneGraphPlotInteractive extends SceneGraphPlot {
    /**
     * Makes an empty plot.
     *
     * @param id the id of the plot in its group
     */
    public SceneGraphPlotInteractive(int id) {
        createNative(this, id);
    }

    /**
     * Sets how much of each line is solid; the rest is dashed. It applies to the next {@link #setLinePoints}.
     *
     * @param fraction the solid part, clamped to 0 to 1; initially 1
     */
    public void setSolidFraction(double fraction) {
        setSolidFraction(this, fraction);
    }

    /**
     * Replaces the points.
     *
     * @param points arrays of x, y and z; there are as many points as values of x
     * @throws IllegalArgumentException if there are fewer than three arrays, or y or z has fewer values than x
     * @throws NullPointerException if an array is null
     */
    public void setPoints(double[][] points) {
        setPoints(this, requireCoordinates(points));
    }

    /**
     * Replaces the lines that are solid from their start and dashed for the rest. Each goes from one point to the next,
     * so two points make one line; a last single point is ignored.
     *
     * @param points arrays of x, y and z
     * @throws IllegalArgumentException if there are fewer than three arrays, or y or z has fewer values than x
     * @throws NullPointerException if an array is null
     */
    public void setLinePoints(double[][] points) {
        setLinePoints(this, requireCoordinates(points));
    }

    /** Drops all points and lines. */
    public void clear() {
        clear(this);
    }

    private static double[][] requireCoordinates(double[][] points) {
        if (points.length < 3) {
            throw new IllegalArgumentException("points have " + points.length + " coordinate arrays, not 3");
        }
        for (int axis = 0; axis < points.length; ++axis) {
            double[] values = Objects.requireNonNull(points[axis], "points[" + axis + "]");
            if (axis < 3 && values.length < points[0].length) {
                throw new IllegalArgumentException("points[" + axis + "] has " + values.length + " values for "
                        + points[0].length + " points");
            }
        }
        return points;
    }

    private static native void setSolidFraction(SceneGraphPlotInteractive peer, double fraction);

    private static native void setLinePoints(SceneGraphPlotInteractive peer, double[][] points);

    private static native void setPoints(SceneGraphPlotInteractive peer, double[][] points);

    private static native void clear(SceneGraphPlotInteractive peer);

    private static native void createNative(SceneGraphPlotInteractive peer, int id);
}
