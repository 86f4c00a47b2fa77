#pragma once

#include "base/export.h"
#include "graphics3d/foundation/changenumber.h"
#include "graphics3d/geometry/objectparttype.h"
#include "graphics3d/parts/adjacentparts.h"
#include "graphics3d/parts/linecollection.h"
#include "graphics3d/parts/pointcollection.h"
#include "graphics3d/parts/sheetcollection.h"
#include "graphics3d/parts/subdomaincollection.h"

#include <array>
#include <cstddef>
#include <memory>

namespace vxdatacarrier {
class Geometry1D;
class Geometry2D;
class Geometry3D;
} // namespace vxdatacarrier

namespace vxgraphics3d {

/// What an object of geometry consists of: its parts by level, from points to the highest level that the object has,
/// and for each pair of levels which part touches which. The parts are replaced as a whole by a fill.
class VX_API ObjectParts {
public:
    static constexpr int c_numLevels = 4;

    /// @param highest `PartPoint` to `PartSolid`; collections of higher levels stay empty
    explicit ObjectParts(ObjectPartType highest);
    /// With collections of lines and sheets of a derived class.
    ObjectParts(ObjectPartType highest, std::unique_ptr<LineCollection> lines, std::unique_ptr<SheetCollection> sheets);

    /// Replaces all parts and relations by those of a record, as far as the object has their levels. Relations that the
    /// record leaves out are empty.
    /// @throws std::invalid_argument or std::out_of_range, and changes nothing, if the record is not consistent
    /// @throws std::bad_alloc if the memory does not suffice; there are no parts then
    void fill(const vxdatacarrier::Geometry1D& record);
    void fill(const vxdatacarrier::Geometry2D& record);
    void fill(const vxdatacarrier::Geometry3D& record);
    /// Deletes all parts and relations.
    void reset();

    ObjectPartType getHighestLevel() const { return m_highest; }
    bool has(int level) const { return level >= PartPoint && level <= m_highest; }
    /// The number of parts of a level, from `PartPoint` to `PartSolid`.
    int getNumParts(int level) const;
    /// @throws std::out_of_range if there is no part of the level with that index
    void requirePart(int level, int index) const
    {
        if (index < 0 || index >= getNumParts(level)) {
            throwNoPart(level, index);
        }
    }
    /// A part of a level, from `PartPoint` to `PartSolid`, which must exist.
    const SelectablePart& getPart(int level, int index) const;
    /// The label of a part, which must exist; null if it has none.
    const boost::shared_ptr<SceneObjectLabel>& getLabel(int level, int index) const;
    /// Counts the fills and resets.
    int getChangeId() const { return m_changeId.get(); }

    const SubdomainCollection& getSubdomains() const { return m_subdomains; }
    const SheetCollection& getSheets() const { return *m_sheets; }
    const LineCollection& getLines() const { return *m_lines; }
    const PointCollection& getPoints() const { return m_points; }
    /// For each part of one level the adjacent parts of another. Both are from `PartPoint` to `PartSolid`.
    const AdjacentParts& getAdjacents(int level, int adjacentLevel) const
    {
        return m_adjacents[static_cast<std::size_t>(level)][static_cast<std::size_t>(adjacentLevel)];
    }

    SubdomainCollection& subdomains() { return m_subdomains; }
    SheetCollection& sheets() { return *m_sheets; }
    LineCollection& lines() { return *m_lines; }
    PointCollection& points() { return m_points; }

    /// Merges into `box` the boxes of the sheets, lines and points that have no display flag of `exclude` and, unless
    /// `include` is 0, one of `include`.
    void getMarkedBoundingBox(BoundingBox& box, int include, int exclude) const;

private:
    [[noreturn]] void throwNoPart(int level, int index) const;
    template <class Record>
    void fillFrom(const Record& record);
    template <class Record>
    void fillRelations(const Record& record);
    void setAdjacentCounts();

    ObjectPartType m_highest;
    SubdomainCollection m_subdomains;
    std::unique_ptr<SheetCollection> m_sheets;
    std::unique_ptr<LineCollection> m_lines;
    PointCollection m_points;
    std::array<std::array<AdjacentParts, c_numLevels>, c_numLevels> m_adjacents;
    ChangeNumber m_changeId;
};

inline int ObjectParts::getNumParts(int level) const
{
    switch (level) {
    case PartPoint:
        return m_points.getNumParts();
    case PartLine:
        return m_lines->getNumParts();
    case PartSheet:
        return m_sheets->getNumParts();
    default:
        return m_subdomains.getNumParts();
    }
}

} // namespace vxgraphics3d
