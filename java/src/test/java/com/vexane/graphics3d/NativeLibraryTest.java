package com.vexane.graphics3d;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertThrows;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.vexane.base.NativeLibrary;
import java.io.IOException;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.List;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.api.io.TempDir;

class NativeLibraryTest {
    @TempDir Path folder;

    /** A process loads a library only once. */
    private String runWithout(String... options) throws IOException, InterruptedException {
        return ChildVm.run(folder, List.of(options), Main.class).output();
    }

    /** Uses the library twice, like a program that continues after a failure. */
    static final class Main {
        public static void main(String[] args) {
            for (int i = 0; i < 2; ++i) {
                try {
                    ErrorLog.setActive(false);
                    System.out.println("went through");
                } catch (UnsatisfiedLinkError e) {
                    System.out.println(e.getMessage());
                }
            }
        }
    }

    @Test
    void aMissingLibraryIsReportedWithEveryLocationTriedEachTime() throws Exception {
        String output = runWithout("-D" + NativeLibrary.FOLDER_PROPERTY + "=" + folder, "-Djava.library.path=/nowhere");
        String once = "Could not find libvxutil.so. Tried, in this order:\n"
                + "  property com.vexane.library.path: " + folder.toAbsolutePath() + "/libvxutil.so\n"
                + "  jar: /native/linux-x86_64/libvxutil.so\n"
                + "  java.library.path: /nowhere/libvxutil.so\n";
        assertEquals(once + once, output);
    }

    @Test
    void aFileThatIsNotALibraryIsRefused() throws Exception {
        Files.writeString(folder.resolve("libvxutil.so"), "not a library");
        String output = runWithout("-D" + NativeLibrary.FOLDER_PROPERTY + "=" + folder);
        assertTrue(output.contains("libvxutil.so"), output);
        assertTrue(!output.contains("went through"), output);
    }

    @Test
    void loadingAgainFromAnotherFolderDoesNothing() {
        NativeLibrary.load(folder);
        ErrorLog.setActive(false);
        assertThrows(UnsatisfiedLinkError.class, () -> NativeLibrary.require(NativeLibraryTest.class, "vxnothing"));
    }
}
