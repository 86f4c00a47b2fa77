package com.vexane.graphics3d;

import com.vexane.base.NativeException;
import java.util.Objects;

/**
 * A work plane: a rectangle in space with a grid and the marks of its axes, on which the symbol of an extrusion or a
 * revolution can be shown.
 *
 * <pre>{@code
 * try (SceneGraphFeatureObject plane = new SceneGraphFeatureObject()) {
 *     group.addChild(plane);
 *     plane.setWorkPlane(new float[] {0, 0, 0, 1, 0, 0, 0, 1, 0, -5, 5, -5, 5});   // the xy plane, 10 by 10
 *     plane.setExtrude(new float[] {1, 3});                                        // to height 3
 * }
 * }</pre>
 *
 * <p>Nothing is shown before the plane is set. Set it first: the operations are computed for the current plane and
 * stay as they are when it changes. An operation replaces the other one. A work plane cannot be picked.
 */
public final class SceneGraphFeatureObject extends SceneGraphObject {
    /** Makes an object without a plane that belongs to no scene. */
    public SceneGraphFeatureObject() {
        this(true);
        createNative(this);
    }

    private SceneGraphFeatureObject(boolean unattached) {}

    /**
     * Makes another peer of a work plane that has a parent.
     *
     * @param parent the parent
     * @param childId the id of the work plane under its parent; a parent with a single child ignores it
     * @return the peer
     * @throws NativeException if the parent has no such child, or one that is not a work plane
     * @throws NullPointerException if the parent is null
     * @throws IllegalStateException if the parent's peer is closed
     */
    public static SceneGraphFeatureObject connect(SceneGraphParent parent, int childId) {
        SceneGraphFeatureObject object = new SceneGraphFeatureObject(true);
        connectNative(object, requireOpen(parent, "parent"), childId);
        return object;
    }

    /**
     * Sets the plane and builds its grid. The cells are about square, and a square has 9 by 9 of them; a rectangle
     * without area has none, and one that is a point is not shown.
     *
     * @param data 13 values: the origin, a point on the x axis and a further point of the plane, with three coordinates
     *     each, then the rectangle in coordinates of the plane: x from, x to, y from, y to. An array of any other length
     *     is ignored.
     * @throws NativeException if the rectangle is so narrow that its grid would have more than 16,777,216 lines; then
     *     nothing has changed
     * @throws NullPointerException if the array is null
     */
    public void setWorkPlane(float[] data) {
        setWorkPlane(this, Objects.requireNonNull(data, "data"));
    }

    /**
     * Shows an extrusion: a disc in the plane and an arrow to each height.
     *
     * @param values a scale, by which all heights are multiplied, then the heights along the normal of the plane. An
     *     empty array is ignored.
     * @throws NullPointerException if the array is null
     */
    public void setExtrude(float[] values) {
        setExtrude(this, Objects.requireNonNull(values, "values"));
    }

    /**
     * Shows a revolution: its axis, as long as the rectangle.
     *
     * @param data 4 values in coordinates of the plane: x and y of a point of the axis, x and y of its direction.
     *     Further values are not read, and a shorter array is ignored.
     * @throws NativeException if the direction has no length; then nothing has changed
     * @throws NullPointerException if the array is null
     */
    public void setRevolve(float[] data) {
        setRevolve(this, Objects.requireNonNull(data, "data"));
    }

    private static native void createNative(SceneGraphFeatureObject peer);

    private static native void connectNative(SceneGraphFeatureObject peer, SceneGraphNode owner, int childId);

    private static native void setWorkPlane(SceneGraphFeatureObject peer, float[] data);

    private static native void setExtrude(SceneGraphFeatureObject peer, float[] values);

    private static native void setRevolve(SceneGraphFeatureObject peer, float[] data);
}
