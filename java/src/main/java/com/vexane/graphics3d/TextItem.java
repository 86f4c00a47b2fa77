package com.vexane.graphics3d;

/** The kinds of text that a picture holds, each with a font of its own. */
public enum TextItem {
    /** Labels of points and parts. */
    LABEL(0),
    /** Titles of axes. */
    AXIS_TITLE(1),
    /** Numbers along axes and grid boxes. */
    AXIS_TICK(2),
    /** Titles of legends, and names in line legends. */
    LEGEND_TITLE(3),
    /** Numbers beside legends. */
    LEGEND_TICK(4),
    /** The title of the scene. */
    TITLE(5),
    /** Letters of the axis orientation indicator. */
    AXIS_ORIENTATION(6);

    private final int number;

    TextItem(int number) {
        this.number = number;
    }

    /**
     * The number by which native code knows the kind of text.
     *
     * @return 0 to 6
     */
    public int number() {
        return number;
    }
}
