package com.vexane.base;

import java.io.IOException;
import java.io.InputStream;
import java.nio.file.Files;
import java.nio.file.Path;
import java.nio.file.StandardCopyOption;
import java.util.ArrayList;
import java.util.HashSet;
import java.util.List;
import java.util.Locale;
import java.util.Objects;
import java.util.Set;

/**
 * Finds and loads the native libraries. The first use of a peer does so automatically; call {@link #load(Path)} before
 * it to specify the folder.
 *
 * <p>Locations are tried in this order: the folder given to {@link #load(Path)}; the folder that the system property
 * {@value #FOLDER_PROPERTY} specifies; the jar that contains the classes; the folders of {@code java.library.path}. The
 * first location that has the library decides; if it cannot be loaded from there, that failure is reported.
 */
public final class NativeLibrary {
    /** System property that specifies the folder with the native libraries. */
    public static final String FOLDER_PROPERTY = "com.vexane.library.path";

    private static final String[] OWN = {"vxutil", "vxgraphics3d"};

    private static final Set<String> loaded = new HashSet<>();
    private static volatile boolean ownLoaded;
    private static Path givenFolder;
    private static Path unpackFolder;

    private NativeLibrary() {}

    /**
     * Loads the libraries from a folder. Does nothing if they are loaded already.
     *
     * @param folder the folder that contains them
     * @throws UnsatisfiedLinkError if they are not there or cannot be loaded; the message lists every location tried
     */
    public static synchronized void load(Path folder) {
        givenFolder = Objects.requireNonNull(folder, "folder");
        ensureLoaded();
    }

    /**
     * Loads the model library if it is not loaded yet; a class with natives but without peers calls this first.
     *
     * @throws UnsatisfiedLinkError if it is not found or cannot be loaded; the message lists every location tried
     */
    public static void ensureLoaded() {
        if (!ownLoaded) {
            loadOwn();
        }
    }

    private static synchronized void loadOwn() {
        require(NativeLibrary.class, OWN);
        ownLoaded = true;
    }

    /**
     * Loads further libraries that build on the model library, from the same locations.
     *
     * @param anchor a class in the jar that may contain the libraries
     * @param names their names without prefix and suffix, dependencies first
     * @throws UnsatisfiedLinkError if one is not found or cannot be loaded; the message lists every location tried
     */
    public static synchronized void require(Class<?> anchor, String... names) {
        if (anchor != NativeLibrary.class) {
            ensureLoaded();
        }
        for (String name : names) {
            if (!loaded.contains(name)) {
                System.load(find(anchor, System.mapLibraryName(name)).toString());
                loaded.add(name);
            }
        }
    }

    private static Path find(Class<?> anchor, String fileName) {
        List<String> tried = new ArrayList<>();
        if (givenFolder != null) {
            Path file = givenFolder.toAbsolutePath().resolve(fileName);
            if (Files.isReadable(file)) {
                return file;
            }
            tried.add("given folder: " + file);
        }
        String property = System.getProperty(FOLDER_PROPERTY);
        if (property != null) {
            Path file = Path.of(property).toAbsolutePath().resolve(fileName);
            if (Files.isReadable(file)) {
                return file;
            }
            tried.add("property " + FOLDER_PROPERTY + ": " + file);
        } else {
            tried.add("property " + FOLDER_PROPERTY + ": not set");
        }
        String resource = "/native/" + platform() + "/" + fileName;
        try (InputStream packed = anchor.getResourceAsStream(resource)) {
            if (packed != null) {
                return unpack(packed, fileName);
            }
            tried.add("jar: " + resource);
        } catch (IOException e) {
            tried.add("jar: " + resource + ": " + e);
        }
        for (String folder : System.getProperty("java.library.path", "").split(java.io.File.pathSeparator)) {
            if (!folder.isEmpty()) {
                Path file = Path.of(folder).toAbsolutePath().resolve(fileName);
                if (Files.isReadable(file)) {
                    return file;
                }
                tried.add("java.library.path: " + file);
            }
        }
        throw new UnsatisfiedLinkError(
                "Could not find " + fileName + ". Tried, in this order:\n  " + String.join("\n  ", tried));
    }

    /** All libraries are unpacked into one folder, so that they find each other. */
    private static Path unpack(InputStream packed, String fileName) throws IOException {
        if (unpackFolder == null) {
            unpackFolder = Files.createTempDirectory("vexane");
            unpackFolder.toFile().deleteOnExit();
        }
        Path file = unpackFolder.resolve(fileName);
        file.toFile().deleteOnExit();
        Files.copy(packed, file, StandardCopyOption.REPLACE_EXISTING);
        return file;
    }

    private static String platform() {
        String os = System.getProperty("os.name").toLowerCase(Locale.ROOT);
        String arch = System.getProperty("os.arch").equals("amd64") ? "x86_64" : System.getProperty("os.arch");
        return (os.startsWith("linux") ? "linux" : os.replace(" ", "")) + "-" + arch;
    }
}
