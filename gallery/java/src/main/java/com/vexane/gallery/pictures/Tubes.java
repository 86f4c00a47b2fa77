package com.vexane.gallery.pictures;

import com.vexane.gallery.About;
import com.vexane.gallery.Picture;
import com.vexane.gallery.Studio;
import com.vexane.graphics3d.SceneGraphPlotTube3d;
import com.vexane.producer.DataRole;
import com.vexane.producer.PlotKind;
import com.vexane.producer.PostDataBuilder;
import com.vexane.producer.PostDataGroup;
import com.vexane.producer.PostDataObject;
import java.io.IOException;
import java.util.stream.IntStream;

@About(title = "A closed tube and a tube with ends",
        text = "A knot on a torus, whose last line leads back to its first point, and a helix with a "
                + "hemisphere at each end.",
        pages = "plots/vector-plots")
public final class Tubes implements Picture {
    private static final int POINTS = 600;

    // The elements are lines from point to point. If the last one leads back to the first point, the tube is closed.
    private static PostDataObject tube(boolean closed, double[][] points, double[] colors, double[] radii) {
        int count = colors.length;
        int[] from = IntStream.range(0, closed ? count : count - 1).toArray();
        int[] to = IntStream.of(from).map(i -> (i + 1) % count).toArray();
        return new PostDataBuilder(PlotKind.LINES_3D).role(DataRole.COLOR, 0).role(DataRole.RADIUS, 1)
                .addGroup(new PostDataGroup().coordinates(points).elements(from, to).data(colors).data(radii))
                .build();
    }

    // Radius and colour are data of the points, so the thickness can change along the tube.
    private static PostDataObject knot() {
        double[][] points = new double[3][POINTS];
        double[] colors = new double[POINTS];
        double[] radii = new double[POINTS];
        for (int i = 0; i < POINTS; ++i) {
            double t = 2 * Math.PI * i / POINTS;
            double distance = 3 + Math.cos(3 * t);
            points[0][i] = distance * Math.cos(2 * t);
            points[1][i] = distance * Math.sin(2 * t);
            points[2][i] = Math.sin(3 * t);
            colors[i] = points[2][i];
            radii[i] = 0.35 + 0.15 * Math.cos(5 * t);
        }
        return tube(true, points, colors, radii);
    }

    private static PostDataObject helix() {
        double[][] points = new double[3][POINTS];
        double[] colors = new double[POINTS];
        double[] radii = new double[POINTS];
        for (int i = 0; i < POINTS; ++i) {
            double t = 5 * Math.PI * i / (POINTS - 1);
            points[0][i] = 8 + 1.5 * Math.cos(t);
            points[1][i] = 1.5 * Math.sin(t);
            points[2][i] = -1.5 + 3.0 * i / (POINTS - 1);
            colors[i] = points[2][i];
            radii[i] = 0.2 + 0.25 * i / (POINTS - 1);
        }
        return tube(false, points, colors, radii);
    }

    @Override
    public void draw(Studio studio) throws IOException {
        // Both plots are filled in the same way; the record decides which tube is closed. Equal limits let one legend
        // serve both.
        try (SceneGraphPlotTube3d closed = new SceneGraphPlotTube3d(1);
                SceneGraphPlotTube3d open = new SceneGraphPlotTube3d(2);
                PostDataObject knot = knot();
                PostDataObject helix = helix()) {
            for (SceneGraphPlotTube3d plot : new SceneGraphPlotTube3d[] {closed, open}) {
                plot.setColorTable("viridis", studio.colors("viridis"), true);
                plot.fillPlot(plot == closed ? knot : helix);
                plot.setLegendLimits(-1.5, 1.5);
            }
            open.setShowLegend(false);
            studio.nameAxes("x in cm", "y in cm", "z in cm");
            studio.show(closed, "Height in cm").show(open, "");
            studio.view(-70, 35);
            studio.save("The closed knot and the open helix with its round ends, in the colours of their heights.");

            // A factor changes all radii. It needs no record.
            closed.setRadiusScaleFactor(0.4f);
            open.setRadiusScaleFactor(0.4f);
            studio.save("The same lines in tubes of 0.4 times the radius: where the knot crosses itself shows better.");
        }
    }
}
