package com.vexane.gallery;

import java.util.ArrayList;
import java.util.Collection;
import java.util.List;
import java.util.regex.Pattern;

/** Cuts the source of a program into the prose and the blocks of code of its page. */
final class Listing {
    /**
     * A part of a page.
     *
     * @param isProse whether it is a paragraph or code
     * @param text the words of the paragraph; the lines of code without their common indentation
     * @param lastLine the number of its last line in the source
     */
    record Part(boolean isProse, String text, int lastLine) {}

    private static final Pattern CAPTION =
            Pattern.compile("\\.(save|file)\\(\\s*\"[^\"\\\\]++(?:\\\\.[^\"\\\\]*+)*+\"(?:\\s*\\+\\s*\"[^\"]*+\")*+");
    private static final String END_OF_METHOD = "    }";

    private final List<Part> parts = new ArrayList<>();
    private final List<String> code = new ArrayList<>();
    private final List<String> prose = new ArrayList<>();
    private int number;

    private Listing() {}

    /**
     * The parts of a program in their order. Left out are the lines before the body of the class, its last brace, the
     * head and the last brace of {@code draw}, captions, and blocks of nothing but braces.
     *
     * @param source the source of a class
     * @param pictures the lines that saved a picture; the statement of each ends a block
     */
    static List<Part> parts(String source, Collection<Integer> pictures) {
        Listing listing = new Listing();
        listing.read(source.lines().toList(), pictures);
        return listing.parts;
    }

    private void read(List<String> lines, Collection<Integer> pictures) {
        boolean isInDraw = false;
        boolean hasPicture = false;
        for (int i = startOfBody(lines); i < lines.lastIndexOf("}"); ++i) {
            String line = lines.get(i);
            if (line.strip().equals("@Override") && lines.get(i + 1).contains(" draw(Studio ")) {
                endPart();
                isInDraw = true;
                while (!lines.get(i).endsWith("{")) {
                    ++i;
                }
                number = i + 1;
                continue;
            }
            if (isInDraw && line.equals(END_OF_METHOD)) {
                endPart();
                isInDraw = false;
                continue;
            }
            if (line.strip().startsWith("//") && (code.isEmpty() || code.get(code.size() - 1).isBlank())) {
                endCode();
                prose.add(line.strip().substring(2).strip());
                number = i + 1;
                continue;
            }
            endProse();
            code.add(line);
            number = i + 1;
            hasPicture |= pictures.contains(number);
            if (hasPicture && line.endsWith(";")) {
                while (closesBlock(lines.get(i + 1))) {
                    code.add(lines.get(++i));
                    number = i + 1;
                }
                endCode();
                hasPicture = false;
            }
        }
        endPart();
    }

    private static int startOfBody(List<String> lines) {
        int line = 0;
        while (!lines.get(line).matches("(public |final )*class .*")) {
            ++line;
        }
        while (!lines.get(line).endsWith("{")) {
            ++line;
        }
        return line + 1;
    }

    /** Whether a line is a brace that closes what the current block of code has opened. */
    private boolean closesBlock(String line) {
        return line.strip().equals("}") && code.stream().mapToInt(Listing::depth).sum() > 0;
    }

    private static int depth(String line) {
        return line.chars().map(c -> c == '{' ? 1 : c == '}' ? -1 : 0).sum();
    }

    private void endPart() {
        endProse();
        endCode();
    }

    private void endProse() {
        for (String paragraph : String.join("\n", prose).split("\n\n")) {
            if (!paragraph.isBlank()) {
                parts.add(new Part(true, paragraph.replace('\n', ' '), number));
            }
        }
        prose.clear();
    }

    private void endCode() {
        String text = String.join("\n", code).stripTrailing().stripIndent().replaceFirst("^\n+", "");
        if (text.chars().anyMatch(c -> "{} \n".indexOf(c) < 0)) {
            parts.add(new Part(false, CAPTION.matcher(text).replaceAll(".$1(\u2026"), number));
        }
        code.clear();
    }
}
