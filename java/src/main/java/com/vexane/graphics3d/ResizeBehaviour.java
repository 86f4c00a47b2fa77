package com.vexane.graphics3d;

import com.vexane.base.NativeEnum;

/**
 * How a camera adapts to a canvas of another shape.
 *
 * <p>{@link #FIT} and {@link #FILL} are named for 3D cameras; a 2D camera fills the canvas under {@code FIT} and shows
 * the whole view under {@code FILL}.
 */
public enum ResizeBehaviour implements NativeEnum {
    /** The width of the view stays, its height follows. */
    WIDTH(0),
    /** The height of the view stays, its width follows. */
    HEIGHT(1),
    /** The whole view stays visible. */
    FIT(2),
    /** The view fills the canvas and is cut off where it exceeds it. */
    FILL(3),
    /** A pixel keeps its size in the world. */
    PIXELS(4),
    /** The view stays unchanged, so the picture is stretched. */
    KEEP(5);

    private final int number;

    ResizeBehaviour(int number) {
        this.number = number;
    }

    @Override
    public int number() {
        return number;
    }
}
