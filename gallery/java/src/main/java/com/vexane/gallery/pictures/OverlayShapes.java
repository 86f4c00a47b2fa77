package com.vexane.gallery.pictures;

import com.vexane.gallery.About;
import com.vexane.gallery.Picture;
import com.vexane.gallery.PlotFile;
import com.vexane.gallery.Section;
import com.vexane.gallery.Studio;
import com.vexane.graphics3d.Overlay;
import com.vexane.graphics3d.OverlayEllipse;
import com.vexane.graphics3d.OverlayLine;
import com.vexane.graphics3d.OverlayPoint;
import com.vexane.graphics3d.OverlayRectangle;
import com.vexane.graphics3d.OverlaySymbol;
import com.vexane.graphics3d.SceneGraphPlotSurface2d;
import com.vexane.interaction.RubberBand;
import com.vexane.producer.DataRole;
import com.vexane.producer.PlotKind;
import com.vexane.producer.PostDataBuilder;
import com.vexane.producer.PostDataGroup;
import com.vexane.producer.PostDataObject;
import java.io.IOException;

@About(title = "Shapes over a map",
        text = "An overlay with a shape of each kind over the temperature of the sea, and a rubber band on "
                + "the screen.",
        section = Section.OVERLAYS,
        pages = "overlays")
public final class OverlayShapes implements Picture {
    @Override
    public void draw(Studio studio) throws IOException {
        // The map is a plot of the scene. Shapes belong to an `Overlay`, which lies over the scene; a second
        // overlay in pixels holds the rubber band.
        PlotFile file = PlotFile.read(studio.data("sea_temperature_2d.txt"));
        PostDataGroup sea = new PostDataGroup()
                .coordinates(file.coordinates()[0], file.coordinates()[1])
                .elements(file.triangles())
                .data(file.data());
        try (SceneGraphPlotSurface2d plot = new SceneGraphPlotSurface2d(1);
                PostDataObject record =
                        new PostDataBuilder(PlotKind.SURFACE_2D).role(DataRole.COLOR, 0).addGroup(sea).build();
                Overlay overlay = new Overlay();
                OverlayRectangle region = new OverlayRectangle();
                OverlayEllipse pool = new OverlayEllipse();
                OverlayLine equator = new OverlayLine();
                OverlaySymbol hawaii = new OverlaySymbol();
                OverlayPoint easterIsland = new OverlayPoint();
                Overlay screen = new Overlay();
                OverlayRectangle rectangle = new OverlayRectangle();
                RubberBand band = new RubberBand(screen, rectangle)) {
            plot.setColorTable("viridis", studio.colors("viridis"), true);
            plot.fillPlot(record);
            studio.nameAxes("Longitude in degrees", "Latitude in degrees");
            studio.show(plot, "Temperature in \\degree C").flat();

            // Shapes are in the coordinates of the axes. Colours include an opacity.
            equator.setStart(20, 0);
            equator.setEnd(380, 0);
            equator.setUseColor(true);
            equator.setOutlineColor(0, 60, 200, 160);
            equator.setLineSize(3);
            overlay.addOverlayObject(equator, 1);

            region.setStart(190, -5);
            region.setEnd(240, 5);
            region.setUseColor(true);
            region.setFilled(true);
            region.setFillColor(230, 40, 40, 90);
            region.setOutlineColor(230, 40, 40, 255);
            region.setLineSize(3);
            overlay.addOverlayObject(region, 2);

            // Drawn about the origin, then rotated and moved.
            pool.setEnd(40, 14);
            pool.setTranslation(145, 0, 0, true);
            pool.setRotation(0, 0, 1, -0.2f, false);
            pool.setUseColor(true);
            pool.setOutlineColor(255, 140, 0, 255);
            pool.setLineSize(4);
            overlay.addOverlayObject(pool, 3);

            hawaii.setLocation(204, 20);
            hawaii.setUseColor(true);
            hawaii.setFilled(true);
            hawaii.setFillColor(255, 255, 255, 255);
            overlay.addOverlayObject(hawaii, 4);
            easterIsland.setLocation(250.6, -27.1);
            easterIsland.setUseColor(true);
            easterIsland.setFilled(true);
            easterIsland.setLineSize(12);
            easterIsland.setFillColor(255, 230, 0, 255);
            overlay.addOverlayObject(easterIsland, 5);
            studio.renderer().setOverlay(overlay);

            // The rubber band follows a press and a drag in pixels. It has no colours of its own, so it gets those
            // of the renderer.
            rectangle.setFilled(true);
            int width = studio.renderer().getWidth();
            int height = studio.renderer().getHeight();
            band.press(width * 60 / 100, height * 62 / 100);
            band.drag(width * 75 / 100, height * 78 / 100);
            studio.renderer().setScreenOverlay(screen);
            studio.save("The region by which El Ni\u00f1o is recognised as a translucent rectangle, the warm "
                    + "pool of the Pacific as an ellipse, the equator as a line, Hawaii as a symbol and Easter "
                    + "Island as a point. At the lower right a rubber band is being dragged open.");
        }
    }
}
