package com.vexane.producer;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertThrows;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.vexane.base.NativeException;
import com.vexane.graphics3d.SceneGraphPlot;
import com.vexane.graphics3d.SceneGraphPlotEdge2d;
import com.vexane.graphics3d.SceneGraphPlotEdge3d;
import com.vexane.graphics3d.SceneGraphPlotGroup;
import com.vexane.graphics3d.SceneGraphPlotInteractive;
import com.vexane.graphics3d.SceneGraphPlotPointLabel;
import com.vexane.graphics3d.SceneGraphPlotSphere2d;
import com.vexane.graphics3d.SceneGraphPlotSphere3d;
import java.util.List;
import org.junit.jupiter.api.Test;

/** Spheres, edges, point labels and interactive plots from Java arrays. */
class PointAndLinePlotsTest {
    /** Four points in space with values 2 to 8, and elements of any kind. */
    private static PostDataObject record(PlotKind kind, int[]... elements) {
        PostDataGroup group = new PostDataGroup()
                .coordinates(new double[] {0, 1, 0, 0}, new double[] {0, 0, 1, 0}, new double[] {0, 0, 0, 1})
                .data(new double[] {2, 4, 6, 8});
        if (elements.length > 0) {
            group.elements(elements);
        }
        return new PostDataBuilder(kind).role(DataRole.COLOR, 0).role(DataRole.RADIUS, 0).role(DataRole.HEIGHT, 0)
                .addGroup(group).build();
    }

    @Test
    void everyPlotTakesItsRecordAndReportsItsRange() {
        try (PostDataObject tetrahedron =
                        record(PlotKind.GENERAL, new int[] {0}, new int[] {1}, new int[] {2}, new int[] {3});
                PostDataObject line = record(PlotKind.POINT_LABEL_2D, new int[] {0, 1}, new int[] {1, 2})) {
            for (SceneGraphPlot plot : List.of(new SceneGraphPlotSphere2d(1), new SceneGraphPlotSphere3d(2),
                    new SceneGraphPlotEdge2d(3), new SceneGraphPlotEdge3d(4), new SceneGraphPlotPointLabel(2, 5),
                    new SceneGraphPlotPointLabel(3, 6), new SceneGraphPlotInteractive(7))) {
                try (plot) {
                    plot.fillPlot(tetrahedron);
                    plot.fillPlot(line);
                    assertEquals(8, plot.getValueMax());
                }
            }
        }
    }

    @Test
    void spheresAndEdgesAreFoundInTheirGroup() {
        try (SceneGraphPlotGroup group = new SceneGraphPlotGroup();
                SceneGraphPlotSphere3d spheres = new SceneGraphPlotSphere3d(1);
                SceneGraphPlotSphere2d discs = new SceneGraphPlotSphere2d(2);
                SceneGraphPlotEdge3d edges = new SceneGraphPlotEdge3d(3)) {
            group.addPlot(spheres);
            group.addPlot(discs);
            group.addPlot(edges);
            assertEquals(0.25f, edges.getLineWidth());
            try (SceneGraphPlotSphere3d sameSpheres = SceneGraphPlotSphere3d.connect(group, 1);
                    SceneGraphPlotSphere2d sameDiscs = SceneGraphPlotSphere2d.connect(group, 2);
                    SceneGraphPlotEdge3d sameEdges = SceneGraphPlotEdge3d.connect(group, 3)) {
                sameSpheres.setRadiusScaleFactor(2);
                sameDiscs.setRadiusScaleFactor(2);
                sameEdges.setLineWidth(3);
                assertEquals(SceneGraphPlot.Kind.SPHERE_3D, sameSpheres.getKind());
                assertEquals(SceneGraphPlot.Kind.OTHER, sameDiscs.getKind());
            }
            assertEquals(3, edges.getLineWidth());
            assertThrows(NativeException.class, () -> SceneGraphPlotSphere3d.connect(group, 3));
            group.removeAllPlots();
        }
    }

    @Test
    void poorRecordsAreRefusedWithTheNameOfWhatIsMissing() {
        try (PostDataObject flat = new PostDataBuilder(PlotKind.GENERAL)
                        .addGroup(new PostDataGroup().coordinates(new double[] {0}, new double[] {0})).build();
                SceneGraphPlotSphere3d spheres = new SceneGraphPlotSphere3d(1);
                SceneGraphPlotEdge3d edges = new SceneGraphPlotEdge3d(2)) {
            assertTrue(assertThrows(NativeException.class, () -> spheres.fillPlot(flat)).getMessage()
                    .contains("coordinates of group 0 have 2 arrays, not 3"));
            assertTrue(assertThrows(NativeException.class, () -> edges.fillPlot(flat)).getMessage()
                    .contains("elements of group 0 have 0 arrays, not 1"));
        }
    }

    @Test
    void poorArraysAreRefused() {
        double[] three = new double[3];
        try (SceneGraphPlotInteractive plot = new SceneGraphPlotInteractive(1);
                SceneGraphPlotPointLabel labels = new SceneGraphPlotPointLabel(3, 2)) {
            plot.setSolidFraction(0.5);
            plot.setPoints(new double[][] {three, three, three});
            plot.setLinePoints(new double[][] {three, new double[4], three});
            for (double[][] poor : new double[][][] {{}, {three, three}, {three, three, new double[2]}}) {
                assertThrows(IllegalArgumentException.class, () -> plot.setPoints(poor));
                assertThrows(IllegalArgumentException.class, () -> plot.setLinePoints(poor));
            }
            assertThrows(NullPointerException.class, () -> plot.setPoints(null));
            assertThrows(NullPointerException.class, () -> plot.setLinePoints(new double[][] {three, null, three}));
            plot.clear();
            labels.setLabels("A", "\u00e4\ud83d\ude00", "");
            assertThrows(NullPointerException.class, () -> labels.setLabels("A", null));
            assertThrows(NullPointerException.class, () -> labels.setLabels((String[]) null));
        }
    }
}
