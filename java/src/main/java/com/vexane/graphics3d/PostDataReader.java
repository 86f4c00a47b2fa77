package com.vexane.graphics3d;

import com.vexane.base.NativeException;
import com.vexane.base.NativePeer;
import java.nio.file.Path;
import java.util.Objects;

/**
 * Reads text files into the records of which plots and solids are made.
 *
 * <p>The pages on the plot data format and the solid data format describe the files and the messages about invalid ones.
 * The producer's {@code PostDataObject.read} and {@code RenderDraw3D.read} read a file into a new record and throw an
 * exception with the message.
 */
public final class PostDataReader {
    private PostDataReader() {}

    /**
     * Reads a plot file into a record. The kind of the record decides how: as a surface in two or three dimensions or
     * as an iso surface. The groups of the file are added to those of the record, and the bounds of the record become
     * those of the file. The roles of the data arrays are those of the record and do not change.
     *
     * <p>A surface in three dimensions has the data of the file, scaled to the range from 0 to 1, in array 0. A surface
     * in two dimensions also has the third coordinate as height in array 1. An iso surface has one group per run of
     * equal data, with the value of the group in array 0 and one value per point in array 1.
     *
     * <p>The file is read as a stream; reading needs memory for the record and half as much again. A million triangles
     * take some tenths of a second.
     *
     * @param record the peer of a record
     * @param file the file
     * @return true if the file was read. False if the record is of another kind, or if the file is invalid, cannot be
     *     opened or is not a regular file; the log then has the reason, and so has standard error, except for numbers
     *     that are missing in a row. The record is unchanged, except for the groups of an iso surface that precede an
     *     invalid row
     * @throws NullPointerException if an argument is null
     * @throws IllegalStateException if the record is closed
     * @throws NativeException if the peer is not a record, or memory runs out; the record is unchanged
     */
    public static boolean readPostData(NativePeer record, Path file) {
        Objects.requireNonNull(file, "file");
        return readPostData(NativePeer.requireOpen(record, "record"), file.toString());
    }

    /**
     * Reads a solid into a record: faces as sheets, edges as curves, vertices as points, and the relations of the file.
     * Id and name of the record stay as they are; everything else is replaced. There are no subdomains, and sheets and
     * curves have no boxes; the producer's {@code RenderDraw3D.complete} derives boxes and relations.
     *
     * <p>The file is read as a stream, in two passes; reading needs memory for the record and 28 bytes per coordinate.
     * A million triangles take a tenth of a second.
     *
     * @param record the peer of a record
     * @param file the file
     * @param x is added to the x coordinates
     * @param y is added to the y coordinates
     * @param z is added to the z coordinates
     * @return true if the file was read. False, with the record unchanged, if the file is invalid, cannot be opened or is
     *     not a regular file; the log then has the reason unless a count is missing, below 1 or too small for the
     *     coordinates
     * @throws NullPointerException if an argument is null
     * @throws IllegalStateException if the record is closed
     * @throws NativeException if the peer is not a record of a solid, or memory runs out; the record is unchanged
     */
    public static boolean readDrawObjectSolid(NativePeer record, Path file, float x, float y, float z) {
        Objects.requireNonNull(file, "file");
        return readDrawObjectSolid(NativePeer.requireOpen(record, "record"), file.toString(), x, y, z);
    }

    private static native boolean readPostData(Object record, String file);

    private static native boolean readDrawObjectSolid(Object record, String path, float x, float y, float z);
}
