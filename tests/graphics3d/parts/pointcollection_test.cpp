#include "graphics3d/parts/pointcollection.h"

#include "tests/support/failingallocation.h"
#include "tests/support/randomnumbers.h"

#include <gtest/gtest.h>

#include <set>
#include <stdexcept>
#include <vector>

namespace vxgraphics3d {
namespace {

constexpr int c_lineLevel = 1;
constexpr int c_sheetLevel = 2;

/// Three points; the first is on two lines and two sheets, the second on a sheet only, the last is free.
PointCollection threePoints()
{
    PointCollection points;
    points.allocateParts(3);
    points.addPart(1.0f, 2.0f, 3.0f);
    points.addPart(4.0f, 5.0f, 6.0f);
    points.addPart(7.0f, 8.0f, 9.0f);
    points.setAdjacentCounts(0, 2, 2, 0);
    points.setAdjacentCounts(1, 0, 1, 0);
    points.setAdjacentCounts(2, 0, 0, 0);
    return points;
}

TEST(SelectablePart, controlIsTheLowestHigherLevelWithAdjacentParts)
{
    struct Case {
        int dimension;
        std::vector<int> counts;
        int level, count;
    };
    for (const Case& c : {Case{2, {4, 4, 2}, 3, 2}, Case{2, {4, 4, 0}, 7, 0}, Case{1, {2, 2, 1}, 2, 2},
                          Case{1, {2, 0, 3}, 3, 3}, Case{0, {1, 0, 0}, 1, 1}, Case{3, {8, 12, 6}, 7, 0}}) {
        SelectablePart part(c.dimension);
        part.setAdjacentCounts(1, 1, 1);
        part.setAdjacentCounts(c.counts[0], c.counts[1], c.counts[2]);
        EXPECT_EQ(part.getAdjacentCount(c.dimension), 1);
        EXPECT_EQ(part.getAdjacentCount(c.dimension == 3 ? 2 : 3), c.counts[2]);
        EXPECT_EQ(part.getControlLevel(), c.level);
        EXPECT_EQ(part.getControlCount(), c.count);
    }
}

TEST(PointCollection, addPartSetsPositionAndBoxAndRefusesMoreThanWereAllocated)
{
    PointCollection points = threePoints();
    EXPECT_EQ(points.getPart(1).getPosition(), Vector3f(4.0f, 5.0f, 6.0f));
    EXPECT_EQ(points.getPart(1).getBoundingBox(), BoundingBox(4.0f, 4.0f, 5.0f, 5.0f, 6.0f, 6.0f));
    EXPECT_EQ(points.getPart(1).getGeometryChangeId(), 2);
    EXPECT_THROW(points.addPart(0.0f, 0.0f, 0.0f), std::out_of_range);
    EXPECT_EQ(points.getNumParts(), 3);

    points.setPrimaryMark(true, 0);
    EXPECT_TRUE(points.setPartLabel(1, "B"));
    points.allocateParts(1);
    EXPECT_EQ((std::vector{points.getNumParts(), points.getNumMarked(), points.getNumPrimary(), points.getNumLabels()}),
              (std::vector{0, 0, 0, 0}));
    EXPECT_EQ(points.addPart(1.0f, 1.0f, 1.0f), 0);
    points.resetParts();
    EXPECT_EQ(points.getCapacity(), 0);
    EXPECT_EQ(points.getNumParts(), 0);
}

TEST(PointCollection, ownMarksCountEachPartOnce)
{
    PointCollection points = threePoints();
    points.setPrimaryMark(true, 0);
    points.setPrimaryMark(true, 0);
    points.setHiddenMark(true, 0);
    points.setSecondaryMark(true, 1);
    EXPECT_EQ(points.getMarkFlags(0), MarkPrimary | MarkHidden);
    EXPECT_TRUE(points.isSecondaryMarked(1));
    EXPECT_EQ(points.getNumMarked(), 2);
    EXPECT_EQ(points.getNumPrimary(), 1);
    points.setPrimaryMark(false, 0);
    points.setPrimaryMark(false, 0);
    points.setPrimaryMark(false, 1);
    EXPECT_EQ(points.getNumPrimary(), 0);
    EXPECT_EQ(points.getNumMarked(), 2);
    points.setHiddenMark(false, 0);
    points.setSecondaryMark(false, 1);
    EXPECT_EQ(points.getNumMarked(), 0);

    points.setUnpickableMark(true, 2);
    EXPECT_TRUE(points.isUnpickableMarked(2));
    EXPECT_EQ(points.getMarkFlags(2), 0);
    EXPECT_EQ(points.getNumMarked(), 0);
    points.setUnpickableMark(false, 2);
    EXPECT_FALSE(points.isUnpickableMarked(2));
}

TEST(PointCollection, anAdjacentMarkStaysUntilTheLastAdjacentPartLosesIt)
{
    PointCollection points = threePoints();
    points.adjacentPrimaryMark(true, 0);
    points.adjacentPrimaryMark(true, 0);
    points.adjacentSecondaryMark(true, 0);
    points.adjacentPrimaryMark(false, 0);
    EXPECT_EQ(points.getMarkFlags(0), MarkPrimaryAdjacent | MarkSecondaryAdjacent);
    points.adjacentPrimaryMark(false, 0);
    EXPECT_EQ(points.getMarkFlags(0), MarkSecondaryAdjacent);
    EXPECT_EQ(points.getNumMarked(), 1);
    points.adjacentSecondaryMark(false, 0);
    EXPECT_EQ(points.getNumMarked(), 0);
    points.adjacentPrimaryMark(false, 0); // without marks nothing is counted down
    EXPECT_EQ(points.getPart(0).getAdjacentMarks().primary, 0);
    EXPECT_EQ(points.getNumPrimary(), 0);
}

TEST(PointCollection, aPointIsHiddenWithAllPartsOfItsControlLevel)
{
    PointCollection points = threePoints();
    EXPECT_FALSE(points.adjacentHiddenMark(true, 0, c_sheetLevel, 0));
    EXPECT_EQ(points.getPart(0).getAdjacentMarks().hidden, 0);
    EXPECT_EQ(points.getPart(0).getAdjacentCount(c_sheetLevel), 1);
    EXPECT_FALSE(points.adjacentHiddenMark(true, 0, c_lineLevel, 0));
    EXPECT_TRUE(points.adjacentHiddenMark(true, 0, c_lineLevel, MarkHidden));
    EXPECT_EQ(points.getPart(0).getAdjacentCount(c_lineLevel), 1) << "a source that is out of reach is not counted";
    EXPECT_EQ(points.getMarkFlags(0), MarkHiddenAdjacent);
    EXPECT_EQ(points.getNumMarked(), 1);
    EXPECT_FALSE(points.adjacentHiddenMark(true, 0, c_lineLevel, MarkHidden));
    EXPECT_FALSE(points.adjacentHiddenMark(false, 0, c_lineLevel, MarkHidden));
    EXPECT_TRUE(points.adjacentHiddenMark(false, 0, c_lineLevel, MarkHidden));
    EXPECT_EQ(points.getNumMarked(), 0);
    EXPECT_FALSE(points.adjacentHiddenMark(false, 0, c_lineLevel, 0));
    EXPECT_EQ(points.getPart(0).getAdjacentCount(c_lineLevel), 2);

    EXPECT_TRUE(points.adjacentUnpickableMark(true, 1, c_sheetLevel, MarkPrimary));
    EXPECT_EQ(points.getMarkFlags(1), 0);
    EXPECT_TRUE(points.getPart(1).isMarked(MarkUnpickableAdjacent));
    EXPECT_EQ(points.getNumMarked(), 0);
    EXPECT_TRUE(points.adjacentUnpickableMark(false, 1, c_sheetLevel, MarkPrimary));
    EXPECT_EQ(points.getPart(1).getMarkFlags(), 0u);
}

TEST(PointCollection, countersAgreeWithTheMarksAfterAnySequence)
{
    PointCollection points = threePoints();
    RandomNumbers random(7);
    // Marks given by adjacent parts: removed only as often as they were set.
    std::multiset<std::pair<int, int>> given;
    for (int step = 0; step < 2000; ++step) {
        const int index = random.integer(0, 2);
        const int kind = random.integer(0, 5);
        bool on = random.integer(0, 1) == 1;
        if (kind >= 3) {
            const auto known = given.find({index, kind});
            on = on || known == given.end();
            on ? static_cast<void>(given.insert({index, kind})) : static_cast<void>(given.erase(known));
        }
        switch (kind) {
        case 0:
            points.setPrimaryMark(on, index);
            break;
        case 1:
            points.setSecondaryMark(on, index);
            break;
        case 2:
            points.setHiddenMark(on, index);
            break;
        case 3:
            points.adjacentPrimaryMark(on, index);
            break;
        case 4:
            points.adjacentSecondaryMark(on, index);
            break;
        default:
            points.adjacentHiddenMark(on, index, c_lineLevel, 0);
            break;
        }
        int marked = 0;
        int primary = 0;
        for (int i = 0; i < 3; ++i) {
            marked += points.getMarkFlags(i) != 0 ? 1 : 0;
            primary += points.isPrimaryMarked(i) ? 1 : 0;
            EXPECT_EQ(points.getPart(i).isMarked(MarkPrimaryAdjacent), given.contains({i, 3}));
        }
        ASSERT_EQ(points.getNumMarked(), marked) << step;
        ASSERT_EQ(points.getNumPrimary(), primary) << step;
    }
}

TEST(PointCollection, aPartHasOneLabelAtItsPosition)
{
    PointCollection points = threePoints();
    EXPECT_TRUE(points.setPartLabel(0, "A"));
    EXPECT_FALSE(points.setPartLabel(0, "B"));
    const boost::shared_ptr<SceneObjectLabel> label = points.getPart(0).getLabel();
    EXPECT_EQ(label->getText(), vxbase::UString("A"));
    EXPECT_EQ(label->getPosition(), Vector3f(1.0f, 2.0f, 3.0f));
    EXPECT_EQ(label->getChangeId(), 3);
    EXPECT_EQ(points.getNumLabels(), 1);
    points.removePartLabel(0);
    points.removePartLabel(0);
    EXPECT_EQ(points.getNumLabels(), 0);
    EXPECT_FALSE(points.getPart(0).getLabel());

    Point point;
    EXPECT_FALSE(point.setLabel("without a position"));
    EXPECT_FALSE(point.getLabel());
}

TEST(Point, aNewPositionDropsAllMarks)
{
    PointCollection points = threePoints();
    points.setPrimaryMark(true, 0);
    points.setUnpickableMark(true, 0);
    points.adjacentPrimaryMark(true, 0);
    Point point = points.getPart(0);
    point.setPosition(0.0f, 0.0f, 0.0f);
    EXPECT_EQ(point.getMarkFlags(), 0u);
    EXPECT_EQ(point.getAdjacentMarks().primary, 0);
    EXPECT_EQ(point.getControlCount(), 2);
}

TEST(PointCollection, anAllocationThatFailsLosesNoPart)
{
    PointCollection points = threePoints();
    const long failures =
        failEachAllocation([&] { points.allocateParts(5); }, [&] { EXPECT_EQ(points.getNumParts(), 3); });
    EXPECT_GE(failures, 1);
    failEachAllocation([&] { points.addPart(1.0f, 1.0f, 1.0f); }, [&] { EXPECT_EQ(points.getNumParts(), 0); });
    EXPECT_EQ(points.getNumParts(), 1);
}

} // namespace
} // namespace vxgraphics3d
