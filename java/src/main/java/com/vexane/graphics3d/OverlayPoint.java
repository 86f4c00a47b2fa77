package com.vexane.graphics3d;

/** A point, drawn as a dot of the {@linkplain #setLineSize line size}. */
public final class OverlayPoint extends OverlayObject {
    /** Makes a point at the origin. */
    public OverlayPoint() {
        createNative(this);
    }

    /**
     * Moves it.
     *
     * @param x the position in x
     * @param y the position in y
     */
    public void setLocation(double x, double y) {
        doSetLocation(this, x, y);
    }

    @Override
    protected void cleanup() {
        cleanupNative(this);
    }

    private static native void createNative(OverlayPoint peer);

    private static native void cleanupNative(OverlayPoint peer);

    private static native void doSetLocation(OverlayPoint peer, double x, double y);
}
