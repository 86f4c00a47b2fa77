package com.vexane.gallery;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertFalse;
import static org.junit.jupiter.api.Assertions.assertTrue;

import java.awt.image.BufferedImage;
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
import javax.imageio.ImageIO;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.api.io.TempDir;

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
            assertFalse(html.contains("</pre>\n<pre>"), page + " has no prose between two blocks");
        }
        assertEquals(pictures.stream().map(file -> file.getFileName().toString()).sorted().toList(),
                shown.stream().sorted().toList());
    }

    /** The texts are on the page in this order. */
    static void checkOrder(Path page, String... texts) throws IOException {
        String html = Files.readString(page);
        int from = 0;
        for (String text : texts) {
            from = html.indexOf(text, from);
            assertTrue(from >= 0, page + " lacks " + text + " or has it too early");
        }
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

    @About(title = "A <b>", text = "T", section = Section.RECIPES, pages = "x/p-q")
    private static final class Titled {}

    private static void write(Path file, String text) throws IOException {
        Files.createDirectories(file.getParent());
        Files.writeString(file, text);
    }

    @Test
    void linksToTheReferenceWhereItWasMadeAndElseToTheSources(@TempDir Path root) throws IOException {
        String program = PROGRAM.replace("java.util.List", "com.vexane.producer.Kind.Inner");
        for (String file : List.of("gallery/style.css", "docs/first-picture.md", "docs/common-tasks.md", "docs/x/p-q.md",
                "producer/java/src/main/java/com/vexane/producer/Kind.java")) {
            write(root.resolve(file), "# Title of " + file + "\n");
        }
        write(root.resolve("gallery/java/src/main/java/com/vexane/gallery/pictures/Two.java"), program);
        Path picture = root.resolve("out/site/two.png");
        Files.createDirectories(picture.getParent());
        ImageIO.write(new BufferedImage(8, 20, BufferedImage.TYPE_INT_RGB), "png", picture.toFile());
        Site site = new Site(root, picture.getParent(), List.of(new Example(Titled.class.getAnnotation(About.class), "Two",
                program, List.of(new Studio.Shot(picture, "", 20, List.of())))));

        site.write();
        String html = Files.readString(root.resolve("out/site/two.html"));
        assertTrue(html.contains("<h1>A &lt;b&gt;</h1>"), html);
        assertTrue(html.contains("<figcaption>A &lt;b&gt;.</figcaption>"), html);
        assertTrue(html.contains("<a href=\"../../docs/x/p-q.md\">Title of docs/x/p-q.md</a>"), html);
        assertTrue(html.contains("<a href=\"../../producer/java/src/main/java/com/vexane/producer/Kind.java\">Kind</a>"), html);
        assertEquals(program, Files.readString(root.resolve("out/site/programs/Two.java")));
        assertEquals(480, ImageIO.read(root.resolve("out/site/thumbnails/two.png").toFile()).getHeight());

        write(root.resolve("out/docs/cpp/md_docs_x_p_q.html"), "");
        write(root.resolve("out/docs/java/com.vexane.producer/com/vexane/producer/Kind.html"), "");
        site.write();
        html = Files.readString(root.resolve("out/site/two.html"));
        assertTrue(html.contains("href=\"../docs/cpp/md_docs_x_p_q.html\""), html);
        assertTrue(html.contains("href=\"../docs/java/com.vexane.producer/com/vexane/producer/Kind.html\""), html);
    }
}
