package com.vexane.graphics3d;

import com.vexane.base.NativeException;

/** Light from one point within a cone, as from a spotlight. */
public final class SpotLightSource extends LightSource {
    private SpotLightSource() {}

    /**
     * Makes a peer of a light of a scene.
     *
     * @param light the scene's light
     * @param lightId the id of the light source
     * @return the peer
     * @throws NullPointerException if the scene's light is null
     * @throws IllegalStateException if the scene's light is closed
     * @throws NativeException if there is no such light source, or it is of another kind
     */
    public static SpotLightSource connect(SceneLight light, int lightId) {
        SpotLightSource source = new SpotLightSource();
        connectNative(source, requireOpen(light, "light"), lightId);
        return source;
    }

    /** {@return the position of the light: x, y and z, initially (0, 0, 1)} */
    public float[] getPosition() {
        float[] position = new float[3];
        getPosition(this, position);
        return position;
    }

    /**
     * Moves the light and sets its direction to (0, 0, 1), so set the direction after the position.
     *
     * @param world true if the position is in world coordinates; false if it is in those of the camera, with which the
     *     light then moves
     * @param x the first coordinate
     * @param y the second coordinate
     * @param z the third coordinate
     */
    public void setPosition(boolean world, float x, float y, float z) {
        setPosition(this, world, x, y, z);
    }

    /** {@return the direction in which the light shines: x, y and z, initially (0, 0, -1)} */
    public float[] getAtDirection() {
        float[] direction = new float[3];
        getAtDirection(this, direction);
        return direction;
    }

    /**
     * Sets the direction of the light. The direction is in the same coordinates as the position.
     *
     * @param x the first component
     * @param y the second component
     * @param z the third component; the three need not have length 1
     */
    public void setAtDirection(float x, float y, float z) {
        setAtDirection(this, x, y, z);
    }

    /** {@return the angle of the cone in radians, initially a quarter of pi} */
    public float getSpreadAngle() {
        return getSpreadAngle(this);
    }

    /**
     * Sets the angle of the cone.
     *
     * @param angle the angle in radians
     */
    public void setSpreadAngle(float angle) {
        setSpreadAngle(this, angle);
    }

    private static native void connectNative(SpotLightSource peer, SceneLight owner, int lightId);

    private static native int getPosition(SpotLightSource peer, float[] out);

    private static native void setPosition(SpotLightSource peer, boolean world, float x, float y, float z);

    private static native int getAtDirection(SpotLightSource peer, float[] out);

    private static native void setAtDirection(SpotLightSource peer, float x, float y, float z);

    private static native float getSpreadAngle(SpotLightSource peer);

    private static native void setSpreadAngle(SpotLightSource peer, float angle);
}
