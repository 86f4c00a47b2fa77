#include "interaction/clickpick.h"

#include "graphics3d/geometry/scenegraphdrawobject.h"
#include "graphics3d/geometry/scenegraphphysicsobject.h"
#include "graphics3d/picking/canvaspicksettings.h"
#include "graphics3d/picking/pickedobjectcollection.h"
#include "graphics3d/scene/scene.h"
#include "interaction/sceneobjects.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <set>
#include <utility>

namespace vxinteraction {
namespace {

using namespace vxgraphics3d;

/// A sheet that is not further from the middle of a pixel covers some of it.
constexpr double c_halfPixel = 0.5;

constexpr int c_allKinds =
    CanvasPickSettings::PickMaskSheets | CanvasPickSettings::PickMaskLines | CanvasPickSettings::PickMaskPoints;

/// A part or object that a click touches.
struct Hit {
    PickedObject object;
    /// Whether it covers the pixel under the pointer.
    bool isCovering = false;
    double way = 0.0;

    bool isBefore(const Hit& other) const { return isCovering != other.isCovering ? isCovering : way < other.way; }
};

/// Adds the parts of one object after the other.
class ClickPick {
public:
    ClickPick(const ClickView& view, const SelectionFrustrum& frustum, const CanvasPickSettings& settings)
        : m_view(view), m_frustum(frustum), m_settings(settings)
    {}

    void addFrom(const SceneGraphDrawObject& object)
    {
        m_asked.emplace(false, object.getId());
        if (!isReachable(object.getObjectPart())) {
            return;
        }
        const int id = object.getId();
        std::optional<Hit> whole;
        addPartsOf(object.getParts(), m_settings.pickMask, [&](PartType type, int index, Hit hit) {
            if (m_settings.pickTarget == CanvasPickSettings::PickObject) {
                whole = !whole || hit.isBefore(*whole) ? hit : whole;
            } else {
                hit.object.setPickedObjectSolidPart(id, type, index);
                m_hits.push_back(hit);
            }
        });
        if (whole) {
            setObject(whole->object, object.getParts().getHighestLevel(), id);
            m_hits.push_back(*whole);
        }
    }

    void addFrom(const SceneGraphPhysicsObject& object)
    {
        const int id = object.getId();
        m_asked.emplace(true, id);
        const auto add = [&](PartType type, int index, Hit hit) {
            hit.object.setPickedObjectPhysics(id, type, index);
            m_hits.push_back(hit);
        };
        if (m_settings.pickTarget == CanvasPickSettings::PickSubdomain) {
            addSubdomains(object.getParts(), [&](int index, const Hit& hit) { add(PartTypeSubdomain, index, hit); });
        } else if (m_settings.pickTarget != CanvasPickSettings::PickObject) {
            addPartsOf(object.getParts(), c_allKinds, add);
        }
    }

    /// Whether a result of the scene is of an object that has been asked here already.
    bool hasAsked(const PickedObject& object) const
    {
        const PickedObject::ObjectType type = object.getObjectType();
        const bool isPhysics = type == PickedObject::PickedPhysics;
        return (isPhysics || (type >= PickedObject::PickedSolid && type <= PickedObject::PickedPoint)) &&
               m_asked.contains({isPhysics, object.getObjectId()});
    }

    std::vector<PickedObject> sorted()
    {
        std::ranges::stable_sort(m_hits, [](const Hit& a, const Hit& b) { return a.isBefore(b); });
        std::vector<PickedObject> objects;
        objects.reserve(m_hits.size());
        for (const Hit& hit : m_hits) {
            objects.push_back(hit.object);
        }
        return objects;
    }

private:
    static bool isReachable(const SelectablePart& part)
    {
        return (part.getMarkFlags() & SelectablePart::c_unreachable) == 0;
    }

    static void setObject(PickedObject& object, ObjectPartType highest, int id)
    {
        switch (highest) {
        case PartPoint:
            return object.setPickedObjectPoint(id);
        case PartLine:
            return object.setPickedObjectCurve(id);
        case PartSheet:
            return object.setPickedObjectFace(id);
        default:
            return object.setPickedObjectSolid(id);
        }
    }

    /// Adds the parts of the kind that is looked for, or of all kinds in the mask if that is whole objects.
    template <class Add>
    void addPartsOf(const ObjectParts& parts, int mask, Add add)
    {
        const auto isWanted = [&](CanvasPickSettings::PickTarget target, CanvasPickSettings::PickMask bit) {
            return (m_settings.pickTarget == target || m_settings.pickTarget == CanvasPickSettings::PickObject) &&
                   (mask & bit) != 0;
        };
        if (isWanted(CanvasPickSettings::PickPoint, CanvasPickSettings::PickMaskPoints)) {
            addParts(parts.getPoints(), [&](int i, const Hit& hit) { add(PartTypePoint, i, hit); });
        }
        if (isWanted(CanvasPickSettings::PickLine, CanvasPickSettings::PickMaskLines)) {
            addParts(parts.getLines(), [&](int i, const Hit& hit) { add(PartTypeLine, i, hit); });
        }
        if (isWanted(CanvasPickSettings::PickSheet, CanvasPickSettings::PickMaskSheets)) {
            addParts(parts.getSheets(), [&](int i, const Hit& hit) { add(PartTypeSheet, i, hit); });
        }
    }

    /// A subdomain is touched where the first of its sheets is.
    template <class Add>
    void addSubdomains(const ObjectParts& parts, Add add)
    {
        std::vector<std::optional<Hit>> touched(static_cast<std::size_t>(parts.getSheets().getNumParts()));
        addParts(parts.getSheets(), [&](int i, const Hit& hit) { touched[static_cast<std::size_t>(i)] = hit; });
        for (int i = 0; i < parts.getSubdomains().getNumParts(); ++i) {
            const Subdomain& subdomain = parts.getSubdomains().getPart(i);
            std::optional<Hit> first;
            for (const int sheet : parts.getAdjacents(PartSolid, PartSheet).of(i)) {
                const std::optional<Hit>& hit = touched[static_cast<std::size_t>(sheet)];
                first = hit && (!first || hit->isBefore(*first)) ? hit : first;
            }
            if (first && subdomain.hasGeometry() && isReachable(subdomain)) {
                add(i, *first);
            }
        }
    }

    template <class Parts, class Add>
    void addParts(const Parts& parts, Add add)
    {
        for (int i = 0; i < parts.getNumParts(); ++i) {
            if (isReachable(parts.getPart(i))) {
                if (const std::optional<Hit> hit = touch(parts.getPart(i))) {
                    add(i, *hit);
                }
            }
        }
    }

    bool mayTouch(const VertexExtent& extent) const
    {
        const Vector3f min = extent.getMin();
        const Vector3f max = extent.getMax();
        return !extent.isKnown() || m_frustum.enclosesBoundingBox(BoundingBox(min.x, max.x, min.y, max.y, min.z,
                                                                              max.z)) != SelectionFrustrum::Outside;
    }

    std::optional<Hit> touch(const Point& point) const
    {
        const std::optional<Touch> touched =
            point.hasPosition() ? m_view.touchPoint(m_view.project(point.getPosition())) : std::nullopt;
        return touched ? std::optional(Hit{{}, false, touched->way}) : std::nullopt;
    }

    /// By the point of the line that is nearest to the pointer in the picture.
    std::optional<Hit> touch(const Line& line) const
    {
        if (!line.hasGeometry() || !mayTouch(line.getVertexExtent())) {
            return std::nullopt;
        }
        std::optional<Touch> best;
        for (int i = 0; i + 1 < line.getVertices().getNumberOfVertices(); i += 2) {
            const std::optional<Touch> touched = m_view.touchSegment(
                m_view.project(line.getVertices().getCoord(i)), m_view.project(line.getVertices().getCoord(i + 1)));
            best = touched && (!best || touched->pixels < best->pixels) ? touched : best;
        }
        return best ? std::optional(Hit{{}, false, best->way}) : std::nullopt;
    }

    /// By the nearest triangle under the pointer, or else by the side that is nearest to the pointer in the picture.
    std::optional<Hit> touch(const Sheet& sheet)
    {
        if (!sheet.hasGeometry() || !mayTouch(sheet.getVertexExtent())) {
            return std::nullopt;
        }
        m_vertices.clear();
        for (int i = 0; i < sheet.getVertices().getNumberOfVertices(); ++i) {
            m_vertices.push_back(m_view.project(sheet.getVertices().getCoord(i)));
        }
        std::optional<Touch> best;
        for (int i = 0; i < sheet.getTriangles().getNumElements(0); ++i) {
            int a = 0;
            int b = 0;
            int c = 0;
            sheet.getTriangles().getTriangle(i, a, b, c);
            const auto vertex = [this](int index) -> const ClickView::Vertex& {
                return m_vertices[static_cast<std::size_t>(index)];
            };
            const std::optional<Touch> touched = m_view.touchTriangle(vertex(a), vertex(b), vertex(c));
            if (touched && (!best || touched->pixels < best->pixels ||
                            (touched->pixels == best->pixels && touched->way < best->way))) {
                best = touched;
            }
        }
        return best ? std::optional(Hit{{}, best->pixels <= c_halfPixel, best->way}) : std::nullopt;
    }

    const ClickView& m_view;
    const SelectionFrustrum& m_frustum;
    const CanvasPickSettings& m_settings;
    std::vector<Hit> m_hits;
    /// Whether they are physics objects, and their ids.
    std::set<std::pair<bool, int>> m_asked;
    /// The vertices of the current sheet.
    std::vector<ClickView::Vertex> m_vertices;
};

} // namespace

std::vector<PickedObject> pickTouched(const Scene& scene, const ClickView& view, const SelectionFrustrum& frustum,
                                      const CanvasPickSettings& settings)
{
    ClickPick pick(view, frustum, settings);
    const auto enter = [&](const SceneGraphGroup& group) {
        return frustum.enclosesBoundingBox(group.getBoundingBox()) != SelectionFrustrum::Outside;
    };
    forEachObject(*scene.getRoot(), enter, [&](const SceneGraphObject& object) {
        if (const auto* drawn = dynamic_cast<const SceneGraphDrawObject*>(&object)) {
            pick.addFrom(*drawn);
        } else if (const auto* physics = dynamic_cast<const SceneGraphPhysicsObject*>(&object)) {
            pick.addFrom(*physics);
        }
    });
    std::vector<PickedObject> objects = pick.sorted();
    PickedObjectCollection others;
    scene.getSelection(frustum, settings, others);
    for (int i = 0; i < others.getNumberOfPickedObjects(); ++i) {
        if (!pick.hasAsked(others.getPickedObject(i))) {
            objects.push_back(others.getPickedObject(i));
        }
    }
    return objects;
}

} // namespace vxinteraction
