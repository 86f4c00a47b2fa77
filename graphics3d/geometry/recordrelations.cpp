#include "graphics3d/geometry/recordrelations.h"

#include "graphics3d/geometry/objectparttype.h"

#include <cstddef>

namespace vxgraphics3d {
namespace {

using vxdatacarrier::AdjacencyRecord;
using vxdatacarrier::Geometry1D;
using vxdatacarrier::Geometry2D;
using vxdatacarrier::Geometry3D;

/// Relations by the level of their rows, then by that of their values.
template <class Record>
using RelationTable = AdjacencyRecord Record::*[4][4];

constexpr RelationTable<Geometry1D> c_relations1d = {
    {nullptr, &Geometry1D::m_pointToLine},
    {&Geometry1D::m_lineToPoint},
};

constexpr RelationTable<Geometry2D> c_relations2d = {
    {nullptr, &Geometry2D::m_pointToLine, &Geometry2D::m_pointToSheet},
    {&Geometry2D::m_lineToPoint, nullptr, &Geometry2D::m_lineToSheet},
    {&Geometry2D::m_sheetToPoint, &Geometry2D::m_sheetToLine},
};

constexpr RelationTable<Geometry3D> c_relations3d = {
    {nullptr, &Geometry3D::m_pointToLine, &Geometry3D::m_pointToSheet, &Geometry3D::m_pointToSubdomain},
    {&Geometry3D::m_lineToPoint, nullptr, &Geometry3D::m_lineToSheet, &Geometry3D::m_lineToSubdomain},
    {&Geometry3D::m_sheetToPoint, &Geometry3D::m_sheetToLine, nullptr, &Geometry3D::m_sheetToSubdomain},
    {&Geometry3D::m_subdomainToPoint, &Geometry3D::m_subdomainToLine, &Geometry3D::m_subdomainToSheet},
};

template <class Record>
const AdjacencyRecord* find(const Record& record, const RelationTable<Record>& table, int level, int adjacentLevel)
{
    const auto member = table[static_cast<std::size_t>(level)][static_cast<std::size_t>(adjacentLevel)];
    return member != nullptr ? &(record.*member) : nullptr;
}

} // namespace

const AdjacencyRecord* relationOf(const Geometry1D& record, int level, int adjacentLevel)
{
    return find(record, c_relations1d, level, adjacentLevel);
}

const AdjacencyRecord* relationOf(const Geometry2D& record, int level, int adjacentLevel)
{
    return find(record, c_relations2d, level, adjacentLevel);
}

const AdjacencyRecord* relationOf(const Geometry3D& record, int level, int adjacentLevel)
{
    return find(record, c_relations3d, level, adjacentLevel);
}

int numPartsOf(const Geometry1D& record, int level)
{
    return level == PartPoint ? record.m_numPoints : level == PartLine ? record.m_numCurves : 0;
}

int numPartsOf(const Geometry2D& record, int level)
{
    const int counts[] = {record.m_numPoints, record.m_numCurves, record.m_numSheets, 0};
    return counts[level];
}

int numPartsOf(const Geometry3D& record, int level)
{
    const int counts[] = {record.m_numPoints, record.m_numCurves, record.m_numSheets, record.m_numSubdomains};
    return counts[level];
}

} // namespace vxgraphics3d
