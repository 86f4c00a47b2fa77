package com.vexane.producer;

import java.nio.file.Path;
import java.util.Objects;

/** The geometry of a draw object in space; {@link GeometryBuilder3D#buildDraw} makes one, {@link #read} reads a solid. */
public final class RenderDraw3D extends GeometryRecord {
    RenderDraw3D(GeometryParts parts, int id, String name) {
        parts.createNative(this, 3, false, id, name);
    }

    /**
     * Reads a solid from a text file into a new record, and completes it. The page on the solid data format describes
     * the files.
     *
     * @param id the id of the draw object that the record is for
     * @param name the object's name, its label
     * @param file the file
     * @return the record, to be closed by the caller
     * @throws PlotFileException if the file cannot be opened, is not a regular file, or is invalid; the exception has
     *     the reason and, if there is one, the row
     * @throws com.vexane.base.NativeException if memory runs out
     */
    public static RenderDraw3D read(int id, String name, Path file) throws PlotFileException {
        Objects.requireNonNull(file, "file");
        RenderDraw3D record = new GeometryBuilder3D().buildDraw(id, name);
        int[] row = new int[1];
        String reason;
        try {
            reason = read(record, file.toString(), row);
        } catch (Throwable failure) {
            record.close();
            throw failure;
        }
        if (reason != null) {
            record.close();
            throw new PlotFileException(reason, file, row[0]);
        }
        return record;
    }

    /**
     * Derives what the record lacks and its other content determines: boxes, and relations as {@link GeometryBuilder3D}
     * does. This is for a record that {@link com.vexane.graphics3d.PostDataReader} has filled, which can be made by
     * {@code new GeometryBuilder3D().buildDraw(id, name)}. What is there stays as it is.
     *
     * @throws com.vexane.base.NativeException if memory runs out
     */
    public void complete() {
        complete(this);
    }

    /** Returns what is wrong and stores the row, or 0, in an array of one entry; null if the file was read. */
    private static native String read(RenderDraw3D peer, String file, int[] row);

    private static native void complete(RenderDraw3D peer);
}
