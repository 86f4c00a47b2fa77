package com.vexane.graphics3d;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertThrows;
import static org.junit.jupiter.api.Assertions.assertTrue;

import java.io.IOException;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.List;
import org.junit.jupiter.api.AfterEach;
import org.junit.jupiter.api.BeforeEach;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.api.io.TempDir;

class ErrorLogTest {
    @TempDir Path folder;
    private Path file;

    @BeforeEach
    void openLog() {
        file = folder.resolve("log.txt");
        ErrorLog.setFlushAfterEachMessage(true);
        ErrorLog.setOutputFile(file);
    }

    @AfterEach
    void silence() {
        ErrorLog.setReportLevel(ErrorLog.Level.NONE);
        ErrorLog.setFlushAfterEachMessage(false);
    }

    private List<String> lines() throws IOException {
        return Files.readAllLines(file);
    }

    @Test
    void everyCallWritesItsEntryAtTheCallLevel() throws IOException {
        ErrorLog.setReportLevel(ErrorLog.Level.CALLS);
        ErrorLog.setActive(true);
        assertEquals(1, lines().size());
        assertTrue(lines().get(0).matches("jni_info\tgraphics:8\tnSetActive\tjni_errorlog\\.cpp;\\d+"),
                lines().get(0));
    }

    @Test
    void callsAreSilentBelowTheirLevel() throws IOException {
        ErrorLog.setReportLevel(ErrorLog.Level.INFO);
        ErrorLog.setActive(true);
        assertEquals(List.of(), lines());
    }

    @Test
    void switchingOffAndOnRestoresTheLevel() throws IOException {
        ErrorLog.setReportLevel(ErrorLog.Level.CALLS);
        ErrorLog.setActive(false);
        ErrorLog.setFlushAfterEachMessage(true);
        ErrorLog.setActive(true);
        ErrorLog.setFlushAfterEachMessage(true);
        assertEquals(List.of("nSetActive", "nFlushAfterEachMessage"),
                lines().stream().map(line -> line.split("\t")[2]).toList());
    }

    @Test
    void everyNumberThatIsNoLevelSilencesTheLog() throws IOException {
        for (int number : new int[] {0, 6, -1, Integer.MIN_VALUE, Integer.MAX_VALUE}) {
            ErrorLog.setReportLevel(ErrorLog.Level.DEBUG);
            Natives.call(ErrorLog.class, "nSetReportLevel", number);
            ErrorLog.setActive(true);
        }
        assertEquals(List.of("nSetReportLevel"),
                lines().stream().map(line -> line.split("\t")[2]).distinct().toList());
    }

    @Test
    void aNullFileIsRefusedAndTheLogGoesOn() throws IOException {
        ErrorLog.setReportLevel(ErrorLog.Level.CALLS);
        assertThrows(NullPointerException.class, () -> ErrorLog.setOutputFile(null));
        ErrorLog.setActive(true);
        assertEquals(1, lines().size());
    }
}
