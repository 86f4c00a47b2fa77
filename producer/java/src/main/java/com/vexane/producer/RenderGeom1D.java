package com.vexane.producer;

/** The geometry of a physics object on an axis; {@link GeometryBuilder1D#buildGeom} makes one. */
public final class RenderGeom1D extends GeometryRecord {
    RenderGeom1D(GeometryParts parts) {
        parts.createNative(this, 1, true, 0, "");
    }
}
