package com.vexane.graphics3d;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertFalse;
import static org.junit.jupiter.api.Assertions.assertNotEquals;
import static org.junit.jupiter.api.Assertions.assertThrows;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.vexane.base.NativeException;
import com.vexane.base.NativePeer;
import java.io.IOException;
import java.lang.reflect.Method;
import java.lang.reflect.Modifier;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.ArrayList;
import java.util.Arrays;
import java.util.Comparator;
import java.util.List;
import java.util.Random;
import java.util.stream.Stream;
import org.junit.jupiter.api.AfterEach;
import org.junit.jupiter.api.BeforeEach;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.api.io.TempDir;

/**
 * Calls every native of the peers of views, lights, picks and plots with numbers, texts, arrays and peers that make no
 * sense. What may come of it is a result or an exception of the library; the virtual machine lives and the peers stay
 * usable.
 * The settings of the process are left out: what they take holds for every other test.
 */
class WrongArgumentsTest {
    private static final Object[] INTS = {
        Integer.MIN_VALUE, -65536, -1, 0, 1, 2, 3, 6, 7, 8, 10, 31, 1 << 20, Integer.MAX_VALUE
    };
    private static final Object[] FLOATS = {
        Float.NaN, Float.NEGATIVE_INFINITY, -Float.MAX_VALUE, -1.0f, -0.0f, 0.0f, Float.MIN_VALUE, 0.5f, 1e30f,
        Float.POSITIVE_INFINITY
    };
    private static final Object[] DOUBLES = {Double.NaN, Double.NEGATIVE_INFINITY, -1.0, 0.0, 1e-300, 1e300};
    private static final Object[] STRINGS = {null, "", "a", "%s%n{}\\", "\0\ud800\u20ac", "x".repeat(100_000)};
    private static final Object[] INT_ARRAYS = {null, new int[0], new int[1], new int[] {-1, 0x7fffffff, 3, 4, 5, 6}};
    private static final Object[] FLOAT_ARRAYS = {null, new float[0], new float[2], new float[3], new float[4]};
    private static final Object[] DOUBLE_ARRAYS = {null, new double[0], new double[] {Double.NaN, 1.0, -1e300}};
    private static final double[][][] ROWS = {
        null, {}, {{1, 1}}, {null}, {{Double.NaN, 1e300, -1}}, {{0, 0, 0, Double.NaN}}, {{0, 0, 0, -1}},
        {{0, 0, 0, 1e-300}, {1, 1, 1, 1e300}}
    };

    private final List<NativePeer> peers = new ArrayList<>();
    private final Random random = new Random(17);

    @BeforeEach
    void makePeers() {
        TestRenderer view = keep(new TestRenderer());
        Scene scene = keep(new Scene());
        view.openContext(1);
        view.show(scene);
        Canvas3dSettings canvas = keep(Canvas3dSettings.connect(view));
        keep(Camera2d.connect(canvas));
        keep(Camera3d.connect(canvas));
        keep(AxisSetup.connect(canvas));
        keep(GridBoxSettings.connect(canvas));
        SceneSettings settings = keep(SceneSettings.connect(view));
        keep(SceneSettingsLight.connect(settings));
        SceneLight light = keep(SceneLight.connect(scene));
        keep(DirectionLightSource.connect(light, light.createDirectionLight()));
        keep(PointLightSource.connect(light, light.createPointLight()));
        keep(SpotLightSource.connect(light, light.createSpotLight()));
        keep(new CanvasPickSettings(view));
        keep(new PickedObjectCollection());
        keep(new HardcopySettings());
        keep(new CanvasBackgroundImage());
        keep(ContextData.connect(view));
        keep(new SceneGraphPlotGroup());
        keep(new SceneGraphPlotSurface2d(1));
        keep(new SceneGraphPlotSurface3d(2));
        keep(new SceneGraphPlotDomain3d(2));
        TestRenderer.Info info = keep(new TestRenderer.Info());
        keep(RendererInfo.MonitorInfo.connect(info, 0));
    }

    @AfterEach
    void closePeers() {
        ErrorLog.setReportLevel(ErrorLog.Level.NONE);
        ErrorLog.setFlushAfterEachMessage(false);
        peers.forEach(NativePeer::close);
    }

    private <T extends NativePeer> T keep(T peer) {
        peers.add(peer);
        return peer;
    }

    /** The natives that a peer's classes declare, but the one that closes it, and none of the renderer's own. */
    private static List<Method> nativesOf(NativePeer peer) {
        List<Method> natives = new ArrayList<>();
        for (Class<?> type = peer.getClass(); type != NativePeer.class && type != TestRenderer.class; type = type.getSuperclass()) {
            Arrays.stream(type.getDeclaredMethods())
                    .filter(m -> Modifier.isNative(m.getModifiers()) && !m.getName().equals("cleanupNative"))
                    .sorted(Comparator.comparing(Method::toString)).forEach(natives::add);
        }
        return natives;
    }

    private Object oneOf(Object[] values) {
        return values[random.nextInt(values.length)];
    }

    private Object argumentOf(Class<?> type) {
        if (type == int.class) {
            return oneOf(INTS);
        } else if (type == float.class) {
            return oneOf(FLOATS);
        } else if (type == double.class) {
            return oneOf(DOUBLES);
        } else if (type == boolean.class) {
            return random.nextBoolean();
        } else if (type == String.class) {
            return oneOf(STRINGS);
        } else if (type == int[].class) {
            return oneOf(INT_ARRAYS);
        } else if (type == float[].class) {
            return oneOf(FLOAT_ARRAYS);
        } else if (type == double[].class) {
            return oneOf(DOUBLE_ARRAYS);
        } else if (type == double[][].class) {
            return oneOf(ROWS);
        } else if (type == Object.class) {
            return random.nextInt(8) == 0 ? "no peer" : oneOf(peers.toArray());
        }
        Object[] fitting = peers.stream().filter(type::isInstance).toArray();
        assertTrue(fitting.length > 0, "no peer of " + type);
        return random.nextInt(4) == 0 ? null : oneOf(fitting);
    }

    private Object[] argumentsOf(Method method, NativePeer self) {
        Class<?>[] types = method.getParameterTypes();
        Object[] arguments = new Object[types.length];
        arguments[0] = self;
        for (int i = 1; i < types.length; ++i) {
            arguments[i] = argumentOf(types[i]);
        }
        return arguments;
    }

    /** Calls a native; whatever it throws must be an exception of the library that says what is wrong. */
    private static void call(Method method, Object[] arguments) {
        try {
            Natives.call(method.getDeclaringClass(), method.getName(), arguments);
        } catch (NativeException failure) {
            assertNotEquals("Out_of_memory_graphics3d", failure.getKey(), method.toString());
            assertNotEquals("", failure.getDetail(), method.toString());
        }
    }

    @Test
    void nothingThatIsPassedHarmsTheVirtualMachine(@TempDir Path folder) throws IOException {
        Path log = folder.resolve("log.txt");
        ErrorLog.setOutputFile(log);
        ErrorLog.setReportLevel(ErrorLog.Level.CALLS);
        int calls = 0;
        for (NativePeer peer : List.copyOf(peers)) {
            for (Method method : nativesOf(peer)) {
                for (int i = 0; i < 40; ++i, ++calls) {
                    call(method, argumentsOf(method, i % 20 == 19 ? null : peer));
                }
            }
        }
        ErrorLog.setFlushAfterEachMessage(true);
        ErrorLog.setReportLevel(ErrorLog.Level.NONE);
        assertTrue(calls > 8000, "natives were found");
        try (Stream<String> lines = Files.lines(log)) {
            assertTrue(lines.filter(line -> line.startsWith("jni_info\t")).count() > calls, "each call has its entry");
        }
        for (NativePeer peer : peers) {
            assertFalse(peer.isClosed());
        }
    }

    @Test
    void closedPeersAreRefusedByEveryNative() {
        List<NativePeer> all = List.copyOf(peers);
        all.forEach(NativePeer::close);
        for (NativePeer peer : all) {
            for (Method method : nativesOf(peer)) {
                // What gives a peer its object is the one thing that a closed one takes.
                if (!method.getName().matches("(create|connect|clone)\\w*")) {
                    Object[] arguments = argumentsOf(method, peer);
                    NativeException refused = assertThrows(NativeException.class,
                            () -> Natives.call(method.getDeclaringClass(), method.getName(), arguments),
                            method.toString());
                    assertEquals("The peer is closed.", refused.getDetail(), method.toString());
                }
            }
        }
    }
}
