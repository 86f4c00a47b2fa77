package com.vexane.gallery.pictures;

import com.vexane.gallery.CsvFile;
import com.vexane.gallery.PlotFile;
import com.vexane.gallery.Studio;
import com.vexane.graphics3d.SceneGraphPlotSurface3d;
import com.vexane.producer.DataRole;
import com.vexane.producer.PlotKind;
import com.vexane.producer.PostDataBuilder;
import com.vexane.producer.PostDataGroup;
import com.vexane.producer.PostDataObject;
import java.io.IOException;
import java.util.Arrays;

/** The relief of the earth without legend, as a ground for other plots. */
final class Globe implements AutoCloseable {
    private final SceneGraphPlotSurface3d relief = new SceneGraphPlotSurface3d(1);

    Globe(Studio studio) throws IOException {
        try (PostDataObject record = PlotFile.read(studio.data("earth_relief_3d.txt")).surface3d()) {
            relief.setColorTable("relief", studio.colors("relief"), true);
            relief.setSymmetricColorTable(true);
            relief.setShowLegend(false);
            relief.setShininess(8);
            relief.fillPlot(record);
        }
    }

    void show(Studio studio) {
        studio.hideAxes();
        studio.show(relief, "");
    }

    /** The wind at the surface: a vector at each point, with its speed. */
    static PostDataObject wind(Studio studio) throws IOException {
        PlotFile wind = PlotFile.read(studio.data("earth_wind_arrows.txt"));
        double[][] velocity = wind.vectors();
        return new PostDataBuilder(PlotKind.GENERAL).role(DataRole.COLOR, 0)
                .role(DataRole.VECTOR_X, 1).role(DataRole.VECTOR_Y, 2).role(DataRole.VECTOR_Z, 3)
                .addGroup(new PostDataGroup().coordinates(wind.coordinates()).data(wind.data())
                        .data(velocity[0]).data(velocity[1]).data(velocity[2]))
                .build();
    }

    /** A week of earthquakes: the depth of each, and a radius that grows with its magnitude. */
    static PostDataObject earthquakes(Studio studio) throws IOException {
        CsvFile quakes = CsvFile.read(studio.data("earth_quakes.csv"));
        double[] radii = Arrays.stream(quakes.column("magnitude")).map(m -> 0.004 * Math.pow(1.55, m)).toArray();
        return new PostDataBuilder(PlotKind.GENERAL).role(DataRole.COLOR, 0).role(DataRole.RADIUS, 1)
                .addGroup(new PostDataGroup().coordinates(quakes.columns("x", "y", "z"))
                        .data(quakes.column("depth")).data(radii))
                .build();
    }

    /** The streamlines of the wind with their speeds, widths, and the directions of bands that lie on the globe. */
    static PostDataObject streamlines(Studio studio, double width) throws IOException {
        CsvFile file = CsvFile.read(studio.data("earth_wind_streamlines.csv"));
        double[] line = file.column("line");
        double[][] points = file.columns("x", "y", "z");
        int count = line.length;
        double[] widths = new double[count];
        Arrays.fill(widths, width);
        double[][] across = new double[3][count];
        double[][] normals = new double[3][count];
        for (int i = 0; i < count; ++i) {
            boolean isLast = i + 1 == count || line[i + 1] != line[i];
            double[] along = new double[3];
            double[] up = new double[3];
            double radius = 0;
            for (int axis = 0; axis < 3; ++axis) {
                along[axis] = points[axis][isLast ? i : i + 1] - points[axis][isLast ? i - 1 : i];
                radius = Math.hypot(radius, points[axis][i]);
            }
            for (int axis = 0; axis < 3; ++axis) {
                up[axis] = points[axis][i] / radius;
                normals[axis][i] = up[axis];
            }
            double length = 0;
            for (int axis = 0; axis < 3; ++axis) {
                int next = (axis + 1) % 3;
                int last = (axis + 2) % 3;
                across[axis][i] = up[next] * along[last] - up[last] * along[next];
                length = Math.hypot(length, across[axis][i]);
            }
            for (int axis = 0; axis < 3; ++axis) {
                across[axis][i] /= length;
            }
        }
        int[] counts = Arrays.stream(line).distinct()
                .mapToInt(number -> (int) Arrays.stream(line).filter(other -> other == number).count()).toArray();
        PostDataGroup group = new PostDataGroup().coordinates(points).polylineElements(counts)
                .data(file.column("speed")).data(widths);
        PostDataBuilder record = new PostDataBuilder(PlotKind.LINES_3D).role(DataRole.COLOR, 0)
                .role(DataRole.RADIUS, 1).addGroup(group);
        DataRole[] directions = {
            DataRole.FIRST_DIRECTION_X, DataRole.FIRST_DIRECTION_Y, DataRole.FIRST_DIRECTION_Z,
            DataRole.SECOND_DIRECTION_X, DataRole.SECOND_DIRECTION_Y, DataRole.SECOND_DIRECTION_Z};
        for (int i = 0; i < directions.length; ++i) {
            group.data(i < 3 ? across[i] : normals[i - 3]);
            record.role(directions[i], 2 + i);
        }
        return record.build();
    }

    @Override
    public void close() {
        relief.close();
    }
}
