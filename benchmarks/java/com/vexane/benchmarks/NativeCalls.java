package com.vexane.benchmarks;

import com.vexane.base.NativeLibrary;
import com.vexane.base.NativePeer;
import com.vexane.graphics3d.SceneGraphGroup;
import java.util.Arrays;
import java.util.Locale;

/**
 * The cost of a call from Java into the library, compared with an empty native that takes a peer: the difference is the
 * cost of the native frame. The log is silent.
 */
public final class NativeCalls {
    private static final int CALLS = 1_000_000;
    private static final int ROUNDS = 41;

    private NativeCalls() {}

    private static native int empty(NativePeer peer);

    /** A separate loop for each native, so that the compiler sees only one call in it. */
    private interface Loop {
        /** @return the sum of the results, so that no call can be optimised away */
        int run(int times);
    }

    private static double nanosecondsPerCall(Loop loop) {
        long start = System.nanoTime();
        if (loop.run(CALLS) == Integer.MIN_VALUE) {
            System.out.println("an unlikely sum");
        }
        return (double) (System.nanoTime() - start) / CALLS;
    }

    /** The median; sorts the values. */
    private static double median(double[] values) {
        Arrays.sort(values);
        return values[values.length / 2];
    }

    /** Measures a getter and the empty native in turn. */
    private static void compare(String name, double allowed, Loop getter, Loop empty) {
        double[] ours = new double[ROUNDS];
        double[] bare = new double[ROUNDS];
        for (int i = 0; i < 4; ++i) {
            nanosecondsPerCall(getter);
            nanosecondsPerCall(empty);
        }
        for (int i = 0; i < ROUNDS; ++i) {
            ours[i] = nanosecondsPerCall(getter);
            bare[i] = nanosecondsPerCall(empty);
        }
        double time = median(ours);
        double limit = median(bare);
        System.out.printf(Locale.ROOT, "| %s | %.1f ns | %.1f ns | %.2f | %.2f | %s |%n", name, time, limit,
                time / limit, ours[0] / bare[0], allowed);
    }

    private static Loop emptyCalls(NativePeer peer) {
        return times -> {
            int sum = 0;
            for (int i = 0; i < times; ++i) {
                sum += empty(peer);
            }
            return sum;
        };
    }

    /**
     * Prints a row for each getter.
     *
     * @param arguments none
     */
    public static void main(String[] arguments) {
        NativeLibrary.require(NativeCalls.class, "vxbenchmarks");
        try (SceneGraphGroup group = new SceneGraphGroup()) {
            compare("native_getter_of_root_class", 1.6, times -> {
                int sum = 0;
                for (int i = 0; i < times; ++i) {
                    sum += group.getChildId();
                }
                return sum;
            }, emptyCalls(group));
            compare("native_getter_of_derived_class", 1.6, times -> {
                int sum = 0;
                for (int i = 0; i < times; ++i) {
                    sum += group.getNoOfChildren();
                }
                return sum;
            }, emptyCalls(group));
        }
    }
}
