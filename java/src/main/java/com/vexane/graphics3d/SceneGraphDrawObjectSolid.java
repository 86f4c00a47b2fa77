package com.vexane.graphics3d;

import com.vexane.base.NativeException;
import com.vexane.base.NativePeer;

/**
 * A draw object that shows a solid: subdomains with their sheets, lines and points.
 *
 * <p>Its parts are points, lines, sheets and subdomains. Sheets belong to subdomains only if the record says so; a
 * hidden subdomain then hides the sheets that belong to no other.
 */
public final class SceneGraphDrawObjectSolid extends SceneGraphDrawObject {
    /**
     * Makes an empty solid object.
     *
     * @param id the id by which picks report the object; records for it have the same id
     */
    public SceneGraphDrawObjectSolid(int id) {
        createNative(this, id);
    }

    private SceneGraphDrawObjectSolid() {}

    /**
     * Makes another peer of a solid object that has a parent.
     *
     * @param parent the parent
     * @param childId the id of the object under its parent; a parent with a single child ignores it
     * @return the peer
     * @throws NativeException if the parent has no such child, or one of another class
     * @throws NullPointerException if the parent is null
     * @throws IllegalStateException if the parent's peer is closed
     */
    public static SceneGraphDrawObjectSolid connect(SceneGraphParent parent, int childId) {
        SceneGraphDrawObjectSolid object = new SceneGraphDrawObjectSolid();
        connectNative(object, requireOpen(parent, "parent"), childId);
        return object;
    }

    /**
     * Replaces everything by geometry in space. All marks are gone afterwards. A record for another id is used all the
     * same, and logged.
     *
     * <p>The relations from points and lines to the parts above them are derived here, in the record as well, from those
     * of the parts above.
     *
     * @param record the peer of a record of a draw object in space
     * @throws NativeException if the peer is not such a record, or if it is not consistent; the message names what is
     *     wrong, and the object is unchanged; or if memory runs out, which leaves it without parts
     * @throws NullPointerException if the record is null
     * @throws IllegalStateException if the record's peer is closed
     */
    public void fillObject(NativePeer record) {
        fillObject(this, requireOpen(record, "record"));
    }

    private static native void fillObject(SceneGraphDrawObjectSolid peer, Object record);

    private static native void createNative(SceneGraphDrawObjectSolid peer, int id);

    private static native void connectNative(SceneGraphDrawObjectSolid peer, SceneGraphNode owner, int childId);
}
