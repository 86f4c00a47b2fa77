package com.vexane.gallery.pictures;

import com.vexane.gallery.About;
import com.vexane.gallery.Picture;
import com.vexane.gallery.PlotFile;
import com.vexane.gallery.Section;
import com.vexane.gallery.Sheet;
import com.vexane.gallery.Studio;
import com.vexane.graphics3d.Camera3d;
import com.vexane.graphics3d.Canvas3dSettings;
import com.vexane.graphics3d.ResizeBehaviour;
import com.vexane.graphics3d.SceneGraphPlotSurface3d;
import com.vexane.graphics3d.SceneSettings;
import com.vexane.graphics3d.TextFormat;
import com.vexane.producer.PostDataObject;
import java.io.IOException;

@About(title = "Resize behaviours",
        text = "What becomes of a view when its window changes shape.",
        section = Section.VIEWS,
        pages = "camera-mathematics")
public final class ResizeBehaviours implements Picture {
    private static final int[][] SHAPES = {{400, 300}, {500, 200}, {220, 300}};

    /** Pixels of the first shape that its title leaves to the scene. */
    private static final float HEIGHT_OF_SCENE = 255;

    @Override
    public void draw(Studio studio) throws IOException {
        // Small pictures need small fonts and no legend.
        PlotFile file = PlotFile.read(studio.data("bracket_stress_3d.txt"));
        try (SceneGraphPlotSurface3d plot = new SceneGraphPlotSurface3d(1);
                PostDataObject record = file.surface3d()) {
            plot.setColorTable("coolwarm", studio.colors("coolwarm"), true);
            plot.fillPlot(record);
            plot.setLegendLimits(0, file.percentile(0.995));
            studio.settings().setShowLegends(false);
            studio.settings().setFont(SceneSettings.Text.TITLE, "default", 10);
            studio.canvas().setFont(Canvas3dSettings.Text.AXIS_TICK, "default", 7);
            studio.canvas().setFont(Canvas3dSettings.Text.AXIS_TITLE, "default", 7);
            studio.show(plot, "");
            studio.camera3d().setProjectionType(Camera3d.ProjectionType.ORTHOGRAPHIC);

            // For each behaviour the view is made in the first window, and the window is then resized. The override
            // decides which dimension keeps its scale.
            Sheet sheet = new Sheet(SHAPES.length);
            for (ResizeBehaviour behaviour : ResizeBehaviour.values()) {
                plot.setTitle(TextFormat.PLAIN, behaviour.toString());
                studio.camera3d().setOverrideResizeBehaviour(true, ResizeBehaviour.HEIGHT);
                studio.renderer().resize(SHAPES[0][0], SHAPES[0][1]);
                studio.view(-35, 25);
                studio.camera3d().setViewingScale(HEIGHT_OF_SCENE / studio.camera3d().getOrthographicSize());
                studio.camera3d().setOverrideResizeBehaviour(true, behaviour);
                for (int[] shape : SHAPES) {
                    studio.renderer().resize(shape[0], shape[1]);
                    studio.renderer().draw();
                    sheet.add(studio.renderer());
                }
            }
            sheet.write(studio.file("Each row is one behaviour: the view was made in the left window, and the same "
                    + "window was then made flat and made narrow. Grey is outside of the pictures."));
        }
    }
}
