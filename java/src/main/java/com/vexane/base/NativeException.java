package com.vexane.base;

/**
 * A failure that native code reported. The object that was called keeps the state it had before the call, unless the
 * method says otherwise, and stays usable.
 *
 * <p>The message begins with the detail, which says what to correct. The key, the native source file and the line
 * follow in parentheses; they help when a fault of the library is reported:
 * {@code The plot group has no plot 6. (Internal_error_graphics3d, jni_scenegraphplotsurface2d.cpp:21)}.
 */
public class NativeException extends RuntimeException {
    private static final long serialVersionUID = 1;

    /** What kind of failure it was; one of the keys of the library, such as {@code Internal_error_graphics3d}. */
    private final String key;

    /** What went wrong, in words; may be empty. */
    private final String detail;

    /** The native source file that reported the failure. */
    private final String file;

    /** The line in that file. */
    private final int line;

    /**
     * Called by native code.
     *
     * @param key the kind of failure
     * @param detail what went wrong, or an empty string
     * @param file the native source file
     * @param line the line in it
     */
    protected NativeException(String key, String detail, String file, int line) {
        super((detail.isEmpty() ? key + " (" : detail + " (" + key + ", ") + file + ":" + line + ")");
        this.key = key;
        this.detail = detail;
        this.file = file;
        this.line = line;
    }

    /**
     * The kind of failure.
     *
     * @return a key, such as {@code Internal_error_graphics3d}
     */
    public String getKey() {
        return key;
    }

    /**
     * What went wrong, in words.
     *
     * <p>For a peer of the wrong class it has the name of the argument, the expected class and the class found. These
     * are the names of the native classes, which are those of the Java peers where there is one.
     *
     * @return the detail; may be empty
     */
    public String getDetail() {
        return detail;
    }

    /**
     * The native source file that reported the failure.
     *
     * @return a file name without folder
     */
    public String getNativeFile() {
        return file;
    }

    /**
     * The line in {@link #getNativeFile()}.
     *
     * @return the line, counted from 1
     */
    public int getNativeLine() {
        return line;
    }
}
