package com.vexane.producer;

import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertFalse;
import static org.junit.jupiter.api.Assertions.assertNull;
import static org.junit.jupiter.api.Assertions.assertThrows;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.vexane.base.NativeException;
import com.vexane.graphics3d.SceneGraphPlot;
import com.vexane.graphics3d.SceneGraphPlotContour;
import com.vexane.graphics3d.SceneGraphPlotGroup;
import com.vexane.graphics3d.SceneGraphPlotIso;
import com.vexane.graphics3d.SceneGraphPlotIsoSurface3d;
import com.vexane.graphics3d.SceneGraphPlotMesh3d;
import com.vexane.graphics3d.SceneGraphPlotSlice3d;
import java.util.function.Consumer;
import org.junit.jupiter.api.Test;

/** Plots of level sets, slices and meshes from Java arrays, through the native boundary. */
class ScalarPlotTest {
    /** A triangle in space at a height. */
    private static PostDataGroup triangle(double height, double... values) {
        return new PostDataGroup()
                .coordinates(new double[] {0, 1, 0}, new double[] {0, 0, 1}, new double[] {height, height, height})
                .elements(new int[] {0}, new int[] {1}, new int[] {2})
                .computeNormals().data(values);
    }

    /** Lines of one level in the plane. */
    private static PostDataGroup lines(double level) {
        return new PostDataGroup().coordinates(new double[] {0, 1, 2}, new double[] {0, level, 0})
                .elements(new int[] {0, 1}, new int[] {1, 2}).data(new double[] {level});
    }

    private static PostDataObject surfaces() {
        return new PostDataBuilder(PlotKind.ISO_SURFACE).role(DataRole.ISO_LEVEL, 0)
                .addGroup(triangle(0, 5)).addGroup(triangle(1, 10)).addGroup(triangle(2, 25)).build();
    }

    @Test
    void levelsAreFilledHiddenAndShownAgainByTheNextFill() {
        try (SceneGraphPlotGroup group = new SceneGraphPlotGroup();
                SceneGraphPlotIso plot = new SceneGraphPlotIsoSurface3d(7);
                PostDataObject record = surfaces()) {
            group.addPlot(plot);
            assertEquals(0, plot.getNumberOfSurfaces());
            plot.fillPlot(record);
            assertEquals(SceneGraphPlot.Kind.ISO_SURFACE_3D, plot.getKind());
            assertEquals(3, plot.getNumberOfSurfaces());
            assertEquals(5, plot.getValueMin());
            assertEquals(25, plot.getValueMax());
            plot.setSurfaceShown(1, false);
            try (SceneGraphPlotIso other = SceneGraphPlotIsoSurface3d.connect(group, 7)) {
                assertFalse(other.isSurfaceShown(1));
                assertTrue(other.isSurfaceShown(2));
                assertThrows(NativeException.class, () -> SceneGraphPlotContour.connect(group, 7));
            }
            plot.setSurfaceShownForAll(false);
            assertFalse(plot.isSurfaceShown(0));
            plot.fillPlot(record);
            assertTrue(plot.isSurfaceShown(1));
            for (int index : new int[] {-1, 3}) {
                assertThrows(IndexOutOfBoundsException.class, () -> plot.isSurfaceShown(index));
                assertThrows(IndexOutOfBoundsException.class, () -> plot.setSurfaceShown(index, true));
            }
            plot.setLegendLevels(0, 20);
            plot.setLegendLevels();
            assertThrows(NullPointerException.class, () -> plot.setLegendLevels((double[]) null));
            assertThrows(NullPointerException.class, () -> plot.setLabels("a", null));
            group.removeAllPlots();
        }
    }

    @Test
    void aContourTakesLinesAndBandsInOneRecord() {
        PostDataGroup band = new PostDataGroup().coordinates(new double[] {0, 1, 0}, new double[] {0, 0, 1})
                .elements(new int[] {0}, new int[] {1}, new int[] {2}).data(new double[] {4});
        try (SceneGraphPlotIso plot = new SceneGraphPlotContour(1);
                PostDataObject record = new PostDataBuilder(PlotKind.CONTOUR_2D).role(DataRole.ISO_LEVEL, 0)
                        .addGroup(lines(1)).addGroup(band).addGroup(lines(3)).build()) {
            plot.setLabels("one", "band", "\u0394 three");
            plot.setLabelColor(0x102030);
            plot.setShowLabels(false);
            plot.fillPlot(record);
            assertEquals(3, plot.getNumberOfSurfaces());
            assertEquals(4, plot.getValueMax());
        }
    }

    @Test
    void slicesHaveTheirOutlineComputed() {
        try (SceneGraphPlot plot = new SceneGraphPlotSlice3d(1);
                PostDataObject record = new PostDataBuilder(PlotKind.GENERAL).role(DataRole.COLOR, 0)
                        .addGroup(triangle(0, 0, 1, 2).computeOutline())
                        .addGroup(triangle(1, 5, 6, 7).lineElements(new int[] {0}, new int[] {2})).build()) {
            assertArrayEquals(new int[][] {{0, 0, 1}, {1, 2, 2}}, record.getLineElements(0));
            assertArrayEquals(new int[][] {{0}, {2}}, record.getLineElements(1));
            plot.fillPlot(record);
            assertEquals(7, plot.getValueMax());
            assertEquals(SceneGraphPlot.Kind.SLICE_3D, plot.getKind());
        }
        PostDataBuilder lines = new PostDataBuilder(PlotKind.GENERAL).addGroup(lines(1).computeOutline());
        assertThrows(IllegalArgumentException.class, lines::build);
    }

    @Test
    void aMeshTakesFacesWithTheirWireframeLinesAndPoints() {
        PostDataGroup edges = triangle(0, 1, 2, 3).normals(new float[3], new float[3], new float[3])
                .elements(new int[] {0, 1, 2}, new int[] {1, 2, 0});
        PostDataGroup points = triangle(1, 4, 5, 6).normals(new float[3], new float[3], new float[3])
                .elements(new int[] {0, 1, 2});
        try (SceneGraphPlotMesh3d plot = new SceneGraphPlotMesh3d(1, 3);
                PostDataObject record = new PostDataBuilder(PlotKind.MESH_3D).role(DataRole.COLOR, 0)
                        .addGroup(triangle(0, 1, 2, 3)).addGroup(edges).addGroup(edges).addGroup(points).build()) {
            plot.fillPlot(record);
            assertEquals(6, plot.getValueMax());
            plot.setColorTable("mesh in Java", new double[][] {{1, 0, 0}}, false);
            plot.setWireframeColor(0xff);
            plot.setDisplayWireframe(false);
            plot.setDisplayInterior(false);
            assertNull(plot.getColorTable());
        }
    }

    @Test
    void aRecordThatLacksSomethingIsRefusedByTheNameOfTheRole() {
        PostDataBuilder plain = new PostDataBuilder(PlotKind.GENERAL).addGroup(triangle(0, 1, 2, 3));
        try (SceneGraphPlot iso = new SceneGraphPlotIsoSurface3d(1);
                SceneGraphPlot contour = new SceneGraphPlotContour(2);
                SceneGraphPlot slice = new SceneGraphPlotSlice3d(3);
                SceneGraphPlot mesh = new SceneGraphPlotMesh3d(4, 3);
                PostDataObject record = plain.build();
                PostDataObject colored = plain.role(DataRole.COLOR, 0).build()) {
            Consumer<SceneGraphPlot> refusesLevels = plot -> assertRefused(plot, record, "DataRole.ISO_LEVEL");
            refusesLevels.accept(iso);
            refusesLevels.accept(contour);
            assertRefused(slice, record, "DataRole.COLOR");
            assertRefused(mesh, record, "DataRole.COLOR");
            assertRefused(slice, colored, "line elements of group 0");
        }
    }

    private static void assertRefused(SceneGraphPlot plot, PostDataObject record, String reason) {
        String message = assertThrows(NativeException.class, () -> plot.fillPlot(record)).getMessage();
        assertTrue(message.contains(reason), message);
    }
}
