#pragma once

#include "graphics3d/plots/plotinput.h"
#include "graphics3d/plots/surfacemesh.h"

namespace vxgraphics3d {

class IndexBuffer;
class IndexBufferLines;
class VertexBufferTex;

// Fills the buffers directly from the inputs of a plot.

/// Appends every point to a buffer that has space for them.
void appendPoints(VertexBufferNormalTex& vertices, const PointPositions& positions, const PointNormals& normals,
                  const PointColors& colors);
void appendPoints(VertexBufferTex& vertices, const PointPositions& positions, const PointColors& colors);
/// The same for points in the plane, raised by heights.
void appendRaisedPoints(VertexBufferTex& vertices, const PointPositions& positions, const HeightMap& heights,
                        const PointColors& colors);
/// Allocates the buffer, then fills it with every point.
void allocateVertices(VertexBufferTex& vertices, const PointPositions& positions, const PointColors& colors);

/// Allocates the mesh, then fills it with all points and triangles in their order.
void fillSurface(SurfaceMesh& mesh, const PointPositions& positions, const PointNormals& normals,
                 const PointColors& colors, const TriangleCorners& triangles);
/// The same for points raised by heights. The normal of a point is the sum of the normals of its triangles, each as
/// long as twice the triangle's area, normalised; (0, 0, 0) for a point without triangles.
void fillRaisedSurface(SurfaceMesh& mesh, const PointPositions& positions, const HeightMap& heights,
                       const PointColors& colors, const TriangleCorners& triangles);
/// Allocates one segment for a number of elements and opens it. The vertex buffer must have been allocated.
void allocateElements(IndexBuffer& indices, int count);
/// Appends all triangles in their order to a buffer with space for them.
void appendTriangles(IndexBufferTriangles& indices, const TriangleCorners& triangles);
/// Appends all lines in their order to a buffer with space for them.
void appendLines(IndexBufferLines& indices, const LineEnds& ends);
/// Allocates one segment for all lines and appends them in their order. The vertex buffer must have been allocated.
void fillLines(IndexBufferLines& lines, const LineEnds& ends);
/// Appends a line for each pair of corners of each element, by the first corner, then by the second, to a buffer with
/// an open segment and space for them.
void appendEdges(IndexBufferLines& lines, const ElementCorners& elements);

} // namespace vxgraphics3d
