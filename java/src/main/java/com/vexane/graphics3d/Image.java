package com.vexane.graphics3d;

import com.vexane.base.NativePeer;

/**
 * A raster image that a renderer fills: it receives the peer and sets its size and pixels. The pixels cannot be read
 * through this class.
 */
public final class Image extends NativePeer {
    /** Makes an image of 0 by 0 pixels. */
    public Image() {
        createNative(this);
    }

    @Override
    protected void cleanup() {
        cleanupNative(this);
    }

    private static native void createNative(Image peer);

    private static native void cleanupNative(Image peer);
}
