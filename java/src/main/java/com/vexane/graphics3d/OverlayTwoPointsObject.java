package com.vexane.graphics3d;

/** A shape that is given by two points, which are initially at the origin. */
public abstract sealed class OverlayTwoPointsObject extends OverlayObject
        permits OverlayEllipse, OverlayLine, OverlayRectangle {
    OverlayTwoPointsObject() {}

    /**
     * Moves the first point.
     *
     * @param x the position in x
     * @param y the position in y
     */
    public void setStart(double x, double y) {
        doSetStart(this, x, y);
    }

    /**
     * Moves the second point.
     *
     * @param x the position in x
     * @param y the position in y
     */
    public void setEnd(double x, double y) {
        doSetEnd(this, x, y);
    }

    private static native void doSetStart(OverlayTwoPointsObject peer, double x, double y);

    private static native void doSetEnd(OverlayTwoPointsObject peer, double x, double y);
}
