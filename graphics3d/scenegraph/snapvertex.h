#pragma once

namespace vxgraphics3d {

/// A vertex that the pointer can snap to.
struct SnapVertex {
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;
    int nodeId = 0; ///< the node that owns the vertex
    int state = 0;
    int index = 0; ///< index into the snap arrays of the record that filled the node
};

} // namespace vxgraphics3d
