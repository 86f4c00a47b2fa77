package com.vexane.graphics3d;

/**
 * Where a program probes its data: a point, and a dashed line between two ends with a mark at a fraction of its length.
 *
 * <p>It has no box of its own in the scene tree and cannot be picked.
 */
public final class SceneGraphProbeObject extends SceneGraphObject {
    /** Makes an object that shows nothing and belongs to no scene. */
    public SceneGraphProbeObject() {
        createNative(this);
    }

    /**
     * Sets the point.
     *
     * @param x its x coordinate
     * @param y its y coordinate
     * @param z its z coordinate
     */
    public void setProbe(float x, float y, float z) {
        setProbe(this, x, y, z);
    }

    /**
     * Sets the line.
     *
     * @param x0 x of the start
     * @param y0 y of the start
     * @param z0 z of the start
     * @param x1 x of the end
     * @param y1 y of the end
     * @param z1 z of the end
     * @param fraction where the mark is, from 0 at the start to 1 at the end; beyond these it is at the nearer end
     */
    public void setLinePoints(float x0, float y0, float z0, float x1, float y1, float z1, float fraction) {
        setLinePoints(this, x0, y0, z0, x1, y1, z1, fraction);
    }

    /** Drops point and line. */
    public void clear() {
        clear(this);
    }

    private static native void createNative(SceneGraphProbeObject peer);

    private static native void setProbe(SceneGraphProbeObject peer, float x, float y, float z);

    private static native void setLinePoints(
            SceneGraphProbeObject peer, float x0, float y0, float z0, float x1, float y1, float z1, float fraction);

    private static native void clear(SceneGraphProbeObject peer);
}
