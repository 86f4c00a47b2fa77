#pragma once

namespace vxgraphics3d {

struct PlotFileContents;

// Whether a file has what a plot needs. If so, its sizes and limits are logged, else the first thing that is wrong is
// reported.

/// Points with a value each, and triangles or quadrilaterals.
bool hasSurface(const PlotFileContents& contents);
/// Points with a vector each, and a value each or no values.
bool hasArrows(const PlotFileContents& contents);
/// Points with a value each, and lines.
bool hasEdges(const PlotFileContents& contents);
/// Points, and tetrahedra with a value each.
bool hasDomainMesh(const PlotFileContents& contents);

} // namespace vxgraphics3d
