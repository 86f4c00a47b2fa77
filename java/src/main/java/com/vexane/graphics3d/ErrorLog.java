package com.vexane.graphics3d;

import com.vexane.base.NativeEnum;
import com.vexane.base.NativeLibrary;
import java.nio.file.Path;

/**
 * The log of the native library: one line per message, silent until a level is set.
 *
 * <p>A line has the name of the level, the module, the message, and source file and line, separated by tabs. The log
 * belongs to the process and goes to standard error until a file is set. All threads may log; each line is written
 * whole.
 */
public final class ErrorLog {
    /** The levels of messages. The log writes those of its level and of all levels listed before it. */
    public enum Level implements NativeEnum {
        /** Nothing is written. */
        NONE(0),
        /** Bad input that makes the library skip a step. */
        ERROR(1),
        /** Unusual situations that were handled. */
        WARNING(2),
        /** Life cycle and progress of the model's objects. */
        INFO(3),
        /** Every call from Java. */
        CALLS(4),
        /** Messages for the development of the library. */
        DEBUG(5);

        private final int number;

        Level(int number) {
            this.number = number;
        }

        @Override
        public int number() {
            return number;
        }
    }

    private ErrorLog() {}

    /**
     * Writes into a file from now on and switches the log on at the level set last. The file is truncated; a file that
     * cannot be opened leaves the log off until another is set.
     *
     * @param file the file
     * @throws NullPointerException if the file is null
     */
    public static void setOutputFile(Path file) {
        NativeLibrary.ensureLoaded();
        nSetOutputFile(file.toString());
    }

    /**
     * Sets whether every line is written at once, which is slow but loses nothing if the process crashes.
     *
     * @param flush true to write every line at once
     */
    public static void setFlushAfterEachMessage(boolean flush) {
        NativeLibrary.ensureLoaded();
        nFlushAfterEachMessage(flush);
    }

    /**
     * Sets the level and switches the log on at it.
     *
     * @param level the level; {@link Level#NONE} silences the log
     * @throws NullPointerException if the level is null
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
