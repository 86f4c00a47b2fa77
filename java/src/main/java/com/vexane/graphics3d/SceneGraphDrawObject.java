package com.vexane.graphics3d;

import com.vexane.base.NativeException;

/**
 * A leaf of the scene tree that shows one piece of drawing geometry: a solid, a face, a curve or a point. It consists of
 * parts, which can be marked and picked by themselves. A fill replaces all parts, and all marks with them.
 *
 * <p>A mark of a part spreads to the parts that bound it: a marked sheet gives its lines and points the mark of a
 * neighbour, and an edge is hidden once all sheets around it are. A mark costs as much as the part has neighbours; no
 * geometry is visited.
 */
public abstract class SceneGraphDrawObject extends SceneGraphObject {
    SceneGraphDrawObject() {}

    /** {@return the object's id, by which picks report it} */
    public final int getId() {
        return getId(this);
    }

    /**
     * Marks the whole object: all points of a point object, all lines of a curve, all sheets of a face, and all
     * subdomains and sheets of a solid. A solid that is hidden or unpickable as a whole is not found by any pick.
     *
     * @param action what is done to the parts
     */
    public final void mark(MarkingAction action) {
        mark(this, action.number());
    }

    /**
     * Removes the marks that {@link #mark} sets.
     *
     * @param action what is undone
     */
    public final void unmark(MarkingAction action) {
        unmark(this, action.number());
    }

    /**
     * Marks a part. A part that has the mark already keeps it, and a kind of part that the object does not have is
     * ignored, as is {@link ObjectPartType#ALL}.
     *
     * @param part the kind of part
     * @param index the index of the part in the record
     * @param action what is done to the part
     * @throws NativeException if the object has no such part
     */
    public final void markPart(ObjectPartType part, int index, MarkingAction action) {
        markPart(this, part.number(), index, action.number());
    }

    /**
     * Removes the mark of a part, but not those that it has from its neighbours.
     *
     * @param part the kind of part
     * @param index the index of the part in the record
     * @param action what is undone
     * @throws NativeException if the object has no such part
     */
    public final void unmarkPart(ObjectPartType part, int index, MarkingAction action) {
        unmarkPart(this, part.number(), index, action.number());
    }

    /**
     * Removes the marks of all parts of one kind, or of all kinds. Marks of other actions stay.
     *
     * @param part the kind of part
     * @param action what is undone
     */
    public final void unmarkAll(ObjectPartType part, MarkingAction action) {
        unmarkAll(this, part.number(), action.number());
    }

    private static native int getId(SceneGraphDrawObject peer);

    private static native void mark(SceneGraphDrawObject peer, int marking);

    private static native void unmark(SceneGraphDrawObject peer, int marking);

    private static native void markPart(SceneGraphDrawObject peer, int partType, int index, int marking);

    private static native void unmarkPart(SceneGraphDrawObject peer, int partType, int index, int marking);

    private static native void unmarkAll(SceneGraphDrawObject peer, int partType, int marking);
}
