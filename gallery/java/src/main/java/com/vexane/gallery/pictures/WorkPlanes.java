package com.vexane.gallery.pictures;

import com.vexane.gallery.About;
import com.vexane.gallery.Picture;
import com.vexane.gallery.Section;
import com.vexane.gallery.Studio;
import com.vexane.graphics3d.SceneGraphDrawProj;
import com.vexane.graphics3d.SceneGraphFeatureObject;
import com.vexane.producer.ProjectionBuilder2D;
import com.vexane.producer.RenderDrawProj2D;
import java.io.IOException;

@About(title = "Work planes",
        text = "A drawing in a work plane and what is to be made of it: a bracket by extrusion, and a vase "
                + "by revolution.",
        section = Section.OBJECTS,
        pages = "geometry/construction")
public final class WorkPlanes implements Picture {
    private static final int ARC = 16;

    @Override
    public void draw(Studio studio) throws IOException {
        // The plane is given by its origin, two directions and its extent. Its grid has cells that are about square.
        studio.hideAxes().settings().setShowLabels(true);
        try (SceneGraphFeatureObject plane = new SceneGraphFeatureObject();
                SceneGraphDrawProj drawing = new SceneGraphDrawProj(1)) {
            studio.show(plane).show(drawing);
            plane.setWorkPlane(new float[] {0, 0, 0, 1, 0, 0, 0, 1, 0, -20, 100, -20, 70});
            try (RenderDrawProj2D record = bracket()) {
                drawing.fillObject(record);
            }
            plane.setExtrude(new float[] {1, 45, -15});
            studio.view(-60, 30);
            studio.save("A bracket and the two directions of its extrusion, with the three axes of the plane.");

            plane.setWorkPlane(new float[] {0, 0, 0, 1, 0, 0, 0, 1, 0, -50, 50, 0, 120});
            try (RenderDrawProj2D record = vase()) {
                drawing.fillObject(record);
            }
            plane.setRevolve(new float[] {0, 0, 0, 1});
            studio.view(-60, 40);
            studio.save("The outline of a vase with its mirror image and the axis of revolution.");
        }
    }

    /** An angle with a rounded inner corner. */
    private static RenderDrawProj2D bracket() {
        double[] x = {30, 10, 10, 0, 0, 80, 80, 30};
        double[] y = {10, 30, 60, 60, 0, 0, 10, 10};
        double[] arcX = new double[ARC + 1];
        double[] arcY = new double[ARC + 1];
        for (int i = 0; i <= ARC; ++i) {
            double angle = -0.5 * Math.PI * (1 + (double) i / ARC);
            arcX[i] = 30 + 20 * Math.cos(angle);
            arcY[i] = 30 + 20 * Math.sin(angle);
        }
        ProjectionBuilder2D builder = new ProjectionBuilder2D().points(x, y, new int[] {1, 1, 1, 1, 1, 1, 1, 1})
                .addCurve(ProjectionBuilder2D.PRIMARY, arcX, arcY);
        for (int i = 1; i + 1 < x.length; ++i) {
            builder.addCurve(ProjectionBuilder2D.PRIMARY, new double[] {x[i], x[i + 1]}, new double[] {y[i], y[i + 1]});
        }
        return builder.build(1, "Bracket");
    }

    /** The outline of a vase to the right of its axis, and its mirror image in the second class. */
    private static RenderDrawProj2D vase() {
        int count = 61;
        double[] x = new double[count];
        double[] y = new double[count];
        double[] mirrored = new double[count];
        for (int i = 0; i < count; ++i) {
            double t = (double) i / (count - 1);
            y[i] = 5 + 110 * t;
            x[i] = 24 + 14 * Math.sin(2 * Math.PI * (0.95 * t - 0.1)) + 4 * t;
            mirrored[i] = -x[i];
        }
        return new ProjectionBuilder2D()
                .points(new double[] {x[0], x[count - 1]}, new double[] {y[0], y[count - 1]}, new int[] {1, 1})
                .addCurve(ProjectionBuilder2D.PRIMARY, x, y).addCurve(0, mirrored, y)
                .build(1, "Vase");
    }
}
