package com.vexane.gallery.pictures;

import com.vexane.gallery.About;
import com.vexane.gallery.Picture;
import com.vexane.gallery.Section;
import com.vexane.gallery.Studio;
import com.vexane.graphics3d.MarkingAction;
import com.vexane.graphics3d.ObjectPartType;
import com.vexane.graphics3d.SceneGraphPhysicsObject;
import com.vexane.producer.GeometryBuilder1D;
import com.vexane.producer.GeometryBuilder2D;
import com.vexane.producer.MeshKind;
import com.vexane.producer.RenderGeom1D;
import com.vexane.producer.RenderGeom2D;
import com.vexane.producer.RenderMeshCollection;
import com.vexane.producer.SheetGeometry;
import java.io.IOException;
import java.util.ArrayList;
import java.util.List;
import java.util.stream.IntStream;

@About(title = "How marks spread",
        text = "A plate of six domains in the plane, and below it a rod of three domains on an axis. A mark on a "
                + "domain spreads to the lines and points around it, and every part shows its number in its "
                + "colour.",
        section = Section.OBJECTS,
        pages = "geometry/marking")
public final class MarkingRules implements Picture {
    // The domains of the plate are squares in rows and columns, above the rod. A mesh of a square has four cells
    // along each side.
    private static final int COLUMNS = 3;
    private static final int ROWS = 2;
    private static final double BOTTOM = 0.6;
    private static final int CELLS = 4;

    @Override
    public void draw(Studio studio) throws IOException {
        // Numbers in calls begin at 0, those in the picture at 1. A domain of a model in the plane is marked by
        // `markBoundary`, one on an axis by `markEdge`.
        try (SceneGraphPhysicsObject plate = new SceneGraphPhysicsObject(1);
                SceneGraphPhysicsObject rod = new SceneGraphPhysicsObject(2);
                RenderGeom2D plane = plate();
                RenderGeom1D axis = rod();
                RenderMeshCollection plateMeshes = new RenderMeshCollection();
                RenderMeshCollection rodMeshes = new RenderMeshCollection()) {
            plate.fillObject2D(plane);
            rod.fillObject1D(axis);
            studio.settings().setShowLabels(true);
            studio.size(800, 540).show(plate).show(rod).hideAxes().flat();

            plate.markBoundary(0, MarkingAction.PRIMARY);
            plate.markBoundary(1, MarkingAction.SECONDARY);
            rod.markEdge(0, MarkingAction.PRIMARY);
            studio.save("Domain 1 of the plate has the primary mark (red) and domain 2 the secondary one (blue), "
                    + "each with its lines and points. Line 11 bounds both domains and is green, as are points 2 "
                    + "and 6 at its ends. Domain 1 of the rod is a wide red line.");

            // Hiding spreads in another way: a line disappears only when all domains are hidden that it bounds, and
            // a point when all its lines are.
            plate.markBoundary(4, MarkingAction.HIDDEN);
            rod.markEdge(1, MarkingAction.HIDDEN);
            studio.save("Without domain 5 of the plate and domain 2 of the rod. Line 8 was on the border of "
                    + "domain 5 alone and is gone; lines 5, 15 and 16 also bound domains that are shown, and "
                    + "stay.");

            // With the neighbours hidden as well, nothing is left that could keep the lines between them.
            plate.markBoundary(3, MarkingAction.HIDDEN);
            rod.markEdge(2, MarkingAction.HIDDEN);
            studio.save("Domain 4 of the plate is hidden too. Line 15, between the hidden domains 4 and 5, is "
                    + "gone, with point 10 at its end. Of the rod, domain 1 alone is left, with its points.");

            // One call removes the marks of a kind from all parts. A domain that has a mesh is drawn as its mesh
            // instead of its own geometry.
            plate.unmarkAll(ObjectPartType.ALL, MarkingAction.HIDDEN);
            rod.unmarkAll(ObjectPartType.ALL, MarkingAction.HIDDEN);
            addMeshes(plateMeshes, rodMeshes);
            plate.addMeshCollection(plateMeshes);
            rod.addMeshCollection(rodMeshes);
            studio.save("Everything is shown again. Domain 6 of the plate is drawn as a mesh of squares and "
                    + "triangles, domain 3 of the rod as eight intervals.");
        }
    }

    // A model on an axis has points, and a curve per domain.
    private static RenderGeom1D rod() {
        GeometryBuilder1D builder = new GeometryBuilder1D().points(new double[] {0, 1, 2, 3});
        for (int i = 0; i < COLUMNS; ++i) {
            builder.addCurve(new double[] {i, i + 1});
        }
        return builder.buildGeom();
    }

    // A model in the plane has points, curves and a sheet per domain: first the curves along x, then those along y.
    // `sheetToLine` lists the curves around each sheet, by which marks spread.
    private static int point(int column, int row) {
        return row * (COLUMNS + 1) + column;
    }

    private static RenderGeom2D plate() {
        int numPoints = (COLUMNS + 1) * (ROWS + 1);
        GeometryBuilder2D builder = new GeometryBuilder2D().points(
                IntStream.range(0, numPoints).mapToDouble(i -> i % (COLUMNS + 1)).toArray(),
                IntStream.range(0, numPoints).mapToDouble(i -> BOTTOM + i / (COLUMNS + 1)).toArray());
        for (int row = 0; row <= ROWS; ++row) {
            for (int column = 0; column < COLUMNS; ++column) {
                builder.addCurve(new double[] {column, column + 1}, new double[] {BOTTOM + row, BOTTOM + row});
            }
        }
        for (int row = 0; row < ROWS; ++row) {
            for (int column = 0; column <= COLUMNS; ++column) {
                builder.addCurve(new double[] {column, column}, new double[] {BOTTOM + row, BOTTOM + row + 1});
            }
        }
        int upright = COLUMNS * (ROWS + 1);
        List<int[]> lines = new ArrayList<>();
        for (int row = 0; row < ROWS; ++row) {
            for (int c = 0; c < COLUMNS; ++c) {
                double y = BOTTOM + row;
                builder.addSheet(new SheetGeometry()
                        .coordinates(new double[] {c, c + 1, c + 1, c}, new double[] {y, y, y + 1, y + 1})
                        .triangles(new int[] {0, 0}, new int[] {1, 2}, new int[] {2, 3}));
                int left = upright + point(c, row);
                lines.add(new int[] {row * COLUMNS + c, left + 1, (row + 1) * COLUMNS + c, left});
            }
        }
        return builder.sheetToLine(lines.toArray(int[][]::new)).buildGeom();
    }

    // The meshes have squares in the left half of the last domain of the plate and triangles in its right half, and
    // intervals in the last domain of the rod.
    private static void addMeshes(RenderMeshCollection plate, RenderMeshCollection rod) {
        double[][] axes = new double[2][(CELLS + 1) * (CELLS + 1)];
        int[][] triangles = new int[3][CELLS * CELLS];
        int[][] quads = new int[4][CELLS * CELLS / 2];
        int numTriangles = 0;
        int numQuads = 0;
        for (int i = 0; i < axes[0].length; ++i) {
            axes[0][i] = COLUMNS - 1 + i % (CELLS + 1) / (double) CELLS;
            axes[1][i] = BOTTOM + ROWS - 1 + i / (CELLS + 1) / (double) CELLS;
        }
        for (int row = 0; row < CELLS; ++row) {
            for (int column = 0; column < CELLS; ++column) {
                int a = row * (CELLS + 1) + column;
                int[] corners = {a, a + 1, a + CELLS + 2, a + CELLS + 1};
                if (column < CELLS / 2) {
                    for (int c = 0; c < 4; ++c) {
                        quads[c][numQuads] = corners[c];
                    }
                    ++numQuads;
                } else {
                    for (int t = 0; t < 2; ++t, ++numTriangles) {
                        triangles[0][numTriangles] = corners[0];
                        triangles[1][numTriangles] = corners[1 + t];
                        triangles[2][numTriangles] = corners[2 + t];
                    }
                }
            }
        }
        plate.addSheet(MeshKind.SUBDOMAIN_2D, COLUMNS * ROWS - 1, axes, triangles, quads);
        rod.addLine(MeshKind.SUBDOMAIN_1D, COLUMNS - 1,
                IntStream.rangeClosed(0, 8).mapToDouble(i -> 2 + i / 8.0).toArray());
    }
}
