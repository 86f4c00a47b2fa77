package com.vexane.gallery.pictures;

import com.vexane.gallery.About;
import com.vexane.gallery.Picture;
import com.vexane.gallery.Section;
import com.vexane.gallery.Studio;
import com.vexane.graphics3d.Camera3d;
import com.vexane.graphics3d.SceneGraphPlotSurface2d;
import com.vexane.interaction.CameraInteraction;
import com.vexane.producer.DataRole;
import com.vexane.producer.PlotKind;
import com.vexane.producer.PostDataObject;
import java.io.IOException;
import java.util.Map;

@About(title = "One scene in four cameras",
        text = "The mountains again, in perspective, in orthographic projection, with stretched axes, and "
                + "zoomed by the mouse wheel.",
        section = Section.VIEWS,
        pages = {"camera-mathematics", "interaction"})
public final class FourCameras implements Picture {
    @Override
    public void draw(Studio studio) throws IOException {
        // One plot for all four pictures.
        Map<DataRole, Integer> roles = Map.of(DataRole.COLOR, 1, DataRole.HEIGHT, 1);
        try (SceneGraphPlotSurface2d plot = new SceneGraphPlotSurface2d(1);
                PostDataObject record = studio.read("terrain_2d.txt", PlotKind.SURFACE_2D, roles)) {
            plot.setColorTable("viridis", studio.colors("viridis"), true);
            plot.fillPlot(record);
            plot.setHeightScale(0.2f);
            studio.nameAxes("x in km", "y in km", "z in m");
            studio.show(plot, "Elevation in m").view(-60, 35);

            // A camera is set by its position, the direction in which it looks, and the direction that is up. This one
            // is moved closer along its direction.
            Camera3d camera = studio.camera3d();
            float[] towards = {
                camera.getLookAtDirectionX(), camera.getLookAtDirectionY(), camera.getLookAtDirectionZ()
            };
            float distance = 45;
            camera.setPosition(
                    camera.getRotationPointX() - distance * towards[0],
                    camera.getRotationPointY() - distance * towards[1],
                    camera.getRotationPointZ() - distance * towards[2],
                    towards[0], towards[1], towards[2], 0, 0, 1);
            camera.setRelativeViewOffset(0, 0.1f);
            camera.setFieldOfView(24);
            studio.save("Perspective from close by: parallel edges run together.");

            // `view` fits the scene again, for the projection that is set.
            camera.setProjectionType(Camera3d.ProjectionType.ORTHOGRAPHIC);
            camera.setRelativeViewOffset(0, 0);
            studio.view(-60, 35);
            studio.save("Orthographic projection: parallel edges stay parallel.");

            // A scale per axis stretches the scene, here until all axes look equally long.
            camera.setAxisViewScalesAuto();
            studio.view(-60, 35);
            studio.save("Axes stretched to equal lengths. The numbers at the axes stay those of the data.");

            // `CameraInteraction` turns mouse events into camera movements. It needs the size of the picture and works
            // without a window.
            camera.resetAxisViewScales();
            studio.view(-60, 35);
            int width = studio.renderer().getWidth();
            int height = studio.renderer().getHeight();
            try (CameraInteraction mouse = CameraInteraction.connect(studio.renderer(), height)) {
                mouse.wheel(-7, width * 3 / 10, height * 2 / 5);
            }
            studio.save("Zoomed by the wheel about a peak, which stays where it was in the picture.");
        }
    }
}
