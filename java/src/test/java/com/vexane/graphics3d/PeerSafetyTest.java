package com.vexane.graphics3d;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.vexane.base.NativePeer;
import java.nio.file.Path;
import java.util.List;
import java.util.Map;
import java.util.concurrent.atomic.AtomicBoolean;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.api.io.TempDir;

/**
 * How peers behave at the limits of the virtual machine, each in a separate process, because a fault would crash it.
 */
class PeerSafetyTest {
    @TempDir
    private Path folder;

    /** Runs the collector until all lost peers are released. */
    private static void awaitRelease() throws InterruptedException {
        for (int i = 0; i < 500 && !NativePeer.countOpen().isEmpty(); ++i) {
            System.gc();
            Thread.sleep(10);
            new SceneGraphGroup().close();
        }
        assertEquals(Map.of(), NativePeer.countOpen());
    }

    /**
     * Loses groups of a scene, half of whose leaves remain in another group, while a second thread, which uses only its
     * own scenes, creates peers and thereby releases the lost ones.
     */
    static final class LosesGroups {
        private static final int LEAVES = 10_000;

        private static void loseGroupOf(SceneGraphGroup parent, SceneGraphGroup[] leaves) {
            SceneGraphGroup lost = new SceneGraphGroup();
            parent.addChild(lost);
            for (SceneGraphGroup leaf : leaves) {
                lost.addChild(leaf);
                try (SceneGraphGroup lostToo = new SceneGraphGroup()) {
                    lost.addChild(lostToo);
                }
            }
            parent.removeChild(lost.getChildId());
        }

        public static void main(String[] arguments) throws InterruptedException {
            AtomicBoolean isDone = new AtomicBoolean();
            Thread other = new Thread(() -> {
                while (!isDone.get()) {
                    new Scene().close();
                }
            });
            other.start();
            Scene scene = new Scene();
            SceneGraphRoot root = SceneGraphRoot.connect(scene);
            SceneGraphGroup top = new SceneGraphGroup();
            root.setChild(top);
            SceneGraphGroup kept = new SceneGraphGroup();
            top.addChild(kept);
            SceneGraphGroup[] leaves = new SceneGraphGroup[LEAVES];
            for (int i = 0; i < LEAVES; ++i) {
                leaves[i] = new SceneGraphGroup();
            }
            for (int round = 0; round < 20; ++round) {
                loseGroupOf(top, leaves);
                System.gc();
                for (SceneGraphGroup leaf : leaves) {
                    leaf.disconnectFromParent();
                    kept.addChild(leaf);
                }
                assertEquals(LEAVES, kept.getNoOfChildren());
                kept.removeAllChildren();
            }
            isDone.set(true);
            other.join();
            for (SceneGraphGroup leaf : leaves) {
                leaf.close();
            }
            List.of(kept, top, root, scene).forEach(NativePeer::close);
            awaitRelease();
        }
    }

    @Test
    void lostPeersAreReleasedWithoutHarmToOtherThreads() throws Exception {
        ChildVm.runWell(folder, List.of("-Xmx256m"), LosesGroups.class);
    }

    /** Opens a peer at each depth of a recursion until the stack is exhausted, and closes them on the way back. */
    static final class EndsTheStack implements Runnable {
        private static final int ROUNDS = 150;
        private final SceneGraphGroup[] made = new SceneGraphGroup[100_000];
        private int numClosed;

        private void descend(int depth) {
            SceneGraphGroup group = new SceneGraphGroup();
            made[depth] = group;
            try {
                descend(depth + 1);
            } finally {
                group.close();
                ++numClosed;
            }
        }

        @Override
        public void run() {
            try {
                descend(0);
            } catch (StackOverflowError expected) {
                return;
            }
            throw new AssertionError("the stack has no end");
        }

        public static void main(String[] arguments) throws InterruptedException {
            boolean someWereLeft = false;
            for (int round = 0; round < ROUNDS; ++round) {
                EndsTheStack deep = new EndsTheStack();
                // A different size each time, so that the stack ends at a different instruction.
                Thread thread = new Thread(null, deep, "deep", 200_000 + 1400L * round);
                thread.start();
                thread.join();
                assertTrue(deep.numClosed > 0);
                for (SceneGraphGroup group : deep.made) {
                    if (group != null) {
                        someWereLeft = someWereLeft || !group.isClosed();
                        group.close();
                        assertTrue(group.isClosed());
                    }
                }
            }
            assertTrue(someWereLeft, "a close reached the end of the stack");
            awaitRelease();
        }
    }

    @Test
    void stackOverflowsLeavePeersOpenOrClosed() throws Exception {
        ChildVm.runWell(folder, List.of("-Xmx256m"), EndsTheStack.class);
        ChildVm.runWell(folder, List.of("-Xmx256m", "-Xint"), EndsTheStack.class);
    }
}
