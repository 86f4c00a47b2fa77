#pragma once

#include "graphics3d/buffers/vertexbufferof.h"
#include "graphics3d/buffers/vertexlayout.h"
#include "graphics3d/foundation/color.h"

namespace vxgraphics3d {

/// Vertices with a colour each, for unlit geometry.
class VX_API VertexBufferColor : public VertexBufferOf<VertexColor> {
public:
    /// Appends with the low bytes of the channels, and an alpha from 0 (clear) to 1 (opaque).
    int appendVertex(const Vector3f& p, const Color& c, float alpha) { return appendVertex(p.x, p.y, p.z, c, alpha); }
    int appendVertex(float x, float y, float z, const Color& c, float alpha)
    {
        return append(
            {x, y, z, lowByte(c.red), lowByte(c.green), lowByte(c.blue), lowByte(static_cast<int>(alpha * 255.0f))});
    }
    /// Appends in opaque white.
    int appendVertex(float x, float y, float z) { return append({x, y, z, 0xFF, 0xFF, 0xFF, 0xFF}); }

private:
    static unsigned char lowByte(int value) { return static_cast<unsigned char>(value & 0xFF); }
};

} // namespace vxgraphics3d
