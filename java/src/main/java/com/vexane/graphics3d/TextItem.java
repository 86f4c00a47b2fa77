package com.vexane.graphics3d;

import com.vexane.base.NativeEnum;

/** The kinds of text in a picture, each with a font of its own. */
public enum TextItem implements NativeEnum {
    /** Labels of points and parts. */
    LABEL(0),
    /** Titles of axes. */
    AXIS_TITLE(1),
    /** Numbers along axes and grid boxes. */
    AXIS_TICK(2),
    /** Titles of legends, and names in line legends. */
    LEGEND_TITLE(3),
    /** Numbers next to legends. */
    LEGEND_TICK(4),
    /** The title of the scene. */
    TITLE(5),
    /** Letters of the axis orientation indicator. */
    AXIS_ORIENTATION(6);

    private final int number;

    TextItem(int number) {
        this.number = number;
    }

    @Override
    public int number() {
        return number;
    }
}
