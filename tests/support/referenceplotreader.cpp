#include "tests/support/referenceplotreader.h"

#include "datacarrier/postdataobject.h"

#include <boost/make_shared.hpp>

#include <cfloat>
#include <climits>
#include <cmath>
#include <cstdarg>
#include <cstring>
#include <locale.h>
#include <stdlib.h>

namespace vxgraphics3d {

namespace {

const char* const c_tags[8] = {"Coordinates",      "Elements (triangular)",  "Elements (rectangular)",
                               "Elements (lines)", "Elements (tetrahedral)", "Data",
                               "Vector data",      "Tetrahedral Data"};

locale_t cLocale()
{
    static const locale_t locale = newlocale(LC_ALL_MASK, "C", nullptr);
    return locale;
}

} // namespace

ReferencePlotReader::ReferencePlotReader(const std::string& fileName)
    : m_fileName(fileName),
      m_file(nullptr),
      m_dataMax(-FLT_MAX),
      m_dataMin(FLT_MAX),
      m_tetrahedralMax(-FLT_MAX),
      m_tetrahedralMin(FLT_MAX),
      m_max{-FLT_MAX, -FLT_MAX, -FLT_MAX},
      m_min{FLT_MAX, FLT_MAX, FLT_MAX}
{
    tell(info, "Opening file %s", fileName.c_str());
    m_file = std::fopen(fileName.c_str(), "r");
    if (m_file == nullptr) {
        tell(reported, "Could not open file %s", fileName.c_str());
        m_standardError += '\n';
    }
}

ReferencePlotReader::~ReferencePlotReader()
{
    if (m_file != nullptr) {
        std::fclose(m_file);
    }
}

void ReferencePlotReader::tell(Severity severity, const char* format, ...)
{
    char text[2000];
    va_list args;
    va_start(args, format);
    std::vsnprintf(text, sizeof text, format, args);
    va_end(args);
    m_messages.emplace_back(text);
    if (severity == reported) {
        m_standardError += text;
    }
}

bool ReferencePlotReader::fail(const char* text)
{
    tell(reported, "%s", text);
    return false;
}

bool ReferencePlotReader::next()
{
    if (std::fgets(m_buffer, sizeof m_buffer, m_file) == nullptr) {
        return false;
    }
    ++m_row;
    return true;
}

bool ReferencePlotReader::isEmpty() const
{
    for (const char* c = m_buffer; *c != '\0'; ++c) {
        if (static_cast<unsigned char>(*c) > 32) {
            return false;
        }
    }
    return true;
}

int ReferencePlotReader::findTag(int from) const
{
    for (int i = from; i < 8; ++i) {
        if (std::strlen(m_buffer) > 2 && std::strncmp(m_buffer + 2, c_tags[i], std::strlen(c_tags[i])) == 0) {
            return i;
        }
    }
    return -1;
}

std::string ReferencePlotReader::row() const
{
    std::string text = m_buffer;
    if (!text.empty() && text.back() == '\n') {
        text.pop_back();
    }
    if (!text.empty() && text.back() == '\r') {
        text.pop_back();
    }
    return text;
}

bool ReferencePlotReader::reals(double* values, int count)
{
    const char* at = m_buffer;
    for (int i = 0; i < count; ++i) {
        char* end = nullptr;
        values[i] = strtod_l(at, &end, cLocale());
        if (end == at) {
            if (count == 1) {
                tell(logged, "Illegal data: \"%s\"", row().c_str());
            } else {
                tell(logged, "Illegal data at row %d, value %d: \"%s\"", m_row, i + 1, row().c_str());
            }
            return false;
        }
        at = end;
    }
    return true;
}

bool ReferencePlotReader::indices(int* values, int count)
{
    const char* at = m_buffer;
    for (int i = 0; i < count; ++i) {
        char* end = nullptr;
        const long value = strtol_l(at, &end, 10, cLocale());
        if (end == at) {
            tell(logged, "Illegal index data at row %d: (vertex %d): \"%s\"", m_row, i + 1, row().c_str());
            return false;
        }
        at = end;
        // A number that does not fit into an int is not the index of a point either.
        values[i] = value < 0 || value > INT_MAX ? -1 : static_cast<int>(value) - 1;
    }
    return true;
}

bool ReferencePlotReader::pass(int criteria, bool first, bool elements)
{
    int tag = 0;
    bool open = false;
    int point = 0;
    Group group;
    double opening = 0.0;
    std::size_t present = 0;
    const auto close = [&] {
        group.last = point - 1;
        m_groups.push_back(group);
        open = false;
    };
    const auto begin = [&](double value) {
        group.first = point;
        opening = value;
        open = true;
    };
    while (next()) {
        if (isEmpty()) {
            continue;
        }
        if (m_buffer[0] == '%') {
            const int found = findTag(tag);
            if (found < 0) {
                tell(reported, "Unknown tag in %s: %s", m_fileName.c_str(), row().c_str());
                return false;
            }
            if (found != tag) {
                present = 0;
            }
            tag = found;
            if (open) {
                close();
            }
            continue;
        }
        if (first) {
            ++m_counts[static_cast<std::size_t>(tag)];
        }
        double values[3];
        if (tag == 0) {
            if (criteria == 0) {
                ++point;
                open = true;
            } else if (criteria < 4) {
                if (!reals(values, 3)) {
                    return false;
                }
                const auto value = static_cast<float>(values[criteria - 1]);
                if (open && static_cast<double>(value) != opening) {
                    close();
                }
                if (!open) {
                    begin(static_cast<double>(value));
                }
                ++point;
            }
        } else if (tag < 5) {
            if (!elements) {
                continue;
            }
            const int corners = tag == 1 ? 3 : tag == 3 ? 2 : 4;
            int at[4];
            if (!indices(at, corners)) {
                return false;
            }
            while (present < m_groups.size() && at[0] > m_groups[present].last) {
                ++present;
            }
            bool good = present < m_groups.size();
            for (int i = 0; good && i < corners; ++i) {
                good = at[i] >= m_groups[present].first && at[i] <= m_groups[present].last;
            }
            if (!good) {
                return fail(tag == 1   ? "Triangle index do not match Coordinate groups."
                            : tag == 2 ? "Quad index do not match Coordinate groups."
                            : tag == 3 ? "Line index do not match Coordinate groups."
                                       : "Tetrahedral index do not match Coordinate groups.");
            }
            Group& g = m_groups[present];
            ++(tag == 1 ? g.numTriangles : tag == 2 ? g.numQuads : tag == 3 ? g.numLines : g.numTetrahedra);
        } else if (first && tag == 5) {
            if (!reals(values, 1)) {
                return false;
            }
            if (m_data.size() >= static_cast<std::size_t>(m_counts[0])) {
                return fail("Data do not match Coordinates.");
            }
            const auto value = static_cast<float>(values[0]);
            m_data.reserve(static_cast<std::size_t>(m_counts[0]));
            m_data.push_back(value);
            m_dataMax = value > m_dataMax ? value : m_dataMax;
            m_dataMin = value < m_dataMin ? value : m_dataMin;
            if (criteria == 4) {
                if (open && std::fabs(values[0] - opening) > 1e-5 * std::fabs(values[0] + opening)) {
                    close();
                }
                if (!open) {
                    begin(values[0]);
                }
                ++point;
            }
        } else if (first && tag == 6) {
            if (m_vectors.size() >= static_cast<std::size_t>(m_counts[0])) {
                return fail("Vector data do not match Coordinates.");
            }
            if (!reals(values, 3)) {
                return false;
            }
            m_vectors.emplace_back(values[0], values[1], values[2]);
        } else if (first && tag == 7) {
            if (!reals(values, 1)) {
                return false;
            }
            if (m_tetrahedralData.size() >= static_cast<std::size_t>(m_counts[4])) {
                return fail("Data do not match Tetrahedrals.");
            }
            const auto value = static_cast<float>(values[0]);
            m_tetrahedralData.push_back(value);
            m_tetrahedralMax = value > m_tetrahedralMax ? value : m_tetrahedralMax;
            m_tetrahedralMin = value < m_tetrahedralMin ? value : m_tetrahedralMin;
        }
    }
    if (open && criteria != 0) {
        close();
    }
    std::rewind(m_file);
    m_row = 0;
    return true;
}

bool ReferencePlotReader::scan(int criteria)
{
    if (m_file == nullptr || !pass(criteria, true, criteria != 4) || (criteria == 4 && !pass(criteria, false, true))) {
        return false;
    }
    const float scale = m_dataMin < m_dataMax ? 1.0f / (m_dataMax - m_dataMin) : 0.0f;
    for (float& value : m_data) {
        value = (value - m_dataMin) * scale;
    }
    const float scale2 = m_tetrahedralMin < m_tetrahedralMax ? 1.0f / (m_tetrahedralMax - m_tetrahedralMin) : 0.0f;
    for (float& value : m_tetrahedralData) {
        value = (value - m_tetrahedralMin) * scale2;
    }
    return true;
}

bool ReferencePlotReader::verify()
{
    if (m_counts[0] == 0) {
        return fail("No coordinates in file.");
    }
    if (m_counts[0] != m_counts[5]) {
        return fail("Coordinates do not match Data.");
    }
    if (m_counts[1] == 0 && m_counts[2] == 0) {
        return fail("No triangles or quads in file.");
    }
    tell(info, "File contains %d coordinates with data, %d triangles and %d quads [%f, %f]", m_counts[0], m_counts[1],
         m_counts[2], static_cast<double>(m_dataMin), static_cast<double>(m_dataMax));
    return true;
}

bool ReferencePlotReader::readPoints()
{
    bool found = next();
    while (found && isEmpty()) {
        found = next();
    }
    if (!found || m_buffer[0] != '%' || findTag(0) != 0) {
        tell(reported, "Expected tag \"Coordinates\" at row %d", m_row);
        return false;
    }
    m_points.reserve(static_cast<std::size_t>(m_counts[0]));
    for (int i = 0; i < m_counts[0]; ++i) {
        if (!next()) {
            tell(reported, "End of file when reading coordinates, file %s", m_fileName.c_str());
            return false;
        }
        double values[3];
        if (!reals(values, 3)) {
            return false;
        }
        for (std::size_t axis = 0; axis < 3; ++axis) {
            const auto value = static_cast<float>(values[axis]);
            m_max[axis] = value > m_max[axis] ? value : m_max[axis];
            m_min[axis] = value < m_min[axis] ? value : m_min[axis];
        }
        m_points.emplace_back(values[0], values[1], values[2]);
    }
    m_normals.resize(m_points.size());
    return true;
}

bool ReferencePlotReader::readTriangles(std::size_t groupId, std::vector<std::vector<int>>& corners)
{
    const Group& group = m_groups[groupId];
    if (group.numTriangles == 0) {
        return true;
    }
    if (groupId == 0) {
        bool found = next();
        while (found && isEmpty()) {
            found = next();
        }
        if (!found || m_buffer[0] != '%' || findTag(1) != 1) {
            tell(reported, "Expected tag \"Elements (triangular)\" at row %d", m_row);
            return false;
        }
    }
    for (int i = 0; i < group.numTriangles; ++i) {
        int at[3];
        if (!next()) {
            tell(reported, "End of file when reading triangle elements, file %s", m_fileName.c_str());
            return false;
        }
        if (!indices(at, 3)) {
            return false;
        }
        for (const int index : at) {
            if (index < group.first || index > group.last) {
                tell(reported, "Index out of group range when reading triangle elements, file %s", m_fileName.c_str());
                return false;
            }
        }
        const Vector3f a = m_points[static_cast<std::size_t>(at[0])];
        const Vector3f b = m_points[static_cast<std::size_t>(at[1])];
        const Vector3f c = m_points[static_cast<std::size_t>(at[2])];
        const Vector3f n = (a - b).cross(c - b).normalized();
        for (std::size_t k = 0; k < 3; ++k) {
            m_normals[static_cast<std::size_t>(at[k])] -= n;
            corners[k].push_back(at[k] - group.first);
        }
    }
    return true;
}

bool ReferencePlotReader::read(Plot plot, vxdatacarrier::PostDataObject& record)
{
    if (!scan(plot == Plot::isoSurface3d ? 4 : 0) || !verify() || !readPoints()) {
        return false;
    }
    const bool flat = plot == Plot::surface2d;
    const bool iso = plot == Plot::isoSurface3d;
    const std::size_t numAxes = flat ? 2 : 3;
    const std::size_t numGroups = iso ? m_groups.size() : 1;
    for (std::size_t g = 0; g < numGroups; ++g) {
        const auto coordinates = boost::make_shared<std::vector<std::vector<double>>>(numAxes);
        const auto normals = boost::make_shared<std::vector<std::vector<float>>>(3);
        const auto data = boost::make_shared<std::vector<std::vector<double>>>(flat || iso ? 2 : 1);
        const auto elements = boost::make_shared<std::vector<std::vector<int>>>(3);
        const auto max = boost::make_shared<std::vector<double>>(data->size(), -HUGE_VAL);
        const auto min = boost::make_shared<std::vector<double>>(data->size(), HUGE_VAL);
        for (std::vector<int>& corner : *elements) {
            corner.reserve(static_cast<std::size_t>(m_groups[g].numTriangles));
        }
        if (!readTriangles(g, *elements)) {
            return false;
        }
        const auto numPoints = static_cast<std::size_t>(m_groups[g].last - m_groups[g].first + 1);
        for (std::vector<double>& axis : *coordinates) {
            axis.reserve(numPoints);
        }
        for (std::vector<float>& axis : *normals) {
            axis.reserve(numPoints);
        }
        for (std::vector<double>& values : *data) {
            values.reserve(numPoints);
        }
        for (int i = m_groups[g].first; i <= m_groups[g].last; ++i) {
            const auto point = static_cast<std::size_t>(i);
            const Vector3f& p = m_points[point];
            const auto value = static_cast<double>(m_data[point]);
            (*coordinates)[0].push_back(static_cast<double>(p.x));
            (*coordinates)[1].push_back(static_cast<double>(p.y));
            if (flat) {
                (*data)[0].push_back(value);
                (*data)[1].push_back(static_cast<double>(p.z));
                continue;
            }
            (*coordinates)[2].push_back(static_cast<double>(p.z));
            const Vector3f n = m_normals[point].normalize();
            (*normals)[0].push_back(n.x);
            (*normals)[1].push_back(n.y);
            (*normals)[2].push_back(n.z);
            (*data)[iso ? 1 : 0].push_back(value);
        }
        if (iso) {
            (*data)[0].push_back((*data)[1][0]);
            *max = *min = {(*data)[0][0], (*data)[0][0]};
        } else {
            for (std::size_t i = 0; i < data->size(); ++i) {
                for (const double value : (*data)[i]) {
                    (*max)[i] = value > (*max)[i] ? value : (*max)[i];
                    (*min)[i] = value < (*min)[i] ? value : (*min)[i];
                }
            }
        }
        record.m_coordinates.push_back(coordinates);
        record.m_data.push_back(data);
        record.m_elements.push_back(elements);
        record.m_dataMax.push_back(max);
        record.m_dataMin.push_back(min);
        if (!flat) {
            record.m_normals.push_back(normals);
        }
    }
    const auto bounds = boost::make_shared<std::vector<std::vector<double>>>();
    for (std::size_t axis = 0; axis < numAxes; ++axis) {
        bounds->push_back({static_cast<double>(m_min[axis]), static_cast<double>(m_max[axis])});
    }
    record.m_bounds = bounds;
    return true;
}

} // namespace vxgraphics3d
