#include "graphics3d/geometry/partpicking.h"

#include "graphics3d/cameras/camera2d.h"
#include "graphics3d/geometry/scenegraphdrawobjectcurve.h"
#include "graphics3d/geometry/scenegraphdrawobjectface.h"
#include "graphics3d/geometry/scenegraphdrawobjectpoint.h"
#include "graphics3d/geometry/scenegraphdrawobjectsolid.h"
#include "graphics3d/geometry/scenegraphphysicsobject.h"
#include "graphics3d/picking/canvaspicksettings.h"
#include "graphics3d/picking/pickedobjectcollection.h"
#include "graphics3d/picking/selectionfrustrum.h"
#include "graphics3d/scene/scene.h"
#include "graphics3d/scenegraph/scenegraphgroup.h"
#include "graphics3d/scenegraph/scenegraphroot.h"
#include "tests/support/randomgeometry.h"
#include "tests/support/testcameras.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <ostream>

namespace vxgraphics3d {

void PrintTo(const PickedObject& object, std::ostream* out)
{
    *out << "type " << object.getObjectType() << " id " << object.getObjectId() << " part " << object.getPartType()
         << ' ' << object.getPartId();
}

namespace {

using Picks = std::vector<PickedObject>;

Picks toVector(const PickedObjectCollection& collection)
{
    Picks picks;
    for (int i = 0; i < collection.getNumberOfPickedObjects(); ++i) {
        picks.push_back(collection.getPickedObject(i));
    }
    return picks;
}

Picks pick(const SceneGraphNode& node, const SelectionFrustrum& frustrum, int target, int mask = 7, bool inside = false)
{
    PickedObjectCollection result;
    CanvasPickSettings settings;
    settings.pickTarget = target;
    settings.pickMask = mask;
    node.getSelection(frustrum, settings, result, inside);
    return toVector(result);
}

// --- the same by brute force
// ------------------------------------------------------------------------------------------

template <class Part>
bool hasShape(const Part& part)
{
    if constexpr (requires { part.hasPosition(); }) {
        return part.hasPosition();
    } else {
        return part.hasGeometry();
    }
}

template <class Part>
bool mayAnswer(const Part& part)
{
    return (part.getMarkFlags() & 0x30044u) == 0 && hasShape(part);
}

bool isInside(const Point& point, const SelectionFrustrum& frustrum)
{
    return frustrum.isInside(point.getPosition());
}

template <class Part>
bool isInside(const Part& part, const SelectionFrustrum& frustrum)
{
    for (int i = 0; i < part.getVertices().getNumberOfVertices(); ++i) {
        if (!frustrum.isInside(part.getVertices().getCoord(i))) {
            return false;
        }
    }
    return true;
}

/// An object of a random scene with the groups above it, from the root on.
struct Leaf {
    const ObjectParts* parts;
    int id;
    PickedObject::ObjectType type;
    const SelectablePart* objectPart;
    std::vector<const SceneGraphGroup*> path;
};

/// What a pick must add for one leaf: every part is tested by itself.
class BruteForce {
public:
    BruteForce(const Leaf& leaf, const SelectionFrustrum& frustrum, int target, int mask, Picks& picks)
        : m_leaf(leaf), m_parts(*leaf.parts), m_frustrum(frustrum), m_picks(picks)
    {
        bool inside = false;
        for (const SceneGraphGroup* group : leaf.path) {
            const int enclosure =
                inside ? SelectionFrustrum::Inside : frustrum.enclosesBoundingBox(group->getBoundingBox());
            if (enclosure == SelectionFrustrum::Outside) {
                return;
            }
            inside = enclosure == SelectionFrustrum::Inside;
        }
        m_inside = inside;
        if (leaf.type == PickedObject::PickedPhysics) {
            mask = 7;
        } else if ((leaf.objectPart->getMarkFlags() & 0x30044u) != 0) {
            return;
        }
        addPartsOf(target, mask);
    }

private:
    void addPartsOf(int target, int mask)
    {
        switch (target) {
        case CanvasPickSettings::PickPoint:
            return addParts(m_parts.getPoints(), PartTypePoint, mask & 4);
        case CanvasPickSettings::PickLine:
            return addParts(m_parts.getLines(), PartTypeLine, mask & 2);
        case CanvasPickSettings::PickSheet:
            return addParts(m_parts.getSheets(), PartTypeSheet, mask & 1);
        case CanvasPickSettings::PickSubdomain:
            return addSubdomains();
        case CanvasPickSettings::PickObject:
            return addObject(mask);
        default:
            return;
        }
    }

    template <class Parts>
    void addParts(const Parts& parts, PartType type, int mask)
    {
        // Parts of draw objects are reported as those of a solid.
        const auto objectType =
            m_leaf.type == PickedObject::PickedPhysics ? PickedObject::PickedPhysics : PickedObject::PickedSolid;
        for (int i = 0; i < parts.getNumParts() && mask != 0; ++i) {
            // Also where a group is known to be inside: all its vertices are.
            if (mayAnswer(parts.getPart(i)) && isInside(parts.getPart(i), m_frustrum)) {
                m_picks.emplace_back(objectType, m_leaf.id, type, i);
            }
        }
    }

    void addSubdomains()
    {
        if (m_leaf.type != PickedObject::PickedPhysics) {
            return;
        }
        for (int i = 0; i < m_parts.getSubdomains().getNumParts(); ++i) {
            int numSeen = 0;
            int numInside = 0;
            for (const int sheet : m_parts.getAdjacents(PartSolid, PartSheet).of(i)) {
                if (mayAnswer(m_parts.getSheets().getPart(sheet))) {
                    ++numSeen;
                    numInside += isInside(m_parts.getSheets().getPart(sheet), m_frustrum) ? 1 : 0;
                }
            }
            const bool isFound = numSeen > 0 && numInside == numSeen;
            if (isFound && (!m_inside || mayAnswer(m_parts.getSubdomains().getPart(i)))) {
                m_picks.emplace_back(PickedObject::PickedPhysics, m_leaf.id, PartTypeSubdomain, i);
            }
        }
    }

    template <class Parts>
    bool areAllInside(const Parts& parts, bool ofNone)
    {
        int numSeen = 0;
        int numInside = 0;
        for (int i = 0; i < parts.getNumParts(); ++i) {
            if (mayAnswer(parts.getPart(i))) {
                ++numSeen;
                numInside += isInside(parts.getPart(i), m_frustrum) ? 1 : 0;
            }
        }
        return numSeen > 0 ? numInside == numSeen : ofNone;
    }

    void addObject(int mask)
    {
        bool hasKind = false;
        bool isFound = m_inside;
        switch (m_leaf.type) {
        case PickedObject::PickedPoint:
            hasKind = (mask & 4) != 0;
            break;
        case PickedObject::PickedCurve:
            hasKind = (mask & 6) != 0;
            isFound = isFound || areAllInside(m_parts.getLines(), true);
            break;
        case PickedObject::PickedFace:
        case PickedObject::PickedSolid:
            hasKind = (mask & 7) != 0;
            isFound = isFound || areAllInside(m_parts.getLines(), true) || areAllInside(m_parts.getSheets(), true);
            break;
        default:
            return;
        }
        if (hasKind && (isFound || areAllInside(m_parts.getPoints(), false))) {
            m_picks.emplace_back(m_leaf.type, m_leaf.id, PartTypeNone, -1);
        }
    }

    const Leaf& m_leaf;
    const ObjectParts& m_parts;
    const SelectionFrustrum& m_frustrum;
    Picks& m_picks;
    bool m_inside = false;
};

// --- random scenes
// ----------------------------------------------------------------------------------------------------

/// A tree of groups with objects of all classes, some parts of which are hidden or unpickable.
struct RandomScene {
    Scene scene;
    std::vector<Leaf> leaves;

    RandomScene(RandomNumbers& random, const Vector3f& centre) : m_random(random), m_centre(centre)
    {
        const auto top = SceneGraphGroup::create();
        fillGroup(top, {top.get()}, 3);
        scene.getRoot()->setChild(top);
    }

private:
    void fillGroup(const boost::shared_ptr<SceneGraphGroup>& group, const std::vector<const SceneGraphGroup*>& path,
                   int depth)
    {
        for (int i = m_random.integer(0, 4); i > 0; --i) {
            const int kind = m_random.integer(0, depth > 0 ? 7 : 4);
            if (kind > 4) {
                const auto child = SceneGraphGroup::create();
                auto childPath = path;
                childPath.push_back(child.get());
                fillGroup(child, childPath, depth - 1);
                group->addChild(child);
            } else {
                group->addChild(makeLeaf(kind, path));
            }
        }
    }

    boost::shared_ptr<SceneGraphNode> makeLeaf(int kind, const std::vector<const SceneGraphGroup*>& path)
    {
        const int id = m_random.integer(1, 9);
        RandomGeometry geometry(m_random, m_centre + m_random.vector(2.0f), m_random.uniform(0.1f, 1.5f));
        if (kind == 4) {
            vxdatacarrier::RenderGeom3D record;
            geometry.fill(record);
            const auto object = SceneGraphPhysicsObject::create(id);
            object->fillData(record);
            markParts(object->getParts(), [&](int level, int index, SceneGraphObject::MarkingType action) {
                markPhysics(*object, level, index, action);
            });
            leaves.push_back({&object->getParts(), id, PickedObject::PickedPhysics, nullptr, path});
            return object;
        }
        vxdatacarrier::RenderDraw3D record;
        record.m_id = id;
        geometry.fill(record);
        switch (kind) {
        case 0:
            return makeDrawObject<SceneGraphDrawObjectPoint>(record, PickedObject::PickedPoint, path);
        case 1:
            return makeDrawObject<SceneGraphDrawObjectCurve>(record, PickedObject::PickedCurve, path);
        case 2:
            return makeDrawObject<SceneGraphDrawObjectFace>(record, PickedObject::PickedFace, path);
        default:
            return makeDrawObject<SceneGraphDrawObjectSolid>(record, PickedObject::PickedSolid, path);
        }
    }

    template <class Object>
    boost::shared_ptr<SceneGraphNode> makeDrawObject(const vxdatacarrier::RenderDraw3D& record,
                                                     PickedObject::ObjectType type,
                                                     const std::vector<const SceneGraphGroup*>& path)
    {
        const auto object = Object::create(record.m_id);
        object->fillData(record);
        markParts(object->getParts(), [&](int level, int index, SceneGraphObject::MarkingType action) {
            object->mark(static_cast<ObjectPartType>(level), index, action, true);
        });
        if (m_random.integer(0, 9) == 0) {
            object->mark(SceneGraphObject::MarkingUnpickable, true);
        }
        leaves.push_back({&object->getParts(), record.m_id, type, &object->getObjectPart(), path});
        return object;
    }

    template <class Mark>
    void markParts(const ObjectParts& parts, Mark mark)
    {
        for (int i = m_random.integer(0, 3); i > 0; --i) {
            const int level = m_random.integer(PartPoint, parts.getHighestLevel());
            if (const int count = parts.getNumParts(level)) {
                mark(level, m_random.integer(0, count - 1),
                     static_cast<SceneGraphObject::MarkingType>(m_random.integer(0, 3)));
            }
        }
    }

    static void markPhysics(SceneGraphPhysicsObject& object, int level, int index, SceneGraphObject::MarkingType action)
    {
        switch (level) {
        case PartPoint:
            return object.markPoint(index, action);
        case PartLine:
            return object.markEdge(index, action);
        case PartSheet:
            return object.markBoundary(index, action);
        default:
            return object.markSubdomain(index, action);
        }
    }

    RandomNumbers& m_random;
    Vector3f m_centre;
};

/// Picks in a random scene around a point with rectangles of a camera, for all targets and masks.
void expectPicksOfEveryPart(const ICameraTransforms& camera, const Vector3f& centre, RandomNumbers& random,
                            std::array<int, 8>& numPicked)
{
    RandomScene random3(random, centre);
    for (int rectangle = 0; rectangle < 4; ++rectangle) {
        const int width = camera.getRenderAreaWidth();
        const int height = camera.getRenderAreaHeight();
        const int x0 = camera.getRenderAreaLeft() + random.integer(-width / 4, width / 2);
        const int y0 = camera.getRenderAreaBottom() + random.integer(-height / 4, height / 2);
        const SelectionFrustrum frustrum(camera, x0, y0 + random.integer(0, height), x0 + random.integer(0, width), y0);
        for (int target = CanvasPickSettings::PickNone; target <= CanvasPickSettings::PickOther; ++target) {
            for (int mask = 0; mask < 8; ++mask) {
                CanvasPickSettings settings;
                settings.pickTarget = target;
                settings.pickMask = mask;
                PickedObjectCollection result;
                random3.scene.getSelection(frustrum, settings, result);
                Picks expected;
                for (const Leaf& leaf : random3.leaves) {
                    BruteForce(leaf, frustrum, target, mask, expected);
                }
                ASSERT_EQ(toVector(result), expected) << "target " << target << ", mask " << mask;
                for (const PickedObject& object : expected) {
                    ++numPicked[static_cast<std::size_t>(object.getPartType())];
                }
            }
        }
    }
}

TEST(PartPicking, findsInAnySceneWhatATestOfEveryPartFinds)
{
    std::array<int, 8> numPicked{};
    forRandomCameras([&](const Camera3d& camera, RandomCameras& random) {
        expectPicksOfEveryPart(camera, camera.getRotationPoint(), random, numPicked);
    });
    RandomNumbers random(8);
    for (int i = 0; i < 100 && !testing::Test::HasFailure(); ++i) {
        Camera2d camera;
        camera.setRenderArea(500, 300, 10, 20, 400, 200);
        camera.setViewLimits(random.uniform(-4.0f, -1.0f), random.uniform(1.0f, 4.0f), random.uniform(-4.0f, -1.0f),
                             random.uniform(1.0f, 4.0f), false);
        expectPicksOfEveryPart(camera, {}, random, numPicked);
    }
    for (const PartType type : {PartTypePoint, PartTypeLine, PartTypeSheet, PartTypeSubdomain, PartTypeNone}) {
        EXPECT_GT(numPicked[static_cast<std::size_t>(type)], 300) << type;
    }
}

// --- single rules
// -------------------------------------------------------------------------------------------------------

/// The prism over a rectangle as seen along the z axis.
SelectionFrustrum prism(float x0, float y0, float x1, float y1)
{
    return {{x0, y1, 1.0f},  {x0, y0, 1.0f},  {x1, y0, 1.0f},  {x1, y1, 1.0f},
            {x0, y1, -1.0f}, {x0, y0, -1.0f}, {x1, y0, -1.0f}, {x1, y1, -1.0f}};
}

/// A record with points on the x axis at 0, 1, 2, ..., the segments between them, and a triangle over each segment
/// whose corners are within the points' distance.
template <class Record>
Record chain(int id, int numPoints)
{
    Record record;
    record.m_id = id;
    record.m_numPoints = numPoints;
    record.m_numCurves = numPoints - 1;
    record.m_numSheets = numPoints - 1;
    record.m_points = std::make_unique<vxdatacarrier::Coords3D[]>(static_cast<std::size_t>(numPoints));
    record.m_curves = std::make_unique<vxdatacarrier::Curve3D[]>(static_cast<std::size_t>(numPoints - 1));
    record.m_sheets = std::make_unique<vxdatacarrier::Sheet3D[]>(static_cast<std::size_t>(numPoints - 1));
    for (int i = 0; i < numPoints; ++i) {
        const auto x = static_cast<float>(i);
        record.m_points[static_cast<std::size_t>(i)] = {x, 0.0f, 0.0f};
        if (i + 1 < numPoints) {
            auto& curve = record.m_curves[static_cast<std::size_t>(i)];
            curve.m_isValid = true;
            curve.m_numVertices = 2;
            curve.m_vertices.reset(new vxdatacarrier::Coords3D[2]{{x, 0.0f, 0.0f}, {x + 1.0f, 0.0f, 0.0f}});
            auto& sheet = record.m_sheets[static_cast<std::size_t>(i)];
            sheet.m_isValid = true;
            sheet.m_numVertices = 3;
            sheet.m_vertices.reset(new vxdatacarrier::CoordsNormal3D[3]{
                {x, 0.0f, 0.0f, 0, 0, 1}, {x + 1.0f, 0.0f, 0.0f, 0, 0, 1}, {x, 1.0f, 0.0f, 0, 0, 1}});
            sheet.m_numTriangles = 1;
            sheet.m_triangles.reset(new vxdatacarrier::Triangle[1]{{0, 1, 2}});
        }
    }
    return record;
}

PickedObject part(PartType type, int index)
{
    return {PickedObject::PickedSolid, 5, type, index};
}

TEST(PartPicking, reportsPartsOfAnyDrawObjectAsThoseOfASolid)
{
    const auto record = chain<vxdatacarrier::RenderDraw3D>(5, 3);
    const auto curve = SceneGraphDrawObjectCurve::create(5);
    curve->fillData(record);
    // From the middle of the first segment on.
    const SelectionFrustrum frustrum = prism(0.5f, -1.0f, 9.0f, 9.0f);
    EXPECT_EQ(pick(*curve, frustrum, CanvasPickSettings::PickLine), Picks{part(PartTypeLine, 1)});
    EXPECT_EQ(pick(*curve, frustrum, CanvasPickSettings::PickPoint),
              (Picks{part(PartTypePoint, 1), part(PartTypePoint, 2)}));
    EXPECT_EQ(pick(*curve, frustrum, CanvasPickSettings::PickSheet), Picks());
    EXPECT_EQ(pick(*curve, frustrum, CanvasPickSettings::PickObject), Picks());
    EXPECT_EQ(pick(*curve, prism(1.0f, -1.0f, 9.0f, 9.0f), CanvasPickSettings::PickLine), Picks())
        << "an end is on a plane";
    const auto points = SceneGraphDrawObjectPoint::create(5);
    points->fillData(record);
    EXPECT_EQ(pick(*points, frustrum, CanvasPickSettings::PickLine), Picks());
    EXPECT_EQ(pick(*points, frustrum, CanvasPickSettings::PickPoint, 3), Picks()) << "points are not in the mask";
    EXPECT_EQ(pick(*points, frustrum, CanvasPickSettings::PickPoint, 4).size(), 2u);
}

TEST(PartPicking, findsAnObjectByAnyOneOfItsKindsOfParts)
{
    const Picks wholeFace{PickedObject(PickedObject::PickedFace, 5, PartTypeNone, -1)};
    auto record = chain<vxdatacarrier::RenderDraw3D>(5, 3);
    const auto face = SceneGraphDrawObjectFace::create(5);
    face->fillData(record);
    // All points and lines, but not the tops of the triangles.
    const SelectionFrustrum low = prism(-1.0f, -1.0f, 9.0f, 0.5f);
    EXPECT_EQ(pick(*face, low, CanvasPickSettings::PickObject, 1), wholeFace) << "any bit of the mask will do";
    EXPECT_EQ(pick(*face, low, CanvasPickSettings::PickObject, 0), Picks());
    // Without the last point: neither all points, nor lines, nor sheets.
    const SelectionFrustrum left = prism(-1.0f, -1.0f, 1.5f, 9.0f);
    EXPECT_EQ(pick(*face, left, CanvasPickSettings::PickObject), Picks());
    face->mark(PartPoint, 2, SceneGraphObject::MarkingHidden, true);
    EXPECT_EQ(pick(*face, left, CanvasPickSettings::PickObject), wholeFace) << "hidden parts do not count against it";
    const SelectionFrustrum elsewhere = prism(20.0f, 20.0f, 21.0f, 21.0f);
    EXPECT_EQ(pick(*face, elsewhere, CanvasPickSettings::PickObject), Picks());
    for (int i = 0; i < 2; ++i) {
        face->mark(PartLine, i, SceneGraphObject::MarkingHidden, true);
    }
    EXPECT_EQ(pick(*face, elsewhere, CanvasPickSettings::PickObject), wholeFace) << "no line speaks against it";
    // Points do not work that way.
    const auto points = SceneGraphDrawObjectPoint::create(5);
    points->fillData(record);
    for (int i = 0; i < 3; ++i) {
        points->mark(PartPoint, i, SceneGraphObject::MarkingUnpickable, true);
    }
    EXPECT_EQ(pick(*points, elsewhere, CanvasPickSettings::PickObject), Picks());
    EXPECT_EQ(pick(*points, elsewhere, CanvasPickSettings::PickObject, 7, true).size(), 1u) << "known to be inside";
}

TEST(PartPicking, findsNothingOfASolidThatIsUnpickableAsAWhole)
{
    const auto record = chain<vxdatacarrier::RenderDraw3D>(5, 3);
    const auto solid = SceneGraphDrawObjectSolid::create(5);
    solid->fillData(record);
    const SelectionFrustrum frustrum = prism(-1.0f, -1.0f, 9.0f, 9.0f);
    solid->mark(SceneGraphObject::MarkingUnpickable, true);
    for (int target = 0; target <= 6; ++target) {
        EXPECT_EQ(pick(*solid, frustrum, target), Picks()) << target;
        EXPECT_EQ(pick(*solid, frustrum, target, 7, true), Picks()) << target;
    }
    solid->mark(SceneGraphObject::MarkingUnpickable, false);
    EXPECT_EQ(pick(*solid, frustrum, CanvasPickSettings::PickPoint).size(), 3u);
}

TEST(PartPicking, findsASubdomainByItsVisibleSheets)
{
    auto record = chain<vxdatacarrier::RenderGeom3D>(5, 4);
    // The second of three sheets separates two subdomains; a third one has no sheet.
    record.m_numSubdomains = 3;
    record.m_subdomains = std::make_unique<vxdatacarrier::BoundingBox3D[]>(3);
    record.m_subdomainToSheet.allocate(3, 4);
    record.m_subdomainToSheet.m_rows.reset(new vxdatacarrier::AdjacencyRecord::Row[3]{{0, 2}, {2, 2}, {4, 0}});
    record.m_subdomainToSheet.m_values.reset(new int[4]{0, 1, 1, 2});
    ObjectParts parts(PartSolid);
    parts.fill(record);
    const auto found = [&](const SelectionFrustrum& frustrum, bool inside = false) {
        CanvasPickSettings settings;
        settings.pickTarget = CanvasPickSettings::PickSubdomain;
        PickedObjectCollection result;
        pickPhysicsObject(parts, 9, frustrum, settings, result, inside);
        std::vector<int> indices;
        for (const PickedObject& object : toVector(result)) {
            EXPECT_EQ(object, PickedObject(PickedObject::PickedPhysics, 9, PartTypeSubdomain, object.getPartId()));
            indices.push_back(object.getPartId());
        }
        return indices;
    };
    using Indices = std::vector<int>;
    const SelectionFrustrum all = prism(-1.0f, -1.0f, 9.0f, 9.0f);
    const SelectionFrustrum right = prism(0.5f, -1.0f, 9.0f, 9.0f);
    EXPECT_EQ(found(all), (Indices{0, 1}));
    EXPECT_EQ(found(all, true), (Indices{0, 1}));
    EXPECT_EQ(found(right), Indices{1});
    EXPECT_EQ(found(prism(1.5f, -1.0f, 9.0f, 9.0f)), Indices());
    parts.sheets().setHiddenMark(true, 0);
    EXPECT_EQ(found(right), (Indices{0, 1})) << "only the visible sheet counts";
    parts.subdomains().setHiddenMark(true, 1);
    EXPECT_EQ(found(right), (Indices{0, 1})) << "marks of subdomains count only where all is inside";
    EXPECT_EQ(found(right, true), Indices{0});
    parts.sheets().setHiddenMark(true, 1);
    EXPECT_EQ(found(all), Indices{1});
}

} // namespace
} // namespace vxgraphics3d
