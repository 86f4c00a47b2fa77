package com.vexane.gallery;

import java.io.IOException;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.List;

/** The page that shows every picture next to the code that made it. */
final class ContactSheet {
    private static final String HEAD = """
            <!DOCTYPE html>
            <html lang="en">
            <head>
            <meta charset="utf-8">
            <meta name="viewport" content="width=device-width, initial-scale=1">
            <title>Gallery</title>
            <style>
            body { margin: 0 auto; max-width: 110rem; padding: 1rem 2rem 4rem; font: 16px/1.5 sans-serif; color: #222; }
            section { display: grid; grid-template-columns: minmax(0, 3fr) minmax(0, 2fr); gap: 0 2rem;
                border-top: 1px solid #ccc; padding: 1rem 0 2rem; }
            section > h2, section > p { grid-column: 1 / -1; max-width: 60rem; margin: 0 0 .75rem; }
            figure { margin: 0 0 1rem; }
            figcaption { color: #555; }
            img { width: 100%; height: auto; border: 1px solid #ddd; box-sizing: border-box; }
            pre { margin: 0; max-height: 60rem; overflow: auto; padding: 1rem; background: #f6f6f4;
                font: 13px/1.45 monospace; }
            @media (max-width: 70rem) { section { display: block; } }
            </style>
            </head>
            <body>
            <h1>Gallery</h1>
            <p>Every picture beside the program that drew it.</p>
            """;

    private final StringBuilder page = new StringBuilder(HEAD);

    /** Adds a program: its description, its pictures, its source. */
    void add(About about, List<Studio.Shot> shots, String source) {
        page.append("<section>\n<h2>").append(escaped(about.title())).append("</h2>\n<p>").append(escaped(about.text()))
                .append("</p>\n<div>\n");
        for (Studio.Shot shot : shots) {
            String file = escaped(shot.file().getFileName().toString());
            String caption = shot.caption().isEmpty() ? about.title() : shot.caption();
            page.append("<figure><a href=\"").append(file).append("\"><img loading=\"lazy\" src=\"").append(file)
                    .append("\" alt=\"").append(escaped(caption)).append("\"></a>");
            if (!shot.caption().isEmpty()) {
                page.append("<figcaption>").append(escaped(caption)).append("</figcaption>");
            }
            page.append("</figure>\n");
        }
        page.append("</div>\n<pre><code>").append(escaped(source)).append("</code></pre>\n</section>\n");
    }

    void write(Path file) throws IOException {
        Files.writeString(file, page + "</body>\n</html>\n");
    }

    static String escaped(String text) {
        return text.replace("&", "&amp;").replace("<", "&lt;").replace(">", "&gt;").replace("\"", "&quot;");
    }
}
