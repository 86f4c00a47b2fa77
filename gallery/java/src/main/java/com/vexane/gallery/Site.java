package com.vexane.gallery;

import java.awt.Image;
import java.awt.image.BufferedImage;
import java.io.IOException;
import java.io.UncheckedIOException;
import java.nio.file.Files;
import java.nio.file.Path;
import java.nio.file.StandardCopyOption;
import java.util.ArrayDeque;
import java.util.ArrayList;
import java.util.Comparator;
import java.util.Deque;
import java.util.LinkedHashMap;
import java.util.List;
import java.util.Map;
import java.util.TreeSet;
import java.util.regex.MatchResult;
import java.util.regex.Pattern;
import java.util.stream.Collectors;
import java.util.stream.Stream;
import javax.imageio.ImageIO;

/** The pages of the gallery: plain HTML and one style sheet, which a browser shows without a network. */
final class Site {
    private static final int THUMBNAIL_WIDTH = 480;
    /** The widest picture on a page, in pixels of the page. */
    private static final int PICTURE_WIDTH = 960;
    private static final String SOURCES = "gallery/java/src/main/java/com/vexane/gallery";
    private static final Pattern IMPORT = Pattern.compile("(?m)^import (com\\.vexane\\.[a-z0-9.]+)\\.([A-Z]\\w*)");
    private static final String HEAD = """
            <!DOCTYPE html>
            <html lang="en">
            <head>
            <meta charset="utf-8">
            <meta name="viewport" content="width=device-width, initial-scale=1">
            <meta name="color-scheme" content="light dark">
            <title>%s</title>
            <link rel="stylesheet" href="style.css">
            </head>
            <body>
            """;
    private static final String INTRODUCTION = """
            <header>
            <h1>Vexane Graphics 3D</h1>
            <p class="lead">The model layer of an interactive 2D and 3D visualisation component for simulation software:
            scenes, plots, colour scales and legends, kept in one shared library and used from Java. Each example below
            is a small program that turns data into such a scene and draws it with the reference renderer, which needs no
            screen.</p>
            """;

    private final Path root;
    private final Path output;
    private final List<Example> examples;

    /**
     * Makes a site.
     *
     * @param root the folder of the project, to which the pages link
     * @param output the folder of the site, where the pictures are
     * @param examples the programs in the order of their sections
     */
    Site(Path root, Path output, List<Example> examples) {
        this.root = root.toAbsolutePath().normalize();
        this.output = output.toAbsolutePath().normalize();
        this.examples = examples.stream().sorted(Comparator.comparing(example -> example.about().section())).toList();
    }

    /** Writes the pages, the thumbnails and the programs. */
    void write() throws IOException {
        Files.createDirectories(output.resolve("thumbnails"));
        Files.createDirectories(output.resolve("programs"));
        Files.copy(root.resolve("gallery/style.css"), output.resolve("style.css"), StandardCopyOption.REPLACE_EXISTING);
        Files.writeString(output.resolve("index.html"), index());
        for (int i = 0; i < examples.size(); ++i) {
            Files.writeString(output.resolve(examples.get(i).page()), page(i));
            writeThumbnail(examples.get(i).shots().get(0).file());
        }
    }

    private void writeThumbnail(Path picture) throws IOException {
        BufferedImage whole = ImageIO.read(picture.toFile());
        // Of high sheets the upper part.
        BufferedImage image =
                whole.getSubimage(0, 0, whole.getWidth(), Math.min(whole.getWidth(), whole.getHeight()));
        int height = Math.max(1, image.getHeight() * THUMBNAIL_WIDTH / image.getWidth());
        BufferedImage small = new BufferedImage(THUMBNAIL_WIDTH, height, BufferedImage.TYPE_INT_RGB);
        small.getGraphics().drawImage(
                image.getScaledInstance(THUMBNAIL_WIDTH, height, Image.SCALE_AREA_AVERAGING), 0, 0, null);
        ImageIO.write(small, "png", output.resolve("thumbnails").resolve(picture.getFileName()).toFile());
    }

    // --- the first page ---------------------------------------------------------------------------------------------

    private String index() throws IOException {
        StringBuilder html = new StringBuilder(HEAD.formatted("Gallery of Vexane Graphics 3D")).append(INTRODUCTION);
        html.append("<p>To begin with: ").append(String.join(", ", links(docs(List.of("first-picture", "common-tasks")))))
                .append(".</p>\n<nav>");
        for (Section section : Section.values()) {
            if (examples.stream().anyMatch(example -> example.about().section() == section)) {
                html.append(link("#" + section.anchor(), section.title())).append('\n');
            }
        }
        html.append("</nav>\n</header>\n<main>\n");
        Section last = null;
        for (Example example : examples) {
            Section section = example.about().section();
            if (section != last) {
                html.append(last == null ? "" : "</ul>\n").append("<h2 id=\"").append(section.anchor()).append("\">")
                        .append(section.title()).append("</h2>\n<p>").append(Html.escaped(section.text()))
                        .append("</p>\n<ul class=\"cards\">\n");
            }
            last = section;
            html.append("<li><a href=\"").append(example.page())
                    .append("\"><img loading=\"lazy\" alt=\"\" src=\"thumbnails/")
                    .append(example.shots().get(0).file().getFileName()).append("\">")
                    .append(Html.escaped(example.about().title())).append("</a></li>\n");
        }
        return html.append("</ul>\n</main>\n</body>\n</html>\n").toString();
    }

    // --- the page of an example -------------------------------------------------------------------------------------

    private String page(int index) throws IOException {
        Example example = examples.get(index);
        About about = example.about();
        StringBuilder html = new StringBuilder(HEAD.formatted(Html.escaped(about.title()) + " - Gallery"));
        html.append(neighbours(index)).append("<main>\n<h1>").append(Html.escaped(about.title()))
                .append("</h1>\n<p class=\"lead\">").append(Html.prose(about.text())).append("</p>\n");
        Deque<Figure> figures = figures(example);
        for (Listing.Part part : example.parts()) {
            if (part.isProse()) {
                html.append("<p>").append(Html.prose(part.text())).append("</p>\n");
                continue;
            }
            html.append("<pre><code>").append(JavaColors.html(part.text())).append("</code></pre>\n");
            while (!figures.isEmpty() && figures.peek().line() <= part.lastLine()) {
                html.append(figures.poll().html());
            }
        }
        figures.forEach(figure -> html.append(figure.html()));
        html.append("</main>\n<footer>\n<dl>\n");
        item(html, "Program", programs(example));
        item(html, "Pages", links(docs(example.pages())));
        item(html, "Classes", links(classes(example)));
        html.append("</dl>\n<p>To draw it again: <code>./run demo out/example ").append(example.className())
                .append("</code></p>\n").append(neighbours(index)).append("</footer>\n</body>\n</html>\n");
        return html.toString();
    }

    private String neighbours(int index) {
        Section section = examples.get(index).about().section();
        StringBuilder html = new StringBuilder("<nav>");
        html.append(link("index.html#" + section.anchor(), "Gallery: " + section.title())).append('\n');
        if (index > 0) {
            Example previous = examples.get(index - 1);
            html.append(link(previous.page(), "\u2190 " + previous.about().title())).append('\n');
        }
        if (index + 1 < examples.size()) {
            Example next = examples.get(index + 1);
            html.append(link(next.page(), next.about().title() + " \u2192"));
        }
        return html.append("</nav>\n").toString();
    }

    /** A picture with its caption, and the line of the program after which the page has it. */
    private record Figure(int line, String html) {}

    private static Deque<Figure> figures(Example example) throws IOException {
        List<Figure> figures = new ArrayList<>();
        for (Studio.Shot shot : example.shots()) {
            BufferedImage image = ImageIO.read(shot.file().toFile());
            int width = Math.min(image.getWidth(), PICTURE_WIDTH);
            int height = image.getHeight() * width / image.getWidth();
            String alternative = Html.escaped(example.about().title());
            figures.add(new Figure(shot.line(), figure(image(shot.file(), width, height, alternative),
                    Html.prose(example.caption(shot)))));
            if (!shot.documents().isEmpty()) {
                List<Path> files = shot.documents().stream().map(Studio.Document::file).toList();
                String images = files.stream().filter(file -> file.toString().endsWith(".svg"))
                        .map(file -> image(file, width, height, alternative)).collect(Collectors.joining());
                String links = files.stream().map(file -> link(file.getFileName().toString(),
                        file.getFileName().toString())).collect(Collectors.joining(", "));
                figures.add(new Figure(Example.documentsLine(shot), figure(images, "The same as vectors: " + links)));
            }
        }
        figures.sort(Comparator.comparingInt(Figure::line));
        return new ArrayDeque<>(figures);
    }

    private static String image(Path path, int width, int height, String alternative) {
        String file = Html.escaped(path.getFileName().toString());
        return "<a href=\"" + file + "\"><img loading=\"lazy\" width=\"" + width + "\" height=\"" + height
                + "\" alt=\"" + alternative + "\" src=\"" + file + "\"></a>\n";
    }

    private static String figure(String images, String caption) {
        return "<figure>" + images + "<figcaption>" + caption + "</figcaption></figure>\n";
    }

    private static void item(StringBuilder html, String title, List<String> links) {
        if (!links.isEmpty()) {
            html.append("<dt>").append(title).append("</dt>\n<dd>").append(String.join(",\n", links)).append("</dd>\n");
        }
    }

    // --- links ------------------------------------------------------------------------------------------------------

    private static String link(String target, String text) {
        return "<a href=\"" + Html.escaped(target) + "\">" + Html.escaped(text) + "</a>";
    }

    /** Links to files by their texts. */
    private List<String> links(Map<String, Path> targets) {
        return targets.entrySet().stream()
                .map(entry -> link(output.relativize(entry.getValue()).toString(), entry.getKey())).toList();
    }

    /** Copies a program and the classes of the gallery that it uses, and returns links to the copies. */
    private List<String> programs(Example example) throws IOException {
        List<Path> files = new ArrayList<>(List.of(root.resolve(SOURCES).resolve("pictures")
                .resolve(example.className() + ".java")));
        try (Stream<Path> all = Files.walk(root.resolve(SOURCES))) {
            files.addAll(all.filter(file -> isHelper(file, example)).sorted().toList());
        }
        List<String> links = new ArrayList<>();
        for (Path file : files) {
            String name = file.getFileName().toString();
            Files.copy(file, output.resolve("programs").resolve(name), StandardCopyOption.REPLACE_EXISTING);
            links.add("<a download href=\"programs/" + name + "\">" + name + "</a>");
        }
        return links;
    }

    /** Whether a program imports a class of the gallery, or names one beside it that is no program itself. */
    private static boolean isHelper(Path file, Example example) {
        String name = file.getFileName().toString().replace(".java", "");
        if (List.of("About", "Picture", "Section").contains(name)) {
            return false;
        }
        if (file.getParent().endsWith("pictures")) {
            return example.source().matches("(?s).*\\b" + name + "[.(].*") && !isProgram(file);
        }
        return example.source().contains("import com.vexane.gallery." + name + ";");
    }

    private static boolean isProgram(Path file) {
        try {
            return Files.readString(file).contains("implements Picture");
        } catch (IOException e) {
            throw new UncheckedIOException(e);
        }
    }

    /** Pages by their titles: those that {@code ./run docs} made, or else the sources of the pages. */
    private Map<String, Path> docs(List<String> pages) throws IOException {
        Map<String, Path> targets = new LinkedHashMap<>();
        for (String page : pages) {
            Path source = root.resolve("docs").resolve(page + ".md");
            Path made = root.resolve("out/docs/cpp/md_docs_" + page.replaceAll("\\W", "_") + ".html");
            String title = Files.readAllLines(source).get(0).replaceFirst("^# ", "");
            targets.put(title, Files.exists(made) ? made : source);
        }
        return targets;
    }

    /** The Java reference of the classes that a program imports, or else their sources. */
    private Map<String, Path> classes(Example example) {
        Map<String, Path> targets = new LinkedHashMap<>();
        for (String name : new TreeSet<>(IMPORT.matcher(example.source()).results().map(Site::file).toList())) {
            for (String module : List.of("graphics3d", "producer", "interaction", "renderer")) {
                Path source = root.resolve(module.equals("graphics3d") ? "" : module)
                        .resolve("java/src/main/java").resolve(name + ".java");
                Path made = root.resolve("out/docs/java/com.vexane." + module).resolve(name + ".html");
                if (Files.exists(source)) {
                    targets.put(source.getFileName().toString().replace(".java", ""), Files.exists(made) ? made : source);
                }
            }
        }
        return targets;
    }

    private static String file(MatchResult match) {
        return match.group(1).replace('.', '/') + "/" + match.group(2);
    }
}
