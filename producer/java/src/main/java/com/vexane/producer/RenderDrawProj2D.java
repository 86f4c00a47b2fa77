package com.vexane.producer;

/** Geometry projected to a plane, in two classes; {@link ProjectionBuilder2D} makes one. */
public final class RenderDrawProj2D extends GeometryRecord {
    RenderDrawProj2D(int id, String name, double[][] points, int[] pointKinds, double[][][] curves, int[] curveKinds) {
        createNative(this, id, name, points, pointKinds, curves, curveKinds);
    }

    private static native void createNative(RenderDrawProj2D peer, int id, String name, double[][] points,
            int[] pointKinds, double[][][] curves, int[] curveKinds);
}
