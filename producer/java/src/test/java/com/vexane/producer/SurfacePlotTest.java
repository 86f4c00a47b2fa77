package com.vexane.producer;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertThrows;

import com.vexane.base.NativeException;
import com.vexane.graphics3d.SceneGraphPlot;
import com.vexane.graphics3d.SceneGraphPlotDomain3d;
import com.vexane.graphics3d.SceneGraphPlotGroup;
import com.vexane.graphics3d.SceneGraphPlotSurface2d;
import com.vexane.graphics3d.SceneGraphPlotSurface3d;
import java.util.List;
import org.junit.jupiter.api.Test;

/** A surface plot from start to end: records from Java arrays, fills, and the values that the plot then reports. */
class SurfacePlotTest {
    private static PostDataGroup flatGroup(double... values) {
        return new PostDataGroup().coordinates(new double[] {0, 1, 0}, new double[] {0, 0, 1})
                .elements(new int[] {0}, new int[] {1}, new int[] {2}).data(values);
    }

    private static PostDataObject flatRecord(double... values) {
        return new PostDataBuilder(PlotKind.SURFACE_2D).role(DataRole.COLOR, 0).addGroup(flatGroup(values)).build();
    }

    private static PostDataObject spatialRecord(boolean withNormals) {
        PostDataGroup group = new PostDataGroup()
                .coordinates(new double[] {0, 1, 0}, new double[] {0, 0, 1}, new double[] {5, 5, 5})
                .elements(new int[] {0}, new int[] {1}, new int[] {2}).data(new double[] {-1, 3, 0});
        if (withNormals) {
            group.normals(new float[3], new float[3], new float[] {1, 1, 1});
        }
        return new PostDataBuilder(PlotKind.SURFACE_3D).role(DataRole.COLOR, 0).addGroup(group).build();
    }

    @Test
    void aFillSetsRangeLegendAndRestriction() {
        try (SceneGraphPlotGroup group = new SceneGraphPlotGroup();
                SceneGraphPlot plot = new SceneGraphPlotSurface2d(1)) {
            group.addPlot(plot);
            try (PostDataObject record = flatRecord(2, 8, 4)) {
                plot.fillPlot(record);
            }
            assertEquals(2, plot.getValueMin());
            assertEquals(8, plot.getLegendMax());
            plot.setValueRestrictions(-100, 5);
            assertEquals(2, plot.getValueRestrictionMin());
            assertEquals(5, plot.getValueRestrictionMax());
            plot.setLegendLimits(0, 1);

            try (PostDataObject record = flatRecord(0, 100, 50)) {
                plot.fillPlot(record);
                plot.fillPlot(record);
            }
            assertEquals(100, plot.getLegendMax());
            assertEquals(100, plot.getValueRestrictionMax());
            plot.resetPlotData();
            assertEquals(100, plot.getValueMax());
            group.removeAllPlots();
        }
    }

    @Test
    void everySurfaceTakesARecordOfItsKind() {
        try (SceneGraphPlot surface = new SceneGraphPlotSurface3d(1);
                SceneGraphPlot domain = new SceneGraphPlotDomain3d(2);
                PostDataObject flat = flatRecord(1, 2, 3);
                PostDataObject spatial = spatialRecord(true);
                PostDataObject raised = new PostDataBuilder(PlotKind.SURFACE_2D).role(DataRole.COLOR, 0)
                        .role(DataRole.HEIGHT, 1).addGroup(flatGroup(1, 2, 3).data(new double[] {4, 5, 6})).build();
                SceneGraphPlot heights = new SceneGraphPlotSurface2d(3)) {
            for (SceneGraphPlot plot : List.of(surface, domain)) {
                plot.fillPlot(spatial);
                assertEquals(-1, plot.getValueMin());
            }
            surface.fillPlot(flat); // data in the plane need no normals
            assertEquals(1, surface.getValueMin());
            heights.fillPlot(raised);
            assertEquals(3, heights.getValueMax());
        }
    }

    @Test
    void anIncompleteRecordIsRefusedAndThePlotIsUnchanged() {
        try (SceneGraphPlot plot = new SceneGraphPlotSurface3d(1);
                PostDataObject good = spatialRecord(true);
                PostDataObject withoutNormals = spatialRecord(false);
                PostDataObject withoutColor =
                        new PostDataBuilder(PlotKind.SURFACE_2D).addGroup(flatGroup(1, 2, 3)).build()) {
            plot.fillPlot(good);
            for (PostDataObject poor : List.of(withoutNormals, withoutColor)) {
                NativeException e = assertThrows(NativeException.class, () -> plot.fillPlot(poor));
                assertEquals("Internal_error_graphics3d", e.getKey());
                String lacking = poor == withoutNormals
                        ? "normals of group 0 are missing; the producer's computeNormals computes them from triangles."
                        : "DataRole.COLOR (role 0) is not filled.";
                assertEquals("SceneGraphPlotSurface3d: " + lacking, e.getDetail());
            }
            assertEquals(-1, plot.getValueMin());
            assertEquals(3, plot.getLegendMax());
        }
    }

    @Test
    void aClosedRecordIsRefused() {
        try (SceneGraphPlot plot = new SceneGraphPlotSurface2d(1)) {
            PostDataObject record = flatRecord(1, 2, 3);
            record.close();
            assertThrows(IllegalStateException.class, () -> plot.fillPlot(record));
        }
    }
}
