package com.vexane.producer;

import com.vexane.base.NativeLibrary;
import com.vexane.base.NativePeer;
import java.util.Objects;

/**
 * Meshes of parts of a physics object, for {@code addMeshCollection}. A part may have several meshes.
 *
 * <pre>{@code
 * try (RenderMeshCollection meshes = new RenderMeshCollection()) {
 *     meshes.addLine(MeshKind.EDGE_3D, 4, x, y, z);
 *     meshes.addSheet(MeshKind.BOUNDARY_3D, 0, new double[][] {x, y, z}, new int[][] {a, b, c}, new int[][] {});
 *     physics.addMeshCollection(meshes);
 * }
 * }</pre>
 *
 * <p>The arrays are copied when they are added. If arrays of a mesh do not fit together, the mesh is not added and the
 * message names the array.
 */
public final class RenderMeshCollection extends NativePeer {
    /** Makes a collection without meshes. */
    public RenderMeshCollection() {
        NativeLibrary.require(RenderMeshCollection.class, "vxproducer");
        createNative(this);
    }

    /**
     * Adds the mesh of a line.
     *
     * @param kind one of the kinds of lines
     * @param part the index of the line in its object
     * @param axes the vertices in their order along the line: one to three arrays, as the kind demands
     * @throws com.vexane.base.NativeException if arrays do not fit together, or a coordinate is not finite in single
     *     precision
     */
    public void addLine(MeshKind kind, int part, double[]... axes) {
        addMesh(this, kind.number(), part, GeometryParts.requireArrays("coordinates", axes), new int[0][],
                new int[0][]);
    }

    /**
     * Adds the mesh of a sheet.
     *
     * @param kind one of the kinds of sheets
     * @param part the index of the sheet in its object
     * @param axes the vertices: two or three arrays, as the kind demands
     * @param triangles three arrays with the corners of the triangles, as indices of vertices, or none
     * @param quads four arrays with the corners of the quadrilaterals in their order around them, or none
     * @throws com.vexane.base.NativeException if arrays do not fit together, a coordinate is not finite in single
     *     precision, or an index is out of range
     */
    public void addSheet(MeshKind kind, int part, double[][] axes, int[][] triangles, int[][] quads) {
        addMesh(this, kind.number(), part, GeometryParts.requireArrays("coordinates", axes),
                Objects.requireNonNull(triangles, "triangles"), Objects.requireNonNull(quads, "quads"));
    }

    /** {@return the number of meshes} */
    public int getNumMeshes() {
        return getNumMeshes(this);
    }

    @Override
    protected void cleanup() {
        cleanupNative(this);
    }

    private static native void createNative(RenderMeshCollection peer);

    private static native void cleanupNative(RenderMeshCollection peer);

    private static native void addMesh(RenderMeshCollection peer, int type, int part, double[][] coordinates,
            int[][] triangles, int[][] quads);

    private static native int getNumMeshes(RenderMeshCollection peer);
}
