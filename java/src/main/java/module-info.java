/** The model layer of an interactive 2D and 3D visualisation component, and the base of its peers. */
module com.vexane.graphics3d {
    exports com.vexane.base;
    exports com.vexane.graphics3d;
}
