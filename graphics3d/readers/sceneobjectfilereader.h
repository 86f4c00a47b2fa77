#pragma once

#include "datacarrier/renderdraw3d.h"
#include "graphics3d/foundation/vector3f.h"
#include "graphics3d/readers/plotfilecontents.h"
#include "graphics3d/readers/textfile.h"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace vxgraphics3d {

/// Reads a solid from a text file of tagged sections (docs/solid-data-format.md) into a record: faces with triangles,
/// edges with segments, vertices, and the relations between them.
///
/// The file is read twice as a stream: the first pass takes the counts from the tags, the second one fills parts that
/// were allocated by them. Rows of one face or edge are consecutive, and the n-th face becomes sheet n, regardless of
/// its number in the file.
///
/// A fault ends the reading. What is logged about it is an error; unknown tags and files that cannot be opened are also
/// reported on standard error, and a wrong count is not logged. Nothing is thrown except when memory runs out. Numbers
/// are read as in the "C" locale, independent of the locale of the process.
class SceneObjectFileReader {
public:
    /// Reads a solid. Id, name and validity of the record stay as they are; everything else is replaced. The boxes of
    /// sheets and curves are left empty, and so are all relations except those in the file.
    /// @param offset is added to all coordinates
    /// @return false, with the record unchanged, if the file has a fault
    /// @throws std::bad_alloc with the record unchanged
    static bool readDrawObjectSolid(vxdatacarrier::RenderDraw3D& record, std::string path, const Vector3f& offset);

    /// Opens the file. If that fails, `readSolidFile` returns false without a further message.
    explicit SceneObjectFileReader(std::string path);

    /// Reads the file, once. See `readDrawObjectSolid`.
    bool readSolidFile(vxdatacarrier::RenderDraw3D& record, const Vector3f& offset);

private:
    /// The section that is being read: the position of its tag.
    enum ReadState : std::size_t { coordinates, faces, edges, vertices, edgeVertices, faceVertices, faceEdges, none };

    static constexpr std::array<std::string_view, none> m_tags = {"Coordinates", "Faces",   "Edges",  "Vertices",
                                                                  "Adj 1 0",     "Adj 2 0", "Adj 2 1"};

    /// A coordinate of the file, and its part in the face that is being read.
    struct Coordinate {
        Vector3f position;
        /// The sum of the normals of its triangles. After a face it is of unit length, and the next face adds to that.
        Vector3f normal;
        /// The vertex in the face, -1 if the face has not used it yet.
        int vertex = -1;
    };
    struct Segment {
        int start;
        int end;
    };
    struct Row {
        const int* indices;
        int number;
    };

    bool readCounts();
    bool readCount(const char* row, ReadState section);
    void allocate(vxdatacarrier::RenderDraw3D& record) const;
    bool readParts(vxdatacarrier::RenderDraw3D& record);
    void enterState(ReadState& state, ReadState section);
    void finishState(vxdatacarrier::RenderDraw3D& record, ReadState& state);
    bool readPlainRows(vxdatacarrier::RenderDraw3D& record, ReadState state);
    bool readRow(vxdatacarrier::RenderDraw3D& record, ReadState state, const char* row);
    bool takeRows(vxdatacarrier::RenderDraw3D& record, ReadState state, const int* indices, int numRows);
    bool isCoordinateExpected(int rowNumber) const;
    void takeCoordinate(const Vector3f& position);
    bool takeTriangle(vxdatacarrier::RenderDraw3D& record, Row row);
    bool takeSegment(vxdatacarrier::RenderDraw3D& record, Row row);
    bool takeVertex(vxdatacarrier::RenderDraw3D& record, Row row);
    bool takeAdjacent(vxdatacarrier::AdjacencyRecord& relation, int numValues, Row row);
    bool areCoordinates(const int* indices, int count, int rowNumber) const;
    void createSheet(vxdatacarrier::RenderDraw3D& record);
    void createEdge(vxdatacarrier::RenderDraw3D& record);

    TextFile m_file;
    std::array<int, none> m_counts{};
    Vector3f m_offset;
    std::vector<Coordinate> m_coordinates;
    int m_numCoordinates = 0;            // read so far
    std::array<FloatLimits, 3> m_limits; // of the coordinates
    std::vector<int> m_faceVertices;     // coordinates of the face that is being read, in order of first use
    std::vector<vxdatacarrier::Triangle> m_faceTriangles; // its triangles, as vertices of the face
    std::vector<Segment> m_edgeSegments;                  // of the edge that is being read
    int m_group = -1;                                     // the face, edge or row that is being read, -1 for none
    int m_nextPoint = 0;
    int m_nextSheet = 0;
    int m_nextCurve = 0;
};

} // namespace vxgraphics3d
