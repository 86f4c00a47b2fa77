package com.vexane.gallery.pictures;

import com.vexane.base.NativeEnum;
import com.vexane.gallery.About;
import com.vexane.gallery.Picture;
import com.vexane.gallery.Sheet;
import com.vexane.gallery.Studio;
import com.vexane.graphics3d.AxisSetup;
import com.vexane.graphics3d.LineStyle;
import com.vexane.graphics3d.RenderSymbol;
import com.vexane.graphics3d.SceneGraphPlotGraph;
import com.vexane.producer.DataRole;
import com.vexane.producer.PlotKind;
import com.vexane.producer.PostDataBuilder;
import com.vexane.producer.PostDataGroup;
import com.vexane.producer.PostDataObject;
import java.io.IOException;

@About(title = "Symbols and styles of lines",
        text = "All symbols and all line styles of graphs.",
        pages = "plots/graph-plots")
public final class SymbolsAndStyles implements Picture {
    private static final int POINTS = 200;
    private static final int[] WIDTHS = {1, 2, 4, 6};

    // Waves one above the other, the first one at the top.
    private static PostDataObject waves(double top, int count) {
        PostDataBuilder builder = new PostDataBuilder(PlotKind.GENERAL).role(DataRole.HEIGHT, 0);
        for (int line = 0; line < count; ++line) {
            double[] x = new double[POINTS];
            double[] y = new double[POINTS];
            for (int i = 0; i < POINTS; ++i) {
                x[i] = 10.0 * i / (POINTS - 1);
                y[i] = top - line + 0.35 * Math.sin(x[i]);
            }
            builder.addGroup(new PostDataGroup().coordinates(x).data(y));
        }
        return builder.build();
    }

    @Override
    public void draw(Studio studio) throws IOException {
        // Eight lines that begin with `CIRCLE` show all symbols in their order. Markers are at equal distances along
        // the line.
        studio.renderer().resize(studio.renderer().getWidth() / 2, studio.renderer().getHeight());
        studio.axes().setLegendLayoutStrategy(AxisSetup.LegendLayoutStrategy.RENDERER_2);
        Sheet sheet = new Sheet(2);
        try (SceneGraphPlotGraph symbols = new SceneGraphPlotGraph(1); PostDataObject record = waves(8, 8)) {
            symbols.fillPlot(record);
            symbols.setCycleColor(true, 0);
            symbols.setMarkerType(true, RenderSymbol.CIRCLE);
            symbols.setNMarkers(12);
            symbols.setLineWidth(2);
            symbols.setShowLegends(true);
            for (int i = 0; i < 8; ++i) {
                symbols.setLegendDescription(i, NativeEnum.of(RenderSymbol.class, i).name());
            }
            studio.show(symbols, "Symbols").graph();
            studio.renderer().draw();
            sheet.add(studio.renderer());
            symbols.setActive(false);
        }

        // Four plots have lines of different widths, each in all styles.
        for (int i = 0; i < WIDTHS.length; ++i) {
            try (SceneGraphPlotGraph styles = new SceneGraphPlotGraph(2 + i);
                    PostDataObject record = waves(5 * (WIDTHS.length - i), 4)) {
                styles.fillPlot(record);
                styles.setCycleColor(true, i);
                styles.setLineStyle(true, LineStyle.SOLID);
                styles.setLineWidth(WIDTHS[i]);
                styles.setShowLegends(i == 1);
                for (int style = 0; style < 4; ++style) {
                    styles.setLegendDescription(style, NativeEnum.of(LineStyle.class, style).name());
                }
                studio.show(styles, i == 0 ? "Styles of lines of 1, 2, 4 and 6 pixels" : "");
            }
        }
        studio.graph();
        studio.renderer().draw();
        sheet.add(studio.renderer());
        sheet.write(studio.file("Left: the symbols. Right: the styles in widths of 1, 2, 4 and 6 pixels."));
    }
}
