#include "datacarrier/renderdrawproj2d.h"
#include "graphics3d/construction/scenegraphballbox.h"
#include "graphics3d/construction/scenegraphdrawproj.h"
#include "graphics3d/construction/scenegraphfeatureobject.h"
#include "graphics3d/construction/scenegraphprobeobject.h"
#include "graphics3d/scenegraph/scenegraphroot.h"
#include "tests/support/failingallocation.h"
#include "tests/support/geometryrecords.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

namespace vxgraphics3d {
namespace {

using vxdatacarrier::Coords2D;
using vxdatacarrier::Curve2D;
using vxdatacarrier::RenderDrawProj2D;

const float c_plane[] = {0, 0, 0, 1, 0, 0, 0, 1, 0, -1, 2, -1, 2};
const float c_heights[] = {1, 5};

TEST(SceneGraphFeatureObject, takesTheBoxOfItsPlaneAndCountsEachChange)
{
    const auto object = SceneGraphFeatureObject::create();
    EXPECT_TRUE(object->isVisible());
    EXPECT_FALSE(object->getPlane().isSetUp());
    const int before = object->getChangeId();
    object->setPlane(c_plane);
    EXPECT_EQ(object->getBoundingBox(), BoundingBox(-1.0f, 2.0f, -1.0f, 2.0f, 0.0f, 0.0f));
    object->setExtrudeOperation(c_heights, 2);
    EXPECT_EQ(object->getBoundingBox(), BoundingBox(-1.0f, 2.0f, -1.0f, 2.0f, 0.0f, 5.0f));
    const float axis[] = {2, 0, 0, 1};
    object->setRevolveOperation(axis);
    EXPECT_EQ(object->getChangeId(), before + 3);

    object->setExtrudeOperation(c_heights, 0);
    const float noAxis[] = {2, 0, 0, 0};
    EXPECT_THROW(object->setRevolveOperation(noAxis), std::invalid_argument);
    EXPECT_EQ(object->getChangeId(), before + 3);
}

TEST(SceneGraphFeatureObject, isVisibleUnlessItsRectangleIsAPoint)
{
    const auto object = SceneGraphFeatureObject::create();
    object->setActive(false);
    object->setPlane(c_plane);
    EXPECT_TRUE(object->isVisible());
    const float point[] = {0, 0, 0, 1, 0, 0, 0, 1, 0, 1, 1, 2, 2};
    object->setPlane(point);
    EXPECT_FALSE(object->isVisible());
    const float line[] = {0, 0, 0, 1, 0, 0, 0, 1, 0, 1, 1, 2, 3};
    object->setPlane(line);
    EXPECT_TRUE(object->isVisible());
}

TEST(SceneGraphFeatureObject, belongsToMarkedBoxesByItsBit)
{
    const auto object = SceneGraphFeatureObject::create();
    object->setPlane(c_plane);
    struct Case {
        int include, exclude;
        bool isMerged;
    };
    for (const Case& c : {Case{0, 0, true}, Case{0x1001, 1, true}, Case{1, 0, false}, Case{0, 0x1000, false},
                          Case{0x1000, 0x1000, false}}) {
        BoundingBox box;
        object->getMarkedBoundingBox(box, c.include, c.exclude);
        EXPECT_EQ(box.isValid(), c.isMerged) << c.include << " " << c.exclude;
    }
}

Curve2D curveOf(const std::vector<Coords2D>& vertices)
{
    Curve2D curve;
    curve.m_isValid = true;
    curve.m_numVertices = static_cast<int>(vertices.size());
    curve.m_vertices = arrayOf(vertices);
    curve.m_box.m_xMax = 4.0f;
    curve.m_box.m_yMax = 3.0f;
    return curve;
}

/// Four curves of kinds 1, 2, 1, 0, of which the third has no geometry, and three points of kinds -1, 1, 7.
RenderDrawProj2D projection()
{
    RenderDrawProj2D record;
    record.m_box.m_xMin = -1.0f;
    record.m_box.m_xMax = 5.0f;
    record.m_box.m_yMax = 6.0f;
    record.m_numCurves = 4;
    record.m_curves = std::make_unique<Curve2D[]>(4);
    record.m_curves[0] = curveOf({{0, 0}, {4, 0}, {4, 3}});
    record.m_curves[1] = curveOf({{1, 1}, {2, 1}});
    record.m_curves[3] = curveOf({{1, 2}});
    record.m_curveKinds = arrayOf<int>({1, 2, 1, 0});
    record.m_numPoints = 3;
    record.m_points = arrayOf<Coords2D>({{0, 0}, {4, 0}, {5, 6}});
    record.m_pointKinds = arrayOf<int>({-1, 1, 7});
    record.m_snapX = {0.0, 4.0, 5.0};
    record.m_snapY = {0.0, 0.0, 6.0};
    return record;
}

void expectFilled(const SceneGraphDrawProj& object)
{
    ASSERT_EQ(object.getPrimaryLines().getNumParts(), 2);
    ASSERT_EQ(object.getSecondaryLines().getNumParts(), 2);
    ASSERT_EQ(object.getPrimaryPoints().getNumParts(), 1);
    ASSERT_EQ(object.getSecondaryPoints().getNumParts(), 2);
    EXPECT_EQ(object.getPrimaryLines().getPart(0).getLength(), 7.0f);
    EXPECT_EQ(object.getPrimaryLines().getNumVertices(), 4);
    EXPECT_EQ(object.getPrimaryLines().getPart(0).getBoundingBox(), BoundingBox(0.0f, 4.0f, 0.0f, 3.0f, 0.0f, 0.0f));
    EXPECT_FALSE(object.getPrimaryLines().getPart(1).hasGeometry());
    EXPECT_FALSE(object.getPrimaryLines().getPart(1).getBoundingBox().isValid());
    EXPECT_EQ(object.getSecondaryLines().getPart(0).getVertices().getCoord(1), Vector3f(2.0f, 1.0f, 0.0f));
    EXPECT_FALSE(object.getSecondaryLines().getPart(1).hasGeometry());
    EXPECT_EQ(object.getPrimaryPoints().getPart(0).getPosition(), Vector3f(4.0f, 0.0f, 0.0f));
    EXPECT_EQ(object.getSecondaryPoints().getPart(1).getPosition(), Vector3f(5.0f, 6.0f, 0.0f));
    EXPECT_EQ(object.getBoundingBox(), BoundingBox(-1.0f, 5.0f, 0.0f, 6.0f, 0.0f, 0.0f));
}

TEST(SceneGraphDrawProj, sortsCurvesAndPointsByTheirKinds)
{
    const auto root = SceneGraphRoot::create();
    const auto object = SceneGraphDrawProj::create(9);
    root->setChild(object);
    object->fillData(projection());
    EXPECT_EQ(object->getId(), 9);
    expectFilled(*object);

    const SnapVertex& snap = object->getSnapVertices().at(2);
    EXPECT_EQ(snap.nodeId, object->getNodeId());
    EXPECT_EQ(snap.index, 2);
    double found[3] = {};
    EXPECT_FLOAT_EQ(
        static_cast<float>(root->getClosestSnapCoordinate({5.0f, 5.5f, 0.0f}, found, 1.0, Vector3f(1.0f, 1.0f, 0.0f))),
        0.5f);
    EXPECT_EQ(found[1], 6.0);

    BoundingBox box;
    object->getMarkedBoundingBox(box, 1, 0);
    EXPECT_FALSE(box.isValid());
    object->getMarkedBoundingBox(box, 0, 1);
    EXPECT_EQ(box, BoundingBox(0.0f, 5.0f, 0.0f, 6.0f, 0.0f, 0.0f));
}

TEST(SceneGraphDrawProj, aFillReplacesTheFormerParts)
{
    const auto object = SceneGraphDrawProj::create(1);
    object->fillData(projection());
    const int before = object->getGeometryChangeId();
    object->fillData(RenderDrawProj2D());
    EXPECT_NE(object->getGeometryChangeId(), before);
    EXPECT_EQ(object->getPrimaryLines().getNumParts(), 0);
    EXPECT_EQ(object->getPrimaryLines().getNumVertices(), 0);
    EXPECT_EQ(object->getSecondaryPoints().getNumParts(), 0);
    EXPECT_TRUE(object->getSnapVertices().empty());
}

TEST(SceneGraphDrawProj, refusesRecordsThatAreNotConsistentAndStaysAsItWas)
{
    struct Case {
        std::string text;
        std::function<void(RenderDrawProj2D&)> spoil;
    };
    const Case cases[] = {
        {"m_curves has a count of -1", [](auto& r) { r.m_numCurves = -1; }},
        {"m_curves is missing for a count of 4", [](auto& r) { r.m_curves.reset(); }},
        {"m_curveKinds is missing for a count of 4", [](auto& r) { r.m_curveKinds.reset(); }},
        {"m_points is missing for a count of 3", [](auto& r) { r.m_points.reset(); }},
        {"m_pointKinds is missing for a count of 3", [](auto& r) { r.m_pointKinds.reset(); }},
        {"m_curves[1].m_vertices is missing for a count of 2", [](auto& r) { r.m_curves[1].m_vertices.reset(); }},
        {"m_curves[3].m_vertices has a count of -2", [](auto& r) { r.m_curves[3].m_numVertices = -2; }},
        {"m_curves[1].m_vertices has more vertices", [](auto& r) { r.m_curves[1].m_numVertices = 0x7fffffff; }},
        {"m_snapY has 2 values for 3", [](auto& r) { r.m_snapY.pop_back(); }},
    };
    const auto object = SceneGraphDrawProj::create(1);
    object->fillData(projection());
    const int before = object->getGeometryChangeId();
    for (const Case& c : cases) {
        RenderDrawProj2D record = projection();
        c.spoil(record);
        try {
            object->fillData(record);
            ADD_FAILURE() << c.text;
        } catch (const std::invalid_argument& e) {
            EXPECT_NE(std::string(e.what()).find(c.text), std::string::npos) << e.what();
        }
    }
    const RenderDrawProj2D record = projection();
    EXPECT_GT(failEachAllocation([&] { object->fillData(record); },
                                 [&] { EXPECT_EQ(object->getGeometryChangeId(), before); }),
              10);
    expectFilled(*object);
}

TEST(SceneGraphBallBox, keepsBallAndBoxApart)
{
    const auto object = SceneGraphBallBox::create();
    EXPECT_FALSE(object->isValid());
    const int before = object->getChangeId();
    object->setBox({0, 1, 2}, {3, 4, 5});
    EXPECT_TRUE(object->isValid());
    object->setBall({6, 7, 8}, 2.5);
    EXPECT_EQ(object->getBoxMax(), (std::vector<double>{3, 4, 5}));
    EXPECT_EQ(object->getRadius(), 2.5);
    object->setBox({}, {3, 4, 5});
    EXPECT_TRUE(object->isValid());
    object->clear();
    EXPECT_FALSE(object->isValid());
    EXPECT_EQ(object->getChangeId(), before + 4);
    EXPECT_FALSE(object->getBoundingBox().isValid());
}

TEST(SceneGraphProbeObject, isValidWithBothPointAndLine)
{
    const auto object = SceneGraphProbeObject::create();
    const int before = object->getChangeId();
    object->setProbe(1.0f, 2.0f, 3.0f);
    EXPECT_FALSE(object->isValid());
    object->setLinePoints(0.0f, 0.0f, 0.0f, 3.0f, 6.0f, 9.0f, 0.5f);
    EXPECT_TRUE(object->isValid());
    EXPECT_EQ(object->getEndPoints().getPart(1).getPosition(), Vector3f(3.0f, 6.0f, 9.0f));
    object->clear();
    EXPECT_FALSE(object->isValid());
    EXPECT_EQ(object->getDashPoints().getNumParts(), 0);
    EXPECT_EQ(object->getProbe(), Vector3f(1.0f, 2.0f, 3.0f));
    EXPECT_EQ(object->getLineEnd(), Vector3f(3.0f, 6.0f, 9.0f));
    object->setLinePoints(0.0f, 0.0f, 0.0f, 1.0f, 0.0f, 0.0f, 0.0f);
    EXPECT_FALSE(object->isValid());
    EXPECT_EQ(object->getChangeId(), before + 4);
}

TEST(SceneGraphProbeObject, dashesRunAlongTheWholeLineAndTheMarkStaysOnIt)
{
    const auto object = SceneGraphProbeObject::create();
    struct Case {
        float fraction, mark;
    };
    for (const Case& c : {Case{0.25f, 40.0f}, Case{1.5f, 70.0f}, Case{-0.2f, 30.0f}, Case{std::nanf(""), 30.0f}}) {
        object->setLinePoints(30.0f, 0.0f, 1.0f, 70.0f, 0.0f, 1.0f, c.fraction);
        EXPECT_EQ(object->getDashPoints().getPart(1).getPosition(), Vector3f(c.mark, 0.0f, 1.0f));
        EXPECT_TRUE(object->getLineFraction() == c.fraction || std::isnan(c.fraction));
    }
    object->setLinePoints(0.0f, 0.0f, 0.0f, 30.0f, 0.0f, 0.0f, 0.5f);
    const PointCollection& dashes = object->getDashPoints();
    ASSERT_EQ(dashes.getNumParts(), 62);
    EXPECT_EQ(dashes.getPart(0).getPosition(), Vector3f());
    for (int i = 0; i < 30; ++i) {
        EXPECT_NEAR(dashes.getPart(2 + 2 * i).getPosition().x, static_cast<float>(i) + 0.33f, 1e-5f);
        EXPECT_NEAR(dashes.getPart(3 + 2 * i).getPosition().x, static_cast<float>(i) + 0.7f, 1e-5f);
    }
}

} // namespace
} // namespace vxgraphics3d
