#include "graphics3d/plots/scenegraphplot.h"

#include "graphics3d/plots/colour/colortable.h"
#include "graphics3d/plots/colour/colortablehandler.h"
#include "graphics3d/plots/scenegraphplotgroup.h"
#include "tests/support/capturedlog.h"
#include "tests/support/fakeplot.h"
#include "tests/support/postrecord.h"

#include <gtest/gtest.h>

#include <boost/make_shared.hpp>

#include <cmath>
#include <limits>
#include <stdexcept>
#include <string>
#include <vector>

namespace vxgraphics3d {
namespace {

using Record = vxdatacarrier::PostDataObject;
using Source = SceneGraphPlot::ValueSource;

constexpr double c_infinity = std::numeric_limits<double>::infinity();

/// How far the three change numbers of a plot have changed since construction.
class Moved {
public:
    explicit Moved(const SceneGraphPlot& plot) : m_plot(plot), m_start(numbers()) {}
    std::vector<int> now() const
    {
        std::vector<int> moved = numbers();
        for (std::size_t i = 0; i < 3; ++i) {
            moved[i] -= m_start[i];
        }
        return moved;
    }

private:
    std::vector<int> numbers() const
    {
        return {m_plot.getGeometryChangeId(), m_plot.getColorChangeId(), m_plot.getTextureChangeId()};
    }

    const SceneGraphPlot& m_plot;
    std::vector<int> m_start;
};

using Numbers = std::vector<int>; // geometry, colour, texture

/// A record whose only group has one point, with the colour data limits given.
PostRecord rangeRecord(double min, double max)
{
    return PostRecord().role(0, 0).group({{0.0}}, {}, {{0.0}}).limits(0, 0, min, max);
}

std::vector<double> legend(const SceneGraphPlot& plot)
{
    return {plot.getLegendMin(), plot.getLegendMax()};
}

std::vector<float> legendFloats(const SceneGraphPlot& plot)
{
    return {plot.getDataTexMin(), plot.getDataTexMax(), plot.getLegendTexMin(), plot.getLegendTexMax()};
}

std::vector<double> restriction(const SceneGraphPlot& plot)
{
    return {plot.getValueRestrictionMin(), plot.getValueRestrictionMax()};
}

std::vector<float> restrictionFloats(const SceneGraphPlot& plot)
{
    return {plot.getRestrictionTexMin(), plot.getRestrictionTexMax()};
}

std::vector<float> limitsOf(const BoundingBox& box)
{
    const Vector3f min = box.getMin();
    const Vector3f max = box.getMax();
    return {min.x, max.x, min.y, max.y, min.z, max.z};
}

using Doubles = std::vector<double>;
using Floats = std::vector<float>;

TEST(SceneGraphPlot, logsItsLifeCycle)
{
    CapturedLog log(ErrorLog::Level::info);
    boost::make_shared<FakePlot>(7);
    EXPECT_EQ(log.messages(), (std::vector<std::string>{"Created SceneGraphPlot 7", "Destroyed SceneGraphPlot 7"}));
}

TEST(SceneGraphPlot, startsWhiteWithoutTableAndWithARangeFromZeroToOne)
{
    const FakePlot plot(3, SceneGraphPlot::PlotType::tube2d);
    EXPECT_EQ(static_cast<int>(plot.getType()), 23);
    EXPECT_EQ(plot.getId(), 3);
    EXPECT_EQ((Numbers{plot.getGeometryChangeId(), plot.getColorChangeId(), plot.getTextureChangeId()}),
              (Numbers{1, 1, 1}));
    EXPECT_EQ((Doubles{plot.getValueMin(), plot.getValueMax()}), (Doubles{0.0, 1.0}));
    EXPECT_EQ(legendFloats(plot), (Floats{0.0f, 1.0f, 0.0f, 1.0f}));
    EXPECT_EQ(restrictionFloats(plot), (Floats{0.0f, 1.0f}));
    EXPECT_FALSE(plot.isAutoLegendLimits());
    EXPECT_EQ(plot.getColor(), (Color{255, 255, 255, 255}));
    EXPECT_FALSE(plot.hasColorTable());
    EXPECT_EQ(plot.getColorTableName(), "");
    EXPECT_EQ(plot.getShininess(), 64.0f);
    EXPECT_TRUE(plot.isActive());
    EXPECT_TRUE(plot.isShowLegend());
    EXPECT_EQ(plot.getValueSource(), Source::none);
    EXPECT_FALSE(plot.getBoundingBox().isValid());
}

TEST(SceneGraphPlot, fillPlotTakesTheRangeFromColourElseIsoElseNothing)
{
    PostRecord both = PostRecord().role(0, 1).role(19, 0);
    both.group({{0.0}}, {}, {{0.0}, {0.0}}).limits(0, 0, 100.0, 200.0).limits(0, 1, 2.0, 5.0);
    both.group({{0.0}}, {}, {{0.0}, {0.0}}).limits(1, 0, 50.0, 150.0).limits(1, 1, -3.0, 4.0);
    PostRecord iso = both;
    iso.role(0, -1);
    PostRecord nothing = iso;
    nothing.role(19, -1);
    nothing.record().m_dataMin.clear(); // which a fill without data must not touch

    struct Case {
        const PostRecord& record;
        Source source;
        double min, max;
    };
    for (const Case& c : {Case{both, Source::colorData, -3.0, 5.0}, Case{iso, Source::isoData, 50.0, 200.0},
                          Case{nothing, Source::none, 0.0, 1.0}}) {
        FakePlot plot(1);
        plot.fillPlot(c.record);
        EXPECT_EQ(plot.getValueSource(), c.source);
        EXPECT_EQ((Doubles{plot.getValueMin(), plot.getValueMax()}), (Doubles{c.min, c.max}));
        EXPECT_EQ(legend(plot), (Doubles{c.min, c.max}));
        EXPECT_EQ(restriction(plot), (Doubles{c.min, c.max}));
    }
}

TEST(SceneGraphPlot, fillPlotSetsEverythingBeforeTheBuffersAndCountsGeometryAfterThem)
{
    FakePlot plot(1);
    plot.fillPlot(rangeRecord(0.0, 1.0));
    plot.setLegendLimits(5.0, 6.0);
    plot.setValueRestrictions(0.2, 0.3);
    const Moved moved(plot);
    Numbers atFill;
    plot.m_onFill = [&] {
        atFill = moved.now();
        EXPECT_EQ(plot.getValueMax(), 8.0);
        EXPECT_TRUE(plot.isAutoLegendLimits());
        EXPECT_FALSE(plot.hasValueRestrictions());
    };
    plot.fillPlot(rangeRecord(-2.0, 8.0));
    EXPECT_EQ(atFill, (Numbers{0, 1, 2}));
    EXPECT_EQ(moved.now(), (Numbers{1, 1, 2}));
    EXPECT_EQ(legendFloats(plot), (Floats{0.0f, 1.0f, 0.0f, 1.0f}));
    EXPECT_EQ(restrictionFloats(plot), (Floats{0.0f, 1.0f}));
    EXPECT_EQ(restriction(plot), (Doubles{-2.0, 8.0}));
}

TEST(SceneGraphPlot, fillPlotKeepsSymmetryDirectionTableHeightScaleAndOffset)
{
    FakePlot plot(1);
    plot.setSymmetricColorTable(true);
    plot.setReverseColorTable(true);
    plot.setColorTable("plot test kept", {{0, 0, 0}}, true);
    plot.setHeightScale(3.0f);
    plot.setPlotPlaneOffset(4.0f);
    plot.fillPlot(rangeRecord(-1.0, 3.0));
    EXPECT_EQ(legend(plot), (Doubles{-3.0, 3.0}));
    EXPECT_EQ(legendFloats(plot), (Floats{static_cast<float>(1.0 / 3.0), 1.0f, 0.0f, 1.0f}));
    EXPECT_TRUE(plot.isReverseColorTable());
    EXPECT_EQ(plot.getColorTableName(), "plot test kept");
    EXPECT_EQ(plot.getHeightScale(), 3.0f);
    EXPECT_EQ(plot.getPlotPlaneOffset(), 4.0f);
}

TEST(SceneGraphPlot, fillPlotReportsLimitsThatAreNotFiniteAndContinues)
{
    CapturedLog log(ErrorLog::Level::error);
    FakePlot plot(1);
    int fills = 0;
    plot.m_onFill = [&] { ++fills; };
    plot.fillPlot(rangeRecord(-c_infinity, 1.0));
    plot.fillPlot(rangeRecord(0.0, c_infinity));
    plot.fillPlot(rangeRecord(std::nan(""), std::nan("")));
    EXPECT_EQ(log.messages(),
              (std::vector<std::string>{"Plot min value is not finite.", "Plot max value is not finite.",
                                        "Plot min value is not finite.", "Plot max value is not finite."}));
    EXPECT_EQ(fills, 3);
}

TEST(SceneGraphPlot, fillPlotRefusesAnIncompleteRecordBeforeAnythingChanges)
{
    FakePlot plot(1);
    plot.fillPlot(rangeRecord(1.0, 2.0));
    const Moved moved(plot);
    plot.m_onFill = [] { FAIL() << "the buffers were touched"; };
    PostRecord withoutLimits = rangeRecord(5.0, 6.0).role(0, 1);
    EXPECT_THROW(plot.fillPlot(withoutLimits), std::invalid_argument);
    EXPECT_THROW(plot.fillPlot(PostRecord()), std::invalid_argument);
    EXPECT_EQ(moved.now(), (Numbers{0, 0, 0}));
    EXPECT_EQ(plot.getValueMax(), 2.0);
    EXPECT_EQ(plot.getValueSource(), Source::colorData);
}

TEST(SceneGraphPlot, fillPlotCountsGeometryWhenTheBuffersFail)
{
    FakePlot plot(1);
    const Moved moved(plot);
    plot.m_onFill = [] { throw std::bad_alloc(); };
    EXPECT_THROW(plot.fillPlot(rangeRecord(1.0, 2.0)), std::bad_alloc);
    EXPECT_EQ(moved.now(), (Numbers{1, 1, 2}));
}

TEST(SceneGraphPlot, legendAndRestrictionCountWhatARendererMustReadAgain)
{
    FakePlot plot(1);
    plot.fillPlot(rangeRecord(0.0, 1.0));
    const Moved moved(plot);
    plot.setLegendLimits(-2.0, 1.0);
    EXPECT_EQ(moved.now(), (Numbers{0, 0, 1}));
    plot.setAutoLegendLimits();
    EXPECT_EQ(moved.now(), (Numbers{0, 0, 2}));
    plot.setSymmetricColorTable(true);
    plot.setSymmetricColorTable(true);
    EXPECT_EQ(moved.now(), (Numbers{0, 1, 3}));
    EXPECT_EQ(legend(plot), (Doubles{-2.0, 2.0}));
    plot.setReverseColorTable(true);
    plot.setReverseColorTable(true);
    EXPECT_EQ(moved.now(), (Numbers{0, 2, 3}));
    plot.setValueRestrictions(-100.0, 100.0);
    EXPECT_EQ(moved.now(), (Numbers{1, 2, 4}));
    plot.setValueRestrictions(0.1, 0.2);
    EXPECT_EQ(moved.now(), (Numbers{1, 2, 5}));
    plot.resetValueRestrictions();
    EXPECT_EQ(moved.now(), (Numbers{2, 2, 6}));
    plot.resetValueRestrictions();
    EXPECT_EQ(moved.now(), (Numbers{2, 2, 7}));
}

TEST(SceneGraphPlot, setColorTableCreatesATableOncePerName)
{
    CapturedLog log(ErrorLog::Level::info);
    FakePlot first(1);
    FakePlot second(2);
    const Moved moved(second);
    EXPECT_TRUE(first.setColorTable("plot test once", {{-0.5, 0.5, 2.0}, {std::nan(""), 0.998, 0.0, 3.0}}, false));
    EXPECT_TRUE(second.setColorTable("plot test once", {}, true));
    EXPECT_EQ(first.getColorTable(), second.getColorTable());
    EXPECT_EQ(moved.now(), (Numbers{0, 1, 0}));

    const boost::shared_ptr<ColorTable> table = second.getColorTable();
    ASSERT_TRUE(table);
    EXPECT_EQ(table->getType(), ColorTable::Discrete);
    EXPECT_EQ(table->getRgba()[255], 0x0080ffffu); // 0.5 * 255 + 0.5 = 128
    EXPECT_EQ(table->getRgba()[256], 0x00fe00ffu); // the second colour is three times as wide
    EXPECT_EQ(log.messages()[2], "Setting color table to plot test once for plot 1");
}

TEST(SceneGraphPlot, setColorTableRefusesInvalidRowsAndRegistersNothing)
{
    FakePlot plot(1);
    plot.setColorTable("plot test present", {{1, 1, 1}}, true);
    const Moved moved(plot);
    for (const std::vector<std::vector<double>>& rows :
         {std::vector<std::vector<double>>{}, {{1, 1}}, {{1, 1, 1}, {}}, {{1, 1, 1, 0}}}) {
        EXPECT_THROW(plot.setColorTable("plot test refused", rows, false), std::invalid_argument);
    }
    EXPECT_FALSE(ColorTableHandler::getInstance()->isColorTable("plot test refused"));
    EXPECT_EQ(plot.getColorTableName(), "plot test present");
    EXPECT_EQ(moved.now(), (Numbers{0, 0, 0}));
}

TEST(SceneGraphPlot, setColorDropsTheTableAndADeletedTableIsGone)
{
    FakePlot plot(1);
    plot.setColorTable("plot test gone", {{1, 1, 1}}, true);
    ColorTableHandler::getInstance()->deleteColorTable("plot test gone");
    EXPECT_FALSE(plot.hasColorTable());
    EXPECT_EQ(plot.getColorTable(), nullptr);
    EXPECT_EQ(plot.getColorTableName(), "");

    plot.setColorTable("plot test dropped", {{1, 1, 1}}, true);
    const Moved moved(plot);
    plot.setColor({1, 2, 3, 4});
    EXPECT_FALSE(plot.hasColorTable());
    EXPECT_EQ(plot.getColor(), (Color{1, 2, 3, 4}));
    EXPECT_EQ(moved.now(), (Numbers{0, 1, 0}));
}

TEST(SceneGraphPlot, setShininessClampsToTheSpecularRange)
{
    FakePlot plot(1);
    const Moved moved(plot);
    for (const auto& [given, stored] : {std::pair{0.5f, 1.0f},
                                        {1.0f, 1.0f},
                                        {1.5f, 1.5f},
                                        {128.0f, 128.0f},
                                        {500.0f, 128.0f},
                                        {std::nanf(""), 1.0f}}) {
        plot.setShininess(given);
        EXPECT_EQ(plot.getShininess(), stored);
    }
    EXPECT_EQ(moved.now(), (Numbers{0, 0, 0}));
}

TEST(SceneGraphPlot, setHeightScaleGrowsTheBoxAboutThePlotPlane)
{
    FakePlot plot(1);
    plot.setPlotPlaneOffset(1.0f);
    plot.setBoundingBox(BoundingBox(0.0f, 1.0f, 0.0f, 1.0f, 2.0f, 4.0f));
    const Moved moved(plot);
    for (const float ignored : {0.0f, -1.0f, 1.0f, std::nanf("")}) {
        plot.setHeightScale(ignored);
        EXPECT_EQ(plot.getHeightScale(), 1.0f);
    }
    plot.setHeightScale(2.0f);
    EXPECT_EQ(limitsOf(plot.getBoundingBox()), (Floats{0, 1, 0, 1, 3, 7}));
    plot.setHeightScale(0.5f);
    EXPECT_EQ(limitsOf(plot.getBoundingBox()), (Floats{0, 1, 0, 1, 1.5f, 2.5f}));
    EXPECT_EQ(moved.now(), (Numbers{0, 0, 0}));
}

TEST(SceneGraphPlot, setBoundingBoxTakesTheBoundsOfARecord)
{
    FakePlot plot(1);
    PostRecord record = rangeRecord(0.0, 1.0);
    plot.setBoundingBox(record.bounds({{1.0, 2.0}, {3.0, 5.0}}));
    EXPECT_EQ(plot.getBoundingBox(), BoundingBox(1.0f, 2.0f, 3.0f, 5.0f, 0.0f, 0.0f));
}

TEST(SceneGraphPlot, setPlotPlaneOffsetMovesTheBoxByTheDifference)
{
    FakePlot plot(1);
    plot.setBoundingBox(BoundingBox(0.0f, 1.0f, 0.0f, 1.0f, 2.0f, 4.0f));
    const Moved moved(plot);
    plot.setPlotPlaneOffset(3.0f);
    plot.setPlotPlaneOffset(1.0f);
    EXPECT_EQ(limitsOf(plot.getBoundingBox()), (Floats{0, 1, 0, 1, 3, 5}));
    EXPECT_EQ(plot.getPlotPlaneOffset(), 1.0f);
    EXPECT_EQ(moved.now(), (Numbers{0, 0, 0}));
}

TEST(SceneGraphPlot, anInactivePlotKeepsAndMovesItsOwnBox)
{
    FakePlot plot(1);
    plot.setBoundingBox(BoundingBox(0.0f, 1.0f, 0.0f, 1.0f, 0.0f, 2.0f));
    plot.setActive(false);
    EXPECT_FALSE(plot.getBoundingBox().isValid());
    EXPECT_EQ(&plot.getBoundingBox(), [] {
        static FakePlot other(2);
        other.setActive(false);
        return &other.getBoundingBox();
    }());
    plot.setPlotPlaneOffset(1.0f);
    plot.setHeightScale(3.0f);
    EXPECT_EQ(limitsOf(plot.getStoredBoundingBox()), (Floats{0, 1, 0, 1, 1, 7}));
    plot.setActive(true);
    EXPECT_EQ(limitsOf(plot.getBoundingBox()), (Floats{0, 1, 0, 1, 1, 7}));
}

TEST(SceneGraphPlot, setTitleEscapesPlainTextAndNotifiesTheGroup)
{
    const auto group = SceneGraphPlotGroup::create();
    const auto plot = boost::make_shared<FakePlot>(1);
    plot->setTitle(TextFormat::plain, "before any group");
    group->addPlot(plot);
    const int before = group->getTitleChangeId();
    plot->setTitle(TextFormat::plain, "a{b\\");
    EXPECT_EQ(plot->getTitle().toUtf8(), "a\\{b\\\\");
    EXPECT_EQ(plot->getTitleFormat(), TextFormat::plain);
    plot->setTitle(TextFormat::markup, "a{b");
    EXPECT_EQ(plot->getTitle().toUtf8(), "a{b");
    EXPECT_EQ(plot->getTitleFormat(), TextFormat::markup);
    EXPECT_EQ(group->getTitleChangeId(), before + 2);
    group->removeAllPlots();
}

TEST(SceneGraphPlot, setActiveUpdatesTheGroupsBoxAndCountsATitleThatAppearsOrDisappears)
{
    const auto group = SceneGraphPlotGroup::create();
    const auto plot = boost::make_shared<FakePlot>(1);
    group->addPlot(plot);
    plot->setBoundingBox(BoundingBox(0.0f, 1.0f, 0.0f, 1.0f, 0.0f, 1.0f));
    EXPECT_TRUE(group->getBoundingBox().isValid());
    const int before = group->getTitleChangeId();
    plot->setActive(false);
    EXPECT_FALSE(group->getBoundingBox().isValid());
    EXPECT_EQ(group->getTitleChangeId(), before);
    plot->setTitle(TextFormat::plain, "title");
    plot->setActive(false);
    EXPECT_EQ(group->getTitleChangeId(), before + 1);
    plot->setActive(true);
    EXPECT_EQ(group->getTitleChangeId(), before + 2);
    EXPECT_TRUE(group->getBoundingBox().isValid());
    group->removeAllPlots();
}

TEST(SceneGraphPlot, aDestroyedGroupCountsAsNone)
{
    const auto plot = boost::make_shared<FakePlot>(1);
    SceneGraphPlotGroup::create()->addPlot(plot);
    EXPECT_EQ(plot->getPlotGroup(), nullptr);
    plot->setTitle(TextFormat::plain, "title");
    plot->setBoundingBox(BoundingBox(0.0f, 1.0f, 0.0f, 1.0f, 0.0f, 1.0f));
    plot->setActive(false);
    EXPECT_FALSE(plot->isActive());
}

} // namespace
} // namespace vxgraphics3d
