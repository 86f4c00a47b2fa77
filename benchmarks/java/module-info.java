/** Benchmarks of the calls from Java. */
module com.vexane.benchmarks {
    requires com.vexane.graphics3d;
}
