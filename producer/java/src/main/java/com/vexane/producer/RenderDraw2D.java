package com.vexane.producer;

/** The geometry of a draw object in the plane; {@link GeometryBuilder2D#buildDraw} makes one. */
public final class RenderDraw2D extends GeometryRecord {
    RenderDraw2D(GeometryParts parts, int id, String name) {
        parts.createNative(this, 2, false, id, name);
    }
}
