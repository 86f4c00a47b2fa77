/** Converts mouse events into movements of cameras, for views of any renderer. */
module com.vexane.interaction {
    requires transitive com.vexane.graphics3d;

    exports com.vexane.interaction;
}
