package com.vexane.graphics3d;

import com.vexane.base.NativeLibrary;
import java.lang.reflect.InvocationTargetException;
import java.lang.reflect.Method;
import java.lang.reflect.Modifier;
import java.util.Arrays;

/** Calls private natives with arguments that their public methods would refuse, as a malicious program could. */
final class Natives {
    private Natives() {}

    /**
     * Calls the only native of a class with that name and number of arguments.
     *
     * @throws RuntimeException what the native throws
     */
    static Object call(Class<?> type, String name, Object... arguments) {
        NativeLibrary.ensureLoaded();
        Method method = Arrays.stream(type.getDeclaredMethods())
                .filter(m -> m.getName().equals(name) && Modifier.isNative(m.getModifiers())
                        && m.getParameterCount() == arguments.length)
                .findAny().orElseThrow();
        method.setAccessible(true);
        try {
            return method.invoke(null, arguments);
        } catch (InvocationTargetException e) {
            if (e.getCause() instanceof RuntimeException failure) {
                throw failure;
            }
            throw new AssertionError(e.getCause());
        } catch (IllegalAccessException e) {
            throw new AssertionError(e);
        }
    }
}
