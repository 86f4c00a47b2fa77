package com.vexane.graphics3d;

import com.vexane.base.NativeEnum;

/**
 * One result of a pick.
 *
 * @param objectType the kind of hit
 * @param objectId the id of the object
 * @param partType the kind of part, {@link PartType#NONE} for a whole object
 * @param partId the index of the part, -1 for a whole object
 */
public record PickedObject(ObjectType objectType, int objectId, PartType partType, int partId) {
    /** The kinds of hit. */
    public enum ObjectType implements NativeEnum {
        /** Nothing. */
        NONE(0),
        /** A plot. */
        PLOT(1),
        /** A solid, or a part of any draw object. */
        SOLID(2),
        /** A face. */
        FACE(3),
        /** A curve. */
        CURVE(4),
        /** A point. */
        POINT(5),
        /** A part of a physics object. */
        PHYSICS(6),
        /** An overlay. */
        OVERLAY(7);

        private final int number;

        ObjectType(int number) {
            this.number = number;
        }

        @Override
        public int number() {
            return number;
        }
    }

    /**
     * The kinds of part. Constants named {@code RENDERER_n} have the number n and the meaning that the renderer gives
     * them.
     */
    public enum PartType implements NativeEnum {
        /** The whole object. */
        NONE(0),
        /** A subdomain. */
        SUBDOMAIN(1),
        /** A face. */
        SHEET(2),
        /** An edge. */
        LINE(3),
        /** A vertex. */
        POINT(4),
        /** The renderer's kind 5. */
        RENDERER_5(5),
        /** The renderer's kind 6. */
        RENDERER_6(6),
        /** The renderer's kind 7. */
        RENDERER_7(7);

        private final int number;

        PartType(int number) {
            this.number = number;
        }

        @Override
        public int number() {
            return number;
        }
    }
}
