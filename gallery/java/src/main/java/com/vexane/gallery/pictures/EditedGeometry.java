package com.vexane.gallery.pictures;

import com.vexane.gallery.About;
import com.vexane.gallery.Picture;
import com.vexane.gallery.Section;
import com.vexane.gallery.Sheet;
import com.vexane.gallery.Studio;
import com.vexane.graphics3d.Overlay;
import com.vexane.graphics3d.OverlayRenderEdit2d;
import com.vexane.interaction.CurveEditing;
import com.vexane.interaction.OverlayPicker;
import com.vexane.producer.EditGeometryBuilder;
import com.vexane.producer.RenderDrawEdit2D;
import java.io.IOException;

@About(title = "A geometry before and after a vertex was dragged",
        text = "Lines, arcs, an ellipse and free splines, with their control polygons. The three marked "
                + "edges meet in vertex 3 and follow it; the arc becomes another rational curve. The others "
                + "stay as they are.",
        section = Section.OVERLAYS,
        pages = {"editing", "overlays"})
public final class EditedGeometry implements Picture {
    private static final int WIDTH = 900;
    private static final int HEIGHT = 800;
    private static final double[] CUBIC = {0, 0, 0, 0, 1, 1, 1, 1};

    @Override
    public void draw(Studio studio) throws IOException {
        // The overlay object shows the edges of a geometry that the program edits, here with the numbers of its
        // vertices.
        studio.renderer().resize(WIDTH, HEIGHT);
        studio.flat().nameAxes("Before", "");
        Sheet sheet = new Sheet(2);
        try (Overlay overlay = new Overlay(); OverlayRenderEdit2d curve = new OverlayRenderEdit2d();
                RenderDrawEdit2D geometry = plate();
                CurveEditing editing = CurveEditing.connect(studio.renderer(), curve, HEIGHT);
                OverlayPicker picker = OverlayPicker.connect(studio.renderer(), overlay, HEIGHT)) {
            curve.connectRenderDrawEdit(geometry);
            overlay.addOverlayObject(curve, 1);
            studio.renderer().setOverlay(overlay);
            curve.setUseColor(true);
            curve.setOutlineColor(40, 60, 90, 255);
            curve.setMarkingColor(220, 90, 20, 255);
            curve.setLineSize(2.5f);
            curve.setDisplayVertexNumbers(true);
            studio.renderer().draw(); // gives the camera its area
            studio.camera2d().setViewLimits(-0.5f, 7, -0.6f, 5.6f);
            studio.renderer().draw();
            sheet.add(studio.renderer());

            // A press, a drag and a release in pixels, as a mouse would make them. Moving a vertex changes the
            // edges that end in it and marks them as modified.
            int[] pointer = picker.pixelOf(4, 4, 0);
            editing.press(pointer[0], pointer[1]);
            editing.drag(pointer[0] + 120, pointer[1] - 70);
            editing.release();
            markModified(curve);
            studio.nameAxes("Vertex 3 dragged to the upper right", "");
            studio.renderer().draw();
            sheet.add(studio.renderer());
        }
        sheet.write(studio.file("Left before, right after: the modified edges are orange, with their control points."));
    }

    // The object says which edges have been modified; marks show them in another colour. The geometry is built from
    // lines, arcs about a centre, splines with their knots, and an ellipse.
    private static void markModified(OverlayRenderEdit2d curve) {
        for (int edge = 0; edge < curve.getNumberOfEdges(); ++edge) {
            if (curve.isEdgeModified(edge)) {
                curve.setEdgeMarking(edge, true);
            }
        }
    }

    private static RenderDrawEdit2D plate() {
        EditGeometryBuilder builder = new EditGeometryBuilder();
        int[] corners = {builder.addVertex(0, 0), builder.addVertex(6, 0), builder.addVertex(6, 2),
            builder.addVertex(4, 4), builder.addVertex(1, 4), builder.addVertex(0, 3)};
        builder.addLine(corners[0], corners[1]);
        builder.addLine(corners[1], corners[2]);
        builder.addArc(corners[2], corners[3], 4, 2); // counter-clockwise about (4, 2)
        builder.addSpline(corners[3], corners[4], 3, CUBIC, new double[] {4, 3, 2, 1}, new double[] {4, 5, 3, 4});
        builder.addArc(corners[4], corners[5], 1, 3);
        builder.addLine(corners[5], corners[0]);
        builder.addSpline(corners[3], corners[1], 2, new double[] {0, 0, 0, 1, 1, 1}, new double[] {4, 3.6, 6},
                new double[] {4, 1.4, 0}, new double[] {1, 1.5, 1});
        int hole = builder.addVertex(2.9, 1.6);
        builder.addEllipse(hole, hole, 1.9, 1.6, 1, 0.6, 0);
        return builder.build();
    }
}
