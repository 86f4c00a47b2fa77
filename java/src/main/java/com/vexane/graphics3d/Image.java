package com.vexane.graphics3d;

import com.vexane.base.NativePeer;

/**
 * A raster image that native code fills: a renderer takes the peer and gives it size and pixels. The pixels do not
 * come to Java through this class.
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
