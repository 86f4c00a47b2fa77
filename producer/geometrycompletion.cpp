#include "producer/geometrycompletion.h"

#include "producer/geometrylimits.h"
#include "producer/relations.h"

#include <algorithm>
#include <cstddef>
#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <tuple>

namespace vxproducer {

using namespace vxdatacarrier;

namespace {

std::tuple<float> keyOf(float at)
{
    return at;
}

std::tuple<float, float> keyOf(const Coords2D& at)
{
    return {at.x, at.y};
}

std::tuple<float, float, float> keyOf(const Coords3D& at)
{
    return {at.x, at.y, at.z};
}

/// Derives line to point from coincident coordinates, unless it or its inverse is there, and completes the pair.
template <class Geometry>
void completeLinesAndPoints(Geometry& record)
{
    if (isAbsent(record.m_lineToPoint) && isAbsent(record.m_pointToLine)) {
        std::map<decltype(keyOf(record.m_points[0])), int> points;
        for (int i = 0; i < record.m_numPoints; ++i) {
            const auto key = keyOf(record.m_points[static_cast<std::size_t>(i)]);
            // NaN has no order.
            if (key == key) {
                points.emplace(key, i);
            }
        }
        RelationRows rows(static_cast<std::size_t>(record.m_numCurves));
        for (std::size_t i = 0; i < rows.size(); ++i) {
            const auto& curve = record.m_curves[i];
            if (!curve.m_isValid || curve.m_numVertices == 0) {
                continue;
            }
            for (const int end : {0, curve.m_numVertices - 1}) {
                const auto key = keyOf(curve.m_vertices[static_cast<std::size_t>(end)]);
                const auto found = key == key ? points.find(key) : points.end();
                // A closed curve has one point.
                if (found != points.end() && (rows[i].empty() || rows[i][0] != found->second)) {
                    rows[i].push_back(found->second);
                }
            }
        }
        record.m_lineToPoint = toRelation(rows);
    }
    completePair(record.m_lineToPoint, record.m_pointToLine, record.m_numCurves, record.m_numPoints);
}

template <class Geometry>
void completeSheets(Geometry& record)
{
    completePair(record.m_sheetToLine, record.m_lineToSheet, record.m_numSheets, record.m_numCurves);
    if (isAbsent(record.m_sheetToPoint) && isAbsent(record.m_pointToSheet) && !isAbsent(record.m_sheetToLine)) {
        record.m_sheetToPoint = join(record.m_sheetToLine, record.m_lineToPoint, record.m_numPoints);
    }
    completePair(record.m_sheetToPoint, record.m_pointToSheet, record.m_numSheets, record.m_numPoints);
}

/// Refuses domains that are out of range, and makes the subdomains if there are none.
void completeSubdomains(Geometry3D& record)
{
    // Without a given number, each domain has a sheet, which has two sides.
    const bool isGiven = record.m_numSubdomains > 0;
    const long numDomains = isGiven ? record.m_numSubdomains : 2L * record.m_numSheets;
    int last = -1;
    for (int i = 0; i < record.m_numSheets; ++i) {
        const Sheet3D& sheet = record.m_sheets[static_cast<std::size_t>(i)];
        const auto check = [&](int domain, const char* field) {
            if (domain < -1 || domain >= numDomains) {
                throw std::out_of_range("sheet " + std::to_string(i) + ": " + field + " is " + std::to_string(domain) +
                                        (isGiven
                                             ? "; number of subdomains: " + std::to_string(numDomains)
                                             : ", but " + std::to_string(record.m_numSheets) +
                                                   " sheets bound at most " + std::to_string(numDomains) + " domains"));
            }
            last = std::max(last, domain);
        };
        check(sheet.m_upDomain, "upDomain");
        check(sheet.m_downDomain, "downDomain");
    }
    if (!isGiven && last >= 0) {
        record.m_subdomains = std::make_unique<BoundingBox3D[]>(static_cast<std::size_t>(last) + 1);
        record.m_numSubdomains = last + 1;
    }
}

AdjacencyRecord domainsOfSheets(const Geometry3D& record)
{
    RelationRows rows(static_cast<std::size_t>(record.m_numSheets));
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const Sheet3D& sheet = record.m_sheets[i];
        for (const int domain : {sheet.m_upDomain, sheet.m_downDomain}) {
            if (domain >= 0 && (rows[i].empty() || rows[i][0] != domain)) {
                rows[i].push_back(domain);
            }
        }
    }
    return toRelation(rows);
}

void completeSubdomainRelations(Geometry3D& record)
{
    if (record.m_numSubdomains == 0) {
        return;
    }
    if (isAbsent(record.m_subdomainToSheet) && isAbsent(record.m_sheetToSubdomain)) {
        record.m_sheetToSubdomain = domainsOfSheets(record);
    }
    completePair(record.m_subdomainToSheet, record.m_sheetToSubdomain, record.m_numSubdomains, record.m_numSheets);
    const auto derive = [&](AdjacencyRecord& fromSubdomain, AdjacencyRecord& toSubdomain,
                            const AdjacencyRecord& fromSheet, int numParts) {
        if (isAbsent(fromSubdomain) && isAbsent(toSubdomain) && !isAbsent(record.m_subdomainToSheet) &&
            !isAbsent(fromSheet)) {
            fromSubdomain = join(record.m_subdomainToSheet, fromSheet, numParts);
        }
        completePair(fromSubdomain, toSubdomain, record.m_numSubdomains, numParts);
    };
    derive(record.m_subdomainToLine, record.m_lineToSubdomain, record.m_sheetToLine, record.m_numCurves);
    derive(record.m_subdomainToPoint, record.m_pointToSubdomain, record.m_sheetToPoint, record.m_numPoints);
}

void completeSubdomainBoxes(Geometry3D& record)
{
    const RelationRows sheets = rowsOf(record.m_subdomainToSheet);
    for (std::size_t i = 0; i < sheets.size(); ++i) {
        GeometryLimits limits;
        for (const int sheet : sheets[i]) {
            if (record.m_sheets[static_cast<std::size_t>(sheet)].m_isValid) {
                limits.widen(record.m_sheets[static_cast<std::size_t>(sheet)].m_box);
            }
        }
        limits.fill(record.m_subdomains[i]);
    }
}

} // namespace

void complete(Geometry1D& record)
{
    completeBoxes(record);
    completeLinesAndPoints(record);
    if (record.m_snapX.empty()) {
        record.m_snapX.assign(record.m_points.get(), record.m_points.get() + record.m_numPoints);
    }
    record.m_isValid = true;
}

void complete(Geometry2D& record)
{
    completeBoxes(record);
    completeLinesAndPoints(record);
    completeSheets(record);
    if (record.m_snapX.empty()) {
        std::for_each_n(record.m_points.get(), record.m_numPoints, [&](const Coords2D& point) {
            record.m_snapX.push_back(static_cast<double>(point.x));
            record.m_snapY.push_back(static_cast<double>(point.y));
        });
    }
    record.m_isValid = true;
}

void complete(Geometry3D& record)
{
    completeSubdomains(record);
    completeBoxes(record);
    completeLinesAndPoints(record);
    completeSheets(record);
    completeSubdomainRelations(record);
    completeSubdomainBoxes(record);
    record.m_isValid = true;
}

} // namespace vxproducer
