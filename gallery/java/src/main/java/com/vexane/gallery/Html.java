package com.vexane.gallery;

/** Texts in HTML. */
final class Html {
    private Html() {}

    /** A text whose characters mean themselves, also between double quotes. */
    static String escaped(String text) {
        return text.replace("&", "&amp;").replace("<", "&lt;").replace(">", "&gt;").replace("\"", "&quot;");
    }

    /** Prose, in which backticks enclose code. */
    static String prose(String text) {
        return escaped(text).replaceAll("`([^`]+)`", "<code>$1</code>");
    }
}
