package com.vexane.graphics3d;

import com.vexane.base.NativeEnum;
import com.vexane.base.NativePeer;
import java.util.Objects;

/**
 * How marked parts look: for each of three modes, a table with one row per look that a part can have. All peers of this
 * class refer to the one set of tables of the process, so calls must come from one thread at a time. A renderer reads
 * the tables when it draws next, and chooses the mode.
 *
 * <p>Colours are numbers 0xRRGGBB; higher bits are ignored.
 */
public final class MarkingSetups extends NativePeer {
    /** The tables. */
    public enum Mode implements NativeEnum {
        /** The first table. */
        FIRST(1),
        /** The second table, which initially equals the first. */
        SECOND(2),
        /** The third table, which initially has wider lines. */
        THIRD(3);

        private final int number;

        Mode(int number) {
            this.number = number;
        }

        @Override
        public int number() {
            return number;
        }
    }

    /**
     * The looks of a part. If several apply, the part has the first of: hidden, meshed, its own primary mark, an
     * adjacent primary mark, its own secondary mark, an adjacent secondary mark.
     */
    public enum Row implements NativeEnum {
        /** Unmarked. */
        NORMAL(0),
        /** Marked as primary. */
        PRIMARY(1),
        /** Marked as secondary. */
        SECONDARY(2),
        /** Marked as both. */
        BOTH(3),
        /** Next to a primary part. */
        PRIMARY_ADJACENT(4),
        /** Next to a secondary part. */
        SECONDARY_ADJACENT(5),
        /** Next to both. */
        BOTH_ADJACENT(6),
        /** Showing a mesh; initially a hidden row. */
        MESHED(7),
        /** Hidden; initially a hidden row. */
        HIDDEN(8);

        private final int number;

        Row(int number) {
            this.number = number;
        }

        @Override
        public int number() {
            return number;
        }
    }

    /**
     * What a row holds.
     *
     * @param sheetColor the colour of faces, 0xRRGGBB
     * @param lineColor the colour of lines, 0xRRGGBB
     * @param lineWidth the width of lines in pixels
     * @param pointColor the colour of points, 0xRRGGBB
     * @param pointSize the size of points in pixels
     * @param labelColor the colour of labels, 0xRRGGBB
     * @param polygonLayer the layer of faces: of two faces at the same depth, the one of the higher layer is visible
     */
    public record Marking(int sheetColor, int lineColor, float lineWidth, int pointColor, float pointSize,
            int labelColor, int polygonLayer) {}

    private MarkingSetups() {}

    /** {@return a new peer of the tables of the process} */
    public static MarkingSetups connect() {
        MarkingSetups setups = new MarkingSetups();
        connectNative(setups);
        return setups;
    }

    /**
     * {@return what a row holds; zeros for a hidden row}
     *
     * @param mode the table
     * @param row the look
     * @throws NullPointerException if an argument is null
     */
    public Marking getMarking(Mode mode, Row row) {
        int m = mode.number();
        int r = row.number();
        return new Marking(getSheetColor(this, m, r), getLineColor(this, m, r), getLineWidth(this, m, r),
                getPointColor(this, m, r), getPointSize(this, m, r), getLabelColor(this, m, r),
                getPolygonLayer(this, m, r));
    }

    /**
     * Sets a row and makes its parts visible.
     *
     * @param mode the table
     * @param row the look
     * @param marking what the row holds from now on
     * @throws NullPointerException if an argument is null
     */
    public void setMarking(Mode mode, Row row, Marking marking) {
        Objects.requireNonNull(marking, "marking");
        setMarking(this, mode.number(), row.number(), marking.sheetColor(), marking.lineColor(), marking.lineWidth(),
                marking.pointColor(), marking.pointSize(), marking.labelColor(), marking.polygonLayer());
    }

    /**
     * Hides the parts of a row. What the row held is lost; {@link #setMarking} shows its parts again.
     *
     * @param mode the table
     * @param row the look
     * @throws NullPointerException if an argument is null
     */
    public void setMarkingHidden(Mode mode, Row row) {
        setMarkingHidden(this, mode.number(), row.number());
    }

    @Override
    protected void cleanup() {
        cleanupNative(this);
    }

    private static native void connectNative(MarkingSetups peer);

    private static native void cleanupNative(MarkingSetups peer);

    private static native void setMarking(MarkingSetups peer, int mode, int row, int sheetColor, int lineColor,
            float lineWidth, int pointColor, float pointSize, int labelColor, int polygonLayer);

    private static native void setMarkingHidden(MarkingSetups peer, int mode, int row);

    private static native int getSheetColor(MarkingSetups peer, int mode, int row);

    private static native int getLineColor(MarkingSetups peer, int mode, int row);

    private static native float getLineWidth(MarkingSetups peer, int mode, int row);

    private static native int getPointColor(MarkingSetups peer, int mode, int row);

    private static native float getPointSize(MarkingSetups peer, int mode, int row);

    private static native int getLabelColor(MarkingSetups peer, int mode, int row);

    private static native int getPolygonLayer(MarkingSetups peer, int mode, int row);
}
