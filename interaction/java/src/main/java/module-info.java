/** Converts mouse events into movements of cameras and changes of overlays, for views of any renderer. */
module com.vexane.interaction {
    requires transitive com.vexane.graphics3d;

    exports com.vexane.interaction;
}
