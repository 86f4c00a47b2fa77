package com.vexane.graphics3d;

/**
 * How a camera adapts to a canvas of another shape.
 *
 * <p>{@link #FIT} and {@link #FILL} say what a 3D camera does; a 2D camera fills with the first and fits with the
 * second.
 */
public enum ResizeBehaviour {
    /** The width of the view stays, its height follows. */
    WIDTH(0),
    /** The height of the view stays, its width follows. */
    HEIGHT(1),
    /** The whole view stays visible. */
    FIT(2),
    /** The view fills the canvas and loses what lies outside. */
    FILL(3),
    /** A pixel keeps its size in the world. */
    PIXELS(4),
    /** The view stays as it is, so the picture stretches. */
    KEEP(5);

    private final int number;

    ResizeBehaviour(int number) {
        this.number = number;
    }

    /**
     * The number by which native code knows the behaviour.
     *
     * @return 0 to 5
     */
    public int number() {
        return number;
    }

    static ResizeBehaviour of(int number) {
        return values()[number];
    }
}
