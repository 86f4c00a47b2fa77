package com.vexane.graphics3d;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertThrows;

import com.vexane.base.NativeException;
import com.vexane.producer.DataRole;
import com.vexane.producer.PlotKind;
import com.vexane.producer.PostDataBuilder;
import com.vexane.producer.PostDataGroup;
import com.vexane.producer.PostDataObject;
import org.junit.jupiter.api.Test;

/** Graphs from Java records, and what their settings look like in native code. */
class GraphPlotTest {
    private static PostDataObject threeLines() {
        PostDataBuilder builder = new PostDataBuilder(PlotKind.GENERAL).role(DataRole.HEIGHT, 0);
        for (int i = 0; i < 3; ++i) {
            builder.addGroup(new PostDataGroup().coordinates(new double[] {1, 2, 3})
                    .elements(new int[] {2, 0}, new int[] {1, 1}).data(new double[] {i, i + 1, -1}));
        }
        return builder.build();
    }

    @Test
    void settingsOfLinesLastUntilTheNextFillAndThoseOfThePlotLonger() {
        try (SceneGraphPlotGraph graph = new SceneGraphPlotGraph(3); PostDataObject record = threeLines()) {
            assertEquals(4, graph.setCycleColor(false, 4));
            graph.setNMarkers(5);
            graph.fillPlot(record);
            assertEquals(SceneGraphPlot.Kind.OTHER, graph.getKind());
            assertEquals("width 1; -1 0 0 0 ; -1 0 0 0 ; -1 0 0 0 ", TestRenderer.describeGraph(graph));
            graph.setNMarkers(5);
            graph.setLineWidth(3);
            graph.setShowLegends(true);
            graph.setShowUnitCircle(true);
            graph.setMarkersInterpolation(false);
            graph.setMarkerType(true, RenderSymbol.CROSS);
            graph.setLineStyle(true, LineStyle.DASH_DOT);
            assertEquals(1, graph.setCycleColor(true, 5));
            graph.setLegendDescription(1, "50 {%}");
            graph.setLegendDescription(3, "no such line");
            assertEquals("width 3, legends, unit circle, at points; 6 3 16761354 5 ; "
                    + "7 0 0 5 \\begin{center}\\unicode{50 \\{%\\}}\\end{center}; 0 1 255 5 ",
                    TestRenderer.describeGraph(graph));
            graph.fillPlot(record);
            assertEquals("width 3, legends, unit circle, at points; -1 0 0 0 ; -1 0 0 0 ; -1 0 0 0 ",
                    TestRenderer.describeGraph(graph));
        }
    }

    @Test
    void aRecordWithoutHeightDataIsRefused() {
        try (SceneGraphPlotGraph graph = new SceneGraphPlotGraph(3);
                PostDataObject record = new PostDataBuilder(PlotKind.GENERAL)
                        .addGroup(new PostDataGroup().coordinates(new double[2]).data(new double[2])).build()) {
            assertEquals("SceneGraphPlotGraph: DataRole.HEIGHT (role 4) is not filled.",
                    assertThrows(NativeException.class, () -> graph.fillPlot(record)).getDetail());
            assertThrows(NullPointerException.class, () -> graph.setMarkerType(true, null));
            assertThrows(NullPointerException.class, () -> graph.setLineStyle(true, null));
            assertThrows(NullPointerException.class, () -> graph.setLegendDescription(0, null));
        }
    }
}
