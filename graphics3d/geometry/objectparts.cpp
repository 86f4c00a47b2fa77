#include "graphics3d/geometry/objectparts.h"

#include "graphics3d/geometry/partfill.h"
#include "graphics3d/geometry/recordchecks.h"
#include "graphics3d/geometry/recordrelations.h"

#include <stdexcept>
#include <string>
#include <utility>

namespace vxgraphics3d {
namespace {

using vxdatacarrier::AdjacencyRecord;

void fillCollections(const vxdatacarrier::Geometry1D& record, ObjectParts& parts)
{
    if (parts.has(PartLine)) {
        fillLines(parts.lines(), record.m_curves.get(), record.m_numCurves);
    }
    fillPoints(parts.points(), record);
}

void fillCollections(const vxdatacarrier::Geometry2D& record, ObjectParts& parts)
{
    if (parts.has(PartSheet)) {
        fillSheets(parts.sheets(), record);
    }
    if (parts.has(PartLine)) {
        fillLines(parts.lines(), record.m_curves.get(), record.m_numCurves);
    }
    fillPoints(parts.points(), record);
}

void fillCollections(const vxdatacarrier::Geometry3D& record, ObjectParts& parts)
{
    if (parts.has(PartSolid)) {
        fillSubdomains(parts.subdomains(), record);
    }
    if (parts.has(PartSheet)) {
        fillSheets(parts.sheets(), record);
    }
    if (parts.has(PartLine)) {
        fillLines(parts.lines(), record.m_curves.get(), record.m_numCurves);
    }
    fillPoints(parts.points(), record);
}

} // namespace

ObjectParts::ObjectParts(ObjectPartType highest)
    : ObjectParts(highest, std::make_unique<LineCollection>(), std::make_unique<SheetCollection>())
{}

ObjectParts::ObjectParts(ObjectPartType highest, std::unique_ptr<LineCollection> lines,
                         std::unique_ptr<SheetCollection> sheets)
    : m_highest(highest), m_sheets(std::move(sheets)), m_lines(std::move(lines))
{}

void ObjectParts::fill(const vxdatacarrier::Geometry1D& record)
{
    fillFrom(record);
}

void ObjectParts::fill(const vxdatacarrier::Geometry2D& record)
{
    fillFrom(record);
}

void ObjectParts::fill(const vxdatacarrier::Geometry3D& record)
{
    fillFrom(record);
}

template <class Record>
void ObjectParts::fillFrom(const Record& record)
{
    checkRecord(record, m_highest);
    reset();
    try {
        fillCollections(record, *this);
        fillRelations(record);
        setAdjacentCounts();
    } catch (...) {
        reset();
        throw;
    }
}

template <class Record>
void ObjectParts::fillRelations(const Record& record)
{
    for (int level = PartPoint; level <= m_highest; ++level) {
        const int numRows = numPartsOf(record, level);
        for (int adjacentLevel = PartPoint; adjacentLevel <= m_highest; ++adjacentLevel) {
            const AdjacencyRecord* relation = relationOf(record, level, adjacentLevel);
            if (relation == nullptr) {
                continue;
            }
            AdjacentParts& adjacents =
                m_adjacents[static_cast<std::size_t>(level)][static_cast<std::size_t>(adjacentLevel)];
            adjacents.allocate(numRows, relation->m_numRows == 0 ? 0 : relation->m_numValues);
            for (int row = 0; row < numRows; ++row) {
                const auto [start, count] =
                    relation->m_numRows == 0 ? AdjacencyRecord::Row() : relation->m_rows[static_cast<std::size_t>(row)];
                const bool isEmpty = start < 0;
                adjacents.setConnection(row, isEmpty ? nullptr : relation->m_values.get() + start, isEmpty ? 0 : count);
            }
        }
    }
}

void ObjectParts::setAdjacentCounts()
{
    for (int level = PartPoint; level <= m_highest; ++level) {
        for (int i = 0; i < getNumParts(level); ++i) {
            int counts[c_numLevels - 1];
            int* count = counts;
            for (int adjacentLevel = PartPoint; adjacentLevel < c_numLevels; ++adjacentLevel) {
                if (adjacentLevel != level) {
                    *count++ = getAdjacents(level, adjacentLevel).getNumberOfAdjacents(i);
                }
            }
            const auto set = [&](auto& parts) { parts.setAdjacentCounts(i, counts[0], counts[1], counts[2]); };
            switch (level) {
            case PartPoint:
                set(m_points);
                break;
            case PartLine:
                set(*m_lines);
                break;
            case PartSheet:
                set(*m_sheets);
                break;
            default:
                set(m_subdomains);
                break;
            }
        }
    }
}

void ObjectParts::reset()
{
    m_subdomains.resetParts();
    m_sheets->resetParts();
    m_lines->resetParts();
    m_points.resetParts();
    for (auto& relations : m_adjacents) {
        for (AdjacentParts& relation : relations) {
            relation.deallocate();
        }
    }
    m_changeId.raise();
}

void ObjectParts::throwNoPart(int level, int index) const
{
    constexpr const char* names[] = {"point", "line", "sheet", "subdomain"};
    throw std::out_of_range(std::string("There is no ") + names[level] + " " + std::to_string(index) + " among " +
                            std::to_string(getNumParts(level)) + ".");
}

const SelectablePart& ObjectParts::getPart(int level, int index) const
{
    switch (level) {
    case PartPoint:
        return m_points.getPart(index);
    case PartLine:
        return m_lines->getPart(index);
    case PartSheet:
        return m_sheets->getPart(index);
    default:
        return m_subdomains.getPart(index);
    }
}

const boost::shared_ptr<SceneObjectLabel>& ObjectParts::getLabel(int level, int index) const
{
    switch (level) {
    case PartPoint:
        return m_points.getPart(index).getLabel();
    case PartLine:
        return m_lines->getPart(index).getLabel();
    case PartSheet:
        return m_sheets->getPart(index).getLabel();
    default:
        return m_subdomains.getPart(index).getLabel();
    }
}

void ObjectParts::getMarkedBoundingBox(BoundingBox& box, int include, int exclude) const
{
    m_sheets->mergeMarkedBoxes(box, include, exclude);
    m_lines->mergeMarkedBoxes(box, include, exclude);
    m_points.mergeMarkedBoxes(box, include, exclude);
}

} // namespace vxgraphics3d
