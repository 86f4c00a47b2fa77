package com.vexane.gallery;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertFalse;
import static org.junit.jupiter.api.Assertions.assertTrue;

import java.io.IOException;
import java.net.URI;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.ArrayList;
import java.util.List;
import java.util.Set;
import java.util.regex.MatchResult;
import java.util.regex.Pattern;
import java.util.stream.Stream;
import org.junit.jupiter.api.Test;

class SiteTest {
    private static final Pattern TARGET = Pattern.compile("(?:href|src)=\"([^\"]*)\"");

    /** Each picture is on one page, below the code that made it, and every link leads to a file or a heading. */
    static void checkPages(Path folder, List<Path> pictures) throws IOException {
        List<Path> pages;
        try (Stream<Path> files = Files.list(folder)) {
            pages = files.filter(file -> file.toString().endsWith(".html")).toList();
        }
        List<String> shown = new ArrayList<>();
        for (Path page : pages) {
            String html = Files.readString(page);
            assertFalse(html.contains("http"), page + " needs a network");
            for (MatchResult match : TARGET.matcher(html).results().toList()) {
                URI target = page.toUri().resolve(match.group(1));
                assertTrue(Files.exists(Path.of(target.getPath())), page + " links to " + target);
                if (target.getFragment() != null) {
                    String other = Files.readString(Path.of(target.getPath()));
                    assertTrue(other.contains("id=\"" + target.getFragment() + "\""), page + " links to " + target);
                }
            }
            for (String figure : html.split("<figure>", -1)) {
                Pattern.compile("src=\"([\\w-]+\\.png)\"").matcher(figure).results().forEach(m -> shown.add(m.group(1)));
            }
            assertFalse(html.contains("<figure>") && html.indexOf("<figure>") < html.indexOf("<pre>"), page.toString());
        }
        assertEquals(pictures.stream().map(file -> file.getFileName().toString()).sorted().toList(),
                shown.stream().sorted().toList());
    }

    private static final String PROGRAM = """
            package p;

            import java.util.List;

            /** Not shown. */
            @About(title = "Two pictures",
                    text = "Not shown.")
            public final class Two implements Picture {
                // The step.
                private static final int STEP = 2; // not prose

                @Override
                public void draw(Studio studio) throws IOException {
                    // First `this`,
                    // in two lines.
                    //
                    // Another paragraph.
                    for (int i = 0; i < 2; ++i) {
                        // A comment of the code.
                        studio.view(i)
                                .save("One \\"picture\\" "
                                        + "of two.");
                    }

                    // Then that.
                    try (Plot plot = new Plot()) {
                        studio.save(plot.name());
                    }
                }

                private static void help() {}
            }
            """;

    @Test
    void cutsAProgramIntoProseAndCodeThatEndsWithItsPicture() {
        assertEquals(List.of(
                new Listing.Part(true, "The step.", 9),
                new Listing.Part(false, "private static final int STEP = 2; // not prose", 11),
                new Listing.Part(true, "First `this`, in two lines.", 17),
                new Listing.Part(true, "Another paragraph.", 17),
                new Listing.Part(false, """
                        for (int i = 0; i < 2; ++i) {
                            // A comment of the code.
                            studio.view(i)
                                    .save(\u2026);
                        }""", 23),
                new Listing.Part(true, "Then that.", 25),
                new Listing.Part(false, """
                        try (Plot plot = new Plot()) {
                            studio.save(plot.name());
                        }""", 28),
                new Listing.Part(false, "private static void help() {}", 31)),
                Listing.parts(PROGRAM, Set.of(20, 27)));
    }

    @Test
    void leavesOutBlocksOfBracesAlone() {
        String program = "final class A {\n    @Override\n    public void draw(Studio studio) {\n        {\n"
                + "            a();\n            b();\n        }\n    }\n}\n";
        assertEquals(List.of(new Listing.Part(false, "{\n    a();\n    b();\n}", 7)), Listing.parts(program, Set.of(6)));
        assertEquals(List.of(new Listing.Part(false, "{\n    a();", 5), new Listing.Part(false, "    b();\n}", 7)),
                Listing.parts(program, Set.of(5)));
    }

    @Test
    void colorsTokensAndEscapesTheRest() {
        assertEquals("<span class=\"keyword\">new</span> <span class=\"type\">Map</span>&lt;K, <span class=\"type\">Int</span>&gt;"
                + "() &amp;&amp; STEP", JavaColors.html("new Map<K, Int>() && STEP"));
        assertEquals("f(<span class=\"text\">&quot;a // \\&quot; &lt;new&gt; $1&quot;</span>, "
                + "<span class=\"text\">'&quot;'</span>)", JavaColors.html("f(\"a // \\\" <new> $1\", '\"')"));
        assertEquals("<span class=\"annotation\">@Override</span> x <span class=\"comment\">// int &quot;</span>\n"
                + "<span class=\"comment\">/* 2\n*/</span>", JavaColors.html("@Override x // int \"\n/* 2\n*/"));
        assertEquals("a1 + <span class=\"number\">0xffL</span> - <span class=\"number\">1.5e-3f</span>",
                JavaColors.html("a1 + 0xffL - 1.5e-3f"));
    }

    @Test
    void setsNamesBetweenBackticksAsCode() {
        assertEquals("a &lt; <code>b &amp;&amp; &quot;c&quot;</code> &gt; d", Html.prose("a < `b && \"c\"` > d"));
    }
}
