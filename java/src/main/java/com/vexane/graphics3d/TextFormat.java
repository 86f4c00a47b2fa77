package com.vexane.graphics3d;

import com.vexane.base.NativeEnum;

/** How the text of a title is written. */
public enum TextFormat implements NativeEnum {
    /** Plain text, in which braces and backslashes are ordinary characters. */
    PLAIN(1),
    /** Text in the markup of titles, which is used unchanged. */
    MARKUP(2);

    private final int number;

    TextFormat(int number) {
        this.number = number;
    }

    @Override
    public int number() {
        return number;
    }
}
