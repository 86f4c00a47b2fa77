package com.vexane.graphics3d;

import java.io.IOException;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.List;

/** What the library writes to its log, which is silent before and after. */
final class CapturedLog {
    private CapturedLog() {}

    /** The lines that the given calls write at a level. */
    static List<String> linesOf(ErrorLog.Level level, Runnable calls) throws IOException {
        Path file = Files.createTempFile("log", ".txt");
        try {
            ErrorLog.setOutputFile(file);
            ErrorLog.setFlushAfterEachMessage(true);
            ErrorLog.setReportLevel(level);
            calls.run();
            return Files.readAllLines(file);
        } finally {
            ErrorLog.setReportLevel(ErrorLog.Level.NONE);
            ErrorLog.setFlushAfterEachMessage(false);
            Files.delete(file);
        }
    }

    /** The texts of those lines. */
    static List<String> messagesOf(ErrorLog.Level level, Runnable calls) throws IOException {
        return linesOf(level, calls).stream().map(line -> line.split("\t")[2]).toList();
    }
}
