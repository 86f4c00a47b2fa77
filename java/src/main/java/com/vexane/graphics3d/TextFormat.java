package com.vexane.graphics3d;

/** How a text that becomes a title is written. */
public enum TextFormat {
    /** Plain text, in which braces and backslashes are ordinary characters. */
    PLAIN(1),
    /** Text in the markup of titles, taken as it is. */
    MARKUP(2);

    private final int number;

    TextFormat(int number) {
        this.number = number;
    }

    /**
     * The number by which native code knows the format.
     *
     * @return 1 or 2
     */
    public int number() {
        return number;
    }
}
