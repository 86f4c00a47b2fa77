#include "graphics3d/geometry/scenegraphdrawobject.h"

#include "datacarrier/geometry1d.h"
#include "datacarrier/geometry2d.h"
#include "graphics3d/geometry/partmarking.h"
#include "graphics3d/geometry/partpicking.h"
#include "graphics3d/parts/markcounts.h"

#include <algorithm>
#include <cstddef>

namespace vxgraphics3d {
namespace {

/// Which index below a number has the highest value above 0, the first of equals, or -1.
template <class ValueOf>
int indexOfHighest(int number, ValueOf valueOf)
{
    int best = -1;
    float highest = 0.0f;
    for (int index = 0; index < number; ++index) {
        const float value = valueOf(index);
        if (value > highest) {
            highest = value;
            best = index;
        }
    }
    return best;
}

template <class Parts>
int indexOfLargest(const Parts& parts)
{
    return indexOfHighest(parts.getNumParts(), [&](int i) { return parts.getPart(i).getBoundingBox().getL1Norm(); });
}

} // namespace

SceneGraphDrawObject::SceneGraphDrawObject(ObjectType type, int id, ObjectPartType highest)
    : SceneGraphObject(type), m_id(id), m_parts(highest)
{}

bool SceneGraphDrawObject::isValid() const
{
    return m_parts.getNumParts(std::min<int>(m_parts.getHighestLevel(), PartSheet)) > 0;
}

void SceneGraphDrawObject::resetObject()
{
    forgetParts();
    m_parts.reset();
}

void SceneGraphDrawObject::forgetParts()
{
    m_labelledPart = -1;
    m_objectPart = SelectablePart(PartSolid);
}

void SceneGraphDrawObject::mark(MarkingType action, bool on)
{
    PartMarking marking(m_parts);
    marking.markAll(m_parts.getHighestLevel(), action, on);
    if (isSolid()) {
        marking.markAll(PartSheet, action, on);
    }
    setObjectMark(action, on);
    if (action == MarkingHidden) {
        markChanged();
    }
}

void SceneGraphDrawObject::mark(ObjectPartType part, int index, MarkingType action, bool on)
{
    if (!m_parts.has(part)) {
        return;
    }
    PartMarking(m_parts).mark(part, index, action, on);
    if (action == MarkingHidden) {
        markChanged();
    }
}

void SceneGraphDrawObject::unmarkAll(ObjectPartType part, MarkingType action)
{
    PartMarking(m_parts).unmarkAll(part, action);
    setObjectMark(action, false);
    if (action == MarkingHidden) {
        markChanged();
    }
}

/// Only a solid has marks as a whole, and only those that keep it from being picked.
void SceneGraphDrawObject::setObjectMark(MarkingType action, bool on)
{
    if (!isSolid()) {
        return;
    }
    if (action == MarkingHidden) {
        MarkCounts().setMark(m_objectPart, MarkHidden, on);
    } else if (action == MarkingUnpickable) {
        MarkCounts::setUnpickableMark(m_objectPart, on);
    }
}

void SceneGraphDrawObject::fillSnapVertices(const vxdatacarrier::Geometry1D& record)
{
    setSnapVertices(record.m_snapX, nullptr);
}

void SceneGraphDrawObject::fillSnapVertices(const vxdatacarrier::Geometry2D& record)
{
    setSnapVertices(record.m_snapX, &record.m_snapY);
}

void SceneGraphDrawObject::setSnapVertices(const std::vector<double>& x, const std::vector<double>* y)
{
    std::vector<SnapVertex>& vertices = snapVertices();
    vertices.clear();
    vertices.reserve(x.size());
    for (std::size_t i = 0; i < x.size(); ++i) {
        vertices.push_back({x[i], y != nullptr ? (*y)[i] : 0.0, 0.0, getNodeId(), 0, static_cast<int>(i)});
    }
    updateNodeSnapVertices();
}

void SceneGraphDrawObject::setLabel(const std::string& name)
{
    const vxbase::UString text(name);
    int part = -1;
    bool isLabelled = false;
    switch (m_parts.getHighestLevel()) {
    case PartPoint:
        part = m_parts.points().getNumParts() > 0 ? 0 : -1;
        isLabelled = part >= 0 && m_parts.points().setPartLabel(part, text);
        break;
    case PartLine: {
        const LineCollection& lines = m_parts.getLines();
        part = indexOfHighest(lines.getNumParts(), [&](int i) { return lines.getPart(i).getLength(); });
        isLabelled = part >= 0 && m_parts.lines().setPartLabel(part, text);
        break;
    }
    case PartSheet:
        part = indexOfLargest(m_parts.getSheets());
        isLabelled = part >= 0 && m_parts.sheets().setPartLabel(part, text);
        break;
    default:
        part = indexOfLargest(m_parts.getSubdomains());
        isLabelled = part >= 0 && setSubdomainLabel(part, text);
        break;
    }
    if (isLabelled) {
        m_labelledPart = part;
    }
}

/// A subdomain has its label on the largest of its sheets.
bool SceneGraphDrawObject::setSubdomainLabel(int subdomain, const vxbase::UString& text)
{
    const SheetCollection& sheets = m_parts.getSheets();
    const auto adjacent = m_parts.getAdjacents(PartSolid, PartSheet).of(subdomain);
    const auto sheetAt = [&](int i) -> const auto&
    {
        return sheets.getPart(adjacent[static_cast<std::size_t>(i)]);
    };
    const int largest = indexOfHighest(static_cast<int>(adjacent.size()),
                                       [&](int i) { return sheetAt(i).getBoundingBox().getL1Norm(); });
    Vector3f position;
    return largest >= 0 && sheetAt(largest).computeLabelPosition(position) &&
           m_parts.subdomains().setPartLabel(subdomain, text, position);
}

void SceneGraphDrawObject::getSelection(const SelectionFrustrum& frustrum, const CanvasPickSettings& settings,
                                        PickedObjectCollection& result, bool inside) const
{
    if ((m_objectPart.getMarkFlags() & SelectablePart::c_unreachable) == 0) {
        pickDrawObject(m_parts, m_id, frustrum, settings, result, inside);
    }
}

void SceneGraphDrawObject::getMarkedBoundingBox(BoundingBox& box, int include, int exclude) const
{
    // What a marked subdomain or sheet of a solid touches belongs to it.
    const bool isWidened = isSolid() && (include & static_cast<int>(MarkPrimary)) != 0;
    m_parts.getMarkedBoundingBox(box, isWidened ? include | static_cast<int>(MarkPrimaryAdjacent) : include, exclude);
}

} // namespace vxgraphics3d
