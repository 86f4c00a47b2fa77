package com.vexane.gallery.pictures;

import com.vexane.gallery.About;
import com.vexane.gallery.Picture;
import com.vexane.gallery.PlotFile;
import com.vexane.gallery.Studio;
import com.vexane.graphics3d.SceneGraphPlotPointLabel;
import com.vexane.graphics3d.SceneGraphPlotSphere3d;
import com.vexane.graphics3d.SceneGraphPlotSurface3d;
import com.vexane.producer.PlotKind;
import com.vexane.producer.PostDataBuilder;
import com.vexane.producer.PostDataGroup;
import com.vexane.producer.PostDataObject;
import java.io.IOException;
import java.util.Arrays;

@About(title = "Cities of the world",
        text = "Texts at points, with spheres to mark the points.",
        pages = "plots/point-and-line-plots")
public final class CityLabels implements Picture {
    /** Above the highest mountains of the relief. */
    private static final double RADIUS = 1.045;

    private record City(String name, double latitude, double longitude) {}

    private static final City[] CITIES = {
        new City("Addis Ababa", 9.0, 38.7), new City("Algiers", 36.8, 3.1), new City("Athens", 38.0, 23.7),
        new City("Berlin", 52.5, 13.4), new City("Brussels", 50.9, 4.4), new City("Cairo", 30.0, 31.2),
        new City("Cape Town", -33.9, 18.4), new City("Dakar", 14.7, -17.4), new City("Helsinki", 60.2, 24.9),
        new City("Istanbul", 41.0, 29.0), new City("Kinshasa", -4.3, 15.3), new City("Lagos", 6.5, 3.4),
        new City("Lisbon", 38.7, -9.1), new City("London", 51.5, -0.1), new City("Madrid", 40.4, -3.7),
        new City("Moscow", 55.8, 37.6), new City("Mumbai", 19.1, 72.9), new City("Nairobi", -1.3, 36.8),
        new City("New York", 40.7, -74.0), new City("Paris", 48.9, 2.4), new City("Reykjav\u00edk", 64.1, -21.9),
        new City("Rio de Janeiro", -22.9, -43.2), new City("Rome", 41.9, 12.5), new City("Tehran", 35.7, 51.4),
        new City("Tokyo", 35.7, 139.7), new City("Vienna", 48.2, 16.4), new City("Warsaw", 52.2, 21.0)};

    @Override
    public void draw(Studio studio) throws IOException {
        // Latitude and longitude become points above the globe. Spheres and texts are two plots that are filled from
        // one record.
        double[][] points = new double[3][CITIES.length];
        for (int i = 0; i < CITIES.length; ++i) {
            double latitude = Math.toRadians(CITIES[i].latitude());
            double longitude = Math.toRadians(CITIES[i].longitude());
            points[0][i] = RADIUS * Math.cos(latitude) * Math.cos(longitude);
            points[1][i] = RADIUS * Math.cos(latitude) * Math.sin(longitude);
            points[2][i] = RADIUS * Math.sin(latitude);
        }
        try (SceneGraphPlotSurface3d globe = new SceneGraphPlotSurface3d(1);
                SceneGraphPlotSphere3d marks = new SceneGraphPlotSphere3d(2);
                SceneGraphPlotPointLabel names = new SceneGraphPlotPointLabel(3, 3);
                PostDataObject relief = PlotFile.read(studio.data("earth_relief_3d.txt")).surface3d();
                PostDataObject record = new PostDataBuilder(PlotKind.GENERAL)
                        .addGroup(new PostDataGroup().coordinates(points)).build()) {
            globe.setColorTable("relief", studio.colors("relief"), true);
            globe.setSymmetricColorTable(true);
            globe.fillPlot(relief);
            globe.setShowLegend(false);
            marks.fillPlot(record);
            marks.setRadiusScaleFactor(0.008f);
            marks.setColor(0xd02020);
            names.fillPlot(record);
            names.setLabels(Arrays.stream(CITIES).map(City::name).toArray(String[]::new));
            names.setColor(0x101010);
            studio.size(960, 800);
            studio.hideAxes();
            studio.show(globe, "").show(marks, "").show(names, "").view(20, 35);
            studio.save("Europe and Africa with their cities; the globe itself hides those behind it. A name "
                    + "moves to another side of its city where it would cover another name.");
        }
    }
}
