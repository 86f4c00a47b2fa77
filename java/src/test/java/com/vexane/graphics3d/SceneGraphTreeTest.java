package com.vexane.graphics3d;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertFalse;
import static org.junit.jupiter.api.Assertions.assertThrows;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.vexane.base.NativeException;
import com.vexane.base.NativePeer;
import com.vexane.graphics3d.SceneGraphNode.NodeType;
import java.util.ArrayList;
import java.util.Collections;
import java.util.List;
import java.util.Random;
import org.junit.jupiter.api.Test;

/** Complete sequences of calls on scene, root and groups, as in a program. */
class SceneGraphTreeTest {
    private static String detailOf(NativeException e) {
        assertEquals("Internal_error_graphics3d", e.getKey());
        return e.getDetail();
    }

    @Test
    void nodesAreAttachedAndDetached() {
        try (Scene scene = new Scene();
                SceneGraphRoot root = SceneGraphRoot.connect(scene);
                SceneGraphGroup top = new SceneGraphGroup();
                SceneGraphGroup first = new SceneGraphGroup();
                SceneGraphGroup second = new SceneGraphGroup()) {
            assertEquals(NodeType.ROOT, root.getType());
            assertFalse(root.hasChild());
            assertEquals(-1, top.getChildId());
            root.setChild(top);
            top.addChild(first);
            top.addChild(second);
            assertTrue(root.hasChild());
            assertEquals(NodeType.GROUP, root.getChildType());
            assertEquals(List.of(0, 1, 2), List.of(top.getChildId(), first.getChildId(), second.getChildId()));
            assertEquals(NodeType.GROUP, top.getChildType(2));

            first.disconnectFromParent();
            first.disconnectFromParent();
            assertEquals(0, first.getChildId());
            assertFalse(top.doesChildExist(1));
            top.addChild(first);
            assertEquals(3, first.getChildId());
            top.removeChild(1);
            top.removeChild(2);
            assertEquals(1, top.getNoOfChildren());
            top.removeAllChildren();
            assertEquals(0, top.getNoOfChildren());
            assertEquals(0, first.getChildId());
            top.disconnectFromParent();
            assertFalse(root.hasChild());
        }
    }

    @Test
    void aNodeIsShownUntilItIsHidden() {
        try (SceneGraphGroup group = new SceneGraphGroup()) {
            assertTrue(group.isActive());
            group.setActive(false);
            assertFalse(group.isActive());
            group.setActive(true);
            assertTrue(group.isActive());
        }
    }

    @Test
    void aSecondPeerRefersToTheSameNode() {
        try (Scene scene = new Scene();
                SceneGraphRoot root = SceneGraphRoot.connect(scene);
                SceneGraphRoot sameRoot = SceneGraphRoot.connect(scene)) {
            SceneGraphGroup top = new SceneGraphGroup();
            SceneGraphGroup inner = new SceneGraphGroup();
            sameRoot.setChild(top);
            top.addChild(inner);
            inner.setActive(false);
            inner.close();
            try (SceneGraphGroup sameTop = SceneGraphGroup.connect(root, 77);
                    SceneGraphGroup sameInner = SceneGraphGroup.connect(top, 1)) {
                assertEquals(1, sameTop.getNoOfChildren());
                assertFalse(sameInner.isActive());
                top.close();
                sameInner.disconnectFromParent();
                assertEquals(0, sameTop.getNoOfChildren());
            }
        }
    }

    @Test
    void connectingToAMissingChildFailsAndLeavesNoPeer() {
        try (Scene scene = new Scene();
                SceneGraphRoot root = SceneGraphRoot.connect(scene);
                SceneGraphGroup group = new SceneGraphGroup();
                SceneGraphGroup child = new SceneGraphGroup()) {
            assertThrows(NativeException.class, () -> SceneGraphGroup.connect(root, 0));
            group.addChild(child);
            String detail = detailOf(assertThrows(NativeException.class, () -> SceneGraphGroup.connect(group, 2)));
            assertTrue(detail.matches("The group \\(node \\d+\\) has no child 2\\."), detail);
            assertThrows(NativeException.class, () -> group.getChildType(0));
            assertThrows(NativeException.class, () -> group.getChildObjectType(-1));
            assertThrows(NativeException.class, root::getChildType);
            assertThrows(NativeException.class, root::getChildObjectType);
            // A group is not an object.
            assertThrows(NativeException.class, () -> group.getChildObjectType(1));
        }
    }

    @Test
    void aGroupCannotBecomeItsOwnDescendant() {
        try (Scene scene = new Scene();
                SceneGraphRoot root = SceneGraphRoot.connect(scene);
                SceneGraphGroup top = new SceneGraphGroup();
                SceneGraphGroup middle = new SceneGraphGroup();
                SceneGraphGroup bottom = new SceneGraphGroup()) {
            root.setChild(top);
            top.addChild(middle);
            middle.addChild(bottom);
            for (SceneGraphNode node : List.of(bottom, middle, top, root)) {
                String detail = detailOf(assertThrows(NativeException.class, () -> bottom.addChild(node)));
                assertTrue(detail.contains("cannot be a child of node"), detail);
            }
            assertThrows(NativeException.class, () -> root.setChild(root));
            assertEquals(0, bottom.getNoOfChildren());
            assertEquals(0, top.getChildId());
            assertTrue(root.hasChild());
        }
    }

    @Test
    void nullAndClosedPeersAreRefused() {
        SceneGraphGroup closed = new SceneGraphGroup();
        closed.close();
        closed.close();
        assertTrue(closed.isClosed());
        Scene closedScene = new Scene();
        closedScene.close();
        try (Scene scene = new Scene();
                SceneGraphRoot root = SceneGraphRoot.connect(scene);
                SceneGraphGroup group = new SceneGraphGroup()) {
            assertThrows(NullPointerException.class, () -> group.addChild(null));
            assertThrows(NullPointerException.class, () -> root.setChild(null));
            assertThrows(NullPointerException.class, () -> SceneGraphGroup.connect(null, 1));
            assertThrows(NullPointerException.class, () -> SceneGraphRoot.connect(null));
            assertThrows(IllegalStateException.class, () -> group.addChild(closed));
            assertThrows(IllegalStateException.class, () -> root.setChild(closed));
            assertThrows(IllegalStateException.class, () -> SceneGraphGroup.connect(closed, 1));
            assertThrows(IllegalStateException.class, () -> SceneGraphRoot.connect(closedScene));
            assertEquals("The peer is closed.",
                    detailOf(assertThrows(NativeException.class, () -> closed.addChild(group))));
            assertThrows(NativeException.class, closed::getType);
            assertThrows(NativeException.class, closed::isActive);
            assertEquals(-1, group.getChildId());
        }
    }

    @Test
    void aPeerIsAcceptedAsEachOfItsClassesButNoOther() {
        try (SceneGraphGroup group = new SceneGraphGroup(); SceneGraphPlotGroup plots = new SceneGraphPlotGroup()) {
            group.addChild(plots);
            for (int i = 0; i < 2; ++i) {
                assertEquals(1, group.getNoOfChildren());
                SceneGraphPlotGroup.connect(group, 1).close();
                assertEquals(-1, group.getChildId());
                // A plot group is a node, but not a parent of nodes.
                assertEquals("Argument \"owner\": expected class SceneGraphParent, found class SceneGraphPlotGroup.",
                        detailOf(assertThrows(NativeException.class,
                                () -> Natives.call(SceneGraphPlotGroup.class, "connectNative", plots, plots, 1))));
                plots.removeAllPlots();
                assertEquals(1, plots.getChildId());
            }
        }
    }

    @Test
    void peersMayBeClosedInAnyOrder() {
        for (int seed = 0; seed < 20; ++seed) {
            Scene scene = new Scene();
            SceneGraphRoot root = SceneGraphRoot.connect(scene);
            List<NativePeer> peers = new ArrayList<>(List.of(scene, root));
            List<SceneGraphGroup> groups = new ArrayList<>();
            Random random = new Random(seed);
            for (int i = 0; i < 30; ++i) {
                SceneGraphGroup group = new SceneGraphGroup();
                if (groups.isEmpty()) {
                    root.setChild(group);
                } else {
                    groups.get(random.nextInt(groups.size())).addChild(group);
                }
                groups.add(group);
            }
            peers.addAll(groups);
            Collections.shuffle(peers, random);
            for (NativePeer peer : peers) {
                peer.close();
            }
        }
    }

    @Test
    void theTreeOutlivesItsSceneWithAPeerOfTheRoot() {
        Scene scene = new Scene();
        SceneGraphGroup group = new SceneGraphGroup();
        try (SceneGraphRoot root = SceneGraphRoot.connect(scene)) {
            root.setChild(group);
            scene.close();
            group.close();
            assertTrue(root.hasChild());
        }
    }

    @Test
    void aTreeDeeperThanTheStackIsBuiltAndDestroyed() {
        SceneGraphGroup below = new SceneGraphGroup();
        for (int i = 0; i < 100_000; ++i) {
            SceneGraphGroup above = new SceneGraphGroup();
            above.addChild(below);
            below.close();
            below = above;
        }
        assertEquals(1, below.getNoOfChildren());
        below.close();
    }
}
