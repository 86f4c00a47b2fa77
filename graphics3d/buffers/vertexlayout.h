#pragma once

#include <cstddef>

namespace vxgraphics3d {

// The records of the vertex buffers, as a renderer passes them to the graphics hardware. Their codes, sizes and byte
// offsets are a contract with every renderer and never change. A record is not initialised when an array is made, so
// that a fill writes its memory only once.

/// A position.
struct VertexCoords {
    static constexpr int c_vertexType = 1;

    float x, y, z;
};
static_assert(sizeof(VertexCoords) == 12 && offsetof(VertexCoords, z) == 8);

/// A position with a colour of its own.
struct VertexColor {
    static constexpr int c_vertexType = 2;

    float x, y, z;
    unsigned char red, green, blue, alpha;
};
static_assert(sizeof(VertexColor) == 16 && offsetof(VertexColor, red) == 12 && offsetof(VertexColor, alpha) == 15);

/// A position with a normal.
struct VertexNormal {
    static constexpr int c_vertexType = 3;

    float x, y, z;
    float nx, ny, nz;
};
static_assert(sizeof(VertexNormal) == 24 && offsetof(VertexNormal, nx) == 12);

/// A position with a normal and a coordinate in the colour table.
struct VertexNormalTex {
    static constexpr int c_vertexType = 4;

    float x, y, z;
    float nx, ny, nz;
    float u, v;
};
static_assert(sizeof(VertexNormalTex) == 32 && offsetof(VertexNormalTex, nx) == 12 &&
              offsetof(VertexNormalTex, u) == 24);

/// A position with a texture coordinate.
struct VertexTex {
    static constexpr int c_vertexType = 7;

    float x, y, z;
    float u, v;
};
static_assert(sizeof(VertexTex) == 20 && offsetof(VertexTex, u) == 12);

/// A position with a normal, two texture coordinates and a further coordinate triple.
struct VertexNormalTexTexCoord {
    static constexpr int c_vertexType = 9;

    float x, y, z;
    float nx, ny, nz;
    float u, v;
    float s, t;
    float cx, cy, cz;
};
static_assert(sizeof(VertexNormalTexTexCoord) == 52 && offsetof(VertexNormalTexTexCoord, nx) == 12 &&
              offsetof(VertexNormalTexTexCoord, u) == 24 && offsetof(VertexNormalTexTexCoord, s) == 32 &&
              offsetof(VertexNormalTexTexCoord, cx) == 40);

/// Offsets of the parts of a record, in bytes from its start; -1 for a part that the record does not have. The
/// position, three floats, is always at the start.
struct VertexLayout {
    int vertexType;
    std::ptrdiff_t size;
    std::ptrdiff_t normal = -1;        ///< three floats
    std::ptrdiff_t color = -1;         ///< four unsigned bytes: red, green, blue, alpha
    std::ptrdiff_t texture = -1;       ///< two floats u, v
    std::ptrdiff_t secondTexture = -1; ///< two floats s, t
    std::ptrdiff_t triple = -1;        ///< three floats
};

/// All layouts, in ascending order of their codes.
inline constexpr VertexLayout c_vertexLayouts[] = {
    {.vertexType = VertexCoords::c_vertexType, .size = sizeof(VertexCoords)},
    {.vertexType = VertexColor::c_vertexType, .size = sizeof(VertexColor), .color = offsetof(VertexColor, red)},
    {.vertexType = VertexNormal::c_vertexType, .size = sizeof(VertexNormal), .normal = offsetof(VertexNormal, nx)},
    {.vertexType = VertexNormalTex::c_vertexType,
     .size = sizeof(VertexNormalTex),
     .normal = offsetof(VertexNormalTex, nx),
     .texture = offsetof(VertexNormalTex, u)},
    {.vertexType = VertexTex::c_vertexType, .size = sizeof(VertexTex), .texture = offsetof(VertexTex, u)},
    {.vertexType = VertexNormalTexTexCoord::c_vertexType,
     .size = sizeof(VertexNormalTexTexCoord),
     .normal = offsetof(VertexNormalTexTexCoord, nx),
     .texture = offsetof(VertexNormalTexTexCoord, u),
     .secondTexture = offsetof(VertexNormalTexTexCoord, s),
     .triple = offsetof(VertexNormalTexTexCoord, cx)},
};

/// The layout with a code, or null if there is none.
constexpr const VertexLayout* findVertexLayout(int vertexType)
{
    for (const VertexLayout& layout : c_vertexLayouts) {
        if (layout.vertexType == vertexType) {
            return &layout;
        }
    }
    return nullptr;
}

} // namespace vxgraphics3d
