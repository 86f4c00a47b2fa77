package com.vexane.producer;

/** The geometry of a draw object in space; {@link GeometryBuilder3D#buildDraw} makes one. */
public final class RenderDraw3D extends GeometryRecord {
    RenderDraw3D(GeometryParts parts, int id, String name) {
        parts.createNative(this, 3, false, id, name);
    }
}
