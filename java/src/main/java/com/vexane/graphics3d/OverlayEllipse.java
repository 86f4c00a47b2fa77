package com.vexane.graphics3d;

/**
 * An ellipse with axes in x and y. Its first point is the centre; the distances of the second one from it in x and in y
 * are the radii.
 */
public final class OverlayEllipse extends OverlayTwoPointsObject {
    /** Makes an ellipse whose points are both at the origin. */
    public OverlayEllipse() {
        createNative(this);
    }

    @Override
    protected void cleanup() {
        cleanupNative(this);
    }

    private static native void createNative(OverlayEllipse peer);

    private static native void cleanupNative(OverlayEllipse peer);
}
