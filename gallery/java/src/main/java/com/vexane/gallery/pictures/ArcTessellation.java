package com.vexane.gallery.pictures;

import com.vexane.gallery.About;
import com.vexane.gallery.Picture;
import com.vexane.gallery.Section;
import com.vexane.gallery.Sheet;
import com.vexane.gallery.Studio;
import com.vexane.graphics3d.Overlay;
import com.vexane.graphics3d.OverlayPoint;
import com.vexane.graphics3d.OverlayRenderEdit2d;
import com.vexane.producer.EditGeometryBuilder;
import com.vexane.producer.RenderDrawEdit2D;
import java.io.IOException;
import java.util.Locale;

@About(title = "An arc at three tolerances",
        text = "The tolerance of a tessellation is a thousandth of the size of the geometry, which two "
                + "vertices outside of the pictures set.",
        section = Section.OVERLAYS,
        pages = "editing")
public final class ArcTessellation implements Picture {
    private static final int SIDE = 600;
    private static final double[] TOLERANCES = {0.1, 0.02, 0.004};

    @Override
    public void draw(Studio studio) throws IOException {
        // Each arc is drawn into a small picture, and a `Sheet` puts them side by side.
        studio.renderer().resize(SIDE, SIDE);
        studio.flat();
        Sheet sheet = new Sheet(TOLERANCES.length);
        for (double tolerance : TOLERANCES) {
            drawArc(studio, tolerance);
            sheet.add(studio.renderer());
        }
        sheet.write(studio.file("The smaller the tolerance, the more points (orange) lie on the arc. Both "
                + "numbers are below each drawing."));
    }

    // An edge is halved until the middle of each segment is closer to the curve than the tolerance. The points of
    // the tessellation are drawn over the curve.
    private static void drawArc(Studio studio, double tolerance) {
        EditGeometryBuilder builder = new EditGeometryBuilder();
        int arc = builder.addArc(builder.addVertex(1, 0), builder.addVertex(0, -1), 0, 0);
        // The sides of the geometry are a thousand times the tolerance.
        builder.addVertex(-500 * tolerance, -500 * tolerance);
        builder.addVertex(500 * tolerance, 500 * tolerance);
        try (Overlay overlay = new Overlay(); OverlayRenderEdit2d curve = new OverlayRenderEdit2d();
                RenderDrawEdit2D geometry = builder.build()) {
            curve.connectRenderDrawEdit(geometry);
            curve.setUseColor(true);
            curve.setOutlineColor(40, 60, 90, 255);
            curve.setLineSize(2);
            overlay.addOverlayObject(curve, 1);
            double[][] points = geometry.tessellate(arc, tolerance);
            int count = 0;
            for (int i = 0; i < points[0].length; ++i) {
                if (i > 0 && points[0][i] == points[0][i - 1] && points[1][i] == points[1][i - 1]) {
                    continue; // a knot that is repeated
                }
                ++count;
                try (OverlayPoint point = new OverlayPoint()) {
                    point.setLocation(points[0][i], points[1][i]);
                    point.setUseColor(true);
                    point.setOutlineColor(220, 90, 20, 255);
                    point.setLineSize(9);
                    overlay.addOverlayObject(point, 2);
                }
            }
            studio.renderer().setOverlay(overlay);
            studio.nameAxes(String.format(Locale.ROOT, "Tolerance %s: %d points", tolerance, count), "");
            studio.renderer().draw(); // gives the camera its area
            studio.camera2d().setViewLimits(-1.25f, 1.25f, -1.25f, 1.25f);
            studio.renderer().draw();
        }
    }
}
