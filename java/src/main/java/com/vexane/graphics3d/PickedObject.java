package com.vexane.graphics3d;

/**
 * One result of a pick.
 *
 * @param objectType kind of hit
 * @param objectId id of the object
 * @param partType kind of part, {@link PartType#NONE} for a whole object
 * @param partId index of the part, -1 for a whole object
 */
public record PickedObject(ObjectType objectType, int objectId, PartType partType, int partId) {
    /** Kinds of hit, in the order of their native numbers. */
    public enum ObjectType {
        /** Nothing. */
        NONE,
        /** A plot. */
        PLOT,
        /** A solid, or a part of any draw object. */
        SOLID,
        /** A face. */
        FACE,
        /** A curve. */
        CURVE,
        /** A point. */
        POINT,
        /** A part of a physics object. */
        PHYSICS,
        /** An overlay. */
        OVERLAY
    }

    /** Kinds of part, in the order of their Java numbers; the last three are a renderer's own. */
    public enum PartType {
        /** The whole object. */
        NONE,
        /** A subdomain. */
        SUBDOMAIN,
        /** A face. */
        SHEET,
        /** An edge. */
        LINE,
        /** A vertex. */
        POINT,
        /** A renderer's first own kind. */
        OWN_1,
        /** A renderer's second own kind. */
        OWN_2,
        /** A renderer's third own kind. */
        OWN_3
    }
}
