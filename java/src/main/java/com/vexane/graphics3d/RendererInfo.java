package com.vexane.graphics3d;

import com.vexane.base.NativeException;
import com.vexane.base.NativePeer;
import java.util.List;
import java.util.Objects;

/**
 * The capabilities of the renderer of this process, and which of its requirements are not met.
 *
 * <p>A renderer has a subclass of its own and connects the peer to its native object; until then the peer is closed.
 */
public class RendererInfo extends NativePeer {
    /** For the renderer's subclass, which has to connect the peer. */
    protected RendererInfo() {}

    /** {@return how many requirements of the renderer are not met; 0 if it can run} */
    public int getNumberOfMissingRequirements() {
        return getNumberOfMissingRequirements(this);
    }

    /**
     * {@return a requirement of the renderer that is not met, in words}
     *
     * @param index 0 to one less than {@link #getNumberOfMissingRequirements()}
     * @throws IndexOutOfBoundsException if there is no such requirement
     */
    public String getMissingRequirement(int index) {
        return getMissingRequirement(this, Objects.checkIndex(index, getNumberOfMissingRequirements()));
    }

    /** {@return what the renderer calls itself; may be empty} */
    public String getRendererType() {
        return getRendererType(this);
    }

    /** {@return the number of monitors that the renderer knows} */
    public int getNumberOfMonitors() {
        return getNumberOfMonitors(this);
    }

    /** {@return whether pictures are drawn out of sight and shown when they are complete} */
    public boolean hasDoubleBuffering() {
        return hasDoubleBuffering(this);
    }

    /**
     * {@return the number of multisample settings that the renderer offers: at most 10, and 0 if it cannot multisample}
     */
    public int getNumberOfMultisampleSettings() {
        return getNumberOfMultisampleSettings(this);
    }

    /**
     * {@return the number of samples per pixel of a multisample setting}
     *
     * @param index 0 to one less than {@link #getNumberOfMultisampleSettings()}; setting 0 is the one that antialiasing
     *     uses
     * @throws IndexOutOfBoundsException if there is no such setting
     */
    public int getMultisampleSetting(int index) {
        return getMultisampleSetting(this, Objects.checkIndex(index, getNumberOfMultisampleSettings()));
    }

    /** {@return the number of lights that can be on at once} */
    public int getNumberOfLights() {
        return getNumberOfLights(this);
    }

    /** {@return the largest width and height of a texture in texels} */
    public int getMaxTextureSize() {
        return getMaxTextureSize(this);
    }

    /** {@return the largest number of vertices in one array} */
    public int getMaxVertexArraySize() {
        return getMaxVertexArraySize(this);
    }

    /** {@return the largest number of indices in one array} */
    public int getMaxIndexArraySize() {
        return getMaxIndexArraySize(this);
    }

    @Override
    protected final void cleanup() {
        cleanupNative(this);
    }

    /**
     * The capabilities of the video card of one monitor. It stays valid after the peer of the renderer's record is
     * closed.
     */
    public static final class MonitorInfo extends NativePeer {
        private MonitorInfo() {}

        /**
         * Makes a peer of a monitor's record.
         *
         * @param owner the renderer's record
         * @param monitor 0 to one less than {@link RendererInfo#getNumberOfMonitors()}
         * @return the peer
         * @throws NullPointerException if the owner is null
         * @throws IllegalStateException if the owner is closed
         * @throws IndexOutOfBoundsException if there is no such monitor
         * @throws NativeException if the renderer has no record of this monitor to which a peer can refer
         */
        public static MonitorInfo connect(RendererInfo owner, int monitor) {
            Objects.checkIndex(monitor, requireOpen(owner, "owner").getNumberOfMonitors());
            MonitorInfo info = new MonitorInfo();
            connectNative(info, owner, monitor);
            return info;
        }

        /** {@return the name of the monitor in the operating system; may be empty} */
        public String getDeviceID() {
            return getDeviceID(this);
        }

        /** {@return the maker of the video card or of its driver; may be empty} */
        public String getRendererVendor() {
            return getRendererVendor(this);
        }

        /** {@return the name of the video card; may be empty} */
        public String getRendererName() {
            return getRendererName(this);
        }

        /** {@return the version of the driver; may be empty} */
        public String getRendererVersion() {
            return getRendererVersion(this);
        }

        /** {@return the names of the extensions of the graphics interface in ascending order; may be none} */
        public List<String> getOpenGlExtensions() {
            String joined = getOpenGlExtensions(this);
            return joined == null ? List.of() : List.of(joined.split(",", -1));
        }

        /** {@return the number of lights that can be on at once} */
        public int getMaxNumberOfLights() {
            return getMaxNumberOfLights(this);
        }

        /** {@return the largest width and height of a texture in texels} */
        public int getMaxTextureSize() {
            return getMaxTextureSize(this);
        }

        /** {@return the largest number of vertices in one array} */
        public int getMaxVertexArraySize() {
            return getMaxVertexArraySize(this);
        }

        /** {@return the largest number of indices in one array} */
        public int getMaxIndexArraySize() {
            return getMaxIndexArraySize(this);
        }

        @Override
        protected void cleanup() {
            cleanupNative(this);
        }

        private static native void connectNative(MonitorInfo peer, RendererInfo owner, int monitor);

        private static native void cleanupNative(MonitorInfo peer);

        private static native String getDeviceID(MonitorInfo peer);

        private static native String getRendererVendor(MonitorInfo peer);

        private static native String getRendererName(MonitorInfo peer);

        private static native String getRendererVersion(MonitorInfo peer);

        private static native String getOpenGlExtensions(MonitorInfo peer);

        private static native int getMaxNumberOfLights(MonitorInfo peer);

        private static native int getMaxTextureSize(MonitorInfo peer);

        private static native int getMaxVertexArraySize(MonitorInfo peer);

        private static native int getMaxIndexArraySize(MonitorInfo peer);
    }

    private static native void cleanupNative(RendererInfo peer);

    private static native int getNumberOfMissingRequirements(RendererInfo peer);

    private static native String getMissingRequirement(RendererInfo peer, int index);

    private static native String getRendererType(RendererInfo peer);

    private static native int getNumberOfMonitors(RendererInfo peer);

    private static native boolean hasDoubleBuffering(RendererInfo peer);

    private static native int getNumberOfMultisampleSettings(RendererInfo peer);

    private static native int getMultisampleSetting(RendererInfo peer, int index);

    private static native int getNumberOfLights(RendererInfo peer);

    private static native int getMaxTextureSize(RendererInfo peer);

    private static native int getMaxVertexArraySize(RendererInfo peer);

    private static native int getMaxIndexArraySize(RendererInfo peer);
}
