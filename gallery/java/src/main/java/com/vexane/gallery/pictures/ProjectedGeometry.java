package com.vexane.gallery.pictures;

import com.vexane.gallery.About;
import com.vexane.gallery.Picture;
import com.vexane.gallery.Section;
import com.vexane.gallery.Studio;
import com.vexane.graphics3d.SceneGraphDrawProj;
import com.vexane.producer.ProjectionBuilder2D;
import com.vexane.producer.RenderDrawProj2D;
import java.io.IOException;

@About(title = "Projected geometry",
        text = "A flange in a plane: what the plane cuts is in the first class, what lies behind it in the "
                + "second. The points are vertices to snap to.",
        section = Section.OBJECTS,
        pages = "geometry/construction")
public final class ProjectedGeometry implements Picture {
    private static final int SIDES = 96;
    private static final int BOLTS = 6;
    private static final int BEHIND = 2;

    @Override
    public void draw(Studio studio) throws IOException {
        // An object of projected geometry draws the classes in different colours.
        try (SceneGraphDrawProj flange = new SceneGraphDrawProj(1); RenderDrawProj2D record = record()) {
            flange.fillObject(record);
            studio.nameAxes("x in mm", "y in mm").show(flange).flat();
            studio.save("Red are the outline of the flange, its bolt holes and its bore, which the plane cuts; "
                    + "blue are the hub and the foot behind it.");
        }
    }

    private static RenderDrawProj2D record() {
        double[] x = new double[BOLTS + 4];
        double[] y = new double[BOLTS + 4];
        int[] kinds = new int[BOLTS + 4];
        ProjectionBuilder2D builder = new ProjectionBuilder2D();
        addCircle(builder, ProjectionBuilder2D.PRIMARY, 0, 0, 80);
        addCircle(builder, ProjectionBuilder2D.PRIMARY, 0, 0, 25);
        addCircle(builder, BEHIND, 0, 0, 38);
        for (int i = 0; i < BOLTS; ++i) {
            x[i] = 60 * Math.cos(2 * Math.PI * i / BOLTS);
            y[i] = 60 * Math.sin(2 * Math.PI * i / BOLTS);
            kinds[i] = ProjectionBuilder2D.PRIMARY;
            addCircle(builder, ProjectionBuilder2D.PRIMARY, x[i], y[i], 7);
        }
        // A foot below the flange.
        double[] footX = {-70, -70, 70, 70};
        double[] footY = {-38.7, -110, -110, -38.7};
        builder.addCurve(BEHIND, footX, footY);
        for (int i = 0; i < footX.length; ++i) {
            x[BOLTS + i] = footX[i];
            y[BOLTS + i] = footY[i];
            kinds[BOLTS + i] = BEHIND;
        }
        return builder.points(x, y, kinds).build(1, "Flange");
    }

    private static void addCircle(ProjectionBuilder2D builder, int kind, double centerX, double centerY, double radius) {
        double[] x = new double[SIDES + 1];
        double[] y = new double[SIDES + 1];
        for (int i = 0; i <= SIDES; ++i) {
            x[i] = centerX + radius * Math.cos(2 * Math.PI * i / SIDES);
            y[i] = centerY + radius * Math.sin(2 * Math.PI * i / SIDES);
        }
        builder.addCurve(kind, x, y);
    }
}
