package com.vexane.gallery;

import java.util.regex.MatchResult;
import java.util.regex.Pattern;

/** Java as HTML whose comments, texts, numbers, annotations, keywords and types can have colours. */
final class JavaColors {
    private static final String[] CLASSES = {"comment", "text", "number", "annotation", "keyword", "type"};
    private static final Pattern TOKEN = Pattern.compile(
            "(//[^\n]*|/\\*.*?\\*/)"
                    + "|(\"\"\".*?\"\"\"|\"[^\"\\\\]*+(?:\\\\.[^\"\\\\]*+)*+\"|'(?:\\\\u\\w+|\\\\.|[^'\\\\])')"
                    + "|\\b(0[xX][\\da-fA-F_]+[lL]?|\\d[\\d_]*(?:\\.\\d+)?(?:[eE][+-]?\\d+)?[fFdDlL]?)\\b"
                    + "|(@\\w+)"
                    + "|\\b(abstract|assert|boolean|break|byte|case|catch|char|class|continue|default|do|double|else"
                    + "|enum|extends|false|final|finally|float|for|if|implements|import|instanceof|int|interface|long"
                    + "|new|null|package|private|protected|public|record|return|short|static|super|switch|synchronized"
                    + "|this|throw|throws|true|try|var|void|volatile|while)\\b"
                    + "|\\b([A-Z]\\w*[a-z]\\w*)\\b"
                    + "|[&<>]",
            Pattern.DOTALL);

    private JavaColors() {}

    /** The code, escaped, with a span around each token. */
    static String html(String code) {
        return TOKEN.matcher(code).replaceAll(JavaColors::span);
    }

    private static String span(MatchResult token) {
        String text = Html.escaped(token.group());
        for (int i = 0; i < CLASSES.length; ++i) {
            if (token.group(i + 1) != null) {
                text = "<span class=\"" + CLASSES[i] + "\">" + text + "</span>";
            }
        }
        return java.util.regex.Matcher.quoteReplacement(text);
    }
}
