package com.vexane.producer;

import com.vexane.base.NativeEnum;

/** The kinds of meshes, by the part that they belong to and the number of axes. */
public enum MeshKind implements NativeEnum {
    /** The line of an edge of a model in space. */
    EDGE_3D(0),
    /** The sheet of a boundary of a model in space. */
    BOUNDARY_3D(1),
    /** The line of a domain of a model on an axis. */
    SUBDOMAIN_1D(2),
    /** The sheet of a domain of a model in the plane. */
    SUBDOMAIN_2D(3),
    /** The line of a boundary of a model in the plane. */
    BOUNDARY_2D(4);

    private final int number;

    MeshKind(int number) {
        this.number = number;
    }

    /** {@return the number of the kind in native code, different for each kind} */
    @Override
    public int number() {
        return number;
    }
}
