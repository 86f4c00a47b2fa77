#pragma once

#include "renderer/gl/globject.h"

#include <span>

namespace vxrenderer {

/// Spheres in space or discs in the plane on the graphics hardware, as records of 5 or 4 floats: the position, the
/// texture coordinate and the radius. The records of plots have this form, and are copied as they are.
class SphereBuffer {
public:
    /// @param records whole records
    /// @param areDiscs whether positions have two coordinates
    /// @throws std::runtime_error if the driver has no memory for them
    void load(std::span<const float> records, bool areDiscs);

    bool areDiscs() const { return m_areDiscs; }
    /// Draws a triangle for each record with the program in use.
    void draw() const;

private:
    GlVertexArray m_array;
    GlBuffer m_buffer;
    GLsizei m_size = 0;
    bool m_areDiscs = false;
};

} // namespace vxrenderer
