package com.vexane.interaction;

import com.vexane.base.NativeLibrary;
import com.vexane.base.NativePeer;
import com.vexane.graphics3d.OverlayTransformation;

/**
 * Moves and scales a transformation frame. A drag of a handle scales the frame about the opposite handle, along its own
 * axes however it is rotated; handles in the middle of a side scale in one direction. A drag inside the frame moves it.
 * A scale factor does not go below a hundredth. The handle under the pointer is marked.
 *
 * <p>The transformation of the frame changes with each movement; {@link #getTransformation()} returns it, for the program
 * to transform what the frame encloses. The frame must have been drawn before, so that its handles are known. All calls
 * take constant time.
 */
public final class FrameInteraction extends OverlayInteraction {
    private FrameInteraction() {}

    /**
     * Makes an interaction with a frame.
     *
     * @param renderer the peer of the renderer's view
     * @param frame the frame, which is in the overlay of the view
     * @param canvasHeight the number of rows of the picture, at least 1
     * @return the interaction
     * @throws NullPointerException if a peer is null
     * @throws IllegalStateException if a peer is closed
     * @throws IllegalArgumentException if the height is below 1
     * @throws com.vexane.base.NativeException if the renderer's peer is not a view of a renderer
     * @throws UnsatisfiedLinkError if the native library or one that it needs cannot be loaded
     */
    public static FrameInteraction connect(NativePeer renderer, OverlayTransformation frame, int canvasHeight) {
        requireOpen(renderer, "renderer");
        requireOpen(frame, "frame");
        requireHeight(canvasHeight);
        NativeLibrary.require(FrameInteraction.class, "vxinteraction");
        FrameInteraction interaction = new FrameInteraction();
        connectNative(interaction, renderer, frame, canvasHeight);
        return interaction;
    }

    /**
     * {@return the transformation of the frame: 16 numbers, column by column; the translation is at 12, 13 and 14}
     */
    public float[] getTransformation() {
        float[] out = new float[16];
        getTransformation(this, out);
        return out;
    }

    private static native void connectNative(
            FrameInteraction peer, NativePeer renderer, OverlayTransformation frame, int canvasHeight);

    private static native void getTransformation(FrameInteraction peer, float[] out);
}
