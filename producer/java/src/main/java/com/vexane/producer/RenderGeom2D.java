package com.vexane.producer;

/** The geometry of a physics object in the plane; {@link GeometryBuilder2D#buildGeom} makes one. */
public final class RenderGeom2D extends GeometryRecord {
    RenderGeom2D(GeometryParts parts) {
        parts.createNative(this, 2, true, 0, "");
    }
}
