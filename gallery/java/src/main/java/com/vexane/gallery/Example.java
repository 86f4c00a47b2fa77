package com.vexane.gallery;

import java.util.Arrays;
import java.util.List;
import java.util.Locale;
import java.util.stream.Stream;

/**
 * A program with the pictures that it drew.
 *
 * @param about its description
 * @param className the simple name of its class
 * @param source its source
 * @param shots its pictures
 */
record Example(About about, String className, String source, List<Studio.Shot> shots) {
    /** The name of a program in the names of its files. */
    static String fileName(String className) {
        return className.replaceAll("(?<=[a-z0-9])(?=[A-Z])", "-").toLowerCase(Locale.ROOT);
    }

    String page() {
        return fileName(className) + ".html";
    }

    /** What is shown below a picture. */
    String caption(Studio.Shot shot) {
        return shot.caption().isEmpty() ? about.title() + "." : shot.caption();
    }

    /** The line of a program that wrote the last document of a picture; that of the picture if there is none. */
    static int documentsLine(Studio.Shot shot) {
        return shot.documents().stream().mapToInt(Studio.Document::line).max().orElse(shot.line());
    }

    List<Listing.Part> parts() {
        return Listing.parts(source, shots.stream()
                .flatMap(shot -> Stream.of(shot.line(), documentsLine(shot))).toList());
    }

    List<String> pages() {
        return Arrays.asList(about.pages());
    }
}
