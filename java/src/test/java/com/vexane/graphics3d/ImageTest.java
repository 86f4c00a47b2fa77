package com.vexane.graphics3d;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertFalse;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.vexane.base.NativePeer;
import org.junit.jupiter.api.Test;

class ImageTest {
    @Test
    void imagesAreClosedOnceAndForGood() {
        Image first = new Image();
        Image second = new Image();
        assertFalse(first.isClosed());
        first.close();
        first.close();
        assertTrue(first.isClosed());
        assertEquals(1, NativePeer.countOpen().get("Image"));
        Natives.call(Image.class, "cleanupNative", second);
        Natives.call(Image.class, "cleanupNative", second);
        assertTrue(second.isClosed());
        second.close();
        Natives.call(Image.class, "cleanupNative", (Object) null);
    }
}
