package com.vexane.graphics3d;

import com.vexane.base.NativeException;
import com.vexane.base.NativePeer;
import java.util.List;
import java.util.Objects;

/**
 * What the renderer of this process can do, and what it lacks to run at all.
 *
 * <p>A renderer brings its own subclass and gives the peer its native object; until then the peer counts as closed.
 */
public class RendererInfo extends NativePeer {
    /** For the renderer's subclass, which has to connect the peer. */
    protected RendererInfo() {}

    /**
     * How many things are missing for the renderer to run.
     *
     * @return 0 if it can run
     */
    public int getNumberOfMissingRequirements() {
        return getNumberOfMissingRequirements(this);
    }

    /**
     * What is missing for the renderer to run.
     *
     * @param index 0 to one less than {@link #getNumberOfMissingRequirements()}
     * @return the requirement in words
     * @throws IndexOutOfBoundsException if there is no such requirement
     */
    public String getMissingRequirement(int index) {
        return getMissingRequirement(this, Objects.checkIndex(index, getNumberOfMissingRequirements()));
    }

    /**
     * What the renderer calls itself.
     *
     * @return the name, perhaps empty
     */
    public String getRendererType() {
        return getRendererType(this);
    }

    /**
     * How many monitors the renderer knows.
     *
     * @return 0 or more
     */
    public int getNumberOfMonitors() {
        return getNumberOfMonitors(this);
    }

    /**
     * Whether pictures are drawn out of sight and shown when they are complete.
     *
     * @return true if so
     */
    public boolean hasDoubleBuffering() {
        return hasDoubleBuffering(this);
    }

    /**
     * How many multisample settings the renderer offers.
     *
     * @return 0 if it cannot multisample, at most 10
     */
    public int getNumberOfMultisampleSettings() {
        return getNumberOfMultisampleSettings(this);
    }

    /**
     * The number of samples a pixel of one multisample setting.
     *
     * @param index 0 to one less than {@link #getNumberOfMultisampleSettings()}; setting 0 is the one that
     *     antialiasing uses
     * @return the number of samples
     * @throws IndexOutOfBoundsException if there is no such setting
     */
    public int getMultisampleSetting(int index) {
        return getMultisampleSetting(this, Objects.checkIndex(index, getNumberOfMultisampleSettings()));
    }

    /**
     * How many lights can shine at once.
     *
     * @return 0 or more
     */
    public int getNumberOfLights() {
        return getNumberOfLights(this);
    }

    /**
     * The longest side of a texture.
     *
     * @return the length in texels
     */
    public int getMaxTextureSize() {
        return getMaxTextureSize(this);
    }

    /**
     * How many vertices one array may hold.
     *
     * @return the number of vertices
     */
    public int getMaxVertexArraySize() {
        return getMaxVertexArraySize(this);
    }

    /**
     * How many indices one array may hold.
     *
     * @return the number of indices
     */
    public int getMaxIndexArraySize() {
        return getMaxIndexArraySize(this);
    }

    @Override
    protected final void cleanup() {
        cleanupNative(this);
    }

    /** What the video card of one monitor can do. It stays valid after the renderer's record has been closed. */
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
         * @throws NativeException if the renderer holds nothing that can be shared for this monitor
         */
        public static MonitorInfo connect(RendererInfo owner, int monitor) {
            Objects.checkIndex(monitor, requireOpen(owner, "owner").getNumberOfMonitors());
            MonitorInfo info = new MonitorInfo();
            connectNative(info, owner, monitor);
            return info;
        }

        /**
         * The system's name of the monitor.
         *
         * @return the name, perhaps empty
         */
        public String getDeviceID() {
            return getDeviceID(this);
        }

        /**
         * Who made the video card or its driver.
         *
         * @return the maker, perhaps empty
         */
        public String getRendererVendor() {
            return getRendererVendor(this);
        }

        /**
         * The name of the video card.
         *
         * @return the name, perhaps empty
         */
        public String getRendererName() {
            return getRendererName(this);
        }

        /**
         * The version of the driver.
         *
         * @return the version, perhaps empty
         */
        public String getRendererVersion() {
            return getRendererVersion(this);
        }

        /**
         * The extensions of the graphics interface.
         *
         * @return their names in ascending order, perhaps none
         */
        public List<String> getOpenGlExtensions() {
            String joined = getOpenGlExtensions(this);
            return joined == null ? List.of() : List.of(joined.split(",", -1));
        }

        /**
         * How many lights can shine at once.
         *
         * @return 0 or more
         */
        public int getMaxNumberOfLights() {
            return getMaxNumberOfLights(this);
        }

        /**
         * The longest side of a texture.
         *
         * @return the length in texels
         */
        public int getMaxTextureSize() {
            return getMaxTextureSize(this);
        }

        /**
         * How many vertices one array may hold.
         *
         * @return the number of vertices
         */
        public int getMaxVertexArraySize() {
            return getMaxVertexArraySize(this);
        }

        /**
         * How many indices one array may hold.
         *
         * @return the number of indices
         */
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
