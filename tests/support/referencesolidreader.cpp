#include "tests/support/referencesolidreader.h"

#include "graphics3d/readers/sceneobjectfilereader.h"
#include "tests/support/capturedlog.h"
#include "tests/support/solidcomparison.h"

#include <algorithm>
#include <array>
#include <climits>
#include <cstdio>
#include <cstring>
#include <limits>
#include <locale.h>
#include <memory>
#include <stdlib.h>
#include <string_view>
#include <vector>

namespace vxgraphics3d {

using namespace vxdatacarrier;

namespace {

constexpr int c_none = 7;
const char* const c_tags[c_none] = {"Coordinates", "Faces", "Edges", "Vertices", "Adj 1 0", "Adj 2 0", "Adj 2 1"};
constexpr int c_numIndices[c_none] = {0, 4, 3, 1, 2, 2, 2};

using Triple = std::array<int, 3>;

class PlainReader {
public:
    PlainReader(RenderDraw3D& record, const std::string& path, const Vector3f& offset, std::string& message)
        : m_record(record), m_path(path), m_offset(offset), m_message(message)
    {}

    bool read(std::FILE* file)
    {
        if (!count(file)) {
            return false;
        }
        m_record.m_sheets = std::make_unique<Sheet3D[]>(size(m_counts[1]));
        m_record.m_numSheets = m_counts[1];
        m_record.m_curves = std::make_unique<Curve3D[]>(size(m_counts[2]));
        m_record.m_numCurves = m_counts[2];
        m_record.m_points = std::make_unique<Coords3D[]>(size(m_counts[3]));
        m_record.m_numPoints = m_counts[3];
        relation(4).allocate(m_counts[2], m_counts[4]);
        relation(5).allocate(m_counts[1], m_counts[5]);
        relation(6).allocate(m_counts[1], m_counts[6]);
        m_normals.resize(size(m_counts[0]));
        m_vertexMap.resize(size(m_counts[0]), -1);
        std::rewind(file);
        m_row = 0;
        int position = 0;
        bool hasTag = false;
        while (std::fgets(m_text, sizeof m_text, file) != nullptr) {
            ++m_row;
            const std::string_view text = m_text;
            if (std::all_of(text.begin(), text.end(), [](unsigned char c) { return c <= ' '; })) {
                continue;
            }
            if (m_text[0] == '%') {
                hasTag = findTag(position);
                continue;
            }
            if (!hasTag) {
                return false;
            }
            if (position != m_state) {
                finish();
                m_state = position;
                m_group = -1;
            }
            if (m_state == 0 ? !takeCoordinate() : !takeIndices()) {
                return false;
            }
        }
        finish();
        m_record.m_box.m_xMin = m_min.x;
        m_record.m_box.m_xMax = m_max.x;
        m_record.m_box.m_yMin = m_min.y;
        m_record.m_box.m_yMax = m_max.y;
        m_record.m_box.m_zMin = m_min.z;
        m_record.m_box.m_zMax = m_max.z;
        return !m_coordinates.empty();
    }

private:
    static std::size_t size(int count) { return static_cast<std::size_t>(count); }

    AdjacencyRecord& relation(int state)
    {
        return state == 4 ? m_record.m_lineToPoint : state == 5 ? m_record.m_sheetToPoint : m_record.m_sheetToLine;
    }

    std::string row() const
    {
        std::string row = m_text;
        for (const char end : {'\n', '\r'}) {
            if (!row.empty() && row.back() == end) {
                row.pop_back();
            }
        }
        return row;
    }

    bool findTag(int& position)
    {
        for (int tag = position; tag < c_none; ++tag) {
            if (m_text[1] != '\0' && std::strncmp(m_text + 2, c_tags[tag], std::strlen(c_tags[tag])) == 0) {
                position = tag;
                return true;
            }
        }
        m_message = "Unknown tag in " + m_path + ": " + row();
        return false;
    }

    bool count(std::FILE* file)
    {
        int position = 0;
        while (std::fgets(m_text, sizeof m_text, file) != nullptr) {
            ++m_row;
            if (m_text[0] != '%') {
                continue;
            }
            if (!findTag(position)) {
                return false;
            }
            const char* bracket = std::strchr(m_text + 2 + std::strlen(c_tags[position]), '[');
            const long number = bracket != nullptr ? std::strtol(bracket + 1, nullptr, 10) : 0;
            if (number < 1 || number > INT_MAX) {
                return false;
            }
            m_counts[position] = static_cast<int>(number);
        }
        return m_counts[0] != 0 && *std::max_element(m_counts, m_counts + c_none) <= m_row + 65536;
    }

    bool takeCoordinate()
    {
        if (m_coordinates.size() == size(m_counts[0])) {
            return false;
        }
        double values[3];
        const char* at = m_text;
        for (int i = 0; i < 3; ++i) {
            static const locale_t cLocale = newlocale(LC_ALL_MASK, "C", nullptr);
            char* end = nullptr;
            values[i] = strtod_l(at, &end, cLocale);
            if (end == at) {
                m_message = "Illegal data at row " + std::to_string(m_row) + ", value " + std::to_string(i + 1) +
                            ": \"" + row() + "\"";
                return false;
            }
            at = end;
        }
        m_coordinates.push_back(Vector3f(values[0], values[1], values[2]) + m_offset);
        const Vector3f& v = m_coordinates.back();
        const auto widen = [](float value, float& min, float& max) {
            min = value < min ? value : min;
            max = value > max ? value : max;
        };
        widen(v.x, m_min.x, m_max.x);
        widen(v.y, m_min.y, m_max.y);
        widen(v.z, m_min.z, m_max.z);
        return true;
    }

    bool takeIndices()
    {
        int values[4];
        const char* at = m_text;
        for (int i = 0; i < c_numIndices[m_state]; ++i) {
            char* end = nullptr;
            const long number = std::strtol(at, &end, 10);
            if (end == at) {
                m_message = "Illegal index data at row " + std::to_string(m_row) + ": (vertex " +
                            std::to_string(i + 1) + "): \"" + row() + "\"";
                return false;
            }
            values[i] = number >= 1 && number <= INT_MAX ? static_cast<int>(number - 1) : -1;
            at = end;
        }
        return m_state == 1   ? takeTriangle(values)
               : m_state == 2 ? takeSegment(values)
               : m_state == 3 ? takeVertex(values[0])
                              : takeAdjacent(values[0], values[1]);
    }

    bool isCoordinate(int index) const { return index >= 0 && index < m_counts[0] && !m_coordinates.empty(); }
    /// Coordinates that were counted, but not read, are 0, if any were read.
    Vector3f coordinate(int index) const
    {
        return size(index) < m_coordinates.size() ? m_coordinates[size(index)] : Vector3f();
    }

    bool takeTriangle(const int* values)
    {
        if (values[3] < 0 || !std::all_of(values, values + 3, [&](int i) { return isCoordinate(i); })) {
            return false;
        }
        if (values[3] != m_group) {
            if (m_group >= 0) {
                createSheet();
            }
            m_group = values[3];
            if (m_nextSheet == m_counts[1]) {
                return false;
            }
        }
        m_triangles.push_back({values[0], values[1], values[2]});
        const Vector3f a = coordinate(values[0]);
        const Vector3f b = coordinate(values[1]);
        const Vector3f c = coordinate(values[2]);
        const Vector3f normal = (c - b).cross(a - b).normalized();
        for (int i = 0; i < 3; ++i) {
            m_normals[size(values[i])] += normal;
            if (m_vertexMap[size(values[i])] < 0) {
                m_vertexMap[size(values[i])] = static_cast<int>(m_faceVertices.size());
                m_faceVertices.push_back(values[i]);
            }
        }
        return true;
    }

    bool takeSegment(const int* values)
    {
        if (values[2] < 0 || !isCoordinate(values[0]) || !isCoordinate(values[1])) {
            return false;
        }
        if (values[2] != m_group) {
            if (m_group >= 0) {
                createEdge();
            }
            m_group = values[2];
            if (m_nextCurve == m_counts[2]) {
                return false;
            }
        }
        m_segments.push_back({values[0], values[1]});
        return true;
    }

    bool takeVertex(int index)
    {
        if (!isCoordinate(index) || m_nextPoint == m_counts[3]) {
            return false;
        }
        const Vector3f v = coordinate(index);
        m_record.m_points[size(m_nextPoint++)] = {v.x, v.y, v.z};
        return true;
    }

    bool takeAdjacent(int row, int value)
    {
        AdjacencyRecord& to = relation(m_state);
        if (row < 0 || row >= to.m_numRows || value < 0 || value >= m_counts[m_state == 6 ? 2 : 3]) {
            return false;
        }
        if (row != m_group) {
            writeRow();
            m_group = row;
        }
        m_values.push_back(value);
        return to.m_numUsed + static_cast<int>(m_values.size()) <= to.m_numValues;
    }

    void writeRow()
    {
        if (m_group >= 0) {
            AdjacencyRecord& to = relation(m_state);
            to.m_rows[size(m_group)] = {to.m_numUsed, static_cast<int>(m_values.size())};
            for (const int value : m_values) {
                to.m_values[size(to.m_numUsed++)] = value;
            }
        }
        m_values.clear();
    }

    void createSheet()
    {
        Sheet3D& sheet = m_record.m_sheets[size(m_nextSheet++)];
        sheet.m_numVertices = static_cast<int>(m_faceVertices.size());
        sheet.m_vertices = std::make_unique<CoordsNormal3D[]>(m_faceVertices.size());
        int next = 0;
        for (const int index : m_faceVertices) {
            const Vector3f v = coordinate(index);
            const Vector3f& n = m_normals[size(index)].normalize();
            sheet.m_vertices[size(next++)] = {v.x, v.y, v.z, n.x, n.y, n.z};
        }
        sheet.m_numTriangles = static_cast<int>(m_triangles.size());
        sheet.m_triangles = std::make_unique<Triangle[]>(m_triangles.size());
        next = 0;
        for (const Triple& corners : m_triangles) {
            sheet.m_triangles[size(next++)] = {m_vertexMap[size(corners[0])], m_vertexMap[size(corners[1])],
                                               m_vertexMap[size(corners[2])]};
        }
        sheet.m_isValid = true;
        for (const int index : m_faceVertices) {
            m_vertexMap[size(index)] = -1;
        }
        m_faceVertices.clear();
        m_triangles.clear();
    }

    void createEdge()
    {
        Curve3D& curve = m_record.m_curves[size(m_nextCurve++)];
        curve.m_numVertices = static_cast<int>(m_segments.size()) + 1;
        curve.m_vertices = std::make_unique<Coords3D[]>(m_segments.size() + 1);
        int next = 0;
        for (const auto& segment : m_segments) {
            const Vector3f v = coordinate(segment[0]);
            curve.m_vertices[size(next++)] = {v.x, v.y, v.z};
        }
        const Vector3f v = coordinate(m_segments.back()[1]);
        curve.m_vertices[size(next)] = {v.x, v.y, v.z};
        curve.m_isValid = true;
        m_segments.clear();
    }

    void finish()
    {
        if (m_state == 1) {
            createSheet();
        } else if (m_state == 2) {
            createEdge();
        } else if (m_state >= 4 && m_state < c_none) {
            writeRow();
        }
    }

    RenderDraw3D& m_record;
    const std::string& m_path;
    const Vector3f m_offset;
    std::string& m_message;
    char m_text[256];
    int m_row = 0;
    int m_counts[c_none] = {};
    int m_state = c_none;
    int m_group = -1;
    std::vector<Vector3f> m_coordinates;
    std::vector<Vector3f> m_normals;
    std::vector<int> m_vertexMap;
    std::vector<int> m_faceVertices;
    std::vector<Triple> m_triangles;
    std::vector<std::array<int, 2>> m_segments;
    std::vector<int> m_values;
    int m_nextPoint = 0;
    int m_nextSheet = 0;
    int m_nextCurve = 0;
    Vector3f m_min{std::numeric_limits<float>::max(), std::numeric_limits<float>::max(),
                   std::numeric_limits<float>::max()};
    Vector3f m_max = -m_min;
};

} // namespace

bool readSolidPlainly(RenderDraw3D& record, const std::string& path, const Vector3f& offset, std::string& message)
{
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path.c_str(), "r"), std::fclose);
    return file != nullptr && PlainReader(record, path, offset, message).read(file.get());
}

std::string differenceFromPlainSolid(const std::string& path, int& numGood)
{
    const Vector3f offset(0.5f, 0.0f, -2.0f);
    RenderDraw3D expected;
    std::string message;
    const bool expectedGood = readSolidPlainly(expected, path, offset, message);
    RenderDraw3D record;
    const CapturedLog log(ErrorLog::Level::error);
    const bool good = SceneObjectFileReader::readDrawObjectSolid(record, path, offset);
    numGood += good ? 1 : 0;
    if (good != expectedGood) {
        return "result";
    }
    const std::vector<std::string> messages = log.messages();
    if (!message.empty() && (messages.empty() || messages.back() != message)) {
        return "log: " + message;
    }
    return good ? differenceOf(record, expected) : differenceOf(record, RenderDraw3D());
}

} // namespace vxgraphics3d
