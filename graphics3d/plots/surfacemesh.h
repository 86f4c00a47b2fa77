#pragma once

#include "graphics3d/buffers/bufferpair.h"
#include "graphics3d/buffers/indexbuffertriangles.h"
#include "graphics3d/buffers/vertexbuffernormaltex.h"

namespace vxgraphics3d {

/// Triangles that show data on a lit surface.
using SurfaceMesh = BufferPair<VertexBufferNormalTex, IndexBufferTriangles>;

} // namespace vxgraphics3d
