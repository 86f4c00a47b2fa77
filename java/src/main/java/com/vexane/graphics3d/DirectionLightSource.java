package com.vexane.graphics3d;

import com.vexane.base.NativeException;

/** Light from one direction everywhere, as from the sun. */
public final class DirectionLightSource extends LightSource {
    private DirectionLightSource() {}

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
    public static DirectionLightSource connect(SceneLight light, int lightId) {
        DirectionLightSource source = new DirectionLightSource();
        connectNative(source, requireOpen(light, "light"), lightId);
        return source;
    }

    /** {@return the direction from which the light comes: x, y and z as they were set, initially (0, 0, 1)} */
    public float[] getFromDirection() {
        float[] direction = new float[3];
        getFromDirection(this, direction);
        return direction;
    }

    /**
     * Sets the direction from which the light comes.
     *
     * @param world true if the direction is in world coordinates; false if it is in those of the camera, with which the
     *     light then moves
     * @param x the first component
     * @param y the second component
     * @param z the third component; the three need not have length 1
     */
    public void setFromDirection(boolean world, float x, float y, float z) {
        setFromDirection(this, world, x, y, z);
    }

    private static native void connectNative(DirectionLightSource peer, SceneLight owner, int lightId);

    private static native int getFromDirection(DirectionLightSource peer, float[] out);

    private static native void setFromDirection(DirectionLightSource peer, boolean world, float x, float y, float z);
}
