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
        text = "Bands of sea surface temperature, filled once. The levels of the legend decide which values "
                + "have the colours at the ends of the table.",
        pages = {"plots/scalar-plots", "change-numbers"})
public final class SeaTemperatureBands implements Picture {
    private static final double STEP = 2.5;

    @Override
    public void draw(Studio studio) throws IOException {
        // A band every 2.5 degrees, computed by the helper class `Contours`. A group of the record holds the triangles
        // between two limits and the level in their middle.
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
            studio.size(1200, 675);
            studio.nameAxes("Longitude in degrees", "Latitude in degrees");
            studio.show(plot, "Temperature in \\degree C").flat();
            plot.setLegendLevels(0, 5, 10, 15, 20, 25, 30);
            studio.save("Legend levels from 0 to 30 degrees. The colours between them are interpolated for the bands "
                    + "that have no level of their own.");

            // Other levels rewrite the texture coordinates of the bands. Nothing is filled.
            plot.setLegendLevels(20, 22.5, 25, 27.5, 30);
            studio.save("Levels from 20 to 30 degrees: all colours are spent on warm water.");

            // Single levels can be hidden. This changes neither buffers nor colours.
            plot.setSurfaceShownForAll(false);
            for (int level = 9; level < plot.getNumberOfSurfaces(); ++level) {
                plot.setSurfaceShown(level, true);
            }
            studio.save("The same without the levels below 20 degrees.");
        }
    }
}
