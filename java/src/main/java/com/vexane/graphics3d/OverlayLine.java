package com.vexane.graphics3d;

/** A straight line between its two points. */
public final class OverlayLine extends OverlayTwoPointsObject {
    /** Makes a line whose points are both at the origin. */
    public OverlayLine() {
        createNative(this);
    }

    @Override
    protected void cleanup() {
        cleanupNative(this);
    }

    private static native void createNative(OverlayLine peer);

    private static native void cleanupNative(OverlayLine peer);
}
