package com.vexane.graphics3d;

import com.vexane.base.NativeException;
import com.vexane.base.NativePeer;
import java.nio.file.Path;
import java.util.Objects;

/**
 * Reads text files into the records of which plots are made.
 *
 * <p>What a file holds, and what is said about a wrong one, is told in the page on the plot data format.
 */
public final class PostDataReader {
    private PostDataReader() {}

    /**
     * Reads a plot file into a record: a surface in two or three dimensions or an iso surface, as the record's kind
     * says. The groups of the file are added to those that the record has, and the record's bounds become those of the
     * file. Which data array plays which role is told by the record and is left as it is.
     *
     * <p>A surface in three dimensions has the file's data, scaled to the range from 0 to 1, in array 0. A surface in
     * two dimensions has the third coordinate as height in array 1 as well. An iso surface has a group for each run of
     * equal data, the value of the group in array 0 and a value for each point in array 1.
     *
     * <p>The file is read as a stream; memory is needed for the record and half as much besides. A million triangles
     * take some tenths of a second.
     *
     * @param record the peer of a record
     * @param file the file
     * @return true if the file was read. False if the file is wrong, cannot be opened or is no regular file, which is
     *     reported in the log and, except for numbers that are missing in a row, on standard error, or if the record's
     *     kind is none of those named. The record is unchanged then, except for the groups of an iso surface before a
     *     wrong row
     * @throws NullPointerException if an argument is null
     * @throws IllegalStateException if the record is closed
     * @throws NativeException if the peer is not that of a record, or memory runs out; the record is unchanged
     */
    public static boolean readPostData(NativePeer record, Path file) {
        Objects.requireNonNull(file, "file");
        return readPostData(NativePeer.requireOpen(record, "record"), file.toString());
    }

    private static native boolean readPostData(Object record, String file);
}
