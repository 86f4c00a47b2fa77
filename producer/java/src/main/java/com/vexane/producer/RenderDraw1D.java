package com.vexane.producer;

/** The geometry of a draw object on an axis; {@link GeometryBuilder1D#buildDraw} makes one. */
public final class RenderDraw1D extends GeometryRecord {
    RenderDraw1D(GeometryParts parts, int id, String name) {
        parts.createNative(this, 1, false, id, name);
    }
}
