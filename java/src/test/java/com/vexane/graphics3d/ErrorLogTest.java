package com.vexane.graphics3d;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertThrows;
import static org.junit.jupiter.api.Assertions.assertTrue;

import java.io.IOException;
import java.util.List;
import org.junit.jupiter.api.Test;

class ErrorLogTest {
    @Test
    void everyCallWritesItsEntryAtTheCallLevel() throws IOException {
        List<String> lines = CapturedLog.linesOf(ErrorLog.Level.CALLS, () -> ErrorLog.setActive(true));
        assertEquals(1, lines.size());
        assertTrue(lines.get(0).matches("jni_info\tgraphics:8\tnSetActive\tjni_errorlog\\.cpp;\\d+"), lines.get(0));
    }

    @Test
    void callsAreSilentBelowTheirLevel() throws IOException {
        assertEquals(List.of(), CapturedLog.linesOf(ErrorLog.Level.INFO, () -> ErrorLog.setActive(true)));
    }

    @Test
    void switchingOffAndOnRestoresTheLevel() throws IOException {
        assertEquals(List.of("nSetActive", "nFlushAfterEachMessage"),
                CapturedLog.messagesOf(ErrorLog.Level.CALLS, () -> {
                    ErrorLog.setActive(false);
                    ErrorLog.setFlushAfterEachMessage(true);
                    ErrorLog.setActive(true);
                    ErrorLog.setFlushAfterEachMessage(true);
                }));
    }

    @Test
    void everyInvalidLevelSilencesTheLog() throws IOException {
        for (int number : new int[] {0, 6, -1, Integer.MIN_VALUE, Integer.MAX_VALUE}) {
            assertEquals(List.of("nSetReportLevel"), CapturedLog.messagesOf(ErrorLog.Level.DEBUG, () -> {
                Natives.call(ErrorLog.class, "nSetReportLevel", number);
                ErrorLog.setActive(true);
            }), "level " + number);
        }
    }

    @Test
    void aNullFileIsRefusedAndTheLogContinues() throws IOException {
        assertEquals(List.of("nSetActive"), CapturedLog.messagesOf(ErrorLog.Level.CALLS, () -> {
            assertThrows(NullPointerException.class, () -> ErrorLog.setOutputFile(null));
            ErrorLog.setActive(true);
        }));
    }
}
