package com.vexane.gallery.pictures;

import com.vexane.gallery.About;
import com.vexane.gallery.Picture;
import com.vexane.gallery.Section;
import com.vexane.gallery.Sheet;
import com.vexane.gallery.Studio;
import com.vexane.graphics3d.AxisSetup;
import com.vexane.graphics3d.Canvas3dSettings;
import com.vexane.graphics3d.LineStyle;
import com.vexane.graphics3d.RenderSymbol;
import com.vexane.graphics3d.SceneGraphPlotGraph;
import com.vexane.producer.DataRole;
import com.vexane.producer.PlotKind;
import com.vexane.producer.PostDataBuilder;
import com.vexane.producer.PostDataGroup;
import com.vexane.producer.PostDataObject;
import java.io.IOException;

@About(title = "Positions of a legend",
        text = "The legend of lines in all layouts and positions.",
        section = Section.VIEWS,
        pages = "plots/graph-plots")
public final class LegendPositions implements Picture {
    private static final int POINTS = 60;

    @Override
    public void draw(Studio studio) throws IOException {
        // Three damped oscillations are the contents.
        PostDataBuilder builder = new PostDataBuilder(PlotKind.GENERAL).role(DataRole.HEIGHT, 0);
        for (int line = 1; line <= 3; ++line) {
            double[] x = new double[POINTS];
            double[] y = new double[POINTS];
            for (int i = 0; i < POINTS; ++i) {
                x[i] = 4.0 * i / (POINTS - 1);
                y[i] = Math.sin(line * x[i]) * Math.exp(-0.3 * line * x[i]);
            }
            builder.addGroup(new PostDataGroup().coordinates(x).data(y));
        }
        try (SceneGraphPlotGraph plot = new SceneGraphPlotGraph(1); PostDataObject record = builder.build()) {
            plot.fillPlot(record);
            plot.setCycleColor(true, 0);
            plot.setMarkerType(true, RenderSymbol.CIRCLE);
            plot.setLineStyle(true, LineStyle.SOLID);
            plot.setNMarkers(9);
            plot.setLineWidth(2);
            plot.setShowLegends(true);
            for (int i = 0; i < 3; ++i) {
                plot.setLegendDescription(i, "mode " + (i + 1));
            }
            studio.show(plot, "").graph();

            // A strategy chooses the layout and a position the corner. The numbers are those of the renderer; the model
            // only stores them.
            studio.canvas().setFont(Canvas3dSettings.Text.LEGEND_TICK, "default", 8);
            studio.canvas().setFont(Canvas3dSettings.Text.AXIS_TICK, "default", 8);
            studio.renderer().resize(studio.renderer().getWidth() / 2, studio.renderer().getHeight() / 2);
            Sheet sheet = new Sheet(4);
            for (AxisSetup.LegendLayoutStrategy layout : AxisSetup.LegendLayoutStrategy.values()) {
                for (AxisSetup.LegendPosition position : AxisSetup.LegendPosition.values()) {
                    studio.axes().setLegendLayoutStrategy(layout);
                    studio.axes().setLegendPosition(position);
                    studio.renderer().zoomExtents();
                    studio.renderer().draw();
                    sheet.add(studio.renderer());
                }
            }
            sheet.write(studio.file("Each row has another layout, each column another corner."));
        }
    }
}
