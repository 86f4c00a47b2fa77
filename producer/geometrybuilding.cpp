#include "producer/geometrybuilding.h"

#include "producer/geometrycompletion.h"
#include "producer/geometryconversion.h"
#include "producer/recordnormals.h"
#include "producer/relations.h"

#include <algorithm>
#include <cstddef>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>

namespace vxproducer {

using namespace vxdatacarrier;

namespace {

using Rows = GeometryParts::IntArrays;

void fillVertices(Sheet2D& sheet, const GeometryParts::Sheet& parts, const std::string& name)
{
    sheet.m_vertices = toCoords<Coords2D>(parts.coordinates, name + ": coordinates", sheet.m_numVertices);
}

void fillVertices(Sheet3D& sheet, const GeometryParts::Sheet& parts, const std::string& name)
{
    const auto coords = toCoords<Coords3D>(parts.coordinates, name + ": coordinates", sheet.m_numVertices);
    const GeometryParts::FloatArrays normals =
        parts.normals.empty() ? normalsOf(parts.coordinates, parts.triangles) : parts.normals;
    const int numNormals = requireArrays(normals, 3, name + ": normals");
    if (numNormals != sheet.m_numVertices) {
        refuse(name + ": normals have " + std::to_string(numNormals) + " entries for " +
               std::to_string(sheet.m_numVertices) + " vertices");
    }
    sheet.m_vertices = std::make_unique<CoordsNormal3D[]>(static_cast<std::size_t>(sheet.m_numVertices));
    for (std::size_t i = 0; i < static_cast<std::size_t>(sheet.m_numVertices); ++i) {
        sheet.m_vertices[i] = {coords[i].x, coords[i].y, coords[i].z, normals[0][i], normals[1][i], normals[2][i]};
    }
}

/// Fills a sheet, unless it is one without geometry.
template <class Sheet>
void fillSheet(Sheet& sheet, const GeometryParts::Sheet& parts, const std::string& name)
{
    if (parts.coordinates.empty()) {
        if (!parts.triangles.empty() || !parts.normals.empty()) {
            refuse(name + " has no coordinates");
        }
    } else {
        // Triangles first, because normals are computed from their corners.
        const auto numVertices = static_cast<int>(parts.coordinates[0].size());
        sheet.m_triangles =
            toElements<Triangle>(parts.triangles, numVertices, name + ": triangles", sheet.m_numTriangles);
        fillVertices(sheet, parts, name);
        sheet.m_isValid = true;
    }
    if constexpr (requires { sheet.m_upDomain; }) {
        sheet.m_upDomain = parts.upDomain;
        sheet.m_downDomain = parts.downDomain;
    } else if (!parts.normals.empty() || parts.upDomain != -1 || parts.downDomain != -1) {
        refuse(name + ": only sheets in space have normals and domains");
    }
}

/// Sets a relation, if it is given.
/// @param rowKind,kind the names of the parts of the first and of the second kind in messages
void setRelation(AdjacencyRecord& relation, const std::optional<Rows>& rows, int numRows, int numParts,
                 const std::string& name, const char* rowKind, const char* kind)
{
    if (!rows) {
        return;
    }
    if (rows->size() != static_cast<std::size_t>(numRows)) {
        refuse(name + " has " + std::to_string(rows->size()) + " rows for " + std::to_string(numRows) + " " + rowKind +
               (numRows == 1 ? "" : "s"));
    }
    for (std::size_t row = 0; row < rows->size(); ++row) {
        for (std::size_t i = 0; i < (*rows)[row].size(); ++i) {
            static_cast<void>(indexAt(*rows, row, i, numParts, name, kind));
        }
    }
    relation = toRelation(*rows);
}

void refuseRelation(const std::optional<Rows>& rows, const char* name, const char* reason)
{
    if (rows) {
        refuse(std::string(name) + " is given, but " + reason);
    }
}

void refuseSubdomains(const GeometryParts& parts)
{
    constexpr const char* reason = "only geometry in space has subdomains";
    refuseRelation(parts.subdomainToSheet, "subdomainToSheet", reason);
    refuseRelation(parts.subdomainToLine, "subdomainToLine", reason);
    refuseRelation(parts.subdomainToPoint, "subdomainToPoint", reason);
}

/// Fills what records of all dimensions have.
template <class Geometry>
void fillCurvesAndPoints(Geometry& record, const GeometryParts& parts)
{
    record.m_id = parts.id;
    record.m_name = parts.name;
    if (!parts.points.empty()) {
        using Coords = typename decltype(record.m_points)::element_type;
        record.m_points = toCoords<Coords>(parts.points, "points", record.m_numPoints);
    }
    fillCurves(record, parts.curves);
    setRelation(record.m_lineToPoint, parts.lineToPoint, record.m_numCurves, record.m_numPoints, "lineToPoint", "curve",
                "point");
}

template <class Geometry>
void fillSheets(Geometry& record, const GeometryParts& parts)
{
    record.m_numSheets = countOf(parts.sheets, "sheets");
    record.m_sheets = std::make_unique<typename decltype(record.m_sheets)::element_type[]>(parts.sheets.size());
    for (std::size_t i = 0; i < parts.sheets.size(); ++i) {
        fillSheet(record.m_sheets[i], parts.sheets[i], "sheet " + std::to_string(i));
    }
    setRelation(record.m_sheetToLine, parts.sheetToLine, record.m_numSheets, record.m_numCurves, "sheetToLine", "sheet",
                "curve");
    setRelation(record.m_sheetToPoint, parts.sheetToPoint, record.m_numSheets, record.m_numPoints, "sheetToPoint",
                "sheet", "point");
}

template <class Value>
std::unique_ptr<Value[]> copyArray(const std::unique_ptr<Value[]>& values, int count)
{
    auto copy = std::make_unique<Value[]>(static_cast<std::size_t>(count));
    std::copy_n(values.get(), count, copy.get());
    return copy;
}

} // namespace

void fillGeometry(Geometry1D& record, const GeometryParts& parts)
{
    constexpr const char* reason = "geometry on an axis has no sheets";
    if (!parts.sheets.empty()) {
        refuse(std::string("sheets are given, but ") + reason);
    }
    refuseRelation(parts.sheetToLine, "sheetToLine", reason);
    refuseRelation(parts.sheetToPoint, "sheetToPoint", reason);
    refuseSubdomains(parts);
    fillCurvesAndPoints(record, parts);
    if (!parts.points.empty()) {
        record.m_snapX = parts.points[0];
    }
    complete(record);
}

void fillGeometry(Geometry2D& record, const GeometryParts& parts)
{
    refuseSubdomains(parts);
    fillCurvesAndPoints(record, parts);
    fillSheets(record, parts);
    if (!parts.points.empty()) {
        record.m_snapX = parts.points[0];
        record.m_snapY = parts.points[1];
    }
    complete(record);
}

void fillGeometry(Geometry3D& record, const GeometryParts& parts)
{
    fillCurvesAndPoints(record, parts);
    fillSheets(record, parts);
    for (const auto* rows : {&parts.subdomainToSheet, &parts.subdomainToLine, &parts.subdomainToPoint}) {
        if (*rows) {
            record.m_numSubdomains = countOf(**rows, "subdomains");
        }
    }
    record.m_subdomains = std::make_unique<BoundingBox3D[]>(static_cast<std::size_t>(record.m_numSubdomains));
    setRelation(record.m_subdomainToSheet, parts.subdomainToSheet, record.m_numSubdomains, record.m_numSheets,
                "subdomainToSheet", "subdomain", "sheet");
    setRelation(record.m_subdomainToLine, parts.subdomainToLine, record.m_numSubdomains, record.m_numCurves,
                "subdomainToLine", "subdomain", "curve");
    setRelation(record.m_subdomainToPoint, parts.subdomainToPoint, record.m_numSubdomains, record.m_numPoints,
                "subdomainToPoint", "subdomain", "point");
    complete(record);
}

RenderGeom3D buildModel(const Geometry3D& solid, const std::vector<int>& upDomains, const std::vector<int>& downDomains)
{
    const auto requireLength = [&](const std::vector<int>& domains, const char* name) {
        if (domains.size() != static_cast<std::size_t>(solid.m_numSheets)) {
            refuse(std::string(name) + " has " + std::to_string(domains.size()) + " entries for " +
                   std::to_string(solid.m_numSheets) + " sheets");
        }
    };
    requireLength(upDomains, "upDomains");
    requireLength(downDomains, "downDomains");
    RenderGeom3D model;
    model.m_id = solid.m_id;
    model.m_name = solid.m_name;
    model.m_box = solid.m_box;
    model.m_sheets = std::make_unique<Sheet3D[]>(static_cast<std::size_t>(solid.m_numSheets));
    model.m_numSheets = solid.m_numSheets;
    for (std::size_t i = 0; i < upDomains.size(); ++i) {
        const Sheet3D& source = solid.m_sheets[i];
        Sheet3D& sheet = model.m_sheets[i];
        sheet.m_isValid = source.m_isValid;
        sheet.m_box = source.m_box;
        sheet.m_vertices = copyArray(source.m_vertices, source.m_numVertices);
        sheet.m_numVertices = source.m_numVertices;
        sheet.m_triangles = copyArray(source.m_triangles, source.m_numTriangles);
        sheet.m_numTriangles = source.m_numTriangles;
        sheet.m_upDomain = upDomains[i];
        sheet.m_downDomain = downDomains[i];
    }
    model.m_curves = std::make_unique<Curve3D[]>(static_cast<std::size_t>(solid.m_numCurves));
    model.m_numCurves = solid.m_numCurves;
    for (std::size_t i = 0; i < static_cast<std::size_t>(solid.m_numCurves); ++i) {
        const Curve3D& source = solid.m_curves[i];
        Curve3D& curve = model.m_curves[i];
        curve.m_isValid = source.m_isValid;
        curve.m_box = source.m_box;
        curve.m_vertices = copyArray(source.m_vertices, source.m_numVertices);
        curve.m_numVertices = source.m_numVertices;
    }
    model.m_points = copyArray(solid.m_points, solid.m_numPoints);
    model.m_numPoints = solid.m_numPoints;
    model.m_sheetToLine = copyOf(solid.m_sheetToLine);
    model.m_sheetToPoint = copyOf(solid.m_sheetToPoint);
    model.m_lineToPoint = copyOf(solid.m_lineToPoint);
    complete(model);
    return model;
}

} // namespace vxproducer
