package com.vexane.producer;

import com.vexane.base.NativeEnum;

/** The kinds of data that plots and file readers distinguish. */
public enum PlotKind implements NativeEnum {
    /** Data that need no kind of their own, such as those of arrows, slices, spheres and graphs. */
    GENERAL(0),
    /** Lines in three dimensions, drawn as tubes; tubes of any other kind are in the plane. */
    LINES_3D(5),
    /** Surfaces of equal value, one group per level. */
    ISO_SURFACE(6),
    /** A field on triangles in the plane. */
    SURFACE_2D(8),
    /** A field on triangles in space. Its plots need normals, see {@link PostDataGroup#computeNormals}. */
    SURFACE_3D(9),
    /** A mesh in three dimensions; meshes of any other kind are in the plane. */
    MESH_3D(12),
    /** Contour lines in the plane. */
    CONTOUR_2D(17),
    /** Contours in space. */
    CONTOUR_3D(18),
    /** Principal values and directions in the plane; those of any other kind are in space. */
    PRINCIPAL_2D(19),
    /** Coordinate systems in the plane, drawn by principal plots. */
    PRINCIPAL_AXES_2D(21),
    /** Point labels in the plane; those of any other kind are in space. */
    POINT_LABEL_2D(23);

    private final int number;

    PlotKind(int number) {
        this.number = number;
    }

    /** {@return the number of the kind in native code, different for each kind} */
    @Override
    public int number() {
        return number;
    }

    static PlotKind of(int number) {
        return NativeEnum.of(PlotKind.class, number);
    }
}
