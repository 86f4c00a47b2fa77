package com.vexane.gallery.pictures;

import com.vexane.gallery.About;
import com.vexane.gallery.Picture;
import com.vexane.gallery.Section;
import com.vexane.gallery.Studio;
import com.vexane.graphics3d.MarkingAction;
import com.vexane.graphics3d.SceneGraphPhysicsObject;
import com.vexane.producer.GeometryBuilder2D;
import com.vexane.producer.RenderGeom2D;
import com.vexane.producer.SheetGeometry;
import java.io.IOException;

@About(title = "Numbers and directions of boundaries",
        text = "A duct in two domains, with the numbers of all domains, boundaries and points, and arrows "
                + "along the boundaries.",
        section = Section.OBJECTS,
        pages = {"geometry/physics-object", "geometry/building-geometry"})
public final class NumberedPlate implements Picture {
    private static final int STEPS = 24;
    private static final double RADIUS = 2;

    @Override
    public void draw(Studio studio) throws IOException {
        // Labels and directions are settings of the view. The second domain is marked.
        try (SceneGraphPhysicsObject model = new SceneGraphPhysicsObject(1); RenderGeom2D record = record()) {
            model.fillObject2D(record);
            model.markBoundary(1, MarkingAction.PRIMARY);
            studio.settings().setShowLabels(true);
            studio.settings().setShowLineDirections(true);
            studio.show(model).nameAxes("x in m", "y in m").flat();
            studio.save("The marked domain and what it touches are red. Numbers have the colours of their marks.");
        }
    }

    /** A straight duct of length 3, then a bend by a quarter of a circle. */
    private static RenderGeom2D record() {
        double[][] inner = arc(RADIUS);
        double[][] outer = arc(RADIUS + 1);
        double[][] bend = new double[2][2 * (STEPS + 1)];
        int[][] corners = new int[3][2 * STEPS];
        for (int i = 0; i <= STEPS; ++i) {
            for (int axis = 0; axis < 2; ++axis) {
                bend[axis][2 * i] = inner[axis][i];
                bend[axis][2 * i + 1] = outer[axis][i];
            }
            if (i < STEPS) {
                int[][] triangles = {{2 * i, 2 * i + 1, 2 * i + 3}, {2 * i, 2 * i + 3, 2 * i + 2}};
                for (int t = 0; t < 2; ++t) {
                    for (int c = 0; c < 3; ++c) {
                        corners[c][2 * i + t] = triangles[t][c];
                    }
                }
            }
        }
        double end = 3 + RADIUS;
        return new GeometryBuilder2D()
                .points(new double[] {0, 3, 3, 0, end, end + 1}, new double[] {0, 0, 1, 1, 3, 3})
                .addCurve(new double[] {0, 3}, new double[] {0, 0})
                .addCurve(new double[] {3, 3}, new double[] {0, 1})
                .addCurve(new double[] {3, 0}, new double[] {1, 1})
                .addCurve(new double[] {0, 0}, new double[] {1, 0})
                .addCurve(inner[0], inner[1])
                .addCurve(outer[0], outer[1])
                .addCurve(new double[] {end, end + 1}, new double[] {3, 3})
                .addSheet(new SheetGeometry().coordinates(new double[] {0, 3, 3, 0}, new double[] {0, 0, 1, 1})
                        .triangles(new int[] {0, 0}, new int[] {1, 2}, new int[] {2, 3}))
                .addSheet(new SheetGeometry().coordinates(bend).triangles(corners[0], corners[1], corners[2]))
                .sheetToLine(new int[] {0, 1, 2, 3}, new int[] {1, 4, 6, 5})
                .buildGeom();
    }

    private static double[][] arc(double radius) {
        double[][] points = new double[2][STEPS + 1];
        for (int i = 0; i <= STEPS; ++i) {
            double angle = -0.5 * Math.PI + 0.5 * Math.PI * i / STEPS;
            // Ends are those of the straight duct, to the last bit.
            points[0][i] = i == 0 ? 3 : i == STEPS ? 3 + radius : 3 + radius * Math.cos(angle);
            points[1][i] = i == 0 ? 3 - radius : i == STEPS ? 3 : 3 + radius * Math.sin(angle);
        }
        return points;
    }
}
