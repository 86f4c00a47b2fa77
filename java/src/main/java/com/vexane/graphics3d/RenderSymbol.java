package com.vexane.graphics3d;

import com.vexane.base.NativeEnum;

/** The symbol that marks points of a line in a graph. */
public enum RenderSymbol implements NativeEnum {
    /** No symbol. */
    NONE(-1),
    /** A disc. */
    CIRCLE(0),
    /** A square. */
    SQUARE(1),
    /** A square on its corner. */
    DIAMOND(2),
    /** A triangle pointing upwards. */
    TRIANGLE_UP(3),
    /** A triangle pointing downwards. */
    TRIANGLE_DOWN(4),
    /** An upright cross. */
    PLUS(5),
    /** A diagonal cross. */
    CROSS(6),
    /** An upright and a diagonal cross. */
    STAR(7);

    private final int number;

    RenderSymbol(int number) {
        this.number = number;
    }

    @Override
    public int number() {
        return number;
    }
}
