package com.vexane.gallery.pictures;

import com.vexane.gallery.About;
import com.vexane.gallery.Picture;
import com.vexane.gallery.Sheet;
import com.vexane.gallery.Studio;
import com.vexane.graphics3d.SceneGraphPlotArrow;
import com.vexane.graphics3d.SceneGraphPlotArrow2d;
import com.vexane.graphics3d.SceneSettings;
import com.vexane.graphics3d.TextFormat;
import com.vexane.producer.DataRole;
import com.vexane.producer.PlotKind;
import com.vexane.producer.PostDataBuilder;
import com.vexane.producer.PostDataGroup;
import com.vexane.producer.PostDataObject;
import java.io.IOException;

@About(title = "Scaling and anchors of arrows",
        text = "Vectors whose lengths halve from row to row, from 1 at the top to 1/128, in the five "
                + "scalings and with the three anchors.",
        pages = "plots/vector-plots")
public final class ArrowScalings implements Picture {
    private static final int ROWS = 8;
    private static final double WIDTH = 2.2;
    private static final double HEIGHT = 1.3;

    @Override
    public void draw(Studio studio) throws IOException {
        // The vectors of the test, and two points without vectors that extend the view to both sides.
        double[] x = new double[ROWS + 2];
        double[] y = new double[ROWS + 2];
        double[] length = new double[ROWS + 2];
        double[] none = new double[ROWS + 2];
        double[] halvings = new double[ROWS + 2];
        for (int i = 0; i < ROWS; ++i) {
            y[i] = 0.15 * (ROWS - i);
            length[i] = Math.pow(0.5, i);
            halvings[i] = i;
        }
        x[ROWS] = -WIDTH / 2;
        x[ROWS + 1] = WIDTH / 2;
        y[ROWS + 1] = HEIGHT;
        double[] end = {0, 0};

        // A second plot draws the vertical line as one vector without a head. The logarithmic scaling gets a range of
        // 100: vectors shorter than a hundredth of the longest one have no length.
        try (SceneGraphPlotArrow2d plot = new SceneGraphPlotArrow2d(1);
                SceneGraphPlotArrow2d line = new SceneGraphPlotArrow2d(2);
                PostDataObject vectors = new PostDataBuilder(PlotKind.GENERAL).role(DataRole.VECTOR_X, 0)
                        .role(DataRole.VECTOR_Y, 1).role(DataRole.COLOR, 2)
                        .addGroup(new PostDataGroup().coordinates(x, y).data(length).data(none).data(halvings))
                        .build();
                PostDataObject upright = new PostDataBuilder(PlotKind.GENERAL).role(DataRole.VECTOR_X, 0)
                        .role(DataRole.VECTOR_Y, 1)
                        .addGroup(new PostDataGroup().coordinates(end, end).data(new double[] {0, 0})
                                .data(new double[] {1, 0}))
                        .build()) {
            plot.setColorTable("viridis", studio.colors("viridis"), true);
            plot.setLogRange(100);
            line.setColor(0xa0a0a0);
            studio.settings().setShowLegends(false);
            studio.settings().setFont(SceneSettings.Text.TITLE, "default", 9);
            studio.hideAxes();
            studio.show(line, "").show(plot, "");
            line.fillPlot(upright);
            line.setHeadLength(0);
            line.setShaftRadius(0.002f);
            studio.renderer().resize(380, 230);
            Sheet sheet = new Sheet(SceneGraphPlotArrow.Anchor.values().length);
            // Undoes the scale of the fill, so that the longest arrow has the length 1.
            plot.setCommonArrowScale((float) (Math.sqrt(ROWS + 2) / (0.85 * (WIDTH + HEIGHT) / 2)));
            plot.setHeadRadius(0.065f);
            plot.setHeadLength(0.2f);
            plot.setShaftRadius(0.025f);
            line.setCommonArrowScale(1.3f);

            // Each view is drawn into a small picture, and a `Sheet` puts them together. Scalings and anchors change
            // what a fill has made, so the fill is repeated for each.
            for (SceneGraphPlotArrow.Scaling scaling : SceneGraphPlotArrow.Scaling.values()) {
                for (SceneGraphPlotArrow.Anchor anchor : SceneGraphPlotArrow.Anchor.values()) {
                    plot.fillPlot(vectors);
                    plot.setScalingType(scaling);
                    plot.setAnchorPoint(anchor);
                    plot.setTitle(TextFormat.PLAIN, scaling + ", " + anchor);
                    studio.flat();
                    studio.renderer().draw();
                    sheet.add(studio.renderer());
                }
            }
            sheet.write(studio.file("Rows are scalings, columns are anchors. Each vector belongs to the point where "
                    + "the vertical line crosses its row: anchors put its tail, its middle or its tip "
                    + "there."));
        }
    }
}
