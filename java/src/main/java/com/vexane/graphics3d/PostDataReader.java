package com.vexane.graphics3d;

import com.vexane.base.NativeException;
import com.vexane.base.NativePeer;
import java.nio.file.Path;
import java.util.Objects;

/**
 * Reads text files into the records of which plots are made.
 *
 * <p>The page on the plot data format describes the files and the messages about invalid ones. The producer's {@code
 * PostDataObject.read} reads a file into a new record and throws an exception with the message.
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

    private static native boolean readPostData(Object record, String file);
}
