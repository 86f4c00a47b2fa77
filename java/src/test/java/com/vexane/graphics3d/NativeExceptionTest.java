package com.vexane.graphics3d;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertThrows;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.vexane.base.NativeException;
import java.util.List;
import org.junit.jupiter.api.BeforeAll;
import org.junit.jupiter.api.Test;

/** How failures of natives appear in Java. */
class NativeExceptionTest {
    @BeforeAll
    static void load() {
        new TestRenderer().close();
    }

    private static List<Object> partsOf(NativeException e) {
        return List.of(e.getKey(), e.getDetail(), e.getNativeFile(), e.getNativeLine(), e.getMessage());
    }

    private static NativeException failureOf(int kind) {
        return assertThrows(NativeException.class, () -> TestRenderer.fail(kind));
    }

    @Test
    void eachKindOfFailureHasItsKeyDetailAndLocation() {
        assertEquals(List.of("Some_key", "why", "place.cpp", 17, "why (Some_key, place.cpp:17)"),
                partsOf(failureOf(0)));
        int line = failureOf(1).getNativeLine();
        String place = "testrenderer.cpp:" + line + ")";
        String memory = "Out_of_memory_graphics3d";
        String internal = "Internal_error_graphics3d";
        assertTrue(line > 1);
        assertEquals(List.of(memory, "", "testrenderer.cpp", line, memory + " (" + place), partsOf(failureOf(1)));
        assertEquals(
                List.of(internal, "in words \u00e4", "testrenderer.cpp", line,
                        "in words \u00e4 (" + internal + ", " + place),
                partsOf(failureOf(2)));
        assertEquals(List.of(internal, "", "testrenderer.cpp", line, internal + " (" + place), partsOf(failureOf(3)));
    }

    @Test
    void aFailingNativeReturnsTheZeroOfItsType() {
        for (int kind = 0; kind < 4; ++kind) {
            assertTrue(TestRenderer.isZeroAfterFailure(kind), "kind " + kind);
        }
    }
}
