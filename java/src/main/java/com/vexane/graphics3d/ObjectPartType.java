package com.vexane.graphics3d;

import com.vexane.base.NativeEnum;

/** The kinds of parts that objects consist of. */
public enum ObjectPartType implements NativeEnum {
    /** The points. */
    POINT(1),
    /** The lines. */
    LINE(2),
    /** The sheets. */
    SHEET(3),
    /** The subdomains. */
    SUBDOMAIN(4),
    /** All of them. */
    ALL(5);

    private final int number;

    ObjectPartType(int number) {
        this.number = number;
    }

    @Override
    public int number() {
        return number;
    }
}
