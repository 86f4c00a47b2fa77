package com.vexane.graphics3d;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertFalse;
import static org.junit.jupiter.api.Assertions.assertNotEquals;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.vexane.base.NativeException;
import com.vexane.base.NativePeer;
import com.vexane.producer.PostDataObject;
import com.vexane.producer.RenderDraw3D;
import com.vexane.producer.RenderDrawProj2D;
import com.vexane.producer.RenderGeom3D;
import com.vexane.producer.RenderMeshCollection;
import java.io.File;
import java.io.IOException;
import java.lang.reflect.InvocationTargetException;
import java.lang.reflect.Method;
import java.lang.reflect.Modifier;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.ArrayList;
import java.util.Arrays;
import java.util.Comparator;
import java.util.HashMap;
import java.util.List;
import java.util.Map;
import java.util.Set;
import java.util.function.Predicate;
import java.util.stream.Stream;
import org.junit.jupiter.api.io.TempDir;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.ValueSource;

/**
 * Calls every native, from the checked list and from the companions' classes, with all kinds of invalid arguments, in a
 * separate virtual machine. A new native only needs to be in the list; a new class needs a line in {@link PeerRecipes}.
 *
 * <p>A call has one of two outcomes: it returns, or it is refused with a {@link NativeException} that has a known key
 * and a message. Any other exception, or the end of the process, is a fault. An invalid peer must be refused with the
 * expected message.
 */
class HostileCallsTest {
    private static final int LEAST_CALLS = 20_000;

    @ParameterizedTest
    @ValueSource(booleans = {false, true})
    void everyNativeReturnsOrRefuses(boolean isChecked, @TempDir Path folder) throws Exception {
        List<String> options = isChecked ? List.of("-Xcheck:jni") : List.of();
        String output = ChildVm.runWell(folder, options, Caller.class, System.getProperty("com.vexane.test.natives"));
        int calls = Integer.parseInt(output.strip().replaceFirst("(?s).*\\n", ""));
        assertTrue(calls >= LEAST_CALLS, output);
    }

    /** The program: prints the number of calls. Its argument is the list of natives. */
    static final class Caller {
        private static final Set<String> KEYS = Set.of("Internal_error_graphics3d");
        private static final int RANDOM_CALLS = 12;
        private static final int LEAST_RANDOM_CALLS = 24;

        private final HostileValues values = new HostileValues();
        private int numCalls;

        public static void main(String[] arguments) throws Exception {
            Caller caller = new Caller();
            List<Method> natives = listed(Path.of(arguments[0]));
            natives.addAll(ofCompanions());
            Path log = Path.of("calls.txt");
            ErrorLog.setOutputFile(log);
            ErrorLog.setReportLevel(ErrorLog.Level.CALLS);
            // Those of the log change the destination of log entries, so they are called last.
            Predicate<Method> isOfLog = method -> method.getDeclaringClass() == ErrorLog.class;
            for (boolean isFilled : new boolean[] {false, true}) {
                caller.callAll(natives.stream().filter(isOfLog.negate()).toList(), isFilled);
            }
            ErrorLog.setFlushAfterEachMessage(true);
            ErrorLog.setReportLevel(ErrorLog.Level.NONE);
            try (Stream<String> lines = Files.lines(log)) {
                long entries = lines.filter(line -> line.startsWith("jni_info\t")).count();
                assertTrue(entries > LEAST_CALLS * 3 / 4, entries + " entries");
            }
            caller.callAll(natives.stream().filter(isOfLog).toList(), false);
            ErrorLog.setReportLevel(ErrorLog.Level.NONE);
            assertEquals(Map.of(), NativePeer.countOpen());
            System.out.println(caller.numCalls);
        }

        // --- the list of natives -------------------------------------------------------------------------------------

        private static List<Method> listed(Path list) throws Exception {
            List<Method> natives = new ArrayList<>();
            for (String line : Files.readAllLines(list).stream().skip(1).toList()) {
                String[] fields = line.split("\t", -1);
                Class<?> type = Class.forName("com.vexane.graphics3d." + fields[0]);
                natives.add(Arrays.stream(type.getDeclaredMethods())
                        .filter(m -> Modifier.isNative(m.getModifiers()) && m.getName().equals(fields[1]))
                        .findAny().orElseThrow());
            }
            return natives;
        }

        /** The natives of all modules on the class path, except those of the list. */
        private static List<Method> ofCompanions() throws Exception {
            List<Method> natives = new ArrayList<>();
            for (String entry : System.getProperty("java.class.path").split(File.pathSeparator)) {
                Path module = Path.of(entry);
                if (Files.exists(module.resolve("module-info.class"))) {
                    try (Stream<Path> files = Files.walk(module)) {
                        for (Path file : files.filter(f -> f.toString().endsWith(".class")).sorted().toList()) {
                            natives.addAll(ofCompanion(module.relativize(file).toString()));
                        }
                    }
                }
            }
            assertTrue(natives.stream().anyMatch(m -> m.getDeclaringClass() == PostDataObject.class));
            return natives;
        }

        private static List<Method> ofCompanion(String file) throws ClassNotFoundException {
            String name = file.replaceFirst("\\.class$", "").replace(File.separatorChar, '.');
            if (name.endsWith("-info") || name.startsWith("com.vexane.graphics3d.")) {
                return List.of();
            }
            return Arrays.stream(Class.forName(name, false, Caller.class.getClassLoader()).getDeclaredMethods())
                    .filter(m -> Modifier.isNative(m.getModifiers())).sorted(Comparator.comparing(Method::toString))
                    .toList();
        }

        // --- one call ------------------------------------------------------------------------------------------------

        /** @return the message of the refusal, or null if the call returned */
        private String call(Method method, Object... arguments) {
            ++numCalls;
            method.setAccessible(true);
            try {
                method.invoke(null, arguments);
                return null;
            } catch (InvocationTargetException e) {
                if (e.getCause() instanceof NativeException refusal && KEYS.contains(refusal.getKey())) {
                    assertNotEquals("", refusal.getDetail(), () -> textOf(method, arguments));
                    assertFalse(refusal.getDetail().contains("std::"), () -> textOf(method, arguments) + refusal);
                    return refusal.getDetail();
                }
                throw new AssertionError(textOf(method, arguments), e.getCause());
            } catch (IllegalAccessException e) {
                throw new AssertionError(e);
            }
        }

        private static String textOf(Method method, Object[] arguments) {
            String text = Arrays.deepToString(arguments);
            return method + " with " + text.substring(0, Math.min(text.length(), 200)) + ": ";
        }

        private void callRefused(String words, Method method, Object[] arguments) {
            String detail = call(method, arguments);
            assertTrue(detail != null && detail.contains(words), () -> textOf(method, arguments) + detail);
        }

        // --- all calls -----------------------------------------------------------------------------------------------

        private void callAll(List<Method> natives, boolean isFilled) {
            try (PeerRecipes sound = PeerRecipes.makeAll(); PeerRecipes closed = PeerRecipes.makeAll();
                    PeerRecipes foreign = PeerRecipes.makeAll()) {
                if (isFilled) {
                    fill(sound);
                }
                closed.closeAll();
                foreign.allOf(NativePeer.class).stream().filter(p -> !(p instanceof TestRenderer)).forEach(peer -> {
                    call(cleanupOf(peer.getClass()), peer);
                    TestRenderer.connectForeignTo(peer);
                });
                for (Method method : natives) {
                    boolean hasSelf = isPeer(method, 0);
                    if (hasSelf) {
                        callOnWrongPeer(method, sound, closed, foreign);
                    }
                    for (int i = hasSelf ? 1 : 0; i < method.getParameterCount(); ++i) {
                        if (isPeer(method, i) || method.getParameterTypes()[i] == Object.class) {
                            callWithWrongPeer(method, i, sound, closed, foreign);
                        }
                    }
                    callAtRandom(method, sound);
                }
                sound.allOf(NativePeer.class).forEach(peer -> assertFalse(peer.isClosed()));
                fill(sound);
                foreign.allOf(NativePeer.class).forEach(peer -> call(cleanupOf(peer.getClass()), peer));
            }
        }

        /** Connects the parts to a scene with plots, fills solids and models, which requires everything to be usable. */
        private void fill(PeerRecipes peers) {
            SceneGraphRoot root = peers.first(SceneGraphRoot.class);
            SceneGraphPlotGroup group = (SceneGraphPlotGroup) peers.another(SceneGraphPlotGroup.class);
            root.setChild(group);
            for (Class<?> type : List.of(SceneGraphPlotSurface2d.class, SceneGraphPlotSurface3d.class,
                    SceneGraphPlotDomain3d.class)) {
                SceneGraphPlot plot = (SceneGraphPlot) peers.another(type);
                plot.fillPlot(peers.another(PostDataObject.class));
                group.addPlot(plot);
            }
            assertEquals(3, group.getNoOfPlots());
            for (SceneGraphPlot plot : peers.allOf(SceneGraphPlot.class).toArray(SceneGraphPlot[]::new)) {
                plot.fillPlot(peers.another(PostDataObject.class));
            }
            for (NativePeer solid : peers.allOf(SceneGraphDrawObjectSolid.class)) {
                ((SceneGraphDrawObjectSolid) solid).fillObject(peers.another(RenderDraw3D.class));
                ((SceneGraphDrawObjectSolid) solid).markPart(ObjectPartType.SHEET, 0, MarkingAction.HIDDEN);
            }
            for (NativePeer projection : peers.allOf(SceneGraphDrawProj.class)) {
                ((SceneGraphDrawProj) projection).fillObject(peers.another(RenderDrawProj2D.class));
            }
            for (NativePeer peer : peers.allOf(SceneGraphPhysicsObject.class)) {
                SceneGraphPhysicsObject model = (SceneGraphPhysicsObject) peer;
                model.fillObject(peers.another(RenderGeom3D.class));
                model.addMeshCollection(peers.another(RenderMeshCollection.class));
                model.setPhysicsMarkerNormal("icon", ObjectPartType.SHEET, 0, true);
                model.markBoundary(0, MarkingAction.HIDDEN);
            }
        }

        private static boolean isPeer(Method method, int parameter) {
            return parameter < method.getParameterCount()
                    && NativePeer.class.isAssignableFrom(method.getParameterTypes()[parameter]);
        }

        private static Method cleanupOf(Class<?> type) {
            for (Class<?> at = type; at != NativePeer.class; at = at.getSuperclass()) {
                for (Method method : at.getDeclaredMethods()) {
                    if (method.getName().equals("cleanupNative")) {
                        return method;
                    }
                }
            }
            throw new AssertionError("no native closes " + type);
        }

        private static boolean isCleanup(Method method) {
            return method.getName().equals("cleanupNative");
        }

        /** Whether a native gives a peer its object, and so accepts a peer without one. */
        private static boolean isMaker(Method method) {
            return method.getName().matches("(create|connect|clone)Native|connectInfo");
        }

        private static Object[] harmless(Method method, PeerRecipes peers) {
            return Arrays.stream(method.getParameterTypes()).map(type -> harmless(type, peers)).toArray();
        }

        private static Object harmless(Class<?> type, PeerRecipes peers) {
            if (type == Object.class) {
                return peers.first(PostDataObject.class);
            } else if (type == NativePeer.class) {
                return peers.first(TestRenderer.class);
            } else if (NativePeer.class.isAssignableFrom(type)) {
                return peers.first(PeerRecipes.recipeFor(type));
            }
            return isInternal(type) ? null : HostileValues.harmless(type);
        }

        /** Whether values of a type are passed by peers only: the registration of a lost one. */
        private static boolean isInternal(Class<?> type) {
            return type.getPackageName().equals("com.vexane.base") && !NativePeer.class.isAssignableFrom(type);
        }

        private void callOnWrongPeer(Method method, PeerRecipes sound, PeerRecipes closed, PeerRecipes foreign) {
            Class<?> type = PeerRecipes.recipeFor(method.getParameterTypes()[0]);
            Object[] arguments = harmless(method, sound);
            for (Map.Entry<Object, String> wrong : wrongPeers(type, closed, foreign).entrySet()) {
                arguments[0] = wrong.getKey();
                if (isCleanup(method)) {
                    if (wrong.getKey() == null || wrong.getKey() == closed.first(type)) {
                        assertEquals(null, call(method, arguments));
                    }
                } else {
                    callRefused(isMaker(method) ? "" : wrong.getValue(), method, arguments);
                }
            }
        }

        private void callWithWrongPeer(Method method, int at, PeerRecipes sound, PeerRecipes closed,
                PeerRecipes foreign) {
            Class<?> declared = method.getParameterTypes()[at];
            Class<?> type = declared == Object.class || declared == NativePeer.class ? Scene.class
                    : PeerRecipes.recipeFor(declared);
            Map<Object, String> wrong = wrongPeers(type, closed, foreign);
            wrong.remove(null);
            if (declared == Object.class) {
                wrong.put("text", "is not a peer.");
                wrong.put(new int[3], "is not a peer.");
            }
            if (declared == Object.class || declared == NativePeer.class) {
                wrong.put(sound.first(HardcopySettings.class), "found class HardcopySettings.");
            }
            Object[] arguments = harmless(method, sound);
            wrong.forEach((peer, words) -> {
                arguments[at] = peer;
                callRefused(words, method, arguments);
            });
            // Some natives accept null.
            arguments[at] = null;
            call(method, arguments);
        }

        /** A peer of each kind that natives refuse, with the expected message. */
        private static Map<Object, String> wrongPeers(Class<?> type, PeerRecipes closed, PeerRecipes foreign) {
            Map<Object, String> wrong = new HashMap<>();
            wrong.put(null, "The peer is null.");
            wrong.put(closed.first(type), " is closed.");
            if (type != TestRenderer.class) {
                wrong.put(foreign.first(type), "found class Foreign.");
            }
            return wrong;
        }

        /** With random values, on each peer whose class has the native. */
        private void callAtRandom(Method method, PeerRecipes sound) {
            if (isMaker(method)) {
                try (NativePeer self = sound.lone(PeerRecipes.recipeFor(method.getParameterTypes()[0]))) {
                    for (int i = 0; i < RANDOM_CALLS; ++i) {
                        call(cleanupOf(self.getClass()), self);
                        call(method, atRandom(method, self, sound));
                    }
                }
            } else if (!isCleanup(method)) {
                List<? extends Object> selves = isPeer(method, 0) ? sound.allOf(method.getParameterTypes()[0])
                        : List.of("no self");
                for (Object self : selves) {
                    for (int i = 0; i < Math.max(RANDOM_CALLS, LEAST_RANDOM_CALLS / selves.size()); ++i) {
                        call(method, atRandom(method, self, sound));
                    }
                }
            }
        }

        private Object[] atRandom(Method method, Object self, PeerRecipes sound) {
            Object[] arguments = new Object[method.getParameterCount()];
            for (int at = 0; at < arguments.length; ++at) {
                arguments[at] = at == 0 && isPeer(method, 0) ? self : valueOf(method.getParameterTypes()[at], sound);
            }
            return arguments;
        }

        private Object valueOf(Class<?> type, PeerRecipes sound) {
            Object[] peers = sound.allOf(type == Object.class ? NativePeer.class : type).toArray();
            if (type == Object.class) {
                return values.oneOf(new Object[] {null, "no peer", sound.first(PostDataObject.class),
                    sound.first(TestRenderer.class), values.oneOf(peers), values.oneOf(peers)});
            } else if (isInternal(type)) {
                return null;
            } else if (NativePeer.class.isAssignableFrom(type)) {
                return values.oneOf(new Object[] {null, values.oneOf(peers), values.oneOf(peers), values.oneOf(peers)});
            }
            return values.of(type);
        }
    }
}
