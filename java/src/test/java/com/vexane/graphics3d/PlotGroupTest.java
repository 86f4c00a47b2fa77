package com.vexane.graphics3d;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertFalse;
import static org.junit.jupiter.api.Assertions.assertNull;
import static org.junit.jupiter.api.Assertions.assertThrows;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.vexane.base.NativeException;
import com.vexane.producer.PostDataObject;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.api.function.Executable;

/** Plots and plot groups without data: setters, ownership and refusals. */
class PlotGroupTest {
    private static final double[][] GREY = {{0, 0, 0}, {1, 1, 1}};

    private static void assertRefused(String detail, Executable call) {
        assertEquals(detail, assertThrows(NativeException.class, call).getDetail());
    }

    @Test
    void aPlotKeepsItsSettings() {
        try (SceneGraphPlot plot = new SceneGraphPlotSurface3d(-4)) {
            assertEquals(-4, plot.getId());
            assertEquals(SceneGraphPlot.Kind.SURFACE_3D, plot.getKind());
            assertEquals(0xFFFFFF, plot.getColor());
            plot.setColor(0x7F123456);
            assertEquals(0x123456, plot.getColor());
            plot.setShininess(500);
            assertEquals(128, plot.getShininess());
            assertTrue(plot.isActive());
            plot.setActive(false);
            assertFalse(plot.isActive());
            assertTrue(plot.isShowLegend());
            plot.setShowLegend(false);
            assertFalse(plot.isShowLegend());
            assertEquals("forward, scale 1.000000, offset 0.000000, empty", TestRenderer.describe(plot));
            plot.setReverseColorTable(true);
            plot.setHeightScale(2);
            plot.setPlotPlaneOffset(-1);
            assertThrows(IllegalArgumentException.class, () -> plot.setHeightScale(Float.POSITIVE_INFINITY));
            assertThrows(IllegalArgumentException.class, () -> plot.setPlotPlaneOffset(Float.NaN));
            try (PeerRecipes peers = new PeerRecipes()) {
                plot.fillPlot(peers.first(PostDataObject.class));
            }
            assertEquals("reverse, scale 2.000000, offset -1.000000, filled", TestRenderer.describe(plot));
            plot.resetPlotData();
            assertEquals("reverse, scale 2.000000, offset -1.000000, empty", TestRenderer.describe(plot));
        }
        try (SceneGraphPlot flat = new SceneGraphPlotSurface2d(1); SceneGraphPlot domain = new SceneGraphPlotDomain3d(2)) {
            assertEquals(SceneGraphPlot.Kind.SURFACE_2D, flat.getKind());
            assertEquals(SceneGraphPlot.Kind.OTHER, domain.getKind());
        }
    }

    @Test
    void legendLimitsFollowTheRequestAndSymmetry() {
        try (SceneGraphPlot plot = new SceneGraphPlotSurface2d(1)) {
            plot.setLegendLimits(-2, 1);
            plot.setSymmetricColorTable(true);
            assertEquals(2, plot.getLegendMax());
            plot.setSymmetricColorTable(false);
            assertEquals(-2, plot.getLegendMin());
            assertEquals(1, plot.getLegendMax());
            plot.setAutoLegendLimits();
            assertEquals(-2, plot.getLegendMin());
            plot.resetValueRestrictions();
            assertEquals(0, plot.getLegendMin());
        }
    }

    @Test
    void colourTablesAreKnownByName() {
        try (SceneGraphPlot first = new SceneGraphPlotSurface2d(1); SceneGraphPlot second = new SceneGraphPlotSurface3d(2)) {
            assertNull(first.getColorTable());
            assertTrue(first.setColorTable("Stra\u00dfe \ud83d\ude00 %s", GREY, true));
            assertEquals("Stra\u00dfe \ud83d\ude00 %s", first.getColorTable());
            assertTrue(second.setColorTable("Stra\u00dfe \ud83d\ude00 %s", new double[0][], false));
            second.setColor(0);
            assertNull(second.getColorTable());

            assertRefused("The new color table \"new\" has no colors.",
                    () -> second.setColorTable("new", new double[0][], true));
            assertRefused("Row 1 of the new color table \"new\" has fewer than 3 values.",
                    () -> second.setColorTable("new", new double[][] {{1, 1, 1}, {1, 1}}, true));
            assertThrows(NativeException.class,
                    () -> second.setColorTable("new", new double[][] {{1, 1, 1, 0}}, true));
            assertThrows(NullPointerException.class, () -> second.setColorTable(null, GREY, true));
            assertThrows(NullPointerException.class, () -> second.setColorTable("new", null, true));
            assertThrows(NullPointerException.class, () -> second.setColorTable("new", new double[][] {null}, true));
            assertNull(second.getColorTable());
        }
    }

    @Test
    void plotsAreAddedAndRemoved() {
        try (SceneGraphPlotGroup group = new SceneGraphPlotGroup();
                SceneGraphPlot plot = new SceneGraphPlotSurface2d(5);
                SceneGraphPlot other = new SceneGraphPlotSurface3d(7)) {
            group.addPlot(plot);
            group.addPlot(other);
            assertEquals(2, group.getNoOfPlots());
            assertTrue(group.doesPlotExist(5));
            group.removePlot(6);
            group.removePlot(5);
            assertFalse(group.doesPlotExist(5));
            group.addPlot(plot);
            group.removeAllPlots();
            group.removeAllPlots();
            assertEquals(0, group.getNoOfPlots());
        }
    }

    @Test
    void theTitleOfAGroupHasItsPartAndThoseOfItsPlots() {
        try (SceneGraphPlotGroup group = new SceneGraphPlotGroup(); SceneGraphPlot plot = new SceneGraphPlotSurface2d(5)) {
            group.addPlot(plot);
            group.setTitle(TextFormat.PLAIN, "{%n}");
            plot.setTitle(TextFormat.MARKUP, "p_0");
            assertEquals("\\begin{center} \\mbox{\\unicode{\\{%n\\}}} \\mbox{p_0} \\end{center}",
                    TestRenderer.titleOf(group));
            group.removeAllPlots();
        }
    }

    private static void assertIsInAGroup(SceneGraphPlotGroup group, SceneGraphPlot plot) {
        IllegalStateException refused = assertThrows(IllegalStateException.class, () -> group.addPlot(plot));
        assertEquals("Plot 5 is already in a plot group. Remove it from that group first.", refused.getMessage());
    }

    @Test
    void aPlotIsRefusedUntilItHasLeftItsGroup() {
        try (SceneGraphPlotGroup group = new SceneGraphPlotGroup();
                SceneGraphPlotGroup other = new SceneGraphPlotGroup();
                SceneGraphPlot plot = new SceneGraphPlotSurface2d(5);
                SceneGraphPlot sameId = new SceneGraphPlotSurface3d(5)) {
            group.addPlot(plot);
            assertIsInAGroup(group, plot);
            other.removePlot(5);
            assertIsInAGroup(other, plot);
            group.removePlot(5);
            other.addPlot(plot);
            assertIsInAGroup(group, plot);
            other.removeAllPlots();
            group.addPlot(plot);
            group.addPlot(sameId);
            assertIsInAGroup(other, sameId);
            other.addPlot(plot);
            assertTrue(other.doesPlotExist(5), "a plot that was replaced is free");
            group.removeAllPlots();
            other.removeAllPlots();
        }
    }

    @Test
    void allPeersOfAPlotAndOfAGroupKnowThatThePlotIsThere() {
        try (SceneGraphGroup parent = new SceneGraphGroup();
                SceneGraphPlotGroup group = new SceneGraphPlotGroup();
                SceneGraphPlotGroup other = new SceneGraphPlotGroup();
                SceneGraphPlot plot = new SceneGraphPlotSurface2d(5)) {
            parent.addChild(group);
            group.addPlot(plot);
            try (SceneGraphPlotGroup again = SceneGraphPlotGroup.connect(parent, group.getChildId());
                    SceneGraphPlot same = SceneGraphPlotSurface2d.connect(again, 5)) {
                assertIsInAGroup(again, plot);
                assertIsInAGroup(other, same);
                again.removePlot(5);
                other.addPlot(same);
                assertIsInAGroup(group, plot);
            }
            assertIsInAGroup(group, plot);
            other.removePlot(5);
            group.addPlot(plot);
            group.removePlot(5);
        }
    }

    @Test
    void whenTheLastPeerOfAGroupIsClosedItsPlotsAreFree() {
        try (SceneGraphGroup parent = new SceneGraphGroup();
                SceneGraphPlotGroup other = new SceneGraphPlotGroup();
                SceneGraphPlot plot = new SceneGraphPlotSurface2d(5)) {
            SceneGraphPlotGroup group = new SceneGraphPlotGroup();
            parent.addChild(group);
            SceneGraphPlotGroup again = SceneGraphPlotGroup.connect(parent, group.getChildId());
            group.addPlot(plot);
            group.close();
            assertIsInAGroup(other, plot);
            parent.removeAllChildren();
            again.close();
            other.addPlot(plot);
            assertTrue(other.doesPlotExist(5));
            other.removeAllPlots();
        }
    }

    @Test
    void aGroupKeepsItsPlotsAliveBeyondTheirPeers() {
        try (SceneGraphPlotGroup group = new SceneGraphPlotGroup()) {
            try (SceneGraphPlot plot = new SceneGraphPlotSurface2d(5)) {
                plot.setColor(0xABCDEF);
                group.addPlot(plot);
            }
            try (SceneGraphPlot again = SceneGraphPlotSurface2d.connect(group, 5)) {
                assertEquals(0xABCDEF, again.getColor());
                group.removeAllPlots();
                assertEquals(5, again.getId());
            }
        }
    }

    @Test
    void aPlotBeyondTheTextureHandlesIsNotAdded() {
        try (SceneGraphPlotGroup group = new SceneGraphPlotGroup();
                SceneGraphPlotGroup other = new SceneGraphPlotGroup();
                SceneGraphPlot last = new SceneGraphPlotSurface2d(129)) {
            for (int id = 1; id <= 128; ++id) {
                try (SceneGraphPlot plot = new SceneGraphPlotSurface2d(id)) {
                    group.addPlot(plot);
                }
            }
            group.addPlot(last);
            assertEquals(128, group.getNoOfPlots());
            assertFalse(group.doesPlotExist(129));
            other.addPlot(last);
            assertTrue(other.doesPlotExist(129));
            other.removeAllPlots();
            group.removeAllPlots();
        }
    }

    @Test
    void aSecondPeerRefersToTheSameGroup() {
        try (Scene scene = new Scene();
                SceneGraphRoot root = SceneGraphRoot.connect(scene);
                SceneGraphPlotGroup group = new SceneGraphPlotGroup();
                SceneGraphPlot plot = new SceneGraphPlotDomain3d(3)) {
            root.setChild(group);
            assertEquals(SceneGraphNode.NodeType.PLOT_GROUP, root.getChildType());
            try (SceneGraphPlotGroup same = SceneGraphPlotGroup.connect(root, 0)) {
                same.addPlot(plot);
            }
            assertTrue(group.doesPlotExist(3));
            group.removeAllPlots();
        }
    }

    @Test
    void connectingToAMissingObjectIsRefused() {
        try (SceneGraphGroup parent = new SceneGraphGroup();
                SceneGraphGroup child = new SceneGraphGroup();
                SceneGraphPlotGroup group = new SceneGraphPlotGroup();
                SceneGraphPlot plot = new SceneGraphPlotSurface2d(5)) {
            parent.addChild(child);
            group.addPlot(plot);
            assertRefused("The plot group has no plot 6.", () -> SceneGraphPlotSurface2d.connect(group, 6));
            assertRefused(
                    "Argument \"plotId\": expected class SceneGraphPlotSurface3d, found class SceneGraphPlotSurface2d.",
                    () -> SceneGraphPlotSurface3d.connect(group, 5));
            assertRefused("Argument \"childId\": expected class SceneGraphPlotGroup, found class SceneGraphGroup.",
                    () -> SceneGraphPlotGroup.connect(parent, child.getChildId()));
            assertThrows(NativeException.class, () -> SceneGraphPlotGroup.connect(parent, 9));
            assertThrows(NullPointerException.class, () -> SceneGraphPlotSurface2d.connect(null, 5));
            group.removeAllPlots();
        }
    }

    @Test
    void onlyARecordFillsAPlot() {
        try (SceneGraphPlotGroup group = new SceneGraphPlotGroup(); SceneGraphPlot plot = new SceneGraphPlotSurface2d(5)) {
            assertRefused(
                    "Argument \"record\": expected class PostDataObject, found class SceneGraphPlotGroup.",
                    () -> plot.fillPlot(group));
            assertThrows(NullPointerException.class, () -> plot.fillPlot(null));
        }
    }

    @Test
    void closedAndMissingPeersAreRefused() {
        SceneGraphPlot plot = new SceneGraphPlotSurface2d(5);
        plot.close();
        plot.close();
        assertThrows(NativeException.class, plot::getColor);
        assertThrows(NativeException.class, () -> plot.setTitle(TextFormat.PLAIN, "t"));
        SceneGraphPlotGroup group = new SceneGraphPlotGroup();
        assertThrows(IllegalStateException.class, () -> group.addPlot(plot));
        assertThrows(NullPointerException.class, () -> group.addPlot(null));
        assertThrows(NullPointerException.class, () -> group.setTitle(null, "t"));
        assertThrows(NullPointerException.class, () -> group.setTitle(TextFormat.PLAIN, null));
        group.close();
        assertThrows(NativeException.class, group::getNoOfPlots);
        assertThrows(IllegalStateException.class, () -> SceneGraphPlotSurface2d.connect(group, 5));
    }
}
