package com.vexane.gallery.pictures;

import com.vexane.gallery.About;
import com.vexane.gallery.Contours;
import com.vexane.gallery.Picture;
import com.vexane.gallery.PlotFile;
import com.vexane.gallery.Studio;
import com.vexane.graphics3d.SceneGraphPlotContour;
import com.vexane.producer.DataRole;
import com.vexane.producer.PlotKind;
import com.vexane.producer.PostDataBuilder;
import com.vexane.producer.PostDataObject;
import java.io.IOException;

@About(title = "Levels coloured by the legend",
        text = "Bands of sea surface temperature, filled once. The levels of the legend decide which "
                + "values the ends of the colour table stand for; the texture coordinates are written "
                + "again, but nothing is filled.")
public final class SeaTemperatureBands implements Picture {
    private static final double STEP = 2.5;

    @Override
    public void draw(Studio studio) throws IOException {
        PlotFile file = PlotFile.read(studio.data("sea_temperature_2d.txt"));
        Contours contours = new Contours(new double[][] {file.coordinates()[0], file.coordinates()[1]},
                file.triangles(), file.data());
        PostDataBuilder bands = new PostDataBuilder(PlotKind.CONTOUR_2D).role(DataRole.ISO_LEVEL, 0);
        for (double level = -STEP; level < 32; level += STEP) {
            bands.addGroup(contours.band(level - STEP / 2, level + STEP / 2));
        }
        try (SceneGraphPlotContour plot = new SceneGraphPlotContour(1);
                PostDataObject record = bands.build()) {
            plot.setColorTable("plasma", studio.colors("plasma"), true);
            plot.fillPlot(record);
            studio.nameAxes("Longitude in degrees", "Latitude in degrees");
            studio.show(plot, "Temperature in \\degree C").flat();
            plot.setLegendLevels(0, 5, 10, 15, 20, 25, 30);
            studio.save("Legend levels from 0 to 30 degrees.");

            plot.setLegendLevels(20, 22.5, 25, 27.5, 30);
            studio.save("From 20 to 30 degrees: all colours are for warm water.");

            plot.setSurfaceShownForAll(false);
            for (int level = 9; level < plot.getNumberOfSurfaces(); ++level) {
                plot.setSurfaceShown(level, true);
            }
            studio.save("The same without the levels below 20 degrees.");
        }
    }
}
