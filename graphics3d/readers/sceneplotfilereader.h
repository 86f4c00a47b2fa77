#pragma once

#include "graphics3d/foundation/boundingbox.h"
#include "graphics3d/foundation/vector3f.h"
#include "graphics3d/readers/textrows.h"

#include <boost/shared_ptr.hpp>

#include <algorithm>
#include <array>
#include <cstdio>
#include <limits>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace vxdatacarrier {
class PostDataObject;
}

namespace vxgraphics3d {

class IndexBufferLines;
class IndexBufferQuads;
class IndexBufferTriangles;
class VertexBufferNormalTex;
class VertexBufferTex;

/// Reads a plot from a text file of tagged sections (docs/plot-data-format.md) into a record or into a plot's buffers.
///
/// The static entry points make one reader, work through the file and throw the reader away. The file is read as a
/// stream in a few passes: `readSizesAndData` counts and checks everything and stores the data, one of the verify
/// operations compares the counts, then `readCoordinates` and the element operations move through the file a last time,
/// in the order of its sections and groups. Each step returns false once the file has proved wrong, and the steps must
/// stop there. The points of a file fall into groups by a criterion, so that one file can hold several slices or
/// levels.
///
/// Errors go to the log and to standard error; those on a number in a row go to the log only. Nothing is thrown but for
/// memory that runs out. Numbers are read as in the "C" locale, whatever locale the process has set.
class ScenePlotFileReader {
public:
    /// Where a new group of points begins.
    enum class GroupCriteria : int {
        none = 0, ///< nowhere: all points form one group
        x = 1,    ///< where x changes
        y = 2,    ///< where y changes
        z = 3,    ///< where z changes
        data = 4  ///< where the "Data" value changes by more than 1e-5 of the sum of both values
    };

    /// A range of points, both ends inclusive, and the number of elements between them.
    struct PointGroup {
        int first = 0;
        int last = -1;
        int numLines = 0;
        int numTriangles = 0;
        int numQuads = 0;
        int numTetrahedra = 0;

        bool contains(const int* points, int count) const
        {
            return std::all_of(points, points + count, [this](int point) { return first <= point && point <= last; });
        }
        int numPoints() const { return last - first + 1; }
    };

    /// The corners of triangles, one array each, or the points' coordinates, one array an axis.
    template <class T>
    using Arrays = std::vector<std::vector<T>>;

    /// Appends one group to a record: two coordinate arrays, data array 0 with the values scaled to 0 to 1, data array
    /// 1 with the height, which is the z of the file. The record's kind and roles are the caller's.
    /// @return false, with the record unchanged, if the file is wrong
    static bool readSurfacePlot2d(vxdatacarrier::PostDataObject& record, std::string fileName);
    /// Appends one group to a record: three coordinate arrays, normals averaged over the triangles at each point, one
    /// data array with the values scaled to 0 to 1.
    /// @return false, with the record unchanged, if the file is wrong
    static bool readSurfacePlot3d(vxdatacarrier::PostDataObject& record, std::string fileName);
    /// Appends a group for each run of equal values to a record, each as in `readSurfacePlot3d` but with the group's
    /// value alone in data array 0 and a value for each point in data array 1.
    /// @return false if the file is wrong; groups before a wrong element row stay in the record
    static bool readIsoSurfacePlot3dData(vxdatacarrier::PostDataObject& record, std::string fileName);

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
    /// The same into an index buffer with an open segment and room for the group's triangles.
    bool readAndAppendTriangleElements(IndexBufferTriangles& triangles, int group);
    /// Reads the lines of a group, relative to its first point, into an index buffer with room for them.
    bool readAndAppendLineElements(IndexBufferLines& lines, int group);
    /// Moves behind the tag of the quadrilaterals for group 0. Quadrilaterals are counted and checked, but never kept.
    bool readAndAppendQuadElements(IndexBufferQuads& quads, int group);

    /// Appends the points of a group, their normals, brought to unit length, and their scaled data.
    void appendCoordinates(Arrays<double>& coordinates, Arrays<float>& normals, std::vector<double>& data, int group);
    /// The same, with the scaled data of the group's first point alone.
    void appendCoordinates(Arrays<double>& coordinates, Arrays<float>& normals, double& value, int group);
    /// The same into a vertex buffer with room for the group's points; the data become texture coordinates.
    void appendCoordinates(VertexBufferNormalTex& vertices, int group);
    /// The same without normals.
    void appendCoordinates(VertexBufferTex& vertices, int group) const;
    /// Appends x and y of a group's points to two arrays, the scaled data to data array 0 and z to data array 1.
    void appendCoordinatesHeight(Arrays<double>& coordinates, Arrays<double>& data, int group) const;

    /// Fills a line buffer with the outline of a group's triangles: the edges that exactly one triangle uses. A point
    /// takes edges to at most ten points of higher index; further ones are reported and dropped.
    void calculateBoundaries2d(const IndexBufferTriangles& triangles, int group, IndexBufferLines& lines) const;

    /// The box of all points that were read.
    BoundingBox getBoundingBox() const;

    const std::vector<PointGroup>& getGroups() const { return m_groups; }

private:
    /// The sections of a file in their only possible order.
    enum Section : int {
        coordinateSection,
        triangleSection,
        quadSection,
        lineSection,
        tetrahedronSection,
        dataSection,
        vectorSection,
        tetrahedralDataSection,
        numSections
    };
    struct FileCloser {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };
    struct ElementSection;
    struct GroupArrays;
    struct Pass;

    /// The tags of the sections, by section.
    static constexpr std::array<std::string_view, numSections> m_tags = {
        "Coordinates", "Elements (triangular)", "Elements (rectangular)", "Elements (lines)", "Elements (tetrahedral)",
        "Data",        "Vector data",           "Tetrahedral Data"};

    const char* nextRow();
    int nextPlainIndices(int* indices, int count, int maxRows);
    int nextPlainReals(double* values, int count, int maxRows);
    void rewind();
    bool isEmptyRow(const char* row) const;
    bool getVector3f(Vector3f& vector, const char* row) const;
    bool getReal(double& value, const char* row) const;
    bool getIndices(int* indices, int count, const char* row) const;

    bool scan(Pass& pass);
    bool scanPlainRows(Pass& pass);
    bool enterSection(Pass& pass, const char* row);
    bool scanRow(Pass& pass, const char* row);
    void countRows(const Pass& pass, int numRows);
    bool scanCoordinates(Pass& pass, const char* row);
    bool scanElements(Pass& pass, const int* corners, int numElements);
    bool scanData(Pass& pass, double value);
    bool scanVector(const char* row);
    bool scanTetrahedralData(double value);
    void closeGroup(Pass& pass);

    bool hasPoints() const;
    bool verifySurfaceSizes() const;
    const PointGroup& groupAt(int group) const { return m_groups.at(static_cast<std::size_t>(group)); }
    bool expectTag(Section section);
    void addCoordinate(const Vector3f& point);
    bool enterElements(Section section, int count, int group);
    int nextElements(int* corners, int numCorners, int maxElements, const char* kind);
    template <class Append>
    bool readTriangles(int group, Append append);
    template <int numCorners, class Take>
    bool readElements(Section section, int PointGroup::*count, int group, const char* kind, Take take);
    void addNormal(const int* corners);
    void appendPoints(Arrays<double>& coordinates, Arrays<float>& normals, const PointGroup& group);
    boost::shared_ptr<Arrays<double>> bounds(std::size_t numAxes) const;

    std::string m_fileName;
    std::unique_ptr<std::FILE, FileCloser> m_file;
    int m_row = 0;
    std::array<int, numSections> m_rowCounts{};
    std::vector<PointGroup> m_groups;
    float m_dataMax = std::numeric_limits<float>::lowest();
    float m_dataMin = std::numeric_limits<float>::max();
    float m_vectorMax = std::numeric_limits<float>::lowest();
    float m_vectorMin = std::numeric_limits<float>::max();
    float m_tetrahedralDataMax = std::numeric_limits<float>::lowest();
    float m_tetrahedralDataMin = std::numeric_limits<float>::max();
    std::array<float, 3> m_coordinateMax;
    std::array<float, 3> m_coordinateMin;
    int m_numData = 0;
    int m_numVectors = 0;
    int m_numTetrahedralData = 0;
    std::unique_ptr<Vector3f[]> m_coordinates;
    std::unique_ptr<Vector3f[]> m_normals;
    std::unique_ptr<float[]> m_data;
    std::unique_ptr<Vector3f[]> m_vectors;
    std::unique_ptr<float[]> m_tetrahedralData;
    TextRows m_rows; // over m_file
};

} // namespace vxgraphics3d
