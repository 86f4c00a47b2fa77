package com.vexane.graphics3d;

import com.vexane.base.NativeEnum;
import com.vexane.base.NativeException;
import com.vexane.base.NativePeer;

/**
 * The properties of a drawing context of the renderer: the sizes of its buffers, and how it smooths edges. Every call
 * reads the current value.
 */
public final class ContextData extends NativePeer {
    /** How a renderer smooths edges. */
    public enum AntialiasingType implements NativeEnum {
        /** Not at all. */
        NONE(0),
        /** By several samples per pixel. */
        FULL_SCREEN(1),
        /** By adding up several pictures. */
        ACCUMULATION_BUFFER(2);

        private final int number;

        AntialiasingType(int number) {
            this.number = number;
        }

        @Override
        public int number() {
            return number;
        }
    }

    private ContextData() {}

    /**
     * Makes a peer of a view's context data.
     *
     * @param renderer the peer of the renderer's view
     * @return the peer
     * @throws NullPointerException if the view's peer is null
     * @throws IllegalStateException if the view's peer is closed
     * @throws NativeException if the peer is not a view of a renderer, or the view has no context yet
     */
    public static ContextData connect(NativePeer renderer) {
        ContextData data = new ContextData();
        connectNative(data, requireOpen(renderer, "renderer"));
        return data;
    }

    /** {@return the number of bits per pixel for colour} */
    public int getColorBits() {
        return getColorBits(this);
    }

    /** {@return the number of bits per pixel for red} */
    public int getRedBits() {
        return getRedBits(this);
    }

    /** {@return the number of bits per pixel for green} */
    public int getGreenBits() {
        return getGreenBits(this);
    }

    /** {@return the number of bits per pixel for blue} */
    public int getBlueBits() {
        return getBlueBits(this);
    }

    /** {@return the number of bits per pixel for opacity} */
    public int getAlphaBits() {
        return getAlphaBits(this);
    }

    /** {@return the number of bits per pixel for depth} */
    public int getDepthBits() {
        return getDepthBits(this);
    }

    /** {@return the number of bits per pixel for stencils} */
    public int getStencilBits() {
        return getStencilBits(this);
    }

    /** {@return the number of bits per pixel for red in the accumulation buffer} */
    public int getAccumBufferRedBits() {
        return getAccumBufferRedBits(this);
    }

    /** {@return the number of bits per pixel for green in the accumulation buffer} */
    public int getAccumBufferGreenBits() {
        return getAccumBufferGreenBits(this);
    }

    /** {@return the number of bits per pixel for blue in the accumulation buffer} */
    public int getAccumBufferBlueBits() {
        return getAccumBufferBlueBits(this);
    }

    /** {@return the number of bits per pixel for opacity in the accumulation buffer} */
    public int getAccumBufferAlphaBits() {
        return getAccumBufferAlphaBits(this);
    }

    /** {@return the number of samples per pixel, 0 without multisampling} */
    public int getMultipleSamples() {
        return getMultipleSamples(this);
    }

    /** {@return whether pictures are drawn out of sight and shown when they are complete} */
    public boolean isDoubleBuffered() {
        return isDoubleBuffered(this);
    }

    /** {@return whether a graphics processor draws; false if the main processor does} */
    public boolean isHardwareAccelerated() {
        return isHardwareAccelerated(this);
    }

    /** {@return how edges are smoothed; {@link AntialiasingType#NONE} also for a way without a constant here} */
    public AntialiasingType getAntialiasingType() {
        return NativeEnum.of(AntialiasingType.class, getAntialiasingType(this));
    }

    @Override
    protected void cleanup() {
        cleanupNative(this);
    }

    private static native void connectNative(ContextData peer, Object renderer);

    private static native void cleanupNative(ContextData peer);

    private static native int getColorBits(ContextData peer);

    private static native int getRedBits(ContextData peer);

    private static native int getGreenBits(ContextData peer);

    private static native int getBlueBits(ContextData peer);

    private static native int getAlphaBits(ContextData peer);

    private static native int getDepthBits(ContextData peer);

    private static native int getStencilBits(ContextData peer);

    private static native int getAccumBufferRedBits(ContextData peer);

    private static native int getAccumBufferGreenBits(ContextData peer);

    private static native int getAccumBufferBlueBits(ContextData peer);

    private static native int getAccumBufferAlphaBits(ContextData peer);

    private static native int getMultipleSamples(ContextData peer);

    private static native boolean isDoubleBuffered(ContextData peer);

    private static native boolean isHardwareAccelerated(ContextData peer);

    private static native int getAntialiasingType(ContextData peer);
}
