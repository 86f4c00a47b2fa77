package com.vexane.gallery.pictures;

import com.vexane.gallery.About;
import com.vexane.gallery.Picture;
import com.vexane.gallery.PlotFile;
import com.vexane.gallery.Section;
import com.vexane.gallery.Studio;
import com.vexane.graphics3d.Overlay;
import com.vexane.graphics3d.OverlayTransformation;
import com.vexane.graphics3d.SceneGraphPlotGroup;
import com.vexane.graphics3d.SceneGraphPlotSurface2d;
import com.vexane.graphics3d.SceneGraphPlotSurface3d;
import com.vexane.interaction.FrameInteraction;
import com.vexane.interaction.OverlayPicker;
import com.vexane.producer.DataRole;
import com.vexane.producer.PlotKind;
import com.vexane.producer.PostDataBuilder;
import com.vexane.producer.PostDataGroup;
import com.vexane.producer.PostDataObject;
import java.io.IOException;

@About(title = "The frame over a rotated object",
        text = "The frame of an overlay, in space around a bracket, and in the plane while a gear is moved "
                + "with its handles.",
        section = Section.OVERLAYS,
        pages = "overlays")
public final class FrameOverRotatedObject implements Picture {
    private static final int POINTS = 240;

    // A gear of 12 teeth is a fan of triangles around its middle. It is a plot that is filled from new coordinates when
    // the gear has moved.
    private static double[][] gear() {
        double[][] points = new double[2][POINTS + 1];
        for (int i = 1; i <= POINTS; ++i) {
            double angle = 2 * Math.PI * i / POINTS;
            double radius = 3 + Math.tanh(4 * Math.sin(12 * angle)) * 0.4;
            points[0][i] = radius * Math.cos(angle);
            points[1][i] = radius * Math.sin(angle);
        }
        return points;
    }

    private static double[][] transformed(double[][] points, float[] matrix) {
        double[][] result = new double[2][points[0].length];
        for (int i = 0; i < points[0].length; ++i) {
            for (int row = 0; row < 2; ++row) {
                result[row][i] = matrix[row] * points[0][i] + matrix[4 + row] * points[1][i] + matrix[12 + row];
            }
        }
        return result;
    }

    private static void fill(SceneGraphPlotSurface2d plot, double[][] points, int color) {
        int[][] triangles = new int[3][POINTS];
        for (int i = 0; i < POINTS; ++i) {
            triangles[1][i] = i + 1;
            triangles[2][i] = (i + 1) % POINTS + 1;
        }
        try (PostDataObject record = new PostDataBuilder(PlotKind.SURFACE_2D).role(DataRole.COLOR, 0)
                .addGroup(new PostDataGroup().coordinates(points).elements(triangles).data(new double[POINTS + 1]))
                .build()) {
            plot.fillPlot(record);
        }
        plot.setColor(color);
    }

    @Override
    public void draw(Studio studio) throws IOException {
        // The frame is a shape of an overlay, which lies over the scene.
        try (SceneGraphPlotSurface3d bracket = new SceneGraphPlotSurface3d(1);
                Overlay overlay = new Overlay();
                OverlayTransformation frame = new OverlayTransformation()) {
            studio.renderer().setOverlay(overlay);
            frame.setUseColor(true);
            frame.setOutlineColor(20, 60, 160, 255);
            frame.setLineSize(2);
            overlay.addOverlayObject(frame, 1);
            drawInSpace(studio, bracket);
            bracket.setActive(false);
            drawFlat(studio, overlay, frame);
        }
    }

    // By itself the frame encloses all that the view shows, here a bracket.
    private static void drawInSpace(Studio studio, SceneGraphPlotSurface3d bracket) throws IOException {
        PlotFile file = PlotFile.read(studio.data("bracket_stress_3d.txt"));
        try (PostDataObject record = file.surface3d()) {
            bracket.fillPlot(record);
        }
        bracket.setColor(0xb8bcc4);
        studio.nameAxes("x in mm", "y in mm", "z in mm");
        studio.show(bracket, "The frame of an object in space").view(-35, 25);
        studio.save("In space the frame shows all edges of the box; its handles are in the plane z = 0.");
    }

    // In the plane a user moves an object by the handles of its frame.
    private static void drawFlat(Studio studio, Overlay overlay, OverlayTransformation frame) throws IOException {
        int height = studio.renderer().getHeight();
        try (SceneGraphPlotSurface2d before = new SceneGraphPlotSurface2d(2);
                SceneGraphPlotSurface2d after = new SceneGraphPlotSurface2d(3);
                SceneGraphPlotSurface2d content = new SceneGraphPlotSurface2d(4);
                SceneGraphPlotGroup contentGroup = new SceneGraphPlotGroup();
                FrameInteraction interaction = FrameInteraction.connect(studio.renderer(), frame, height);
                OverlayPicker picker = OverlayPicker.connect(studio.renderer(), overlay, height)) {
            // What the frame encloses: a group of its own, because the scene will have both gears.
            fill(content, gear(), 0);
            contentGroup.addPlot(content);
            studio.renderer().setFramedNode(contentGroup);

            fill(before, gear(), 0xdde1e8);
            frame.setTranslation(4, 1, 0, true);
            frame.setRotation(0, 0, 1, 0.35f, false);
            studio.nameAxes("x in cm", "y in cm");
            studio.show(before, "The frame shows how the gear is moved").flat();
            studio.camera2d().setViewLimits(-5, 14, -5, 7);
            studio.renderer().draw(); // moves the handles to the box

            // A press on the upper right handle and a drag, as a mouse would make them. The interaction then has the
            // transformation of the frame, and the gear is drawn again with it.
            double[] corner = frame.getHandlePosition(4);
            int[] pointer = picker.pixelOf(corner[0], corner[1], corner[2]);
            interaction.press(pointer[0], pointer[1]);
            interaction.drag(pointer[0] + height / 4, pointer[1] - height / 20);
            fill(after, transformed(gear(), interaction.getTransformation()), 0x9db4d8);
            studio.show(after, "");
            studio.save("The pale gear is where it was before; the frame shows it translated, rotated and scaled, with "
                    + "the blue gear inside.");
            interaction.release();
            contentGroup.removeAllPlots();
        }
    }
}
