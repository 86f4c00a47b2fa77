package com.vexane.graphics3d;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertSame;
import static org.junit.jupiter.api.Assertions.assertThrows;

import com.vexane.base.NativeEnum;
import org.junit.jupiter.api.Test;

class NativeEnumTest {
    private static <E extends Enum<E> & NativeEnum> void assertFound(Class<E> type) {
        for (E constant : type.getEnumConstants()) {
            assertSame(constant, NativeEnum.of(type, constant.number()));
        }
    }

    @Test
    void aNumberGivesItsConstantEvenIfNumbersStartLateOrHaveGaps() {
        assertFound(SceneGraphPlot.Kind.class);
        assertFound(LightSource.Type.class);
        assertFound(CanvasPickSettings.Mask.class);
        assertSame(PickedObject.PartType.POINT, NativeEnum.of(PickedObject.PartType.class, 4));
    }

    @Test
    void aNumberWithoutConstantIsRefusedByName() {
        IllegalStateException refused =
                assertThrows(IllegalStateException.class, () -> NativeEnum.of(LightSource.Type.class, 0));
        assertEquals("com.vexane.graphics3d.LightSource$Type has no constant with the number 0.", refused.getMessage());
    }
}
