package com.vexane.graphics3d;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertThrows;

import com.vexane.base.NativeException;
import com.vexane.graphics3d.MarkingSetups.Marking;
import com.vexane.graphics3d.MarkingSetups.Mode;
import com.vexane.graphics3d.MarkingSetups.Row;
import org.junit.jupiter.api.AfterEach;
import org.junit.jupiter.api.Test;

class MarkingSetupsTest {
    private static final Marking NORMAL = new Marking(0xd9d9d9, 0, 1.0f, 0, 5.0f, 0, 0);
    private static final Marking PRIMARY = new Marking(0xf28c8c, 0xff0000, 3.0f, 0xff0000, 7.0f, 0xff0000, 2);

    @AfterEach
    void restore() {
        try (MarkingSetups setups = MarkingSetups.connect()) {
            setups.setMarking(Mode.FIRST, Row.NORMAL, NORMAL);
            setups.setMarking(Mode.FIRST, Row.PRIMARY, PRIMARY);
        }
    }

    @Test
    void allPeersReferToTheSameTables() {
        Marking marking = new Marking(0x12345678, 0xff0000ff, 2.5f, 0x010203, 3.5f, -1, -4);
        try (MarkingSetups one = MarkingSetups.connect();
                MarkingSetups other = MarkingSetups.connect()) {
            assertEquals(PRIMARY, other.getMarking(Mode.FIRST, Row.PRIMARY));
            one.setMarking(Mode.FIRST, Row.PRIMARY, marking);
            Marking read = new Marking(0x345678, 0x0000ff, 2.5f, 0x010203, 3.5f, 0xffffff, -4);
            assertEquals(read, other.getMarking(Mode.FIRST, Row.PRIMARY));
            assertEquals(PRIMARY, other.getMarking(Mode.SECOND, Row.PRIMARY));
            assertEquals(new Marking(0xd9d9d9, 0x141414, 1.5f, 0, 5.0f, 0, 0),
                    other.getMarking(Mode.THIRD, Row.NORMAL));
        }
    }

    @Test
    void aHiddenRowContainsZerosUntilItIsSetAgain() {
        try (MarkingSetups setups = MarkingSetups.connect()) {
            setups.setMarkingHidden(Mode.FIRST, Row.PRIMARY);
            assertEquals(new Marking(0, 0, 0.0f, 0, 0.0f, 0, 0), setups.getMarking(Mode.FIRST, Row.PRIMARY));
            setups.setMarking(Mode.FIRST, Row.PRIMARY, PRIMARY);
            assertEquals(PRIMARY, setups.getMarking(Mode.FIRST, Row.PRIMARY));
        }
    }

    @Test
    void invalidModesAndRowsMeanTheFirst() {
        try (MarkingSetups setups = MarkingSetups.connect()) {
            Natives.call(MarkingSetups.class, "setMarking", setups, 7, 1, 1, 2, 3.0f, 4, 5.0f, 6, 7);
            assertEquals(new Marking(1, 2, 3.0f, 4, 5.0f, 6, 7), setups.getMarking(Mode.FIRST, Row.PRIMARY));
            Natives.call(MarkingSetups.class, "setMarkingHidden", setups, Integer.MIN_VALUE, 9);
            assertEquals(new Marking(0, 0, 0.0f, 0, 0.0f, 0, 0), setups.getMarking(Mode.FIRST, Row.NORMAL));
        }
    }

    @Test
    void nullAndClosedPeersAreRefused() {
        MarkingSetups closed = MarkingSetups.connect();
        closed.close();
        assertThrows(NativeException.class, () -> closed.getMarking(Mode.FIRST, Row.NORMAL));
        assertThrows(NativeException.class, () -> Natives.call(MarkingSetups.class, "setMarkingHidden", null, 1, 1));
        try (MarkingSetups setups = MarkingSetups.connect()) {
            assertThrows(NullPointerException.class, () -> setups.setMarking(Mode.FIRST, Row.NORMAL, null));
            assertThrows(NullPointerException.class, () -> setups.getMarking(null, Row.NORMAL));
        }
    }
}
