package com.vexane.graphics3d;

/** Has the native that releases {@link OverlayRenderEdit2d}, whose symbol is spelled with a capital D. */
final class OverlayRenderEdit2D {
    private OverlayRenderEdit2D() {}

    static native void cleanupNative(OverlayRenderEdit2d peer);
}
