/** A renderer for scenes that needs no window: pictures as pixels and as PNG files. */
module com.vexane.renderer {
    requires transitive com.vexane.graphics3d;

    exports com.vexane.renderer;
}
