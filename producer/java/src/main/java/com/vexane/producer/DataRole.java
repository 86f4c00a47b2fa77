package com.vexane.producer;

import com.vexane.base.NativeEnum;
import java.util.Objects;

/**
 * What a plot uses a data array for. A record specifies the data array of each role; one array may have several roles.
 *
 * <p>A principal plot uses the nine direction roles and the three vector roles in its own way, see
 * {@link #principalLength} and {@link #principalDirection}.
 */
public enum DataRole implements NativeEnum {
    /** The values that the colour table shows. */
    COLOR(0),
    /** Heights that raise a plot in the plane, and the y values of a graph. */
    HEIGHT(4),
    /** Radii of spheres and tubes, distances from the line of a ribbon to its sides. */
    RADIUS(5),
    /** First component of a vector field. */
    VECTOR_X(7),
    /** Second component of a vector field. */
    VECTOR_Y(8),
    /** Third component of a vector field; arrows without it are drawn in the plane. */
    VECTOR_Z(9),
    /** First component of the first direction, in which a ribbon extends. */
    FIRST_DIRECTION_X(10),
    /** Second component of the first direction. */
    FIRST_DIRECTION_Y(11),
    /** Third component of the first direction. */
    FIRST_DIRECTION_Z(12),
    /** First component of the second direction, the normal of a ribbon. */
    SECOND_DIRECTION_X(13),
    /** Second component of the second direction. */
    SECOND_DIRECTION_Y(14),
    /** Third component of the second direction. */
    SECOND_DIRECTION_Z(15),
    /** First component of the third direction. */
    THIRD_DIRECTION_X(16),
    /** Second component of the third direction. */
    THIRD_DIRECTION_Y(17),
    /** Third component of the third direction. */
    THIRD_DIRECTION_Z(18),
    /** The levels of iso surfaces and contours: one value per point, or one for the whole group. */
    ISO_LEVEL(19);

    /** The number of role slots in a record; some have no meaning to any plot. */
    static final int COUNT = 22;

    private final int number;

    DataRole(int number) {
        this.number = number;
    }

    /** {@return the number of the role in native code, 0 to 21} */
    @Override
    public int number() {
        return number;
    }

    /**
     * {@return the role of the length of an axis in a principal plot}
     *
     * @param axis 0 to 2
     * @throws IndexOutOfBoundsException if there is no such axis
     */
    public static DataRole principalLength(int axis) {
        return NativeEnum.of(DataRole.class, VECTOR_X.number + Objects.checkIndex(axis, 3));
    }

    /**
     * {@return the role of a component of the direction of an axis in a principal plot}
     *
     * @param axis 0 to 2
     * @param component 0 for x, 1 for y, 2 for z
     * @throws IndexOutOfBoundsException if there is no such axis or component
     */
    public static DataRole principalDirection(int axis, int component) {
        // The x components of all three axes come first, then the y components, then the z components.
        return NativeEnum.of(DataRole.class,
                FIRST_DIRECTION_X.number + 3 * Objects.checkIndex(component, 3) + Objects.checkIndex(axis, 3));
    }
}
