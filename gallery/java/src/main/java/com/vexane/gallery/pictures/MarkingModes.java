package com.vexane.gallery.pictures;

import com.vexane.gallery.About;
import com.vexane.gallery.Picture;
import com.vexane.gallery.Section;
import com.vexane.gallery.Studio;
import com.vexane.graphics3d.MarkingAction;
import com.vexane.graphics3d.MarkingSetups.Marking;
import com.vexane.graphics3d.MarkingSetups.Mode;
import com.vexane.graphics3d.MarkingSetups.Row;
import com.vexane.graphics3d.MarkingSetups;
import com.vexane.graphics3d.ObjectPartType;
import com.vexane.graphics3d.SceneGraphDrawObjectFace;
import com.vexane.producer.GeometryBuilder3D;
import com.vexane.producer.RenderDraw3D;
import com.vexane.producer.SheetGeometry;
import java.io.IOException;
import java.util.ArrayList;
import java.util.EnumMap;
import java.util.List;
import java.util.Map;

@About(title = "Marks in three tables",
        text = "Three tables say what marked parts look like. The roof of five by three panels has parts "
                + "with primary and secondary marks.",
        section = Section.OBJECTS,
        pages = {"geometry/marking", "geometry/draw-objects"})
public final class MarkingModes implements Picture {
    // The panels of the roof along x and y.
    private static final int COLUMNS = 5;
    private static final int ROWS = 3;

    @Override
    public void draw(Studio studio) throws IOException {
        // The second panel from the left in the middle row gets a primary mark, the fourth a secondary one, and the one
        // between them both. A corner panel is hidden.
        try (SceneGraphDrawObjectFace roof = new SceneGraphDrawObjectFace(1);
                MarkingSetups markings = MarkingSetups.connect();
                RenderDraw3D record = record()) {
            roof.fillObject(record);
            roof.markPart(ObjectPartType.SHEET, COLUMNS + 1, MarkingAction.PRIMARY);
            roof.markPart(ObjectPartType.SHEET, COLUMNS + 2, MarkingAction.PRIMARY);
            roof.markPart(ObjectPartType.SHEET, COLUMNS + 2, MarkingAction.SECONDARY);
            roof.markPart(ObjectPartType.SHEET, COLUMNS + 3, MarkingAction.SECONDARY);
            roof.markPart(ObjectPartType.SHEET, COLUMNS - 1, MarkingAction.HIDDEN);
            studio.show(roof).hideAxes().view(-70, 38);
            studio.save("The first table, which a view uses initially: red, blue, and green for both. The edges follow "
                    + "the panels that they touch.");

            // Each view has a marking mode, which selects the table.
            studio.renderer().setMarkingMode(Mode.THIRD);
            studio.save("The third table has wider lines.");

            // The rows of a table can be changed. All views share the tables, so the former rows are kept, and set
            // again at the end.
            Map<Row, Marking> former = new EnumMap<>(Row.class);
            for (Row row : Row.values()) {
                former.put(row, markings.getMarking(Mode.SECOND, row));
            }
            markings.setMarking(Mode.SECOND, Row.NORMAL,
                    new Marking(0x2f4858, 0x86a8b8, 1.5f, 0x86a8b8, 5, 0xffffff, 0));
            markings.setMarking(Mode.SECOND, Row.PRIMARY,
                    new Marking(0xf6ae2d, 0xffffff, 5, 0xffffff, 11, 0xffffff, 2));
            markings.setMarking(Mode.SECOND, Row.PRIMARY_ADJACENT,
                    new Marking(0xf6ae2d, 0xf6ae2d, 5, 0xf6ae2d, 11, 0xffffff, 2));
            markings.setMarkingHidden(Mode.SECOND, Row.SECONDARY);
            studio.renderer().setMarkingMode(Mode.SECOND);
            studio.save("The second table with rows of our own, in which panels with a secondary mark alone are "
                    + "hidden.");
            former.forEach((row, marking) -> {
                if (row == Row.MESHED || row == Row.HIDDEN) {
                    markings.setMarkingHidden(Mode.SECOND, row);
                } else {
                    markings.setMarking(Mode.SECOND, row, marking);
                }
            });
        }
    }

    // The roof is a parabola over its width.
    private static double height(double x) {
        return 1.2 - 0.25 * (x - 0.5 * COLUMNS) * (x - 0.5 * COLUMNS);
    }

    // The record: points, curves, sheets of triangles, and which curves bound which sheet.
    private static RenderDraw3D record() {
        GeometryBuilder3D builder = new GeometryBuilder3D();
        double[][] points = new double[3][(COLUMNS + 1) * (ROWS + 1)];
        for (int j = 0, point = 0; j <= ROWS; ++j) {
            for (int i = 0; i <= COLUMNS; ++i, ++point) {
                points[0][point] = i;
                points[1][point] = j;
                points[2][point] = height(i);
            }
        }
        builder.points(points[0], points[1], points[2]);
        List<int[]> sheetToLine = new ArrayList<>();
        // Edges along x of all rows first, then those along y.
        for (int j = 0; j <= ROWS; ++j) {
            for (int i = 0; i < COLUMNS; ++i) {
                addCurve(builder, i, j, 1, 0);
            }
        }
        int first = COLUMNS * (ROWS + 1);
        for (int j = 0; j < ROWS; ++j) {
            for (int i = 0; i <= COLUMNS; ++i) {
                addCurve(builder, i, j, 0, 1);
            }
        }
        for (int j = 0; j < ROWS; ++j) {
            for (int i = 0; i < COLUMNS; ++i) {
                builder.addSheet(panel(i, j));
                int left = first + j * (COLUMNS + 1) + i;
                sheetToLine.add(new int[] {j * COLUMNS + i, left + 1, (j + 1) * COLUMNS + i, left});
            }
        }
        return builder.sheetToLine(sheetToLine.toArray(int[][]::new)).buildDraw(1, "Roof");
    }

    private static final int STEPS = 12;

    private static void addCurve(GeometryBuilder3D builder, double x, double y, double dx, double dy) {
        double[][] points = new double[3][STEPS + 1];
        for (int i = 0; i <= STEPS; ++i) {
            points[0][i] = x + dx * i / STEPS;
            points[1][i] = y + dy * i / STEPS;
            points[2][i] = height(points[0][i]);
        }
        builder.addCurve(points[0], points[1], points[2]);
    }

    private static SheetGeometry panel(double x, double y) {
        double[][] points = new double[3][2 * (STEPS + 1)];
        int[][] corners = new int[3][2 * STEPS];
        for (int i = 0; i <= STEPS; ++i) {
            for (int side = 0; side < 2; ++side) {
                points[0][2 * i + side] = x + (double) i / STEPS;
                points[1][2 * i + side] = y + side;
                points[2][2 * i + side] = height(x + (double) i / STEPS);
            }
            if (i < STEPS) {
                corners[0][2 * i] = 2 * i;
                corners[1][2 * i] = 2 * i + 2;
                corners[2][2 * i] = 2 * i + 3;
                corners[0][2 * i + 1] = 2 * i;
                corners[1][2 * i + 1] = 2 * i + 3;
                corners[2][2 * i + 1] = 2 * i + 1;
            }
        }
        return new SheetGeometry().coordinates(points).triangles(corners[0], corners[1], corners[2]);
    }
}
