#include "graphics3d/readers/sceneobjectfilereader.h"

#include "graphics3d/foundation/errorlog.h"
#include "graphics3d/readers/readerreports.h"
#include "graphics3d/readers/rowvalues.h"
#include "graphics3d/readers/textnumbers.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <memory>
#include <string>
#include <utility>

namespace vxgraphics3d {

using vxdatacarrier::AdjacencyRecord;
using vxdatacarrier::Coords3D;
using vxdatacarrier::CoordsNormal3D;
using vxdatacarrier::Curve3D;
using vxdatacarrier::RenderDraw3D;
using vxdatacarrier::Sheet3D;
using vxdatacarrier::Triangle;

namespace {

// The maximum number of rows read at once.
constexpr int c_maxRows = 128;

// Integers in a row of each section.
constexpr int c_numIndices[] = {0, 4, 3, 1, 2, 2, 2};

// Parts that a count promises and the file does not have take memory as well. This many are accepted, so that a short
// file cannot exhaust the memory.
constexpr long c_maxMissing = 65536;

TextFile openFile(std::string path)
{
    logInfo("Opening object data file %s", path.c_str());
    return TextFile(std::move(path));
}

bool hasCoordinates(int count, const std::string& fileName)
{
    if (count == 0) {
        reportQuietly(c_wholeFile, "No coordinates in file %s", fileName.c_str());
    }
    return count != 0;
}

bool refuseExcess(const char* parts, int rowNumber)
{
    reportQuietly(rowNumber, "More %s than counted at row %d", parts, rowNumber);
    return false;
}

/// Reports an index that is not one of `count` parts.
bool isIndex(int index, int count, const char* part, int rowNumber)
{
    if (index >= 0 && index < count) {
        return true;
    }
    reportQuietly(rowNumber, "Index out of range at row %d: %s %s", rowNumber, part,
                  std::to_string(index + 1L).c_str());
    return false;
}

} // namespace

bool SceneObjectFileReader::readDrawObjectSolid(RenderDraw3D& record, std::string path, const Vector3f& offset)
{
    return SceneObjectFileReader(std::move(path)).readSolidFile(record, offset);
}

SceneObjectFileReader::SceneObjectFileReader(std::string path) : m_file(openFile(std::move(path))) {}

bool SceneObjectFileReader::readSolidFile(RenderDraw3D& record, const Vector3f& offset)
{
    if (!m_file.isOpen() || !readCounts()) {
        return false;
    }
    RenderDraw3D solid;
    solid.m_isValid = record.m_isValid;
    solid.m_id = record.m_id;
    solid.m_name = record.m_name;
    allocate(solid);
    m_offset = offset;
    m_file.rewind();
    if (!readParts(solid)) {
        return false;
    }
    solid.m_box.m_xMin = m_limits[0].min;
    solid.m_box.m_xMax = m_limits[0].max;
    solid.m_box.m_yMin = m_limits[1].min;
    solid.m_box.m_yMax = m_limits[1].max;
    solid.m_box.m_zMin = m_limits[2].min;
    solid.m_box.m_zMax = m_limits[2].max;
    record = std::move(solid);
    return true;
}

bool SceneObjectFileReader::readCounts()
{
    std::size_t section = coordinates;
    while (const char* row = m_file.nextTagRow()) {
        if (!findTag(m_tags, section, row, m_file.rowNumber(), m_file.name()) ||
            !readCount(row, static_cast<ReadState>(section))) {
            return false;
        }
    }
    if (m_file.hasTooManyRows()) {
        return false;
    }
    if (!hasCoordinates(m_counts[coordinates], m_file.name())) {
        return false;
    }
    for (const int count : m_counts) {
        if (count - c_maxMissing > m_file.rowNumber()) {
            reportQuietly(c_wholeFile, "Count %s is too large for file %s", std::to_string(count).c_str(),
                          m_file.name().c_str());
            return false;
        }
    }
    return true;
}

/// Reads the count of a section from its tag row.
bool SceneObjectFileReader::readCount(const char* row, ReadState section)
{
    const char* at = std::strchr(row + 2 + m_tags[section].size(), '[');
    long count = 0;
    if (at == nullptr || !readInteger(++at, count) || count < 1) {
        keepReason(m_file.rowNumber(), "No count above 0 at row %d: \"%s\"", m_file.rowNumber(), textOf(row).c_str());
        return false;
    }
    if (count > std::numeric_limits<int>::max()) {
        reportQuietly(m_file.rowNumber(), "Count %s is too large for file %s", std::to_string(count).c_str(),
                      m_file.name().c_str());
        return false;
    }
    m_counts[section] = static_cast<int>(count);
    return true;
}

void SceneObjectFileReader::allocate(RenderDraw3D& record) const
{
    record.m_sheets = std::make_unique<Sheet3D[]>(static_cast<std::size_t>(m_counts[faces]));
    record.m_numSheets = m_counts[faces];
    record.m_curves = std::make_unique<Curve3D[]>(static_cast<std::size_t>(m_counts[edges]));
    record.m_numCurves = m_counts[edges];
    record.m_points = std::make_unique<Coords3D[]>(static_cast<std::size_t>(m_counts[vertices]));
    record.m_numPoints = m_counts[vertices];
    record.m_sheetToLine.allocate(m_counts[faces], m_counts[faceEdges]);
    record.m_sheetToPoint.allocate(m_counts[faces], m_counts[faceVertices]);
    record.m_lineToPoint.allocate(m_counts[edges], m_counts[edgeVertices]);
}

bool SceneObjectFileReader::readParts(RenderDraw3D& record)
{
    ReadState state = none;
    std::size_t section = coordinates;
    bool hasTag = false;
    while (true) {
        if (state == section && !readPlainRows(record, state)) {
            return false;
        }
        const char* row = m_file.nextRow();
        if (row == nullptr) {
            break;
        }
        if (isEmptyRow(row)) {
            continue;
        }
        if (row[0] == '%') {
            if (!findTag(m_tags, section, row, m_file.rowNumber(), m_file.name())) {
                return false;
            }
            hasTag = true;
            continue;
        }
        if (!hasTag) {
            reportQuietly(m_file.rowNumber(), "Data before the first tag at row %d", m_file.rowNumber());
            return false;
        }
        // A tag alone changes nothing: the section begins with its first row of data.
        if (state != section) {
            finishState(record, state);
            enterState(state, static_cast<ReadState>(section));
        }
        if (!readRow(record, state, row)) {
            return false;
        }
    }
    finishState(record, state);
    return !m_file.hasTooManyRows() && hasCoordinates(m_numCoordinates, m_file.name());
}

void SceneObjectFileReader::enterState(ReadState& state, ReadState section)
{
    if (section == coordinates) {
        m_coordinates.resize(static_cast<std::size_t>(m_counts[coordinates]));
    }
    m_group = -1;
    state = section;
}

/// Creates the last part of a section, which has no closing row.
void SceneObjectFileReader::finishState(RenderDraw3D& record, ReadState& state)
{
    if (state == faces) {
        createSheet(record);
    } else if (state == edges) {
        createEdge(record);
    }
    state = none;
}

/// The fast path for rows that contain exactly what they should; any other row ends it.
bool SceneObjectFileReader::readPlainRows(RenderDraw3D& record, ReadState state)
{
    if (state == coordinates) {
        double values[c_maxRows * 3];
        while (const int numRows = m_file.nextPlainReals(values, 3, c_maxRows)) {
            const int firstRow = m_file.rowNumber() - numRows + 1;
            for (int i = 0; i < numRows; ++i) {
                if (!isCoordinateExpected(firstRow + i)) {
                    return false;
                }
                const double* at = values + 3 * i;
                takeCoordinate({at[0], at[1], at[2]});
            }
        }
    } else {
        int indices[c_maxRows * 4];
        while (const int numRows = m_file.nextPlainIndices(indices, c_numIndices[state], c_maxRows)) {
            if (!takeRows(record, state, indices, numRows)) {
                return false;
            }
        }
    }
    return true;
}

bool SceneObjectFileReader::readRow(RenderDraw3D& record, ReadState state, const char* row)
{
    if (state == coordinates) {
        Vector3f position;
        if (!isCoordinateExpected(m_file.rowNumber()) || !getVector3f(position, row, m_file.rowNumber())) {
            return false;
        }
        takeCoordinate(position);
        return true;
    }
    int indices[4];
    return getIndices(indices, c_numIndices[state], row, m_file.rowNumber()) && takeRows(record, state, indices, 1);
}

/// Takes the rows that were read last.
bool SceneObjectFileReader::takeRows(RenderDraw3D& record, ReadState state, const int* indices, int numRows)
{
    const int firstRow = m_file.rowNumber() - numRows + 1;
    const auto takeAll = [&](auto take) {
        for (int i = 0; i < numRows; ++i) {
            if (!take(Row{indices + i * c_numIndices[state], firstRow + i})) {
                return false;
            }
        }
        return true;
    };
    switch (state) {
    case faces:
        return takeAll([&](Row row) { return takeTriangle(record, row); });
    case edges:
        return takeAll([&](Row row) { return takeSegment(record, row); });
    case vertices:
        return takeAll([&](Row row) { return takeVertex(record, row); });
    case edgeVertices:
        return takeAll([&](Row row) { return takeAdjacent(record.m_lineToPoint, record.m_numPoints, row); });
    case faceVertices:
        return takeAll([&](Row row) { return takeAdjacent(record.m_sheetToPoint, record.m_numPoints, row); });
    default:
        return takeAll([&](Row row) { return takeAdjacent(record.m_sheetToLine, record.m_numCurves, row); });
    }
}

bool SceneObjectFileReader::isCoordinateExpected(int rowNumber) const
{
    if (m_numCoordinates < m_counts[coordinates]) {
        return true;
    }
    keepReason(rowNumber, "More coordinates than counted at row %d", rowNumber);
    return false;
}

void SceneObjectFileReader::takeCoordinate(const Vector3f& position)
{
    Vector3f& taken = m_coordinates[static_cast<std::size_t>(m_numCoordinates)].position;
    taken = position + m_offset;
    m_limits[0].widen(taken.x);
    m_limits[1].widen(taken.y);
    m_limits[2].widen(taken.z);
    ++m_numCoordinates;
}

bool SceneObjectFileReader::takeTriangle(RenderDraw3D& record, Row row)
{
    const int face = row.indices[3];
    if (face != m_group) {
        if (m_group >= 0) {
            createSheet(record);
        }
        if (m_nextSheet == record.m_numSheets) {
            return refuseExcess("faces", row.number);
        }
        m_group = face;
    }
    if (!isIndex(face, std::numeric_limits<int>::max(), "face", row.number) ||
        !areCoordinates(row.indices, 3, row.number)) {
        return false;
    }
    const auto corner = [&](int i) -> Coordinate& { return m_coordinates[static_cast<std::size_t>(row.indices[i])]; };
    const Vector3f& a = corner(0).position;
    const Vector3f& b = corner(1).position;
    const Vector3f& c = corner(2).position;
    const Vector3f normal = (c - b).cross(a - b).normalized();
    for (int i = 0; i < 3; ++i) {
        Coordinate& at = corner(i);
        at.normal += normal;
        if (at.vertex < 0) {
            at.vertex = static_cast<int>(m_faceVertices.size());
            m_faceVertices.push_back(row.indices[i]);
        }
    }
    m_faceTriangles.push_back({corner(0).vertex, corner(1).vertex, corner(2).vertex});
    return true;
}

bool SceneObjectFileReader::takeSegment(RenderDraw3D& record, Row row)
{
    const int edge = row.indices[2];
    if (edge != m_group) {
        if (m_group >= 0) {
            createEdge(record);
        }
        if (m_nextCurve == record.m_numCurves) {
            return refuseExcess("edges", row.number);
        }
        m_group = edge;
    }
    if (!isIndex(edge, std::numeric_limits<int>::max(), "edge", row.number) ||
        !areCoordinates(row.indices, 2, row.number)) {
        return false;
    }
    m_edgeSegments.push_back({row.indices[0], row.indices[1]});
    return true;
}

bool SceneObjectFileReader::takeVertex(RenderDraw3D& record, Row row)
{
    if (m_nextPoint == record.m_numPoints) {
        return refuseExcess("vertices", row.number);
    }
    if (!areCoordinates(row.indices, 1, row.number)) {
        return false;
    }
    const Vector3f& position = m_coordinates[static_cast<std::size_t>(row.indices[0])].position;
    record.m_points[static_cast<std::size_t>(m_nextPoint++)] = {position.x, position.y, position.z};
    return true;
}

/// Adds a value to the row of a relation. A row that is interrupted by another one starts again.
bool SceneObjectFileReader::takeAdjacent(AdjacencyRecord& relation, int numValues, Row row)
{
    const auto [part, value] = std::pair(row.indices[0], row.indices[1]);
    if (!isIndex(part, relation.m_numRows, "part", row.number) ||
        !isIndex(value, numValues, "adjacent part", row.number)) {
        return false;
    }
    if (relation.m_numUsed == relation.m_numValues) {
        return refuseExcess("adjacent parts", row.number);
    }
    AdjacencyRecord::Row& entry = relation.m_rows[static_cast<std::size_t>(part)];
    if (part != m_group) {
        m_group = part;
        entry = {relation.m_numUsed, 0};
    }
    relation.m_values[static_cast<std::size_t>(relation.m_numUsed++)] = value;
    ++entry.count;
    return true;
}

bool SceneObjectFileReader::areCoordinates(const int* indices, int count, int rowNumber) const
{
    const auto numCoordinates = static_cast<int>(m_coordinates.size());
    return std::all_of(indices, indices + count,
                       [&](int index) { return isIndex(index, numCoordinates, "coordinate", rowNumber); });
}

/// Makes a sheet of the triangles of the last face.
void SceneObjectFileReader::createSheet(RenderDraw3D& record)
{
    Sheet3D& sheet = record.m_sheets[static_cast<std::size_t>(m_nextSheet)];
    sheet.m_vertices = std::make_unique<CoordsNormal3D[]>(m_faceVertices.size());
    sheet.m_numVertices = static_cast<int>(m_faceVertices.size());
    for (std::size_t i = 0; i < m_faceVertices.size(); ++i) {
        Coordinate& at = m_coordinates[static_cast<std::size_t>(m_faceVertices[i])];
        const Vector3f& normal = at.normal.normalize();
        sheet.m_vertices[i] = {at.position.x, at.position.y, at.position.z, normal.x, normal.y, normal.z};
        at.vertex = -1;
    }
    sheet.m_triangles = std::make_unique<Triangle[]>(m_faceTriangles.size());
    sheet.m_numTriangles = static_cast<int>(m_faceTriangles.size());
    std::copy(m_faceTriangles.begin(), m_faceTriangles.end(), sheet.m_triangles.get());
    sheet.m_isValid = true;
    m_faceVertices.clear();
    m_faceTriangles.clear();
    ++m_nextSheet;
}

/// Makes a curve of the segments of the last edge, of whose ends only the last one counts.
void SceneObjectFileReader::createEdge(RenderDraw3D& record)
{
    Curve3D& curve = record.m_curves[static_cast<std::size_t>(m_nextCurve)];
    curve.m_vertices = std::make_unique<Coords3D[]>(m_edgeSegments.size() + 1);
    curve.m_numVertices = static_cast<int>(m_edgeSegments.size()) + 1;
    const auto coords = [&](int index) -> Coords3D {
        const Vector3f& position = m_coordinates[static_cast<std::size_t>(index)].position;
        return {position.x, position.y, position.z};
    };
    std::transform(m_edgeSegments.begin(), m_edgeSegments.end(), curve.m_vertices.get(),
                   [&](const Segment& segment) { return coords(segment.start); });
    curve.m_vertices[m_edgeSegments.size()] = coords(m_edgeSegments.back().end);
    curve.m_isValid = true;
    m_edgeSegments.clear();
    ++m_nextCurve;
}

} // namespace vxgraphics3d
