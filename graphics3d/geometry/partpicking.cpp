#include "graphics3d/geometry/partpicking.h"

#include "graphics3d/geometry/frustrumtest.h"
#include "graphics3d/picking/canvaspicksettings.h"
#include "graphics3d/picking/pickedobjectcollection.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace vxgraphics3d {
namespace {

bool hasGeometry(const Point& point)
{
    return point.hasPosition();
}

template <class Part>
bool hasGeometry(const Part& part)
{
    return part.hasGeometry();
}

bool isReachable(const SelectablePart& part)
{
    return (part.getMarkFlags() & SelectablePart::c_unreachable) == 0;
}

template <class Part>
bool canAnswer(const Part& part)
{
    return isReachable(part) && hasGeometry(part);
}

/// A frustum, or one that the whole object is known to be inside of.
class Region {
public:
    Region(const SelectionFrustrum& frustrum, bool holdsAll)
        : m_frustrum(frustrum), m_test(frustrum), m_holdsAll(holdsAll)
    {}

    bool holds(const Point& point) const { return m_holdsAll || m_frustrum.isInside(point.getPosition()); }
    bool holds(const Line& line) const
    {
        return m_holdsAll || m_test.isInside(line.getVertexExtent(), line.getVertices());
    }
    bool holds(const Sheet& sheet) const
    {
        return m_holdsAll || m_test.isInside(sheet.getVertexExtent(), sheet.getVertices());
    }

private:
    const SelectionFrustrum& m_frustrum;
    FrustrumTest m_test;
    bool m_holdsAll;
};

template <class Parts, class Add>
void addParts(const Parts& parts, const Region& region, Add add)
{
    for (int i = 0; i < parts.getNumParts(); ++i) {
        const auto& part = parts.getPart(i);
        // In this order, since in a large object most parts are outside and need no further look.
        if (isReachable(part) && region.holds(part) && hasGeometry(part)) {
            add(i);
        }
    }
}

/// Calls `add` with the type and index of each part of the target's kind that can be picked and is inside.
template <class Add>
void addPartsOf(int target, const ObjectParts& parts, const Region& region, Add add)
{
    switch (target) {
    case CanvasPickSettings::PickSheet:
        addParts(parts.getSheets(), region, [&](int i) { add(PartTypeSheet, i); });
        break;
    case CanvasPickSettings::PickLine:
        addParts(parts.getLines(), region, [&](int i) { add(PartTypeLine, i); });
        break;
    case CanvasPickSettings::PickPoint:
        addParts(parts.getPoints(), region, [&](int i) { add(PartTypePoint, i); });
        break;
    default:
        break;
    }
}

/// Whether all pickable parts of a collection are inside.
/// @param ofNone the result if none of them can be picked
template <class Parts>
bool holdsAll(const Parts& parts, const Region& region, bool ofNone)
{
    bool result = ofNone;
    for (int i = 0; i < parts.getNumParts(); ++i) {
        const auto& part = parts.getPart(i);
        if (canAnswer(part)) {
            if (!region.holds(part)) {
                return false;
            }
            result = true;
        }
    }
    return result;
}

bool holdsObject(const ObjectParts& parts, const Region& region)
{
    return holdsAll(parts.getPoints(), region, false) ||
           (parts.has(PartLine) && holdsAll(parts.getLines(), region, true)) ||
           (parts.has(PartSheet) && holdsAll(parts.getSheets(), region, true));
}

void addObject(ObjectPartType highest, int id, PickedObjectCollection& result)
{
    switch (highest) {
    case PartPoint:
        result.addPickedObjectPoint(id);
        break;
    case PartLine:
        result.addPickedObjectCurve(id);
        break;
    case PartSheet:
        result.addPickedObjectFace(id);
        break;
    default:
        result.addPickedObjectSolid(id);
        break;
    }
}

/// The bit of the mask for the parts of a level; the subdomains have none.
int maskOf(int level)
{
    constexpr int bits[] = {CanvasPickSettings::PickMaskPoints, CanvasPickSettings::PickMaskLines,
                            CanvasPickSettings::PickMaskSheets, 0};
    return bits[level];
}

/// The bits of the mask of which one is required for a target, by the parts of an object.
int maskOf(int target, ObjectPartType highest)
{
    switch (target) {
    case CanvasPickSettings::PickObject: {
        int mask = 0;
        for (int level = PartPoint; level <= highest; ++level) {
            mask |= maskOf(level);
        }
        return mask;
    }
    case CanvasPickSettings::PickSheet:
        return CanvasPickSettings::PickMaskSheets;
    case CanvasPickSettings::PickLine:
        return CanvasPickSettings::PickMaskLines;
    case CanvasPickSettings::PickPoint:
        return CanvasPickSettings::PickMaskPoints;
    default:
        return 0;
    }
}

// --- subdomains -----------------------------------------------------------------------------------------------------

/// Calls `add` for each subdomain of an object inside the frustum. One visible sheet makes it pickable.
template <class Add>
void addWholeSubdomains(const ObjectParts& parts, Add add)
{
    for (int i = 0; i < parts.getSubdomains().getNumParts(); ++i) {
        if (!canAnswer(parts.getSubdomains().getPart(i))) {
            continue;
        }
        const auto sheets = parts.getAdjacents(PartSolid, PartSheet).of(i);
        if (std::ranges::any_of(sheets, [&](int sheet) { return canAnswer(parts.getSheets().getPart(sheet)); })) {
            add(i);
        }
    }
}

/// Calls `add` for each subdomain whose pickable sheets are all inside. Each sheet is tested once, however many
/// subdomains it bounds. Marks of the subdomains themselves are not considered.
template <class Add>
void addEnclosedSubdomains(const ObjectParts& parts, const Region& region, Add add)
{
    enum Status : unsigned char { Untested, Inside, Outside };
    std::vector<Status> statuses(static_cast<std::size_t>(parts.getSheets().getNumParts()), Untested);
    const auto isOutside = [&](int index, bool& seen) {
        Status& status = statuses[static_cast<std::size_t>(index)];
        if (status == Untested) {
            const Sheet& sheet = parts.getSheets().getPart(index);
            if (canAnswer(sheet)) {
                status = region.holds(sheet) ? Inside : Outside;
            }
        }
        seen = seen || status == Inside;
        return status == Outside;
    };
    for (int i = 0; i < parts.getSubdomains().getNumParts(); ++i) {
        const auto sheets = parts.getAdjacents(PartSolid, PartSheet).of(i);
        bool seen = false;
        if (std::ranges::none_of(sheets, [&](int sheet) { return isOutside(sheet, seen); }) && seen) {
            add(i);
        }
    }
}

} // namespace

void pickDrawObject(const ObjectParts& parts, int id, const SelectionFrustrum& frustrum,
                    const CanvasPickSettings& settings, PickedObjectCollection& result, bool inside)
{
    const int target = settings.pickTarget;
    if ((settings.pickMask & maskOf(target, parts.getHighestLevel())) == 0) {
        return;
    }
    const Region region(frustrum, inside);
    if (target != CanvasPickSettings::PickObject) {
        addPartsOf(target, parts, region, [&](PartType type, int i) { result.addPickedObjectSolidPart(id, type, i); });
    } else if (inside || holdsObject(parts, region)) {
        addObject(parts.getHighestLevel(), id, result);
    }
}

void pickPhysicsObject(const ObjectParts& parts, int id, const SelectionFrustrum& frustrum,
                       const CanvasPickSettings& settings, PickedObjectCollection& result, bool inside)
{
    const Region region(frustrum, inside);
    const auto add = [&](PartType type, int i) { result.addPickedObjectPhysics(id, type, i); };
    const auto addSubdomain = [&](int i) { add(PartTypeSubdomain, i); };
    if (settings.pickTarget != CanvasPickSettings::PickSubdomain) {
        addPartsOf(settings.pickTarget, parts, region, add);
    } else if (inside) {
        addWholeSubdomains(parts, addSubdomain);
    } else {
        addEnclosedSubdomains(parts, region, addSubdomain);
    }
}

} // namespace vxgraphics3d
