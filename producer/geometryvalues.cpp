#include "producer/geometryvalues.h"

#include "datacarrier/geometry1d.h"
#include "datacarrier/geometry2d.h"
#include "datacarrier/geometry3d.h"
#include "datacarrier/renderdrawproj2d.h"
#include "producer/relations.h"

#include <array>
#include <cstddef>
#include <memory>
#include <stdexcept>
#include <string>

namespace vxproducer {

using namespace vxdatacarrier;

namespace {

/// Calls an operation with the record as what it is.
template <class Operation>
auto visit(const GeometryRecord& record, Operation operation)
{
    if (const auto* space = dynamic_cast<const Geometry3D*>(&record)) {
        return operation(*space);
    }
    if (const auto* plane = dynamic_cast<const Geometry2D*>(&record)) {
        return operation(*plane);
    }
    if (const auto* axis = dynamic_cast<const Geometry1D*>(&record)) {
        return operation(*axis);
    }
    return operation(dynamic_cast<const RenderDrawProj2D&>(record));
}

/// One array per member of the entries, which are structures of values of one type.
template <class Value, class Entry>
std::vector<std::vector<Value>> transposed(const std::unique_ptr<Entry[]>& entries, int count)
{
    constexpr std::size_t numRows = sizeof(Entry) / sizeof(Value);
    std::vector<std::vector<Value>> rows(numRows, std::vector<Value>(static_cast<std::size_t>(count)));
    const auto* values = reinterpret_cast<const Value*>(entries.get());
    for (std::size_t i = 0; i < rows[0].size(); ++i) {
        for (std::size_t row = 0; row < numRows; ++row) {
            rows[row][i] = values[i * numRows + row];
        }
    }
    return rows;
}

/// A part of an array; parts of the arrays of a record are only reached through here.
template <class Part>
const Part& at(const std::unique_ptr<Part[]>& parts, int count, int index)
{
    if (index < 0 || index >= count) {
        throw std::out_of_range("There is no part " + std::to_string(index) +
                                "; number of parts: " + std::to_string(count));
    }
    return parts[static_cast<std::size_t>(index)];
}

} // namespace

std::vector<float> GeometryValues::box() const
{
    return visit(m_record, [](const auto& record) {
        const auto& box = record.m_box;
        std::vector<float> values = {box.m_xMin, box.m_xMax};
        if constexpr (requires { box.m_yMin; }) {
            values.insert(values.end(), {box.m_yMin, box.m_yMax});
        }
        if constexpr (requires { box.m_zMin; }) {
            values.insert(values.end(), {box.m_zMin, box.m_zMax});
        }
        return values;
    });
}

int GeometryValues::numPoints() const
{
    return visit(m_record, [](const auto& record) { return record.m_numPoints; });
}

GeometryValues::FloatArrays GeometryValues::points() const
{
    return visit(m_record, [](const auto& record) { return transposed<float>(record.m_points, record.m_numPoints); });
}

std::vector<std::vector<double>> GeometryValues::snapPoints() const
{
    return visit(m_record, [](const auto& record) {
        std::vector<std::vector<double>> axes;
        if constexpr (requires { record.m_snapX; }) {
            axes.push_back(record.m_snapX);
        }
        if constexpr (requires { record.m_snapY; }) {
            axes.push_back(record.m_snapY);
        }
        return axes;
    });
}

int GeometryValues::numCurves() const
{
    return visit(m_record, [](const auto& record) { return record.m_numCurves; });
}

GeometryValues::FloatArrays GeometryValues::curve(int index) const
{
    return visit(m_record, [index](const auto& record) {
        const auto& curve = at(record.m_curves, record.m_numCurves, index);
        return transposed<float>(curve.m_vertices, curve.m_numVertices);
    });
}

int GeometryValues::numSheets() const
{
    return visit(m_record, [](const auto& record) {
        if constexpr (requires { record.m_numSheets; }) {
            return record.m_numSheets;
        } else {
            return 0;
        }
    });
}

GeometryValues::FloatArrays GeometryValues::sheet(int index) const
{
    return visit(m_record, [index](const auto& record) -> FloatArrays {
        if constexpr (requires { record.m_sheets; }) {
            const auto& sheet = at(record.m_sheets, record.m_numSheets, index);
            return transposed<float>(sheet.m_vertices, sheet.m_numVertices);
        } else {
            throw std::out_of_range("There are no sheets.");
        }
    });
}

GeometryValues::IntArrays GeometryValues::triangles(int index) const
{
    return visit(m_record, [index](const auto& record) -> IntArrays {
        if constexpr (requires { record.m_sheets; }) {
            const auto& sheet = at(record.m_sheets, record.m_numSheets, index);
            return transposed<int>(sheet.m_triangles, sheet.m_numTriangles);
        } else {
            throw std::out_of_range("There are no sheets.");
        }
    });
}

int GeometryValues::numSubdomains() const
{
    return visit(m_record, [](const auto& record) {
        if constexpr (requires { record.m_numSubdomains; }) {
            return record.m_numSubdomains;
        } else {
            return 0;
        }
    });
}

GeometryValues::IntArrays GeometryValues::relation(int index) const
{
    return visit(m_record, [index](const auto& record) {
        std::array<const AdjacencyRecord*, 12> relations{};
        if constexpr (requires { record.m_subdomainToSheet; }) {
            relations[0] = &record.m_subdomainToSheet;
            relations[1] = &record.m_subdomainToLine;
            relations[2] = &record.m_subdomainToPoint;
            relations[8] = &record.m_pointToSubdomain;
            relations[10] = &record.m_lineToSubdomain;
            relations[11] = &record.m_sheetToSubdomain;
        }
        if constexpr (requires { record.m_sheetToLine; }) {
            relations[3] = &record.m_sheetToLine;
            relations[4] = &record.m_sheetToPoint;
            relations[7] = &record.m_pointToSheet;
            relations[9] = &record.m_lineToSheet;
        }
        if constexpr (requires { record.m_lineToPoint; }) {
            relations[5] = &record.m_lineToPoint;
            relations[6] = &record.m_pointToLine;
        }
        const AdjacencyRecord* found = relations.at(static_cast<std::size_t>(index));
        return found != nullptr ? rowsOf(*found) : IntArrays();
    });
}

} // namespace vxproducer
