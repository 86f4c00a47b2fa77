package com.vexane.base;

/**
 * An enumeration whose constants have numbers in native code.
 *
 * <p>The numbers are part of the native interface. They are unique in their enumeration, may have gaps, and are not
 * always those of the C++ enumeration: natives translate. Natives take and return numbers, all other methods constants.
 */
public interface NativeEnum {
    /** {@return the number of this constant in native code} */
    int number();

    /**
     * {@return the constant with a number}
     *
     * @param <E> the enumeration
     * @param type the class of the enumeration
     * @param number the number that native code has returned
     * @throws IllegalStateException if no constant has the number
     */
    static <E extends Enum<E> & NativeEnum> E of(Class<E> type, int number) {
        for (E constant : type.getEnumConstants()) {
            if (constant.number() == number) {
                return constant;
            }
        }
        throw new IllegalStateException(type.getName() + " has no constant with the number " + number + ".");
    }
}
