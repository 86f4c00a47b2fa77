#pragma once

#include "graphics3d/foundation/boundingbox.h"
#include "renderer/gl/globject.h"

#include <cstddef>
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
    /// The largest radius.
    float getLargestRadius() const { return m_largestRadius; }
    /// The box of the positions.
    const vxgraphics3d::BoundingBox& getBox() const { return m_box; }
    /// Draws a point or a triangle for each record with the program in use.
    void draw(bool asPoints) const;

private:
    void measure(std::span<const float> records, std::size_t numAxes);

    GlVertexArray m_array;
    GlBuffer m_buffer;
    GLsizei m_size = 0;
    bool m_areDiscs = false;
    float m_largestRadius = 0.0f;
    vxgraphics3d::BoundingBox m_box;
};

} // namespace vxrenderer
