package com.vexane.graphics3d;

import com.vexane.base.NativeEnum;

/**
 * What can be done to a part of an object. How parts look then is a matter of the rows of {@link MarkingSetups}: a part
 * shows its own marks and those of its neighbours.
 */
public enum MarkingAction implements NativeEnum {
    /** Marks the part, and everything that bounds it as adjacent. */
    PRIMARY(1),
    /** The same in the second colour. */
    SECONDARY(2),
    /** Hides the part, and what bounds only hidden parts. Hidden parts cannot be picked. */
    HIDDEN(3),
    /** Keeps the part from being picked, and what bounds only such parts. The part looks as before. */
    UNPICKABLE(4);

    private final int number;

    MarkingAction(int number) {
        this.number = number;
    }

    @Override
    public int number() {
        return number;
    }
}
