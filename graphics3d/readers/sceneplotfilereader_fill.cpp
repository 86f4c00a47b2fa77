// The last reading of a plot file: its points and elements, and what is computed from them.

#include "graphics3d/buffers/indexbufferlines.h"
#include "graphics3d/buffers/indexbuffertriangles.h"
#include "graphics3d/buffers/vertexbuffernormaltex.h"
#include "graphics3d/buffers/vertexbuffertex.h"
#include "graphics3d/readers/readererror.h"
#include "graphics3d/readers/rowvalues.h"
#include "graphics3d/readers/sceneplotfilereader.h"

#include <algorithm>

namespace vxgraphics3d {

namespace {

// Rows that are read at once.
constexpr int c_maxRows = 128;

// Neighbours of higher index that a point can have in the search for the outline.
constexpr std::size_t c_maxNeighbours = 10;
constexpr int c_noNeighbour = -1;
using Neighbours = std::array<int, c_maxNeighbours>;

/// Notes that an edge was seen: a new edge is stored, one that was there is an inner edge and goes.
/// @return by how much the number of stored edges changes; 0 if there is no place for the edge
int toggleEdge(Neighbours& neighbours, int end)
{
    for (auto place = neighbours.begin(); place != neighbours.end(); ++place) {
        if (*place == c_noNeighbour) {
            *place = end;
            return 1;
        }
        if (*place == end) {
            std::copy(place + 1, neighbours.end(), place);
            neighbours.back() = c_noNeighbour;
            return -1;
        }
    }
    return 0;
}

/// Appends so many values to an array and gives the first of them, to be written.
template <class T>
T* grow(std::vector<T>& array, int count)
{
    const std::size_t old = array.size();
    array.resize(old + static_cast<std::size_t>(count));
    return array.data() + old;
}

} // namespace

bool ScenePlotFileReader::readCoordinates()
{
    if (!m_file || !expectTag(coordinateSection)) {
        return false;
    }
    const int numPoints = m_rowCounts[coordinateSection];
    m_coordinates = std::make_unique<Vector3f[]>(static_cast<std::size_t>(numPoints));
    m_normals = std::make_unique<Vector3f[]>(static_cast<std::size_t>(numPoints));
    Vector3f* point = m_coordinates.get();
    for (Vector3f* const end = point + numPoints; point != end;) {
        double values[c_maxRows * 3];
        const int numRows = nextPlainReals(values, 3, std::min(c_maxRows, static_cast<int>(end - point)));
        for (int i = 0; i < numRows; ++i) {
            addCoordinate(*point++ = Vector3f(values[3 * i], values[3 * i + 1], values[3 * i + 2]));
        }
        if (numRows != 0) {
            continue;
        }
        const char* row = nextRow();
        if (row == nullptr) {
            reportError("End of file when reading coordinates, file %s", m_fileName.c_str());
            return false;
        }
        if (!getVector3f(*point, row)) {
            return false;
        }
        addCoordinate(*point++);
    }
    return true;
}

/// Widens the limits over a point.
void ScenePlotFileReader::addCoordinate(const Vector3f& point)
{
    const float axes[3] = {point.x, point.y, point.z};
    for (std::size_t axis = 0; axis < 3; ++axis) {
        m_coordinateMax[axis] = std::max(m_coordinateMax[axis], axes[axis]);
        m_coordinateMin[axis] = std::min(m_coordinateMin[axis], axes[axis]);
    }
}

bool ScenePlotFileReader::readAndAppendTriangleElements(Arrays<int>& corners, int group)
{
    const auto numTriangles = m_file ? static_cast<std::size_t>(groupAt(group).numTriangles) : 0;
    for (std::vector<int>& corner : corners) {
        corner.reserve(corner.size() + numTriangles);
    }
    return readTriangles(group, [&corners](int a, int b, int c) {
        corners[0].push_back(a);
        corners[1].push_back(b);
        corners[2].push_back(c);
    });
}

bool ScenePlotFileReader::readAndAppendTriangleElements(IndexBufferTriangles& triangles, int group)
{
    return readTriangles(group, [&triangles](int a, int b, int c) { triangles.appendTriangle(a, b, c); });
}

bool ScenePlotFileReader::readAndAppendLineElements(IndexBufferLines& lines, int group)
{
    return readElements<2>(lineSection, &PointGroup::numLines, group, "line", [&lines](const int* ends, int first) {
        lines.appendLine(ends[0] - first, ends[1] - first);
    });
}

bool ScenePlotFileReader::readAndAppendQuadElements(IndexBufferQuads&, int group)
{
    return m_file && enterElements(quadSection, groupAt(group).numQuads, group);
}

/// Reads the triangles of a group, turns the normals of their points, and passes them on relative to the first point.
template <class Append>
bool ScenePlotFileReader::readTriangles(int group, Append append)
{
    return readElements<3>(triangleSection, &PointGroup::numTriangles, group, "triangle",
                           [this, append](const int* corners, int first) {
                               addNormal(corners);
                               append(corners[0] - first, corners[1] - first, corners[2] - first);
                           });
}

/// Adds the unit normal of a triangle to those of its points.
void ScenePlotFileReader::addNormal(const int* corners)
{
    const Vector3f& middle = m_coordinates[static_cast<std::size_t>(corners[1])];
    const Vector3f reversed = (m_coordinates[static_cast<std::size_t>(corners[0])] - middle)
                                  .cross(m_coordinates[static_cast<std::size_t>(corners[2])] - middle)
                                  .normalized();
    for (int i = 0; i < 3; ++i) {
        m_normals[static_cast<std::size_t>(corners[i])] -= reversed;
    }
}

/// Reads the elements of a group, whose corners must lie in it, and calls `take` with the corners of each and the
/// group's first point.
template <int numCorners, class Take>
bool ScenePlotFileReader::readElements(Section section, int PointGroup::*count, int groupId, const char* kind,
                                       Take take)
{
    if (!m_file) {
        return false;
    }
    const PointGroup& group = groupAt(groupId);
    if (!enterElements(section, group.*count, groupId)) {
        return false;
    }
    for (int left = group.*count; left > 0;) {
        int corners[static_cast<std::size_t>(c_maxRows * numCorners)];
        const int numRows = nextElements(corners, numCorners, std::min(left, c_maxRows), kind);
        if (numRows == 0) {
            return false;
        }
        for (int i = 0; i < numRows; ++i) {
            const int* const element = corners + i * numCorners;
            if (!group.contains(element, numCorners)) {
                reportError("Index out of group range when reading %s elements, file %s", kind, m_fileName.c_str());
                return false;
            }
            take(element, group.first);
        }
        left -= numRows;
    }
    return true;
}

/// Reads some of the next elements, at least one. Failing that, tells why and gives 0.
int ScenePlotFileReader::nextElements(int* corners, int numCorners, int maxElements, const char* kind)
{
    if (const int numRows = nextPlainIndices(corners, numCorners, maxElements)) {
        return numRows;
    }
    const char* row = nextRow();
    if (row == nullptr) {
        reportError("End of file when reading %s elements, file %s", kind, m_fileName.c_str());
        return 0;
    }
    return getIndices(corners, numCorners, row) ? 1 : 0;
}

/// Moves to the first element of a section. Groups are read in order, so only the first one looks for the tag.
bool ScenePlotFileReader::enterElements(Section section, int count, int group)
{
    return count == 0 || group != 0 || expectTag(section);
}

/// Skips empty rows and the tag that must follow.
bool ScenePlotFileReader::expectTag(Section section)
{
    const char* row = nextRow();
    while (row != nullptr && isEmptyRow(row)) {
        row = nextRow();
    }
    const std::string_view tag = m_tags[static_cast<std::size_t>(section)];
    if (row == nullptr || !isTagRow(row, tag)) {
        reportError("Expected tag \"%s\" at row %d", tag.data(), m_row);
        return false;
    }
    return true;
}

void ScenePlotFileReader::appendCoordinates(Arrays<double>& coordinates, Arrays<float>& normals,
                                            std::vector<double>& data, int groupId)
{
    const PointGroup& group = groupAt(groupId);
    appendPoints(coordinates, normals, group);
    std::copy_n(m_data.get() + group.first, group.numPoints(), grow(data, group.numPoints()));
}

void ScenePlotFileReader::appendCoordinates(Arrays<double>& coordinates, Arrays<float>& normals, double& value,
                                            int groupId)
{
    const PointGroup& group = groupAt(groupId);
    appendPoints(coordinates, normals, group);
    value = static_cast<double>(m_data[static_cast<std::size_t>(group.first)]);
}

void ScenePlotFileReader::appendPoints(Arrays<double>& coordinates, Arrays<float>& normals, const PointGroup& group)
{
    const int count = group.numPoints();
    double* const x = grow(coordinates[0], count);
    double* const y = grow(coordinates[1], count);
    double* const z = grow(coordinates[2], count);
    float* const nx = grow(normals[0], count);
    float* const ny = grow(normals[1], count);
    float* const nz = grow(normals[2], count);
    for (int i = 0; i < count; ++i) {
        const Vector3f& point = m_coordinates[static_cast<std::size_t>(group.first + i)];
        const Vector3f& normal = m_normals[static_cast<std::size_t>(group.first + i)].normalize();
        x[i] = static_cast<double>(point.x);
        y[i] = static_cast<double>(point.y);
        z[i] = static_cast<double>(point.z);
        nx[i] = normal.x;
        ny[i] = normal.y;
        nz[i] = normal.z;
    }
}

void ScenePlotFileReader::appendCoordinates(VertexBufferNormalTex& vertices, int groupId)
{
    const PointGroup& group = groupAt(groupId);
    for (int i = group.first; i <= group.last; ++i) {
        const auto point = static_cast<std::size_t>(i);
        vertices.appendVertex(m_coordinates[point], m_normals[point].normalize(), m_data[point]);
    }
}

void ScenePlotFileReader::appendCoordinates(VertexBufferTex& vertices, int groupId) const
{
    const PointGroup& group = groupAt(groupId);
    for (int i = group.first; i <= group.last; ++i) {
        const auto point = static_cast<std::size_t>(i);
        vertices.appendVertex(m_coordinates[point], m_data[point]);
    }
}

void ScenePlotFileReader::appendCoordinatesHeight(Arrays<double>& coordinates, Arrays<double>& data, int groupId) const
{
    const PointGroup& group = groupAt(groupId);
    const int count = group.numPoints();
    double* const x = grow(coordinates[0], count);
    double* const y = grow(coordinates[1], count);
    double* const value = grow(data[0], count);
    double* const height = grow(data[1], count);
    for (int i = 0; i < count; ++i) {
        const auto point = static_cast<std::size_t>(group.first + i);
        x[i] = static_cast<double>(m_coordinates[point].x);
        y[i] = static_cast<double>(m_coordinates[point].y);
        value[i] = static_cast<double>(m_data[point]);
        height[i] = static_cast<double>(m_coordinates[point].z);
    }
}

void ScenePlotFileReader::calculateBoundaries2d(const IndexBufferTriangles& triangles, int groupId,
                                                IndexBufferLines& lines) const
{
    Neighbours none;
    none.fill(c_noNeighbour);
    std::vector<Neighbours> table(static_cast<std::size_t>(groupAt(groupId).numPoints()), none);
    int count = 0;
    const int numTriangles = triangles.getNumElements(0);
    for (int i = 0; i < numTriangles; ++i) {
        int a = 0;
        int b = 0;
        int c = 0;
        triangles.getTriangle(i, a, b, c);
        for (const auto& [low, high] : {std::minmax({a, b}), std::minmax({b, c}), std::minmax({c, a})}) {
            const int change = toggleEdge(table[static_cast<std::size_t>(low)], high);
            if (change == 0) {
                reportError("To many lines connected to one vertex.");
            }
            count += change;
        }
    }
    lines.internalAllocate(count, 1);
    lines.newSegment();
    for (std::size_t low = 0; low < table.size(); ++low) {
        for (const int high : table[low]) {
            if (high == c_noNeighbour) {
                break;
            }
            lines.appendLine(static_cast<int>(low), high);
        }
    }
}

BoundingBox ScenePlotFileReader::getBoundingBox() const
{
    return {m_coordinateMin[0], m_coordinateMax[0], m_coordinateMin[1],
            m_coordinateMax[1], m_coordinateMin[2], m_coordinateMax[2]};
}

} // namespace vxgraphics3d
