package com.vexane.gallery.pictures;

import com.vexane.gallery.About;
import com.vexane.gallery.CsvFile;
import com.vexane.gallery.Picture;
import com.vexane.gallery.Studio;
import com.vexane.graphics3d.SceneGraphPlotSphere2d;
import com.vexane.graphics3d.SceneGraphPlotSurface2d;
import com.vexane.producer.DataRole;
import com.vexane.producer.PlotKind;
import com.vexane.producer.PostDataBuilder;
import com.vexane.producer.PostDataGroup;
import com.vexane.producer.PostDataObject;
import java.io.IOException;
import java.util.Arrays;
import java.util.Map;

@About(title = "Earthquakes on a map",
        text = "The same week as discs over the oceans. The oceans are a surface in one colour.",
        pages = "plots/point-and-line-plots")
public final class EarthquakeMap implements Picture {
    @Override
    public void draw(Studio studio) throws IOException {
        // Radii are in units of the axes: degrees of the map. The map begins at 20 degrees east, so smaller longitudes
        // are shifted by 360 degrees.
        CsvFile quakes = CsvFile.read(studio.data("earth_quakes.csv"));
        double[] radii = Arrays.stream(quakes.column("magnitude")).map(m -> 0.3 * Math.pow(1.5, m)).toArray();
        double[] longitude = Arrays.stream(quakes.column("longitude")).map(EarthquakeMap::onMap).toArray();
        PostDataGroup points = new PostDataGroup().coordinates(longitude, quakes.column("latitude"))
                .data(quakes.column("magnitude")).data(radii);
        try (SceneGraphPlotSurface2d sea = new SceneGraphPlotSurface2d(1);
                SceneGraphPlotSphere2d discs = new SceneGraphPlotSphere2d(2);
                PostDataObject map = studio.read("sea_temperature_2d.txt", PlotKind.SURFACE_2D, Map.of(DataRole.COLOR, 0));
                PostDataObject record = new PostDataBuilder(PlotKind.GENERAL).role(DataRole.COLOR, 0)
                        .role(DataRole.RADIUS, 1).addGroup(points).build()) {
            studio.size(1200, 675);
            sea.fillPlot(map);
            sea.setColor(0xa9c6dd);
            sea.setShowLegend(false);
            discs.setColorTable("plasma", studio.colors("plasma"), true);
            discs.fillPlot(record);
            studio.nameAxes("Longitude in degrees", "Latitude in degrees");
            studio.show(sea, "").show(discs, "Magnitude").flat();
            studio.save("Earthquakes on the borders of the Pacific. Radius and colour both show the magnitude; only "
                    + "the discs have a legend.");
        }
    }

    /** A longitude in the range of the map, which begins south of Africa. */
    private static double onMap(double longitude) {
        return longitude < 20 ? longitude + 360 : longitude;
    }
}
