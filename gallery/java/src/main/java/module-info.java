/** Pictures of real data, each made by a small program. */
module com.vexane.gallery {
    requires com.vexane.interaction;
    requires com.vexane.producer;
    requires com.vexane.renderer;
    requires java.desktop;
}
