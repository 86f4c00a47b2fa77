package com.vexane.graphics3d;

import com.vexane.base.NativeEnum;
import com.vexane.base.NativePeer;
import java.util.NoSuchElementException;

/**
 * The light of a scene: its light sources, and the ambient light and intensity that apply to all of them. Every view of
 * the scene chooses through {@link SceneSettingsLight} which light it uses.
 *
 * <p>Light sources have ids from 1, which are never reused. At most eight can be on at the same time. Calls take time
 * logarithmic in the number of sources, except where stated otherwise.
 */
public final class SceneLight extends NativePeer {
    private SceneLight() {}

    /**
     * Makes a peer of the light of a scene. The light lives as long as the peer, even after the scene is closed.
     *
     * @param scene the scene
     * @return the peer
     * @throws NullPointerException if the scene is null
     * @throws IllegalStateException if the scene is closed
     */
    public static SceneLight connect(Scene scene) {
        SceneLight light = new SceneLight();
        connectNative(light, requireOpen(scene, "scene"));
        return light;
    }

    /**
     * Makes a light from one direction. It is switched off, and its intensity is 0.
     *
     * @return the id of the light source, for {@link DirectionLightSource#connect}
     */
    public int createDirectionLight() {
        return createDirectionLight(this);
    }

    /**
     * Makes a light from one point. It is switched off, and its intensity is 0.
     *
     * @return the id of the light source, for {@link PointLightSource#connect}
     */
    public int createPointLight() {
        return createPointLight(this);
    }

    /**
     * Makes a light from one point within a cone. It is switched off, and its intensity is 0.
     *
     * @return the id of the light source, for {@link SpotLightSource#connect}
     */
    public int createSpotLight() {
        return createSpotLight(this);
    }

    /**
     * Switches a light source off and removes it. Its peers stay usable.
     *
     * @param lightId the id of the light source
     * @return false if there is no such light source
     */
    public boolean removeLightSource(int lightId) {
        return removeLightSource(this, lightId);
    }

    /** Switches all light sources off and removes them, in time linear in their number. Their peers stay usable. */
    public void removeAllLightSources() {
        removeAllLightSources(this);
    }

    /**
     * {@return whether there is a light source with an id}
     *
     * @param lightId the id
     */
    public boolean lightSourceExists(int lightId) {
        return lightSourceExists(this, lightId);
    }

    /**
     * {@return the kind of a light source}
     *
     * @param lightId the id of the light source
     * @throws NoSuchElementException if there is no such light source
     */
    public LightSource.Type getLightSourceType(int lightId) {
        if (!lightSourceExists(this, lightId)) {
            throw new NoSuchElementException("There is no light source " + lightId + ".");
        }
        return NativeEnum.of(LightSource.Type.class, getLightSourceType(this, lightId));
    }

    /** {@return the factor for the intensity of every light source, initially 1} */
    public float getTotalLightSourceIntensity() {
        return getTotalLightSourceIntensity(this);
    }

    /**
     * Sets the factor for the intensity of every light source.
     *
     * @param intensity the factor; not checked
     */
    public void setTotalLightSourceIntensity(float intensity) {
        setTotalLightSourceIntensity(this, intensity);
    }

    /** {@return the factor for all ambient light, initially 1} */
    public float getAmbientIntensity() {
        return getAmbientIntensity(this);
    }

    /**
     * Sets the factor for all ambient light.
     *
     * @param intensity the factor; not checked
     */
    public void setAmbientIntensity(float intensity) {
        setAmbientIntensity(this, intensity);
    }

    /** {@return the colour of the ambient light that comes from no source as 0xRRGGBB, initially white} */
    public int getGlobalAmbientColor() {
        return getGlobalAmbientColor(this);
    }

    /**
     * Sets the colour of the ambient light that comes from no source.
     *
     * @param color 0xRRGGBB; higher bits are ignored
     */
    public void setGlobalAmbientColor(int color) {
        setGlobalAmbientColor(this, color);
    }

    @Override
    protected void cleanup() {
        cleanupNative(this);
    }

    private static native void connectNative(SceneLight peer, Scene owner);

    private static native void cleanupNative(SceneLight peer);

    private static native int createDirectionLight(SceneLight peer);

    private static native int createPointLight(SceneLight peer);

    private static native int createSpotLight(SceneLight peer);

    private static native boolean removeLightSource(SceneLight peer, int lightId);

    private static native void removeAllLightSources(SceneLight peer);

    private static native boolean lightSourceExists(SceneLight peer, int lightId);

    private static native int getLightSourceType(SceneLight peer, int lightId);

    private static native float getTotalLightSourceIntensity(SceneLight peer);

    private static native void setTotalLightSourceIntensity(SceneLight peer, float intensity);

    private static native float getAmbientIntensity(SceneLight peer);

    private static native void setAmbientIntensity(SceneLight peer, float intensity);

    private static native int getGlobalAmbientColor(SceneLight peer);

    private static native void setGlobalAmbientColor(SceneLight peer, int color);
}
