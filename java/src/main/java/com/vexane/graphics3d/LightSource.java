package com.vexane.graphics3d;

import com.vexane.base.NativeEnum;
import com.vexane.base.NativePeer;
import java.util.Objects;

/**
 * A light of a scene: colour, intensities and whether it is on. The subclasses add position and direction.
 *
 * <p>Lights are made and removed by their {@link SceneLight}. A peer keeps its light alive after the light has been
 * removed or the scene is gone; such a light can still be changed, but lights nothing.
 *
 * <p>A position or direction is in world coordinates, or in those of the camera while the light is locked to it. The
 * range of values is not checked. All calls take constant time.
 */
public abstract sealed class LightSource extends NativePeer
        permits DirectionLightSource, PointLightSource, SpotLightSource {
    /** The kinds of light. */
    public enum Type implements NativeEnum {
        /** Light from one direction everywhere: a {@link DirectionLightSource}. */
        DIRECTION(1),
        /** Light from a point in all directions: a {@link PointLightSource}. */
        POINT(2),
        /** Light from a point within a cone: a {@link SpotLightSource}. */
        SPOT(3);

        private final int number;

        Type(int number) {
            this.number = number;
        }

        @Override
        public int number() {
            return number;
        }
    }

    LightSource() {}

    /** {@return the id of the light in its scene, from 1} */
    public int getId() {
        return getId(this);
    }

    /** {@return the kind of the light} */
    public Type getType() {
        return NativeEnum.of(Type.class, getType(this));
    }

    /** {@return the name of the light, initially empty} */
    public String getName() {
        return getName(this);
    }

    /**
     * Sets the name of the light.
     *
     * @param name the name
     * @throws NullPointerException if the name is null
     */
    public void setName(String name) {
        setName(this, Objects.requireNonNull(name, "name"));
    }

    /** {@return whether the light is on, initially false} */
    public boolean isActive() {
        return isActive(this);
    }

    /**
     * Switches the light on or off. At most eight lights of a scene can be on at the same time; a ninth one stays off,
     * without an error.
     *
     * @param active true to switch it on
     * @return whether the light is on now
     */
    public boolean setActive(boolean active) {
        setActive(this, active);
        return isActive(this);
    }

    /** {@return the colour of the light as 0xRRGGBB, initially white} */
    public int getColor() {
        return getColor(this);
    }

    /**
     * Sets the colour of the light.
     *
     * @param color 0xRRGGBB; higher bits are ignored
     */
    public void setColor(int color) {
        setColor(this, color);
    }

    /** {@return the intensity of the light, initially 0} */
    public float getIntensity() {
        return getIntensity(this);
    }

    /**
     * Sets the intensity of the light. A renderer multiplies it by that of the
     * {@linkplain SceneLight#setTotalLightSourceIntensity whole scene}.
     *
     * @param intensity the intensity
     */
    public void setIntensity(float intensity) {
        setIntensity(this, intensity);
    }

    /** {@return what the light adds to the ambient light, relative to its intensity; initially 0} */
    public float getAmbientIntensity() {
        return getAmbientIntensity(this);
    }

    /**
     * Sets what the light adds to the ambient light.
     *
     * @param intensity the ambient intensity, relative to the intensity of the light
     */
    public void setAmbientIntensity(float intensity) {
        setAmbientIntensity(this, intensity);
    }

    /** {@return how bright the reflections of the light are, initially 0} */
    public float getSpecularIntensity() {
        return getSpecularIntensity(this);
    }

    /**
     * Sets how bright the reflections of the light are.
     *
     * @param intensity the specular intensity
     */
    public void setSpecularIntensity(float intensity) {
        setSpecularIntensity(this, intensity);
    }

    /**
     * {@return whether the light moves with the camera, so that its position and direction are in camera coordinates;
     * initially false}
     */
    public boolean isLockedToCamera() {
        return isLockedToCamera(this);
    }

    /**
     * Makes the light move with the camera from now on, from its current position in the picture. Under axis view
     * scales other than 1 a renderer may show it elsewhere. Nothing happens if it moves with the camera already.
     *
     * @param camera the camera of the view
     * @throws NullPointerException if the camera is null
     * @throws IllegalStateException if the camera is closed
     */
    public void lockToCamera(Camera3d camera) {
        requireOpen(camera, "camera");
        if (!isLockedToCamera(this)) {
            lockToCamera(this, camera);
        }
    }

    /**
     * Makes the light stay at its current position in the world. Nothing happens if it does not move with the camera.
     *
     * @param camera the camera that the light moves with
     * @throws NullPointerException if the camera is null
     * @throws IllegalStateException if the camera is closed
     */
    public void releaseFromCamera(Camera3d camera) {
        requireOpen(camera, "camera");
        if (isLockedToCamera(this)) {
            releaseFromCamera(this, camera);
        }
    }

    /**
     * Sets whether the marker of the light is drawn as selected.
     *
     * @param selected true to draw it as selected, initially false
     */
    public void setSelected(boolean selected) {
        setSelected(this, selected);
    }

    /**
     * Sets whether a marker is drawn where the light is, if the view
     * {@linkplain SceneSettingsLight#setRenderLightMarkers draws markers of lights}.
     *
     * @param visible true to draw it, initially false
     */
    public void setMarkerVisibility(boolean visible) {
        setMarkerVisibility(this, visible);
    }

    @Override
    protected void cleanup() {
        cleanupNative(this);
    }

    private static native void cleanupNative(LightSource peer);

    private static native int getId(LightSource peer);

    private static native int getType(LightSource peer);

    private static native String getName(LightSource peer);

    private static native void setName(LightSource peer, String name);

    private static native boolean isActive(LightSource peer);

    private static native void setActive(LightSource peer, boolean active);

    private static native int getColor(LightSource peer);

    private static native void setColor(LightSource peer, int color);

    private static native float getIntensity(LightSource peer);

    private static native void setIntensity(LightSource peer, float intensity);

    private static native float getAmbientIntensity(LightSource peer);

    private static native void setAmbientIntensity(LightSource peer, float intensity);

    private static native float getSpecularIntensity(LightSource peer);

    private static native void setSpecularIntensity(LightSource peer, float intensity);

    private static native boolean isLockedToCamera(LightSource peer);

    private static native void lockToCamera(LightSource peer, Camera3d camera);

    private static native void releaseFromCamera(LightSource peer, Camera3d camera);

    private static native void setSelected(LightSource peer, boolean selected);

    private static native void setMarkerVisibility(LightSource peer, boolean visible);
}
