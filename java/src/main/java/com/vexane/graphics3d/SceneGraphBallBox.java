package com.vexane.graphics3d;

import java.util.Objects;

/**
 * A translucent ball, a box, or both, such as those with which a program selects what is inside.
 *
 * <p>It has no box of its own in the scene tree and cannot be picked.
 */
public final class SceneGraphBallBox extends SceneGraphObject {
    private static final int NUM_AXES = 3;

    /** Makes an object that shows nothing and belongs to no scene. */
    public SceneGraphBallBox() {
        createNative(this);
    }

    /**
     * Sets the box. A ball stays.
     *
     * @param min x, y and z of the corner with the lowest coordinates
     * @param max x, y and z of the corner with the highest coordinates
     * @throws IllegalArgumentException if an array does not have three values
     * @throws NullPointerException if an array is null
     */
    public void setBox(double[] min, double[] max) {
        setBox(this, requireCoordinates(min, "min"), requireCoordinates(max, "max"));
    }

    /**
     * Sets the ball. A box stays.
     *
     * @param center x, y and z of the centre
     * @param radius the radius; a ball whose radius is not above 0 is not drawn
     * @throws IllegalArgumentException if the centre does not have three values
     * @throws NullPointerException if the centre is null
     */
    public void setBall(double[] center, double radius) {
        setBall(this, requireCoordinates(center, "center"), radius);
    }

    /** Drops ball and box. */
    public void clear() {
        clear(this);
    }

    private static double[] requireCoordinates(double[] values, String name) {
        if (Objects.requireNonNull(values, name).length != NUM_AXES) {
            throw new IllegalArgumentException(name + " has " + values.length + " coordinates, not " + NUM_AXES);
        }
        return values;
    }

    private static native void createNative(SceneGraphBallBox peer);

    private static native void setBox(SceneGraphBallBox peer, double[] min, double[] max);

    private static native void setBall(SceneGraphBallBox peer, double[] center, double radius);

    private static native void clear(SceneGraphBallBox peer);
}
