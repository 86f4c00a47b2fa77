#pragma once

namespace vxdatacarrier {

// The entries of the arrays of geometry records: plain values.

struct Coords2D {
    float x;
    float y;
};

struct Coords3D {
    float x;
    float y;
    float z;
};

/// A vertex of a surface, with its unit normal.
struct CoordsNormal3D {
    float x;
    float y;
    float z;
    float nx;
    float ny;
    float nz;
};

/// The corners of a triangle, as indices from 0.
struct Triangle {
    int a;
    int b;
    int c;
};

/// The corners of a quadrilateral in their order around it, as indices from 0.
struct Quad {
    int a;
    int b;
    int c;
    int d;
};

} // namespace vxdatacarrier
