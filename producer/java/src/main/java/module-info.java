/** Fills the records that plots are made of, from Java arrays and direct buffers. */
module com.vexane.producer {
    requires transitive com.vexane.graphics3d;

    exports com.vexane.producer;
}
