#include "renderer/objects/visibleparts.h"

#include "graphics3d/geometry/scenegraphdrawobject.h"
#include "graphics3d/geometry/scenegraphphysicsobject.h"
#include "renderer/gl/globject.h"
#include "renderer/objects/partpainting.h"

#include <cstddef>
#include <optional>
#include <unordered_map>

namespace vxrenderer {
namespace {

using namespace vxgraphics3d;

/// What is drawn is only compared with the depths during its lifetime.
class DepthComparison {
public:
    DepthComparison()
    {
        glEnable(GL_DEPTH_TEST);
        glDepthFunc(GL_LEQUAL);
        glDepthMask(GL_FALSE);
        glColorMask(GL_FALSE, GL_FALSE, GL_FALSE, GL_FALSE);
    }
    ~DepthComparison()
    {
        glColorMask(GL_TRUE, GL_TRUE, GL_TRUE, GL_TRUE);
        glDepthMask(GL_TRUE);
        glDisable(GL_DEPTH_TEST);
    }
    DepthComparison(const DepthComparison&) = delete;
    DepthComparison& operator=(const DepthComparison&) = delete;
};

/// An object of the scene whose parts can be picked.
struct Pickable {
    const ObjectItem* item;
    const ObjectParts* parts;
    bool isPhysics;
};

using Pickables = std::unordered_multimap<int, Pickable>;

Pickables pickablesOf(std::span<const ObjectItem> objects)
{
    Pickables pickables;
    for (const ObjectItem& item : objects) {
        if (const auto* drawn = dynamic_cast<const SceneGraphDrawObject*>(item.get())) {
            pickables.emplace(drawn->getId(), Pickable{&item, &drawn->getParts(), false});
        } else if (const auto* physics = dynamic_cast<const SceneGraphPhysicsObject*>(item.get())) {
            pickables.emplace(physics->getId(), Pickable{&item, &physics->getParts(), true});
        }
    }
    return pickables;
}

/// The part of a line's samples by which it counts as shown.
constexpr GLuint c_shownPart = 4;

/// The parts of an object, all of one level, by which a result is judged.
struct Shape {
    const Pickable& object;
    ObjectPartType level;
    /// The part, or -1 for all of the level.
    int index;

    void draw(const PaintContext& context) const
    {
        const ObjectParts& parts = *object.parts;
        const PartPainting painting(*object.item, context);
        if (index >= 0) {
            painting.drawOne(parts, level, index);
        } else if (level == PartSheet) {
            painting.drawSheets(parts.getSheets(), parts.getChangeId());
        } else if (level == PartLine) {
            painting.drawLines(parts.getLines(), parts.getChangeId());
        } else {
            painting.drawPoints(parts.getPoints(), parts.getChangeId());
        }
    }
};

std::optional<Shape> shapeOf(const PickedObject& picked, const Pickable& object)
{
    const ObjectParts& parts = *object.parts;
    if (picked.getPartType() == PartTypeNone) {
        const auto level = parts.getSheets().getNumTriangles() > 0 ? PartSheet
                           : parts.getLines().getNumVertices() > 0 ? PartLine
                                                                   : PartPoint;
        return Shape{object, level, -1};
    }
    // The levels of parts have the same numbers in results.
    const auto level = static_cast<ObjectPartType>(picked.getPartType());
    const int index = picked.getPartId();
    const bool isPart = parts.has(level) && index >= 0 && index < parts.getNumParts(level);
    return isPart ? std::optional(Shape{object, level, index}) : std::nullopt;
}

/// Counts the samples of a shape that pass.
GlQuery count(const Shape& shape, const PaintContext& context)
{
    GlQuery query;
    glBeginQuery(GL_SAMPLES_PASSED, query.name());
    shape.draw(context);
    glEndQuery(GL_SAMPLES_PASSED);
    return query;
}

GLuint resultOf(const GlQuery& query)
{
    GLuint result = 0;
    glGetQueryObjectuiv(query.name(), GL_QUERY_RESULT, &result);
    return result;
}

/// The counts of one shape, which the driver finds out while the others are drawn.
struct Counts {
    std::size_t result;
    GlQuery shown;
    /// Of a line, the samples in the view.
    std::optional<GlQuery> all;

    bool areEnough() const
    {
        const GLuint numShown = resultOf(shown);
        return numShown > 0 && (!all || numShown >= resultOf(*all) / c_shownPart);
    }
};

bool isPartOfObject(const PickedObject& picked)
{
    const PickedObject::ObjectType type = picked.getObjectType();
    return type == PickedObject::PickedPhysics ||
           (type >= PickedObject::PickedSolid && type <= PickedObject::PickedPoint);
}

} // namespace

std::vector<bool> findShown(std::span<const PickedObject> picked, std::span<const ObjectItem> objects,
                            const PaintContext& context)
{
    const Pickables pickables = pickablesOf(objects);
    std::vector<bool> shown(picked.size(), true);
    std::vector<Counts> counts;
    const DepthComparison comparison;
    for (std::size_t i = 0; i < picked.size(); ++i) {
        if (!isPartOfObject(picked[i])) {
            continue;
        }
        const bool isPhysics = picked[i].getObjectType() == PickedObject::PickedPhysics;
        for (auto [object, end] = pickables.equal_range(picked[i].getObjectId()); object != end; ++object) {
            const std::optional<Shape> shape =
                object->second.isPhysics == isPhysics ? shapeOf(picked[i], object->second) : std::nullopt;
            if (!shape) {
                continue;
            }
            shown[i] = false;
            counts.push_back({i, count(*shape, context), std::nullopt});
            if (shape->level == PartLine) {
                glDepthFunc(GL_ALWAYS);
                counts.back().all = count(*shape, context);
                glDepthFunc(GL_LEQUAL);
            }
        }
    }
    for (const Counts& one : counts) {
        shown[one.result] = shown[one.result] || one.areEnough();
    }
    return shown;
}

} // namespace vxrenderer
