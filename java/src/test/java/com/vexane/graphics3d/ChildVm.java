package com.vexane.graphics3d;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertFalse;

import java.io.IOException;
import java.nio.charset.StandardCharsets;
import java.nio.file.Path;
import java.util.ArrayList;
import java.util.List;

/** A separate virtual machine: for tests that need a fresh process, or that would crash theirs if they failed. */
record ChildVm(int exitStatus, String output) {
    /** Runs a main class in a folder and waits for its end. */
    static ChildVm run(Path folder, List<String> options, Class<?> main, String... arguments)
            throws IOException, InterruptedException {
        List<String> command = new ArrayList<>();
        command.add(Path.of(System.getProperty("java.home"), "bin", "java").toString());
        command.addAll(options);
        command.addAll(List.of("-cp", System.getProperty("java.class.path"), main.getName()));
        command.addAll(List.of(arguments));
        Process process = new ProcessBuilder(command).directory(folder.toFile()).redirectErrorStream(true).start();
        String output = new String(process.getInputStream().readAllBytes(), StandardCharsets.UTF_8);
        return new ChildVm(process.waitFor(), output);
    }

    /** The same with the native libraries of this process, and with assertions. The program must exit with status 0. */
    static String runWell(Path folder, List<String> options, Class<?> main, String... arguments)
            throws IOException, InterruptedException {
        List<String> all = new ArrayList<>(List.of("-ea", "-XX:-CreateCoredumpOnCrash",
                "-Dcom.vexane.library.path=" + System.getProperty("com.vexane.library.path")));
        all.addAll(options);
        ChildVm ended = run(folder, all, main, arguments);
        assertEquals(0, ended.exitStatus, ended.output);
        assertFalse(ended.output.contains("in native method"), ended.output);
        return ended.output;
    }
}
