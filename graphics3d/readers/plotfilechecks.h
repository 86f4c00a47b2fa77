#pragma once

namespace vxgraphics3d {

struct PlotFileContents;

// Checks whether a file has what a plot needs. If so, its sizes and limits are logged; otherwise the first fault is
// reported.

/// Points with a value each, and triangles or quadrilaterals.
bool hasSurface(const PlotFileContents& contents);
/// Points with a vector each, and a value each or no values at all.
bool hasArrows(const PlotFileContents& contents);
/// Points with a value each, and lines.
bool hasEdges(const PlotFileContents& contents);
/// Points, and tetrahedra with a value each.
bool hasDomainMesh(const PlotFileContents& contents);

} // namespace vxgraphics3d
