#pragma once

namespace vxgraphics3d {

/// A vertex that the pointer can snap to.
struct SnapVertex {
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;
    int nodeId = 0; ///< the node that owns the vertex
    int state = 0;
    int index = 0; ///< of the entry in the snap arrays of the record that the node was filled from
};

} // namespace vxgraphics3d
