package com.vexane.graphics3d;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertFalse;
import static org.junit.jupiter.api.Assertions.assertThrows;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.vexane.base.NativeException;
import com.vexane.producer.DataRole;
import com.vexane.producer.PlotKind;
import com.vexane.producer.PostDataBuilder;
import com.vexane.producer.PostDataGroup;
import com.vexane.producer.PostDataObject;
import java.io.IOException;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.List;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.api.io.TempDir;

/** Arrows, principal values, tubes and ribbons from records, files and arrays. */
class VectorPlotTest {
    private static final double[] ZEROS = {0, 0};
    private static final double[] ONES = {1, 1};

    /** Two points, 4 apart on the x axis, with colours 5 and 9. */
    private static PostDataGroup twoPoints() {
        return new PostDataGroup().coordinates(new double[] {0, 4}, ZEROS, ZEROS)
                .elements(new int[] {0}, new int[] {1}).data(new double[] {5, 9});
    }

    private static PostDataObject arrows() {
        return new PostDataBuilder(PlotKind.GENERAL).role(DataRole.COLOR, 0).role(DataRole.VECTOR_X, 1)
                .role(DataRole.VECTOR_Y, 2).role(DataRole.VECTOR_Z, 1)
                .addGroup(twoPoints().data(ZEROS).data(new double[] {1, -2})).build();
    }

    private static PostDataObject lines(PlotKind kind) {
        PostDataBuilder builder =
                new PostDataBuilder(kind).role(DataRole.COLOR, 0).role(DataRole.RADIUS, 1)
                        .addGroup(twoPoints().data(ONES).data(ZEROS));
        for (int component = 0; component < 3; ++component) {
            builder.role(DataRole.principalDirection(component, 0), component == 1 ? 1 : 2); // across: y
            builder.role(DataRole.principalDirection(component, 1), component == 2 ? 1 : 2); // normal: z
        }
        return builder.build();
    }

    private static PostDataObject axes() {
        PostDataBuilder builder = new PostDataBuilder(PlotKind.GENERAL).role(DataRole.COLOR, 0)
                .addGroup(twoPoints().data(ONES).data(ZEROS));
        for (int axis = 0; axis < 3; ++axis) {
            builder.role(DataRole.principalLength(axis), 1);
            for (int component = 0; component < 3; ++component) {
                builder.role(DataRole.principalDirection(axis, component), axis == component ? 1 : 2);
            }
        }
        return builder.build();
    }

    private static boolean isFilled(SceneGraphPlot plot) {
        return TestRenderer.describe(plot).endsWith("filled");
    }

    @Test
    void everyPlotTakesARecordOfItsKind() {
        try (PostDataObject arrows = arrows(); PostDataObject lines = lines(PlotKind.LINES_3D);
                PostDataObject axes = axes();
                SceneGraphPlotArrow flatArrows = new SceneGraphPlotArrow2d(1);
                SceneGraphPlotArrow spatialArrows = new SceneGraphPlotArrow3d(2);
                SceneGraphPlotTube flatTubes = new SceneGraphPlotTube2d(3);
                SceneGraphPlotTube spatialTubes = new SceneGraphPlotTube3d(4);
                SceneGraphPlotRibbon3d ribbons = new SceneGraphPlotRibbon3d(5);
                SceneGraphPlot values = new SceneGraphPlotPrincipal(
                        3, SceneGraphPlotPrincipal.Content.PRINCIPAL_VALUES, 6);
                SceneGraphPlot systems = new SceneGraphPlotPrincipal(
                        3, SceneGraphPlotPrincipal.Content.COORDINATE_SYSTEMS, 7)) {
            for (SceneGraphPlot plot : List.of(flatArrows, spatialArrows)) {
                plot.fillPlot(arrows);
                assertEquals(9, plot.getValueMax());
                NativeException refusal = assertThrows(NativeException.class, () -> plot.fillPlot(lines));
                assertTrue(refusal.getDetail().contains("DataRole.VECTOR_X"), refusal.getDetail());
            }
            for (SceneGraphPlot plot : List.of(flatTubes, spatialTubes, ribbons)) {
                plot.fillPlot(lines);
                assertEquals(5, plot.getValueMin());
                assertThrows(NativeException.class, () -> plot.fillPlot(arrows));
            }
            flatTubes.setRadiusScaleFactor(2);
            ribbons.setWidthScaleFactor(2);
            for (SceneGraphPlot plot : List.of(values, systems)) {
                plot.fillPlot(axes);
                assertEquals(9, plot.getValueMax());
                assertThrows(NativeException.class, () -> plot.fillPlot(lines));
            }
            assertEquals(SceneGraphPlot.Kind.ARROW_3D, spatialArrows.getKind());
            assertEquals(SceneGraphPlot.Kind.TUBE_3D, spatialTubes.getKind());
        }
    }

    @Test
    void anotherPeerOfAPlotInAGroupFillsTheSamePlot() {
        try (SceneGraphPlotGroup group = new SceneGraphPlotGroup();
                SceneGraphPlotArrow3d arrows = new SceneGraphPlotArrow3d(1);
                SceneGraphPlotTube3d tubes = new SceneGraphPlotTube3d(2);
                PostDataObject arrowRecord = arrows(); PostDataObject lineRecord = lines(PlotKind.LINES_3D)) {
            group.addPlot(arrows);
            group.addPlot(tubes);
            try (SceneGraphPlotArrow3d same = SceneGraphPlotArrow3d.connect(group, 1)) {
                same.setScalingType(SceneGraphPlotArrow.Scaling.LOGARITHMIC);
                same.setAnchorPoint(SceneGraphPlotArrow.Anchor.TIP);
                same.fillPlot(arrowRecord);
            }
            try (SceneGraphPlotTube3d same = SceneGraphPlotTube3d.connect(group, 2)) {
                same.fillPlot(lineRecord);
            }
            assertTrue(isFilled(arrows));
            assertTrue(isFilled(tubes));
            assertThrows(NativeException.class, () -> SceneGraphPlotArrow2d.connect(group, 1));
            assertThrows(NativeException.class, () -> SceneGraphPlotTube2d.connect(group, 2));
            arrows.resetPlotData();
            tubes.resetPlotData();
            assertFalse(isFilled(arrows));
            assertTrue(isFilled(tubes)); // tubes stay until the next fill
            group.removeAllPlots();
        }
    }

    @Test
    void arrowsInSpaceAreReadFromAFile(@TempDir Path folder) throws IOException {
        Path good = Files.writeString(folder.resolve("good.txt"),
                "% Coordinates\n0 0 0\n1 2 3\n% Data\n7\n8\n% Vector data\n1 0 0\n0 5 0\n");
        Path poor = Files.writeString(folder.resolve("poor.txt"), "% Coordinates\n9 9 9\n% Data\n7\n");
        try (SceneGraphPlotArrow3d plot = new SceneGraphPlotArrow3d(1)) {
            assertFalse(plot.readFile(poor));
            assertFalse(plot.readFile(folder.resolve("missing.txt")));
            assertFalse(isFilled(plot));
            assertTrue(plot.readFile(good));
            assertTrue(isFilled(plot));
            assertTrue(plot.readFile(Path.of(System.getProperty("com.vexane.test.data"), "earth_wind_arrows.txt")));
        }
    }

    @Test
    void updateRefusesArraysThatDoNotFitTogether() {
        float[][] three = {{0, 1}, {0, 1}, {0, 1}};
        try (SceneGraphPlotArrow3d plot = new SceneGraphPlotArrow3d(1)) {
            assertTrue(plot.update(three, three, null));
            assertTrue(plot.update(three, three, new float[] {0, 1, 2}));
            assertTrue(plot.update(new float[3][0], new float[3][0], null));
            assertFalse(isFilled(plot));
            assertTrue(plot.update(three, three, null));
            for (float[][] wrong : new float[][][] {{}, {{0, 1}, {0, 1}}, {{0, 1}, {0, 1}, {0}}, {{0}, {0}, {0}}}) {
                assertThrows(IllegalArgumentException.class, () -> plot.update(three, wrong, null));
            }
            assertThrows(IllegalArgumentException.class, () -> plot.update(new float[][] {{0, 1}, {0}, {0, 1}}, three, null));
            assertThrows(IllegalArgumentException.class, () -> plot.update(three, three, new float[1]));
            assertThrows(NullPointerException.class, () -> plot.update(three, new float[3][], null));
            assertTrue(isFilled(plot));
        }
    }
}
