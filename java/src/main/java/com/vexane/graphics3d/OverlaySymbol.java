package com.vexane.graphics3d;

/** A symbol at a point: a triangle that points down to it. Its size does not depend on the view. */
public final class OverlaySymbol extends OverlayObject {
    /** Makes a symbol at the origin. */
    public OverlaySymbol() {
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

    private static native void createNative(OverlaySymbol peer);

    private static native void cleanupNative(OverlaySymbol peer);

    private static native void doSetLocation(OverlaySymbol peer, double x, double y);
}
