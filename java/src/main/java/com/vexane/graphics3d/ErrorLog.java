package com.vexane.graphics3d;

import com.vexane.base.NativeLibrary;
import java.nio.file.Path;

/**
 * The log of the native library: one line a message, silent until a level is set.
 *
 * <p>A line holds, with tabs between them, the level's name, the module, the message, and source file and line. The
 * log belongs to the process and goes to standard error until a file is given.
 */
public final class ErrorLog {
    /** How much is written: the level named and all above it. */
    public enum Level {
        /** Nothing is written. */
        NONE(0),
        /** Bad input that makes the library skip a step. */
        ERROR(1),
        /** Oddities that were handled. */
        WARNING(2),
        /** Life cycle and progress of the model's objects. */
        INFO(3),
        /** Every call from Java. */
        CALLS(4),
        /** Whatever else is there. */
        DEBUG(5);

        private final int number;

        Level(int number) {
            this.number = number;
        }

        /**
         * The number by which native code knows the level.
         *
         * @return 0 to 5
         */
        public int number() {
            return number;
        }
    }

    private ErrorLog() {}

    /**
     * Writes into a file from now on and switches the log on at the level set last. The file is truncated; one that
     * cannot be opened leaves the log off until another is given.
     *
     * @param file the file
     */
    public static void setOutputFile(Path file) {
        NativeLibrary.ensureLoaded();
        nSetOutputFile(file.toString());
    }

    /**
     * Whether every line is written out at once, which is slow but loses nothing if the process dies.
     *
     * @param flush true to write out every line
     */
    public static void setFlushAfterEachMessage(boolean flush) {
        NativeLibrary.ensureLoaded();
        nFlushAfterEachMessage(flush);
    }

    /**
     * Sets the level and switches the log on at it.
     *
     * @param level the level; {@link Level#NONE} silences the log
     */
    public static void setReportLevel(Level level) {
        NativeLibrary.ensureLoaded();
        nSetReportLevel(level.number());
    }

    /**
     * Switches the log off, or on again at the level set last.
     *
     * @param active true to switch it on
     */
    public static void setActive(boolean active) {
        NativeLibrary.ensureLoaded();
        nSetActive(active);
    }

    private static native boolean nSetOutputFile(String path);

    private static native void nFlushAfterEachMessage(boolean flush);

    private static native void nSetReportLevel(int level);

    private static native void nSetActive(boolean active);
}
