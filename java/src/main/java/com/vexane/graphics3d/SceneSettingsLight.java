package com.vexane.graphics3d;

import com.vexane.base.NativePeer;

/**
 * Which of the light of a scene one view uses. All of it is on at the start; markers of lights are not drawn.
 */
public final class SceneSettingsLight extends NativePeer {
    private SceneSettingsLight() {}

    /**
     * Makes a peer of the light switches of a scene in a view.
     *
     * @param settings the settings of the scene in the view
     * @return the peer
     * @throws NullPointerException if the settings are null
     * @throws IllegalStateException if the settings are closed
     */
    public static SceneSettingsLight connect(SceneSettings settings) {
        SceneSettingsLight light = new SceneSettingsLight();
        connectNative(light, requireOpen(settings, "settings"));
        return light;
    }

    /**
     * Whether the view uses light at all.
     *
     * @return true at the start
     */
    public boolean isLightUsed() {
        return isLightUsed(this);
    }

    /**
     * Sets whether the view uses light at all.
     *
     * @param on false to show all colours as they are
     */
    public void setUseLight(boolean on) {
        setUseLight(this, on);
    }

    /**
     * Whether the ambient light that comes from no source is used.
     *
     * @return true at the start
     */
    public boolean isGlobalAmbientLight() {
        return isGlobalAmbientLight(this);
    }

    /**
     * Sets whether the ambient light that comes from no source is used.
     *
     * @param on true to use it
     */
    public void setGlobalAmbientLight(boolean on) {
        setGlobalAmbientLight(this, on);
    }

    /**
     * Whether what the light sources add to the ambient light is used.
     *
     * @return true at the start
     */
    public boolean isAmbientLight() {
        return isAmbientLight(this);
    }

    /**
     * Sets whether what the light sources add to the ambient light is used.
     *
     * @param on true to use it
     */
    public void setAmbientLight(boolean on) {
        setAmbientLight(this, on);
    }

    /**
     * Whether the light that surfaces scatter is used.
     *
     * @return true at the start
     */
    public boolean isDiffuseLight() {
        return isDiffuseLight(this);
    }

    /**
     * Sets whether the light that surfaces scatter is used.
     *
     * @param on true to use it
     */
    public void setDiffuseLight(boolean on) {
        setDiffuseLight(this, on);
    }

    /**
     * Whether reflections of the light sources are used.
     *
     * @return true at the start
     */
    public boolean isSpecularLight() {
        return isSpecularLight(this);
    }

    /**
     * Sets whether reflections of the light sources are used.
     *
     * @param on true to use them
     */
    public void setSpecularLight(boolean on) {
        setSpecularLight(this, on);
    }

    /**
     * Sets whether the view draws markers where the light sources are.
     *
     * @param on true to draw those that are {@linkplain LightSource#setMarkerVisibility visible}
     */
    public void setRenderLightMarkers(boolean on) {
        setRenderLightMarkers(this, on);
    }

    @Override
    protected void cleanup() {
        cleanupNative(this);
    }

    private static native void connectNative(SceneSettingsLight peer, SceneSettings owner);

    private static native void cleanupNative(SceneSettingsLight peer);

    private static native boolean isLightUsed(SceneSettingsLight peer);

    private static native void setUseLight(SceneSettingsLight peer, boolean on);

    private static native boolean isGlobalAmbientLight(SceneSettingsLight peer);

    private static native void setGlobalAmbientLight(SceneSettingsLight peer, boolean on);

    private static native boolean isAmbientLight(SceneSettingsLight peer);

    private static native void setAmbientLight(SceneSettingsLight peer, boolean on);

    private static native boolean isDiffuseLight(SceneSettingsLight peer);

    private static native void setDiffuseLight(SceneSettingsLight peer, boolean on);

    private static native boolean isSpecularLight(SceneSettingsLight peer);

    private static native void setSpecularLight(SceneSettingsLight peer, boolean on);

    private static native void setRenderLightMarkers(SceneSettingsLight peer, boolean on);
}
