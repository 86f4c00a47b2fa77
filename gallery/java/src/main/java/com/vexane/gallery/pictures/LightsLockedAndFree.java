package com.vexane.gallery.pictures;

import com.vexane.gallery.About;
import com.vexane.gallery.Picture;
import com.vexane.gallery.PlotFile;
import com.vexane.gallery.Studio;
import com.vexane.graphics3d.Canvas3dSettings;
import com.vexane.graphics3d.PointLightSource;
import com.vexane.graphics3d.SceneGraphPlotSurface3d;
import com.vexane.graphics3d.SceneSettingsLight;
import com.vexane.graphics3d.SpotLightSource;
import com.vexane.producer.PostDataObject;
import java.io.IOException;

@About(title = "Lights that stay with the camera, and lights that stay with the scene",
        text = "The first two pictures are lit by a lamp that is locked to the camera: turning the view moves the "
                + "shadows over the part. Then the lamp is released where it stands: the next view shows the part "
                + "from its dark side. Last, a lamp of each kind with its marker: white light from one direction, a "
                + "green point and a magenta spot.")
public final class LightsLockedAndFree implements Picture {
    @Override
    public void draw(Studio studio) throws IOException {
        PlotFile file = PlotFile.read(studio.data("bracket_stress_3d.txt"));
        try (SceneGraphPlotSurface3d plot = new SceneGraphPlotSurface3d(1);
                PostDataObject record = file.surface3d();
                SceneSettingsLight switches = SceneSettingsLight.connect(studio.settings());
                PointLightSource point =
                        PointLightSource.connect(studio.light(), studio.light().createPointLight());
                SpotLightSource spot = SpotLightSource.connect(studio.light(), studio.light().createSpotLight())) {
            plot.fillPlot(record);
            plot.setColor(0xd8d4cc);
            studio.light().setAmbientIntensity(0.12f);
            studio.lamp().setFromDirection(false, -1, 0.6f, 0.5f);
            studio.lamp().setIntensity(0.9f);
            studio.canvas().setShowAxisOrientationIndicator(true);
            studio.show(plot, "");
            studio.view(-35, 25).save("Locked to the camera.");
            studio.view(-95, 25).save("The camera turned by 60 degrees: the light has come along.");
            studio.lamp().releaseFromCamera(studio.camera3d());
            studio.view(-35, 25).save("Released and turned back: the light has stayed.");

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
            studio.camera3d().zoomCenter(0.6f);
            studio.save("Three kinds of light with their markers; the spot is selected.");
        }
    }
}
