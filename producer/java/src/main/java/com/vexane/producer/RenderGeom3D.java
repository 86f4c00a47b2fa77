package com.vexane.producer;

import java.util.Objects;

/** The geometry of a physics object in space; {@link GeometryBuilder3D#buildGeom} makes one. */
public final class RenderGeom3D extends GeometryRecord {
    RenderGeom3D(GeometryParts parts) {
        parts.createNative(this, 3, true, 0, "");
    }

    private RenderGeom3D(RenderDraw3D solid, int[] upDomains, int[] downDomains) {
        createNative(this, solid, upDomains, downDomains);
    }

    /**
     * Makes a model of a solid, such as one that was read from a file: the same sheets, curves and points, with a domain
     * on each side of the sheets. The subdomains and their relations follow from the domains.
     *
     * @param solid the solid; it may be closed afterwards
     * @param upDomains for each sheet the index of the domain on its up side, -1 for none
     * @param downDomains for each sheet the index of the domain on its down side, -1 for none
     * @return the record, to be closed by the caller
     * @throws com.vexane.base.NativeException if there is not one domain for each sheet and side, or a domain is out of
     *     range
     */
    public static RenderGeom3D of(RenderDraw3D solid, int[] upDomains, int[] downDomains) {
        Objects.requireNonNull(solid, "solid");
        Objects.requireNonNull(upDomains, "upDomains");
        Objects.requireNonNull(downDomains, "downDomains");
        return new RenderGeom3D(solid, upDomains, downDomains);
    }

    private static native void createNative(RenderGeom3D peer, RenderDraw3D solid, int[] upDomains, int[] downDomains);
}
