package com.vexane.graphics3d;

import com.vexane.base.NativeEnum;

/** How a line of a graph is drawn. */
public enum LineStyle implements NativeEnum {
    /** No line; symbols are still drawn. */
    NONE(-1),
    /** A continuous line. */
    SOLID(0),
    /** Dashes. */
    DASHED(1),
    /** Dots. */
    DOTTED(2),
    /** Dashes and dots in turn. */
    DASH_DOT(3);

    private final int number;

    LineStyle(int number) {
        this.number = number;
    }

    @Override
    public int number() {
        return number;
    }
}
