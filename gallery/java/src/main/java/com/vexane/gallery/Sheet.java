package com.vexane.gallery;

import com.vexane.renderer.OffscreenRenderer;
import java.awt.Color;
import java.awt.Graphics2D;
import java.awt.image.BufferedImage;
import java.io.IOException;
import java.nio.ByteBuffer;
import java.nio.file.Path;
import java.util.ArrayList;
import java.util.List;
import javax.imageio.ImageIO;

/** Several pictures of any shape in rows and columns of one. */
public final class Sheet {
    private static final int GAP = 8;

    private final int columns;
    private final List<BufferedImage> pictures = new ArrayList<>();

    /**
     * Makes an empty sheet.
     *
     * @param columns pictures in a row, at least 1
     */
    public Sheet(int columns) {
        this.columns = columns;
    }

    /**
     * Adds the picture that a renderer has drawn.
     *
     * @param renderer the renderer
     */
    public void add(OffscreenRenderer renderer) {
        BufferedImage picture =
                new BufferedImage(renderer.getWidth(), renderer.getHeight(), BufferedImage.TYPE_INT_RGB);
        ByteBuffer bytes = renderer.image();
        for (int y = 0; y < picture.getHeight(); ++y) {
            for (int x = 0; x < picture.getWidth(); ++x) {
                picture.setRGB(x, y, bytes.getInt() >>> 8);
            }
        }
        pictures.add(picture);
    }

    /**
     * Writes the sheet to a PNG file. A column is as wide as its widest picture, a row as high as its highest.
     *
     * @param file the file, which is replaced
     * @throws IOException if it cannot be written
     */
    public void write(Path file) throws IOException {
        int rows = (pictures.size() + columns - 1) / columns;
        int[] widths = new int[columns];
        int[] heights = new int[rows];
        for (int i = 0; i < pictures.size(); ++i) {
            widths[i % columns] = Math.max(widths[i % columns], pictures.get(i).getWidth());
            heights[i / columns] = Math.max(heights[i / columns], pictures.get(i).getHeight());
        }
        int[] lefts = starts(widths);
        int[] tops = starts(heights);
        BufferedImage sheet = new BufferedImage(lefts[columns], tops[rows], BufferedImage.TYPE_INT_RGB);
        Graphics2D graphics = sheet.createGraphics();
        graphics.setColor(Color.LIGHT_GRAY);
        graphics.fillRect(0, 0, sheet.getWidth(), sheet.getHeight());
        for (int i = 0; i < pictures.size(); ++i) {
            graphics.drawImage(pictures.get(i), lefts[i % columns], tops[i / columns], null);
        }
        graphics.dispose();
        ImageIO.write(sheet, "png", file.toFile());
    }

    /** Where columns or rows begin, and after them where the sheet ends. */
    private static int[] starts(int[] sizes) {
        int[] starts = new int[sizes.length + 1];
        starts[0] = GAP;
        for (int i = 0; i < sizes.length; ++i) {
            starts[i + 1] = starts[i] + sizes[i] + GAP;
        }
        return starts;
    }
}
