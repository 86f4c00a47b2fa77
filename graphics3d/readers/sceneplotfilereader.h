#pragma once

#include "graphics3d/foundation/boundingbox.h"
#include "graphics3d/readers/plotfilecontents.h"
#include "graphics3d/readers/plotfilescan.h"
#include "graphics3d/readers/plotpoints.h"
#include "graphics3d/readers/textfile.h"

#include <cstddef>
#include <string>
#include <vector>

namespace vxdatacarrier {
class PostDataObject;
}

namespace vxgraphics3d {

class IndexBufferLines;
class IndexBufferQuads;
class IndexBufferTriangles;
class RecordGroups;
class SceneGraphPlotSlice3d;
class SceneGraphPlotArrow3d;
class VertexBufferNormalTex;
class VertexBufferTex;

/// Reads a plot from a text file of tagged sections (docs/plot-data-format.md) into a record or into a plot's buffers.
///
/// The static entry points create a reader, process the file and discard the reader. The file is read as a stream in a
/// few passes: `readSizesAndData` counts and checks everything and stores the data, one of the verify operations
/// compares the counts, then `readCoordinates` and the element operations go through the file a last time, in the order
/// of its sections and groups. Each step returns false once a fault has been found, and the caller must then stop. The
/// points of a file are grouped by a criterion, so that one file can contain several slices or levels.
///
/// Errors go to the log and to standard error; those about a number in a row go to the log only. Nothing is thrown
/// except when memory runs out, which leaves a record unchanged. Numbers are read as in the "C" locale, independent of
/// the locale of the process.
class ScenePlotFileReader {
public:
    using GroupCriteria = vxgraphics3d::GroupCriteria;
    using PointGroup = vxgraphics3d::PointGroup;
    /// The corners of triangles, one array each, or the points' coordinates, one array per axis.
    template <class T>
    using Arrays = PlotPoints::Arrays<T>;

    /// Appends one group to a record: two coordinate arrays, data array 0 with the values scaled to 0 to 1, data array
    /// 1 with the height, which is the z of the file. The caller sets the record's kind and roles.
    /// @return false, with the record unchanged, if the file has a fault
    static bool readSurfacePlot2d(vxdatacarrier::PostDataObject& record, std::string fileName);
    /// Appends one group to a record: three coordinate arrays, normals averaged over the triangles at each point, one
    /// data array with the values scaled to 0 to 1.
    /// @return false, with the record unchanged, if the file has a fault
    static bool readSurfacePlot3d(vxdatacarrier::PostDataObject& record, std::string fileName);
    /// Appends a group for each run of equal values to a record, each as in `readSurfacePlot3d`, but with only the
    /// group's value in data array 0 and a value for each point in data array 1.
    /// @return false if the file has a fault; the groups before a faulty element row are appended
    static bool readIsoSurfacePlot3dData(vxdatacarrier::PostDataObject& record, std::string fileName);
    /// Fills a plot with a slice for each run of points of equal x, with its outline. Texture coordinates are the
    /// values scaled to 0 to 1; value range and legend of the plot are unchanged.
    /// @return false if the file has a fault: the plot is unchanged or, after a faulty element row, has the slices
    /// before it and empty ones
    /// @throws std::bad_alloc with the plot unchanged or empty
    static bool readSlicePlot3d(SceneGraphPlotSlice3d& plot, std::string fileName);

    /// Fills a plot with an arrow per point. Vectors keep their lengths, and the data, scaled to 0 to 1, or 0 without
    /// data, become coordinates in the colour table. The box is that of the points.
    /// @return false, with the plot unchanged, if the file has a fault
    static bool readArrowPlot3d(SceneGraphPlotArrow3d& plot, std::string fileName);

    /// Opens the file. If that fails, every step returns false without a further message.
    explicit ScenePlotFileReader(std::string fileName);

    /// Scans the whole file: counts the rows of each section, forms the groups, checks the elements against them,
    /// stores all data and scales "Data" and "Tetrahedral Data" to 0 to 1.
    bool readSizesAndData(GroupCriteria criteria);

    bool verifySurfacePlot3dSizes() const;
    bool verifyIsoSurfacePlot3dSizes() const;
    bool verifySlicePlot3dSizes() const;
    bool verifyArrowPlot3dSizes() const;
    bool verifyEdgePlot3dSizes() const;
    bool verifyDomainMeshPlot3dSizes() const;

    /// Reads all points. From here on the file is read forward only.
    bool readCoordinates();

    /// Reads the triangles of a group into three corner arrays, relative to the group's first point, and adds their
    /// unit normals to those of their points. Groups must come in order.
    bool readAndAppendTriangleElements(Arrays<int>& corners, int group);
    /// The same for an index buffer with an open segment and space for the group's triangles.
    bool readAndAppendTriangleElements(IndexBufferTriangles& triangles, int group);
    /// Reads the lines of a group, relative to its first point, into an index buffer with space for them.
    bool readAndAppendLineElements(IndexBufferLines& lines, int group);
    /// Skips the tag of the quadrilaterals for group 0. Quadrilaterals are counted and checked, but never stored.
    bool readAndAppendQuadElements(IndexBufferQuads& quads, int group);

    /// Appends the points of a group, their normals, normalised, and their scaled data.
    void appendCoordinates(Arrays<double>& coordinates, Arrays<float>& normals, std::vector<double>& data, int group);
    /// The same, with only the scaled data of the group's first point.
    void appendCoordinates(Arrays<double>& coordinates, Arrays<float>& normals, double& value, int group);
    /// The same for a vertex buffer with space for the group's points; the data become texture coordinates.
    void appendCoordinates(VertexBufferNormalTex& vertices, int group);
    /// The same without normals.
    void appendCoordinates(VertexBufferTex& vertices, int group) const;
    /// Appends x and y of a group's points to two arrays, the scaled data to data array 0 and z to data array 1.
    void appendCoordinatesHeight(Arrays<double>& coordinates, Arrays<double>& data, int group) const;

    /// Appends an arrow for each point to a plot with space for them.
    void fillArrowPlot3d(SceneGraphPlotArrow3d& plot) const;

    /// Fills a line buffer with the outline of a group's triangles: the edges that exactly one triangle uses.
    void calculateBoundaries2d(const IndexBufferTriangles& triangles, int group, IndexBufferLines& lines) const;

    /// The box of all points that were read.
    BoundingBox getBoundingBox() const { return m_points.box(); }

    const std::vector<PointGroup>& getGroups() const { return m_contents.groups; }

private:
    const PointGroup& groupAt(int group) const { return m_contents.groups.at(static_cast<std::size_t>(group)); }
    template <class Append>
    bool readTriangles(int group, Append append);
    bool readSlices(SceneGraphPlotSlice3d& plot);
    void finish(vxdatacarrier::PostDataObject& record, const RecordGroups& groups, std::size_t numAxes) const;

    TextFile m_file;
    PlotFileContents m_contents; // what the scan found
    PlotPoints m_points;         // what the last pass has read
};

} // namespace vxgraphics3d
