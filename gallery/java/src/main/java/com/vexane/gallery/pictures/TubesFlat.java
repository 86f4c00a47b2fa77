package com.vexane.gallery.pictures;

import com.vexane.gallery.About;
import com.vexane.gallery.Picture;
import com.vexane.gallery.Studio;
import com.vexane.graphics3d.SceneGraphPlotTube2d;
import com.vexane.producer.DataRole;
import com.vexane.producer.PlotKind;
import com.vexane.producer.PostDataBuilder;
import com.vexane.producer.PostDataGroup;
import com.vexane.producer.PostDataObject;
import java.io.IOException;
import java.util.Arrays;

@About(title = "Tubes in the plane",
        text = "Six modes of a vibrating string. The colour is the deflection, and the width of a band the "
                + "steepness.",
        pages = "plots/vector-plots")
public final class TubesFlat implements Picture {
    private static final int LINES = 6;
    private static final int POINTS = 200;

    // The points have two coordinates. With the height role the same lines are raised and become tubes in space.
    private static PostDataObject modes(boolean raised) {
        double[][] points = new double[2][LINES * POINTS];
        double[] deflections = new double[LINES * POINTS];
        double[] radii = new double[LINES * POINTS];
        for (int i = 0; i < LINES * POINTS; ++i) {
            int mode = i / POINTS + 1;
            double x = (double) (i % POINTS) / (POINTS - 1);
            double angle = mode * Math.PI * x;
            points[0][i] = 6 * x;
            points[1][i] = mode + 0.3 * Math.sin(angle);
            deflections[i] = Math.sin(angle);
            radii[i] = 0.05 + 0.05 * Math.abs(Math.cos(angle));
        }
        int[] counts = new int[LINES];
        Arrays.fill(counts, POINTS);
        PostDataBuilder record = new PostDataBuilder(PlotKind.GENERAL).role(DataRole.COLOR, 0)
                .role(DataRole.RADIUS, 1).addGroup(new PostDataGroup().coordinates(points).polylineElements(counts)
                        .data(deflections).data(radii));
        return (raised ? record.role(DataRole.HEIGHT, 0) : record).build();
    }

    @Override
    public void draw(Studio studio) throws IOException {
        // A record without heights makes the plot flat.
        try (SceneGraphPlotTube2d plot = new SceneGraphPlotTube2d(1);
                PostDataObject flat = modes(false);
                PostDataObject raised = modes(true)) {
            studio.size(1120, 720);
            plot.setColorTable("coolwarm", studio.colors("coolwarm"), true);
            plot.fillPlot(flat);
            studio.nameAxes("Position in dm", "Number of the mode");
            studio.show(plot, "Deflection in mm").flat();
            studio.save("Flat bands with round ends: wide and grey at the nodes, narrow and coloured between "
                    + "them.");

            // The same plot is filled from the other record.
            plot.fillPlot(raised);
            plot.setHeightScale(0.4f);
            studio.nameAxes("Position in dm", "Number of the mode", "Deflection in mm");
            studio.view(-60, 35);
            studio.save("Each mode raised by its deflection: red tubes run above the plane, blue ones below it, "
                    + "and all begin and end in it.");
        }
    }
}
