package com.vexane.producer;

import com.vexane.base.NativeLibrary;
import com.vexane.base.NativePeer;
import java.util.Objects;

/**
 * A record of geometry: sheets, curves and points, and which touch which. A draw object, a physics object or projected
 * geometry is filled from one.
 *
 * <p>An object copies what it needs, so the record may be closed as soon as the object is filled. All methods that
 * return values return copies. Indices are from 0 in the order in which the parts were added.
 */
public abstract class GeometryRecord extends NativePeer {
    GeometryRecord() {
        NativeLibrary.require(GeometryRecord.class, "vxproducer");
    }

    /** {@return the id of the object that the record is for} */
    public int getId() {
        return getId(this);
    }

    /** {@return the name of the object that the record is for, its label} */
    public String getName() {
        return getName(this);
    }

    /** {@return the minimum and the maximum of each axis: two, four or six values} */
    public float[] getBox() {
        return getBox(this);
    }

    /** {@return the number of points} */
    public int getNumPoints() {
        return getNumPoints(this);
    }

    /** {@return the points, one array per axis} */
    public float[][] getPoints() {
        return getPoints(this);
    }

    /** {@return the exact coordinates of the points, to which the mouse snaps, one array per axis; empty in space} */
    public double[][] getSnapPoints() {
        return getSnapPoints(this);
    }

    /** {@return the number of curves} */
    public int getNumCurves() {
        return getNumCurves(this);
    }

    /**
     * {@return the vertices of a curve, one array per axis; empty arrays if the curve has no geometry}
     *
     * @param curve the curve, from 0
     */
    public float[][] getCurve(int curve) {
        return getCurve(this, Objects.checkIndex(curve, getNumCurves()));
    }

    /** {@return the number of sheets; 0 on an axis} */
    public int getNumSheets() {
        return getNumSheets(this);
    }

    /**
     * {@return the vertices of a sheet, one array per axis, and in space three more with x, y and z of the normals; empty
     * arrays if the sheet has no geometry}
     *
     * @param sheet the sheet, from 0
     */
    public float[][] getSheet(int sheet) {
        return getSheet(this, Objects.checkIndex(sheet, getNumSheets()));
    }

    /**
     * {@return the triangles of a sheet, one array per corner, with indices of the sheet's vertices}
     *
     * @param sheet the sheet, from 0
     */
    public int[][] getTriangles(int sheet) {
        return getTriangles(this, Objects.checkIndex(sheet, getNumSheets()));
    }

    /** {@return the number of subdomains; 0 except in space} */
    public int getNumSubdomains() {
        return getNumSubdomains(this);
    }

    /**
     * {@return a relation: for each part of the first kind, the indices of the adjacent parts of the second kind; no rows
     * if the record does not have the relation}
     *
     * @param relation the relation
     */
    public int[][] getRelation(GeometryRelation relation) {
        return getRelation(this, relation.number());
    }

    @Override
    protected void cleanup() {
        cleanupNative(this);
    }

    static native void createNative(GeometryRecord peer, int dimension, boolean isModel, int id, String name,
            double[][] points, double[][][] curves, double[][][] sheets, int[][][] triangles, float[][][] normals, int[] upDomains,
            int[] downDomains, int[][][] relations);

    private static native void cleanupNative(GeometryRecord peer);

    private static native int getId(GeometryRecord peer);

    private static native String getName(GeometryRecord peer);

    private static native float[] getBox(GeometryRecord peer);

    private static native int getNumPoints(GeometryRecord peer);

    private static native float[][] getPoints(GeometryRecord peer);

    private static native double[][] getSnapPoints(GeometryRecord peer);

    private static native int getNumCurves(GeometryRecord peer);

    private static native float[][] getCurve(GeometryRecord peer, int curve);

    private static native int getNumSheets(GeometryRecord peer);

    private static native float[][] getSheet(GeometryRecord peer, int sheet);

    private static native int[][] getTriangles(GeometryRecord peer, int sheet);

    private static native int getNumSubdomains(GeometryRecord peer);

    private static native int[][] getRelation(GeometryRecord peer, int relation);
}
