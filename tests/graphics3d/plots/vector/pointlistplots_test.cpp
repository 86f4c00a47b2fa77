// The plots that keep lists of points: point labels and interactive plots.

#include "graphics3d/plots/vector/scenegraphplotinteractive.h"
#include "graphics3d/plots/vector/scenegraphplotpointlabel.h"
#include "tests/support/failingallocation.h"
#include "tests/support/fillrefusal.h"
#include "tests/support/postrecord.h"

#include <gtest/gtest.h>

#include <limits>
#include <stdexcept>
#include <vector>

namespace vxgraphics3d {
namespace {

using Record = vxdatacarrier::PostDataObject;
using Position = std::vector<float>;
using Points = std::vector<Position>;
using Texts = std::vector<std::string>;

Points pointsOf(const PointCollection& collection)
{
    Points points;
    for (int i = 0; i < collection.getNumParts(); ++i) {
        const Vector3f& p = collection.getPart(i).getPosition();
        points.push_back({p.x, p.y, p.z});
    }
    return points;
}

PostRecord twoPoints()
{
    return PostRecord().bounds({{1, 2}, {3, 4}, {5, 6}}).group({{1, 2}, {3, 4}, {5, 6}}, {{0}, {1}});
}

TEST(SceneGraphPlotPointLabel, theKindOfTheRecordDecidesOverTheAxes)
{
    SceneGraphPlotPointLabel plot(3, 1);
    EXPECT_EQ(plot.getType(), PlotType::pointLabel3d);
    EXPECT_EQ(SceneGraphPlotPointLabel(2, 1).getType(), PlotType::pointLabel2d);
    EXPECT_FALSE(plot.isValid());
    plot.fillPlot(twoPoints());
    EXPECT_EQ(pointsOf(plot.getLabelPoints()), (Points{{1, 3, 5}, {2, 4, 6}}));
    EXPECT_EQ(plot.getBoundingBox(), BoundingBox(1.0f, 2.0f, 3.0f, 4.0f, 5.0f, 6.0f));
    plot.fillPlot(twoPoints().kind(Record::PointLabel2d));
    EXPECT_EQ(pointsOf(plot.getLabelPoints()), (Points{{1, 3, 0}, {2, 4, 0}}));
    EXPECT_EQ(plot.getBoundingBox(), BoundingBox(1.0f, 2.0f, 3.0f, 4.0f, 0.0f, 0.0f));
}

TEST(SceneGraphPlotPointLabel, otherTextsCountAsAChangeOfGeometryAndStayWithoutPoints)
{
    SceneGraphPlotPointLabel plot(3, 1);
    plot.setLabels({"A", "B"});
    plot.setLabels({"A", "B"});
    EXPECT_EQ(plot.getGeometryChangeId(), 2);
    plot.setLabels({"A"});
    EXPECT_EQ(plot.getGeometryChangeId(), 3);
    plot.fillPlot(twoPoints());
    plot.resetPlotData();
    EXPECT_EQ(plot.getGeometryChangeId(), 4);
    EXPECT_FALSE(plot.isValid());
    EXPECT_EQ(plot.getLabels(), Texts{"A"});
    EXPECT_EQ(plot.getLabelChangeId(), 1);
}

TEST(SceneGraphPlotPointLabel, aPoorRecordIsRefusedAndChangesNothing)
{
    SceneGraphPlotPointLabel plot(3, 1);
    plot.fillPlot(twoPoints());
    EXPECT_NE(refusalOf(plot, PostRecord().bounds({{1, 2}, {3, 4}, {5, 6}}).group({{1}, {2}}, {})).find("coordinates"),
              std::string::npos);
    EXPECT_NE(refusalOf(plot, PostRecord().bounds({{1, 2}, {3, 4}}).group({{1}, {2}, {3}}, {})).find("bounds"),
              std::string::npos);
    EXPECT_EQ(plot.getLabelPoints().getNumParts(), 2);
}

TEST(SceneGraphPlotInteractive, linesAreSolidForTheirFractionAndDashedFromTheirEnd)
{
    const SceneGraphPlotInteractive::Coordinates line{{0, 30, 99}, {0, 0, 99}, {0, 60, 99}}; // and a single point
    SceneGraphPlotInteractive plot(1);
    plot.setLinePoints(line);
    EXPECT_EQ(pointsOf(plot.getDashPoints()), (Points{{0, 0, 0}, {30, 0, 60}}));

    plot.setSolidFraction(0.5f);
    EXPECT_EQ(plot.getDashPoints().getNumParts(), 2) << "applies to the next lines";
    plot.setLinePoints(line);
    const Points half = pointsOf(plot.getDashPoints());
    ASSERT_EQ(half.size(), 32u);
    EXPECT_EQ(half[1], (Position{15, 0, 30}));
    for (int k = 0; k < 15; ++k) {
        const auto first = static_cast<std::size_t>(2 + 2 * k);
        EXPECT_NEAR(half[first][0], 30.0f - 0.3f - static_cast<float>(k), 1e-5f);
        EXPECT_NEAR(half[first + 1][0], 30.0f - 0.7f - static_cast<float>(k), 1e-5f);
        EXPECT_NEAR(half[first + 1][2], 2.0f * half[first + 1][0], 1e-5f);
    }
    plot.setSolidFraction(0.7f); // in float (1 - f) * 30 is just below 9, in double it is above
    plot.setLinePoints(line);
    EXPECT_EQ(plot.getDashPoints().getNumParts(), 20);
    plot.setSolidFraction(0.0f);
    plot.setLinePoints({{0, 1, 2, 3}, {0, 0, 0, 0}, {0, 0, 0, 0}});
    EXPECT_EQ(plot.getDashPoints().getNumParts(), 124);
    EXPECT_EQ(pointsOf(plot.getDashPoints())[1], (Position{0, 0, 0}));
    EXPECT_EQ(pointsOf(plot.getDashPoints())[62], (Position{2, 0, 0}));
    EXPECT_EQ(plot.getGeometryChangeId(), 5);
}

TEST(SceneGraphPlotInteractive, theSolidFractionIsClampedAndCountsNothing)
{
    SceneGraphPlotInteractive plot(1);
    for (const auto& [set, stored] : std::vector<std::pair<float, float>>{
             {2.0f, 1.0f}, {-1.0f, 0.0f}, {0.25f, 0.25f}, {std::numeric_limits<float>::quiet_NaN(), 0.0f}}) {
        plot.setSolidFraction(set);
        EXPECT_EQ(plot.getSolidFraction(), stored);
    }
    EXPECT_EQ(plot.getGeometryChangeId(), 1);
}

TEST(SceneGraphPlotInteractive, eachSourceReplacesItsOwnPoints)
{
    SceneGraphPlotInteractive plot(1);
    EXPECT_FALSE(plot.isValid());
    plot.setPoints({{1, 2}, {3, 4, 99}, {5, 6}, {}});
    EXPECT_EQ(pointsOf(plot.getInteractivePoints()), (Points{{1, 3, 5}, {2, 4, 6}}));
    EXPECT_TRUE(plot.isValid());
    PostRecord record = twoPoints();
    record.group({{7, 8, 9}, {0, 0, 0}, {0, 0, 0}}, {{2, 1}, {0, 0}});
    plot.fillPlot(record);
    EXPECT_EQ(pointsOf(plot.getLinePoints()),
              (Points{{1, 3, 5}, {2, 4, 6}, {9, 0, 0}, {7, 0, 0}, {8, 0, 0}, {7, 0, 0}}));
    EXPECT_EQ(plot.getInteractivePoints().getNumParts(), 2);
    EXPECT_FALSE(plot.getBoundingBox().isValid());
    EXPECT_EQ(plot.getGeometryChangeId(), 3);
    plot.resetPlotData();
    EXPECT_FALSE(plot.isValid());
    EXPECT_EQ(plot.getGeometryChangeId(), 3);
    plot.setPoints({{1}, {2}, {3}});
    EXPECT_TRUE(plot.isValid());
    plot.clear();
    EXPECT_FALSE(plot.isValid());
    EXPECT_EQ(plot.getGeometryChangeId(), 5);
    EXPECT_EQ(plot.getInteractiveChangeId(), 1);
}

TEST(SceneGraphPlotInteractive, shortArraysAndPoorRecordsAreRefusedAndChangeNothing)
{
    SceneGraphPlotInteractive plot(1);
    plot.setPoints({{1}, {2}, {3}});
    plot.setLinePoints({{1, 1}, {2, 2}, {3, 3}});
    for (const SceneGraphPlotInteractive::Coordinates& poor :
         {SceneGraphPlotInteractive::Coordinates{}, {{1}, {2}}, {{1, 2}, {3}, {5, 6}}, {{1, 2}, {3, 4}, {5}}}) {
        EXPECT_THROW(plot.setPoints(poor), std::invalid_argument);
        EXPECT_THROW(plot.setLinePoints(poor), std::invalid_argument);
    }
    EXPECT_NE(refusalOf(plot, PostRecord().group({{1}, {2}}, {{0}, {0}})).find("coordinates"), std::string::npos);
    EXPECT_NE(refusalOf(plot, PostRecord().group({{1}, {2}, {3}}, {{0}})).find("elements"), std::string::npos);
    EXPECT_EQ(plot.getInteractivePoints().getNumParts(), 1);
    EXPECT_EQ(plot.getDashPoints().getNumParts(), 2);
    EXPECT_EQ(plot.getGeometryChangeId(), 3);
}

TEST(PointListPlots, lackOfMemoryLeavesEitherTheOldPointsOrNone)
{
    SceneGraphPlotPointLabel labels(3, 1);
    labels.setLabels({"A text too long to be stored in place"});
    SceneGraphPlotInteractive lines(2);
    lines.setPoints({{1}, {2}, {3}});
    lines.setLinePoints({{1, 1}, {2, 2}, {3, 3}});
    EXPECT_EQ(failEachAllocation(
                  [&] {
                      labels.setLabels({"Another", "text too long to be stored in place"});
                  },
                  [&] { EXPECT_EQ(labels.getLabels().size(), 1u); }) > 1,
              true);
    EXPECT_GE(failEachAllocation([&] { labels.fillPlot(twoPoints()); }, [&] { EXPECT_FALSE(labels.isValid()); }), 3);
    failEachAllocation(
        [&] {
            lines.setPoints({{1, 2}, {3, 4}, {5, 6}});
        },
        [&] { EXPECT_EQ(lines.getInteractivePoints().getNumParts(), 1); });
    failEachAllocation(
        [&] {
            lines.setLinePoints({{1, 2, 3, 4}, {3, 4, 3, 4}, {5, 6, 5, 6}});
        },
        [&] { EXPECT_EQ(lines.getDashPoints().getNumParts(), 2); });
    failEachAllocation([&] { lines.fillPlot(twoPoints()); },
                       [&] { EXPECT_EQ(lines.getLinePoints().getNumParts(), 0); });
    EXPECT_EQ(lines.getLinePoints().getNumParts(), 2);
}

} // namespace
} // namespace vxgraphics3d
