package com.vexane.graphics3d;

import com.vexane.base.NativePeer;

/** Which light of a scene one view uses. Initially all of it; markers of lights are not drawn. */
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

    /** {@return whether the view uses light at all, initially true} */
    public boolean isLightUsed() {
        return isLightUsed(this);
    }

    /**
     * Sets whether the view uses light at all.
     *
     * @param on false to show all colours without shading
     */
    public void setUseLight(boolean on) {
        setUseLight(this, on);
    }

    /** {@return whether the ambient light that comes from no source is used, initially true} */
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

    /** {@return whether the light sources add to the ambient light, initially true} */
    public boolean isAmbientLight() {
        return isAmbientLight(this);
    }

    /**
     * Sets whether the light sources add to the ambient light.
     *
     * @param on true if they do
     */
    public void setAmbientLight(boolean on) {
        setAmbientLight(this, on);
    }

    /** {@return whether the light that surfaces scatter is used, initially true} */
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

    /** {@return whether reflections of the light sources are used, initially true} */
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
