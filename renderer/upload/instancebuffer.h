#pragma once

#include "graphics3d/foundation/vector3f.h"
#include "renderer/gl/globject.h"

#include <cstddef>
#include <span>

namespace vxrenderer {

/// Where one copy of a mesh is drawn.
struct Instance {
    /// Where the origin of the mesh comes to lie.
    vxgraphics3d::Vector3f position;
    /// What becomes of the unit vector of the mesh's z axis. The other axes follow it, with the same scale and at right
    /// angles; about this axis the mesh may be turned by any angle.
    vxgraphics3d::Vector3f axis;
    /// Texture coordinate of the whole copy.
    float u;
    /// Factor for the scale at right angles to the axis.
    float thickness = 1.0f;
};
static_assert(sizeof(Instance) == 32 && offsetof(Instance, axis) == 12 && offsetof(Instance, u) == 24 &&
              offsetof(Instance, thickness) == 28);

/// Instances of a mesh on the graphics hardware.
class InstanceBuffer {
public:
    /// @throws std::runtime_error if the driver has no memory for them
    void load(std::span<const Instance> instances);

    GLsizei size() const { return m_size; }
    /// Adds the instances to the attributes of the bound vertex array, until `release`.
    void bind() const;
    static void release();

private:
    GlBuffer m_buffer;
    GLsizei m_size = 0;
};

} // namespace vxrenderer
