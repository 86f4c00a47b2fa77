package com.vexane.graphics3d;

import java.util.Objects;

/**
 * A plot of three directions at each point: the principal values of a tensor field, such as stresses or strains, or local
 * coordinate systems.
 *
 * <p>Principal values are drawn as pairs of arrows that point away from each other for positive values (tension) and at
 * each other for negative ones (compression). Coordinate systems are drawn as three arrows of equal length.
 *
 * <p>A fill reads the first group of the record: points, the directions of the three axes, their values except for
 * coordinate systems, and colour data, if present; see {@code DataRole.principalDirection} and
 * {@code DataRole.principalLength}. Records of the kinds {@code PRINCIPAL_2D} and {@code PRINCIPAL_AXES_2D} are in the
 * plane. All lengths are scaled so that the longest arrow fits between neighbouring points. A million points take 56 MB of
 * native memory.
 */
public final class SceneGraphPlotPrincipal extends SceneGraphPlotArrow {
    /** What the three directions are. */
    public enum Content {
        /** Principal values, whose signs and magnitudes are shown. */
        PRINCIPAL_VALUES,
        /** The axes of local coordinate systems. */
        COORDINATE_SYSTEMS
    }

    /**
     * Makes an empty plot.
     *
     * @param dimension 2 for a plot in the plane, any other number for one in space
     * @param content what the directions are
     * @param id the id of the plot in its group
     * @throws NullPointerException if the content is null
     */
    public SceneGraphPlotPrincipal(int dimension, Content content, int id) {
        createNative(this, dimension, Objects.requireNonNull(content, "content") == Content.PRINCIPAL_VALUES, id);
    }

    private static native void createNative(SceneGraphPlotPrincipal peer, int dimension, boolean flag, int id);
}
