package com.vexane.gallery.pictures;

import com.vexane.gallery.About;
import com.vexane.gallery.Picture;
import com.vexane.gallery.Section;
import com.vexane.gallery.Sheet;
import com.vexane.gallery.Studio;
import com.vexane.graphics3d.AxisSetup;
import com.vexane.graphics3d.SceneGraphPlotGraph;
import com.vexane.producer.DataRole;
import com.vexane.producer.PlotKind;
import com.vexane.producer.PostDataBuilder;
import com.vexane.producer.PostDataGroup;
import com.vexane.producer.PostDataObject;
import java.io.IOException;
import java.util.function.DoubleUnaryOperator;

@About(title = "One graph on four kinds of axes",
        text = "Five functions on linear and logarithmic axes in all combinations.",
        section = Section.VIEWS,
        pages = "plots/graph-plots")
public final class GraphAxes implements Picture {
    private static final int POINTS = 200;
    private static final AxisSetup.LegendPosition LOWER_RIGHT = AxisSetup.LegendPosition.RENDERER_1;
    private static final AxisSetup.LegendPosition UPPER_LEFT = AxisSetup.LegendPosition.RENDERER_3;

    // Points at equal distances of the logarithm of x, so that lines are smooth on both kinds of axes.
    private static PostDataGroup line(DoubleUnaryOperator function) {
        double[] x = new double[POINTS];
        double[] y = new double[POINTS];
        for (int i = 0; i < POINTS; ++i) {
            x[i] = Math.pow(10, -1 + 3.0 * i / (POINTS - 1));
            y[i] = function.applyAsDouble(x[i]);
        }
        return new PostDataGroup().coordinates(x).data(y);
    }

    @Override
    public void draw(Studio studio) throws IOException {
        // The record is filled once. A fill makes the lines for all combinations of axes; switching an axis selects
        // others.
        PostDataBuilder builder = new PostDataBuilder(PlotKind.GENERAL).role(DataRole.HEIGHT, 0)
                .addGroup(line(Math::sqrt)).addGroup(line(x -> x)).addGroup(line(x -> x * x / 20))
                .addGroup(line(x -> Math.exp(x / 15))).addGroup(line(x -> 40 * Math.log10(x)));
        String[] names = {"square root", "x", "x\u00b2/20", "exp(x/15)", "40 log x"};
        try (SceneGraphPlotGraph plot = new SceneGraphPlotGraph(1); PostDataObject record = builder.build()) {
            plot.fillPlot(record);
            plot.setCycleColor(true, 0);
            plot.setLineWidth(2);
            plot.setShowLegends(true);
            for (int i = 0; i < names.length; ++i) {
                plot.setLegendDescription(i, names[i]);
            }
            studio.axes().setLegendLayoutStrategy(AxisSetup.LegendLayoutStrategy.RENDERER_0);
            studio.nameAxes("x", "y").show(plot, "").graph();

            // The legend is where the lines leave space: at the upper left or, if y is logarithmic, at the lower right.
            studio.renderer().resize(studio.renderer().getWidth() * 3 / 4, studio.renderer().getHeight() * 3 / 4);
            Sheet sheet = new Sheet(2);
            for (int axes = 0; axes < 4; ++axes) {
                studio.axes().setXAxisLog((axes & 1) != 0);
                studio.axes().setYAxisLog((axes & 2) != 0);
                studio.axes().setLegendPosition((axes & 2) != 0 ? LOWER_RIGHT : UPPER_LEFT);
                studio.renderer().zoomExtents();
                studio.renderer().draw();
                sheet.add(studio.renderer());
            }
            sheet.write(studio.file("Linear and logarithmic x from left to right, linear and logarithmic y from top "
                    + "to bottom. Powers are straight lines where both axes are logarithmic, the "
                    + "exponential function where only y is."));
        }
    }
}
