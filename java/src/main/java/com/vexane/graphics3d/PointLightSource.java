package com.vexane.graphics3d;

import com.vexane.base.NativeException;

/** Light from one point in all directions, as from a lamp. */
public final class PointLightSource extends LightSource {
    private PointLightSource() {}

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
    public static PointLightSource connect(SceneLight light, int lightId) {
        PointLightSource source = new PointLightSource();
        connectNative(source, requireOpen(light, "light"), lightId);
        return source;
    }

    /** {@return the position of the light: x, y and z, initially the origin} */
    public float[] getPosition() {
        float[] position = new float[3];
        getPosition(this, position);
        return position;
    }

    /**
     * Moves the light.
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

    private static native void connectNative(PointLightSource peer, SceneLight owner, int lightId);

    private static native int getPosition(PointLightSource peer, float[] out);

    private static native void setPosition(PointLightSource peer, boolean world, float x, float y, float z);
}
