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
import java.util.Arrays;
import java.util.stream.IntStream;

@About(title = "Contours of mountains",
        text = "The elevation of a terrain at every 100 m: as lines with labels, as filled bands below the "
                + "lines, and as lines in space.",
        pages = "plots/scalar-plots")
public final class TerrainContours implements Picture {
    private static final int LOWEST = 300;
    private static final int HIGHEST = 1000;
    private static final int STEP = 100;

    @Override
    public void draw(Studio studio) throws IOException {
        // The library draws level sets but does not compute them. `Contours`, a small class of the gallery, cuts the
        // triangles; a simulation program has its own code for that. Each level becomes a group of a record.
        PlotFile file = PlotFile.read(studio.data("terrain_2d.txt"));
        double[] x = file.coordinates()[0];
        double[] y = file.coordinates()[1];
        double[] height = file.coordinates()[2];
        double[] raised = Arrays.stream(height).map(h -> h / STEP).toArray();
        Contours flat = new Contours(new double[][] {x, y}, file.triangles(), height);
        Contours spatial = new Contours(new double[][] {x, y, raised}, file.triangles(), height);
        PostDataBuilder lines = new PostDataBuilder(PlotKind.CONTOUR_2D).role(DataRole.ISO_LEVEL, 0);
        PostDataBuilder bands = new PostDataBuilder(PlotKind.CONTOUR_2D).role(DataRole.ISO_LEVEL, 0);
        PostDataBuilder linesInSpace = new PostDataBuilder(PlotKind.CONTOUR_3D).role(DataRole.ISO_LEVEL, 0);
        for (int level = LOWEST; level <= HIGHEST; level += STEP) {
            lines.addGroup(flat.lines(level));
            bands.addGroup(flat.band(level - STEP, level));
            linesInSpace.addGroup(spatial.lines(level));
        }
        bands.addGroup(flat.band(HIGHEST, HIGHEST + STEP));
        double[] levels = IntStream.rangeClosed(0, (HIGHEST - LOWEST) / STEP).mapToDouble(i -> LOWEST + i * STEP)
                .toArray();
        String[] labels = Arrays.stream(levels).mapToObj(level -> Math.round(level) + " m").toArray(String[]::new);

        // The lines get a label per level, and a legend with a stripe per level.
        try (SceneGraphPlotContour contours = new SceneGraphPlotContour(2);
                SceneGraphPlotContour fields = new SceneGraphPlotContour(1);
                PostDataObject lineRecord = lines.build();
                PostDataObject bandRecord = bands.build();
                PostDataObject spatialRecord = linesInSpace.build()) {
            contours.setColorTable("viridis", studio.colors("viridis"), true);
            contours.setLabels(labels);
            contours.fillPlot(lineRecord);
            contours.setLegendLevels(levels);
            studio.size(960, 800);
            studio.nameAxes("x in km", "y in km");
            studio.show(contours, "Elevation in m").flat();
            studio.save("Lines in the colours of their levels. The fill chooses a point for each label, far from the "
                    + "other labels.");

            // A second plot of the same class gets triangles instead of lines and draws bands. The levels of its legend
            // lie in the middle of the bands. The lines get one dark colour.
            fields.setColorTable("viridis", studio.colors("viridis"), true);
            fields.fillPlot(bandRecord);
            fields.setLegendLevels(IntStream.rangeClosed(0, levels.length)
                    .mapToDouble(i -> LOWEST + (i - 0.5) * STEP).toArray());
            contours.setColor(0x303030);
            contours.setShowLegend(false);
            studio.show(fields, "");
            studio.save("Bands between the levels, with the lines in one colour over them.");

            // A record of the kind `CONTOUR_3D` holds lines in space. The contour plot takes it in place of the flat
            // one.
            fields.setActive(false);
            contours.setColorTable("viridis", studio.colors("viridis"), true);
            contours.setShowLegend(true);
            contours.fillPlot(spatialRecord);
            studio.nameAxes("x in km", "y in km", "z in 100 m");
            studio.view(-60, 40);
            studio.save("Each line lies at the height of its level.");
        }
    }
}
