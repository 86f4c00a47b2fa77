#include "producer/projectionbuilding.h"

#include "producer/geometryconversion.h"
#include "producer/geometrylimits.h"

#include <algorithm>
#include <cstddef>
#include <memory>
#include <string>

namespace vxproducer {

using namespace vxdatacarrier;

namespace {

std::unique_ptr<int[]> toKinds(const std::vector<int>& kinds, int count, const std::string& name,
                               const std::string& parts)
{
    if (kinds.size() != static_cast<std::size_t>(count)) {
        refuse(name + " has " + std::to_string(kinds.size()) + " entries for " + std::to_string(count) + " " + parts);
    }
    auto copy = std::make_unique<int[]>(kinds.size());
    std::copy(kinds.begin(), kinds.end(), copy.get());
    return copy;
}

} // namespace

RenderDrawProj2D buildProjection(const ProjectionParts& parts)
{
    RenderDrawProj2D record;
    record.m_id = parts.id;
    record.m_name = parts.name;
    if (!parts.points.empty()) {
        record.m_points = toCoords<Coords2D>(parts.points, "points", record.m_numPoints);
        record.m_snapX = parts.points[0];
        record.m_snapY = parts.points[1];
    }
    record.m_pointKinds = toKinds(parts.pointKinds, record.m_numPoints, "pointKinds", "points");
    fillCurves(record, parts.curves);
    record.m_curveKinds = toKinds(parts.curveKinds, record.m_numCurves, "curveKinds", "curves");
    completeBoxes(record);
    record.m_isValid = true;
    return record;
}

} // namespace vxproducer
