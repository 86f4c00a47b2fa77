package com.vexane.graphics3d;

/** A rectangle; its two points are opposite corners. */
public final class OverlayRectangle extends OverlayTwoPointsObject {
    /** Makes a rectangle whose points are both at the origin. */
    public OverlayRectangle() {
        createNative(this);
    }

    @Override
    protected void cleanup() {
        cleanupNative(this);
    }

    private static native void createNative(OverlayRectangle peer);

    private static native void cleanupNative(OverlayRectangle peer);
}
