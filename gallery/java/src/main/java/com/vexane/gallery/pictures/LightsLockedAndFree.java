package com.vexane.gallery.pictures;

import com.vexane.gallery.About;
import com.vexane.gallery.Picture;
import com.vexane.gallery.PlotFile;
import com.vexane.gallery.Section;
import com.vexane.gallery.Studio;
import com.vexane.graphics3d.Canvas3dSettings;
import com.vexane.graphics3d.PointLightSource;
import com.vexane.graphics3d.SceneGraphPlotSurface3d;
import com.vexane.graphics3d.SceneSettingsLight;
import com.vexane.graphics3d.SpotLightSource;
import com.vexane.producer.PostDataObject;
import java.io.IOException;

@About(title = "Lights that stay with the camera or with the scene",
        text = "A light moves with the camera or stays with the scene. There are three kinds of "
                + "lights, each with a marker.",
        section = Section.VIEWS,
        pages = {"common-tasks", "renderer"})
public final class LightsLockedAndFree implements Picture {
    @Override
    public void draw(Studio studio) throws IOException {
        // A scene has ambient light and lamps. The lamp of the studio is locked to the camera; here it comes from the
        // left, without much ambient light.
        PlotFile file = PlotFile.read(studio.data("bracket_stress_3d.txt"));
        try (SceneGraphPlotSurface3d plot = new SceneGraphPlotSurface3d(1);
                PostDataObject record = file.surface3d();
                SceneSettingsLight switches = SceneSettingsLight.connect(studio.settings());
                PointLightSource point =
                        PointLightSource.connect(studio.light(), studio.light().createPointLight());
                SpotLightSource spot = SpotLightSource.connect(studio.light(), studio.light().createSpotLight())) {
            plot.fillPlot(record);
            plot.setColor(0xd8d4cc);
            studio.renderer().setStudioLight(false); // which would soften what the lamps do
            studio.light().setAmbientIntensity(0.3f);
            studio.lamp().setFromDirection(false, -1, 0.6f, 0.5f);
            studio.lamp().setIntensity(0.9f);
            studio.canvas().setShowAxisOrientationIndicator(true);
            studio.nameAxes("x in mm", "y in mm", "z in mm");
            studio.show(plot, "");
            studio.view(-35, 25);
            studio.save("Locked to the camera, the light comes from the left of the viewer.");

            // The camera turns by 60 degrees.
            studio.view(-95, 25);
            studio.save("The light has come along: it still comes from the left of the viewer.");

            // Released, the lamp keeps the direction that it has at this moment.
            studio.lamp().releaseFromCamera(studio.camera3d());
            studio.view(-35, 25);
            studio.save("Turned back to the first view, the part is seen from its dark side: the light has stayed.");

            // Besides directional light there are points, which shine to all sides, and spots, which shine into a cone.
            // Markers show where they are, and the view is fitted to them as well.
            studio.light().setAmbientIntensity(0.12f);
            studio.lamp().setFromDirection(true, 0.2f, -0.6f, 1);
            studio.lamp().setIntensity(0.35f);
            point.setPosition(true, 100, -80, 60);
            point.setColor(0x40ff60);
            point.setIntensity(0.7f);
            point.setActive(true);
            spot.setPosition(true, 190, -60, 90);
            spot.setAtDirection(-0.9f, 0.3f, -0.62f);
            spot.setSpreadAngle(0.6f);
            spot.setColor(0xff40ff);
            spot.setIntensity(1);
            spot.setSpecularIntensity(0.5f);
            spot.setActive(true);
            studio.lamp().setMarkerVisibility(true);
            point.setMarkerVisibility(true);
            spot.setMarkerVisibility(true);
            spot.setSelected(true);
            switches.setRenderLightMarkers(true);
            studio.canvas().setBackgroundColor(Canvas3dSettings.RenderMode.VIEW_3D, 0x404448);
            studio.hideAxes();
            studio.view(-35, 25);
            studio.save("White light from one direction, a green point and a magenta spot, with their markers. The "
                    + "spot is selected.");
        }
    }
}
