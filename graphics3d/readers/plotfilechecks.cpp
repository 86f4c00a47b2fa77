#include "graphics3d/readers/plotfilechecks.h"

#include "graphics3d/readers/plotfilecontents.h"
#include "graphics3d/readers/readerreports.h"

namespace vxgraphics3d {

namespace {

bool hasPoints(const PlotFileContents& contents)
{
    if (contents.numPoints() == 0) {
        reportError(c_wholeFile, "No coordinates in file.");
        return false;
    }
    return true;
}

} // namespace

bool hasSurface(const PlotFileContents& contents)
{
    if (!hasPoints(contents)) {
        return false;
    }
    if (contents.numPoints() != contents.count(PlotSection::data)) {
        reportError(c_wholeFile, "Coordinates do not match Data.");
        return false;
    }
    if (contents.count(PlotSection::triangles) == 0 && contents.count(PlotSection::quads) == 0) {
        reportError(c_wholeFile, "No triangles or quads in file.");
        return false;
    }
    logInfo("File contains %d coordinates with data, %d triangles and %d quads [%f, %f]", contents.numPoints(),
            contents.count(PlotSection::triangles), contents.count(PlotSection::quads), contents.data.limits.min,
            contents.data.limits.max);
    return true;
}

bool hasArrows(const PlotFileContents& contents)
{
    if (!hasPoints(contents)) {
        return false;
    }
    if (contents.numPoints() != contents.count(PlotSection::vectors)) {
        reportError(c_wholeFile, "Coordinates do not match Vector Data.");
        return false;
    }
    if (contents.count(PlotSection::data) != 0 && contents.numPoints() != contents.count(PlotSection::data)) {
        reportError(c_wholeFile, "Coordinates do not match Data.");
        return false;
    }
    logInfo("File contains %d coordinates with vectordata. [%f, %f]", contents.numPoints(), contents.vectors.limits.min,
            contents.vectors.limits.max);
    return true;
}

bool hasEdges(const PlotFileContents& contents)
{
    if (!hasPoints(contents)) {
        return false;
    }
    if (contents.numPoints() != contents.count(PlotSection::data)) {
        reportError(c_wholeFile, "Coordinates do not match Data.");
        return false;
    }
    if (contents.count(PlotSection::lines) == 0) {
        reportError(c_wholeFile, "No lines in file.");
        return false;
    }
    logInfo("File contains %d coordinates with data, %d lines [%f, %f]", contents.numPoints(),
            contents.count(PlotSection::lines), contents.data.limits.min, contents.data.limits.max);
    return true;
}

bool hasDomainMesh(const PlotFileContents& contents)
{
    if (!hasPoints(contents)) {
        return false;
    }
    if (contents.count(PlotSection::tetrahedra) == 0) {
        reportError(c_wholeFile, "No tetrahedral in file.");
        return false;
    }
    if (contents.count(PlotSection::tetrahedra) != contents.count(PlotSection::tetrahedralData)) {
        reportError(c_wholeFile, "Tetrahedrals do not match tetrahedral Data.");
        return false;
    }
    logInfo("File contains %d coordinates and %d tetrahedral [%f, %f]", contents.numPoints(),
            contents.count(PlotSection::tetrahedra), contents.tetrahedralData.limits.min,
            contents.tetrahedralData.limits.max);
    return true;
}

} // namespace vxgraphics3d
