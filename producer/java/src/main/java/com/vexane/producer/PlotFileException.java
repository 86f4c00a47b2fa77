package com.vexane.producer;

import java.io.IOException;
import java.nio.file.Path;
import java.util.OptionalInt;

/**
 * A file of a plot or a solid that cannot be opened or is invalid. The pages on the plot data format and on the solid data
 * format list the reasons with a sample of each.
 */
public class PlotFileException extends IOException {
    private static final long serialVersionUID = 1;

    /** The reason. */
    private final String reason;

    /** The path, as it was given. */
    private final String file;

    /** The row, from 1, or 0 for the file as a whole. */
    private final int row;

    PlotFileException(String reason, Path file, int row) {
        super(reason + " (" + file + (row == 0 ? "" : ", row " + row) + ")");
        this.reason = reason;
        this.file = file.toString();
        this.row = row;
    }

    /** {@return the reason, as in the log} {@link #getMessage()} adds file and row. */
    public String getReason() {
        return reason;
    }

    /** {@return the file, by the path that was given} */
    public Path getFile() {
        return Path.of(file);
    }

    /** {@return the invalid row, counted from 1; empty if the reason refers to the file as a whole} */
    public OptionalInt getRow() {
        return row == 0 ? OptionalInt.empty() : OptionalInt.of(row);
    }
}
