package com.vexane.gallery.pictures;

import com.vexane.gallery.About;
import com.vexane.gallery.Picture;
import com.vexane.gallery.Studio;
import com.vexane.graphics3d.SceneGraphPlotArrow;
import com.vexane.graphics3d.SceneGraphPlotArrow2d;
import com.vexane.producer.DataRole;
import com.vexane.producer.PlotKind;
import com.vexane.producer.PostDataBuilder;
import com.vexane.producer.PostDataGroup;
import com.vexane.producer.PostDataObject;
import java.io.IOException;

@About(title = "A vortex",
        text = "The flow around a vortex with a viscous core, as arrows in the plane.",
        pages = "plots/vector-plots")
public final class Vortex implements Picture {
    private static final int SIDE = 25;

    // The core has a radius of 1 m. At the distance r in metres the flow goes round at (1 - exp(-r^2)) / r m/s,
    // which is highest, 0.638 m/s, at r = 1.121 m.
    private static PostDataObject flow() {
        double[][] points = new double[2][SIDE * SIDE];
        double[][] velocity = new double[2][SIDE * SIDE];
        double[] speed = new double[SIDE * SIDE];
        for (int i = 0; i < SIDE * SIDE; ++i) {
            double x = 0.25 * (i % SIDE - SIDE / 2);
            double y = 0.25 * (i / SIDE - SIDE / 2);
            double r = Math.hypot(x, y);
            speed[i] = r > 0 ? (1 - Math.exp(-r * r)) / r : 0;
            points[0][i] = x;
            points[1][i] = y;
            velocity[0][i] = r > 0 ? -y / r * speed[i] : 0;
            velocity[1][i] = r > 0 ? x / r * speed[i] : 0;
        }
        return new PostDataBuilder(PlotKind.GENERAL).role(DataRole.COLOR, 0).role(DataRole.VECTOR_X, 1)
                .role(DataRole.VECTOR_Y, 2)
                .addGroup(new PostDataGroup().coordinates(points).data(speed).data(velocity[0]).data(velocity[1]))
                .build();
    }

    @Override
    public void draw(Studio studio) throws IOException {
        // Radii and the length of the head are fractions of the length of the longest arrow. With the anchor in the
        // middle, each arrow turns around its point.
        try (SceneGraphPlotArrow2d plot = new SceneGraphPlotArrow2d(1); PostDataObject record = flow()) {
            plot.setColorTable("viridis", studio.colors("viridis"), true);
            plot.setShaftRadius(0.06f);
            plot.setHeadRadius(0.2f);
            plot.setHeadLength(0.4f);
            plot.fillPlot(record);
            plot.setAnchorPoint(SceneGraphPlotArrow.Anchor.CENTER);
            studio.size(960, 800);
            studio.nameAxes("x in m", "y in m");
            studio.show(plot, "Speed in m/s").flat();
            studio.save("The speed is highest on a ring around the core and falls off outwards; in the core "
                    + "there is hardly any flow.");
        }
    }
}
