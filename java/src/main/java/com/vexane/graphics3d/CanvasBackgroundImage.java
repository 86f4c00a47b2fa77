package com.vexane.graphics3d;

import com.vexane.base.NativePeer;
import java.util.Objects;

/**
 * A picture for the {@linkplain Canvas3dSettings#setBackgroundImage background} of views, stored as a chain of images
 * of decreasing size, from which a renderer takes the one that fits. Views that show the picture keep it when the peer
 * is closed.
 */
public final class CanvasBackgroundImage extends NativePeer {
    /** Makes a background image without a picture. */
    public CanvasBackgroundImage() {
        createNative(this);
    }

    /**
     * Sets the picture, in time and memory linear in its size. The pixels are copied.
     *
     * @param pixels the pixels 0xAARRGGBB, row by row from the upper left corner
     * @param width the number of pixels in a row
     * @param height the number of rows
     * @param scale a size factor for the renderer
     * @throws NullPointerException if the array is null
     * @throws IllegalArgumentException if width or height is negative, or the array does not have width times height
     *     pixels; the current picture then stays
     */
    public void setImage(int[] pixels, int width, int height, float scale) {
        Objects.requireNonNull(pixels, "pixels");
        if (setImage(this, pixels, width, height, scale) != 0) {
            throw new IllegalArgumentException(
                    "There are " + pixels.length + " pixels for a picture of " + width + " by " + height + ".");
        }
    }

    /** Removes the picture, also from the views that show it. */
    public void resetImage() {
        resetImage(this);
    }

    @Override
    protected void cleanup() {
        cleanupNative(this);
    }

    private static native void createNative(CanvasBackgroundImage peer);

    private static native void cleanupNative(CanvasBackgroundImage peer);

    private static native int setImage(CanvasBackgroundImage peer, int[] pixels, int width, int height, float scale);

    private static native int resetImage(CanvasBackgroundImage peer);
}
