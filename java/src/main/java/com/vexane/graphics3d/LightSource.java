package com.vexane.graphics3d;

import com.vexane.base.NativePeer;
import java.util.Objects;

/**
 * A light of a scene: colour, intensities and whether it shines. The subclasses say from where.
 *
 * <p>Lights are made and removed by their {@link SceneLight}. A peer keeps its light alive when the scene has removed
 * it or has gone; such a light takes new values and lights nothing.
 *
 * <p>A position or direction is in world coordinates, or in those of the camera while the light is locked to it. Values
 * are stored as they come, without a check of their range. All calls take constant time.
 */
public abstract sealed class LightSource extends NativePeer
        permits DirectionLightSource, PointLightSource, SpotLightSource {
    /** The kinds of light. */
    public enum Type {
        /** Comes from one direction everywhere: a {@link DirectionLightSource}. */
        DIRECTION(1),
        /** Goes out from a point to all sides: a {@link PointLightSource}. */
        POINT(2),
        /** Goes out from a point within a cone: a {@link SpotLightSource}. */
        SPOT(3);

        private final int number;

        Type(int number) {
            this.number = number;
        }

        /**
         * The number by which native code knows the kind.
         *
         * @return 1 to 3
         */
        public int number() {
            return number;
        }

        static Type of(int number) {
            return values()[number - 1];
        }
    }

    LightSource() {}

    /**
     * The id of the light in its scene.
     *
     * @return the id, from 1
     */
    public int getId() {
        return getId(this);
    }

    /**
     * The kind of the light.
     *
     * @return the kind
     */
    public Type getType() {
        return Type.of(getType(this));
    }

    /**
     * The name of the light.
     *
     * @return the name, empty at the start
     */
    public String getName() {
        return getName(this);
    }

    /**
     * Names the light.
     *
     * @param name the name
     * @throws NullPointerException if the name is null
     */
    public void setName(String name) {
        setName(this, Objects.requireNonNull(name, "name"));
    }

    /**
     * Whether the light shines.
     *
     * @return false at the start
     */
    public boolean isActive() {
        return isActive(this);
    }

    /**
     * Switches the light on or off. At most eight lights of a scene shine at one time; a ninth one stays off, without
     * an error.
     *
     * @param active true to switch it on
     * @return whether the light shines now
     */
    public boolean setActive(boolean active) {
        setActive(this, active);
        return isActive(this);
    }

    /**
     * The colour of the light.
     *
     * @return 0xRRGGBB, white at the start
     */
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

    /**
     * The intensity of the light.
     *
     * @return the intensity, 0 at the start
     */
    public float getIntensity() {
        return getIntensity(this);
    }

    /**
     * Sets the intensity of the light. A renderer multiplies it with that of the
     * {@linkplain SceneLight#setTotalLightSourceIntensity whole scene}.
     *
     * @param intensity the intensity
     */
    public void setIntensity(float intensity) {
        setIntensity(this, intensity);
    }

    /**
     * What the light adds to the ambient light, relative to its intensity.
     *
     * @return the ambient intensity, 0 at the start
     */
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

    /**
     * How bright the light's reflections are.
     *
     * @return the specular intensity, 0 at the start
     */
    public float getSpecularIntensity() {
        return getSpecularIntensity(this);
    }

    /**
     * Sets how bright the light's reflections are.
     *
     * @param intensity the specular intensity
     */
    public void setSpecularIntensity(float intensity) {
        setSpecularIntensity(this, intensity);
    }

    /**
     * Whether the light moves with the camera: its position and direction are then in camera coordinates.
     *
     * @return false at the start
     */
    public boolean isLockedToCamera() {
        return isLockedToCamera(this);
    }

    /**
     * Makes the light move with the camera from now on. It stays where it is in the picture at this moment. Nothing
     * happens if it moves with the camera already.
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
     * Leaves the light where it is in the world at this moment. Nothing happens if it does not move with the camera.
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
     * Sets whether the light's marker is drawn as selected. It is not at the start.
     *
     * @param selected true if it is selected
     */
    public void setSelected(boolean selected) {
        setSelected(this, selected);
    }

    /**
     * Sets whether a marker is drawn where the light is, if the view
     * {@linkplain SceneSettingsLight#setRenderLightMarkers draws markers of lights}. It is not at the start.
     *
     * @param visible true to draw it
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
