#include "graphics3d/plots/scenegraphplotgroup.h"

#include "graphics3d/plots/igraphplot.h"
#include "graphics3d/scenegraph/scenegraphgroup.h"
#include "graphics3d/scenegraph/scenegraphroot.h"
#include "tests/support/capturedlog.h"
#include "tests/support/fakeplot.h"
#include "tests/support/postrecord.h"

#include <gtest/gtest.h>

#include <boost/make_shared.hpp>

#include <stdexcept>
#include <string>
#include <vector>

namespace vxgraphics3d {

namespace {

using Handles = std::vector<int>;
using Messages = std::vector<std::string>;

class FakeGraph : public FakePlot, public IGraphPlot {
public:
    explicit FakeGraph(int id) : FakePlot(id, PlotType::graph) {}

    const BoundingBox& getBoundingBoxLog(int axes) const override
    {
        m_logBox = BoundingBox(0.0f, static_cast<float>(axes), 0.0f, 1.0f, 0.0f, 1.0f);
        return m_logBox;
    }
    void getLineLegendData(std::vector<LineLegend>& result) const override { s_asked.push_back({&result, getId()}); }

    /// The graphs that were asked for their legend, and with which list.
    inline static std::vector<std::pair<const void*, int>> s_asked;

private:
    mutable BoundingBox m_logBox;
};

/// A group under a root, with one plot per id.
struct Scene {
    explicit Scene(std::vector<int> ids = {})
    {
        root->setChild(group);
        for (const int id : ids) {
            plots.push_back(boost::make_shared<FakePlot>(id));
            group->addPlot(plots.back());
        }
    }
    ~Scene() { group->removeAllPlots(); }

    boost::shared_ptr<SceneGraphRoot> root = SceneGraphRoot::create();
    boost::shared_ptr<SceneGraphPlotGroup> group = SceneGraphPlotGroup::create();
    std::vector<boost::shared_ptr<FakePlot>> plots;
};

std::string totalTitle(const SceneGraphPlotGroup& group)
{
    vxbase::UString title("what was there before");
    group.getTotalTitle(title);
    return title.toUtf8();
}

float maxX(const BoundingBox& box)
{
    return box.isValid() ? box.getMax().x : -1.0f;
}

BoundingBox boxTo(float x)
{
    return BoundingBox(0.0f, x, 0.0f, 1.0f, 0.0f, 1.0f);
}

TEST(TextureHandleStack, givesOneToTwoHundredFiftySixThenNothing)
{
    TextureHandleStack stack;
    for (int handle = 1; handle <= 256; ++handle) {
        ASSERT_EQ(stack.pop(), handle);
    }
    EXPECT_EQ(stack.pop(), -1);
    stack.push(77);
    EXPECT_EQ(stack.pop(), 77);
    EXPECT_EQ(stack.pop(), -1);
}

TEST(SceneGraphPlotGroup, startsEmpty)
{
    const auto group = SceneGraphPlotGroup::create();
    EXPECT_EQ(group->getType(), SceneGraphNode::NodePlotGroup);
    EXPECT_EQ(totalTitle(*group), "");
    EXPECT_EQ(group->getNumberOfColorLegends(), 0);
    EXPECT_EQ(group->getNoOfPlots(), 0);
    EXPECT_FALSE(group->doesPlotExist(0));
    EXPECT_EQ(group->getTitleChangeId(), 1);
}

TEST(SceneGraphPlotGroup, addPlotGivesHandlesLastInFirstOut)
{
    Scene scene({1, 2});
    EXPECT_EQ(scene.plots[0]->getTextureHandles(), (Handles{1, 2}));
    EXPECT_EQ(scene.plots[1]->getTextureHandles(), (Handles{3, 4}));
    scene.group->removePlot(1);
    EXPECT_EQ(scene.plots[0]->getTextureHandles(), (Handles{-1, -1}));
    EXPECT_EQ(scene.plots[0]->getPlotGroup(), nullptr);
    const auto next = boost::make_shared<FakePlot>(3);
    scene.group->addPlot(next);
    EXPECT_EQ(next->getTextureHandles(), (Handles{2, 1}));
    EXPECT_EQ(next->getColorTableTextureHandle(1), 1);
    EXPECT_EQ(next->getPlotGroup(), scene.group);
}

TEST(SceneGraphPlotGroup, addPlotCountsATitleChangeAndAChangeOfStructure)
{
    Scene scene;
    const int title = scene.group->getTitleChangeId();
    const int structure = scene.root->getTreeStructureChangeId();
    const int children = scene.root->getChildrenChangeId();
    const int own = scene.group->getChangeId();
    scene.group->addPlot(boost::make_shared<FakePlot>(1));
    EXPECT_EQ(scene.group->getTitleChangeId(), title + 1);
    EXPECT_EQ(scene.root->getTreeStructureChangeId(), structure + 1);
    EXPECT_EQ(scene.root->getChildrenChangeId(), children + 1);
    EXPECT_EQ(scene.group->getChangeId(), own);
}

TEST(SceneGraphPlotGroup, addPlotRefusesThe129thPlotAndLeavesTheGroupUnchanged)
{
    Scene scene;
    for (int id = 1; id <= 128; ++id) {
        ASSERT_TRUE(scene.group->addPlot(boost::make_shared<FakePlot>(id)));
    }
    const int title = scene.group->getTitleChangeId();
    const auto refused = boost::make_shared<FakePlot>(129);
    CapturedLog log(ErrorLog::Level::warning);
    EXPECT_FALSE(scene.group->addPlot(refused));
    EXPECT_EQ(log.messages(), (Messages{"No more texture handles in texture stack"}));
    EXPECT_EQ(scene.group->getNoOfPlots(), 128);
    EXPECT_FALSE(scene.group->doesPlotExist(129));
    EXPECT_EQ(refused->getPlotGroup(), nullptr);
    EXPECT_EQ(scene.group->getTitleChangeId(), title);
}

TEST(SceneGraphTexturePlot, keepsTheHandlesFromAStackThatRanOut)
{
    TextureHandleStack stack;
    while (stack.getNumAvailable() > 1) {
        stack.pop();
    }
    FakePlot plot(1);
    EXPECT_FALSE(plot.setTextureHandles(stack));
    EXPECT_EQ(plot.getTextureHandles(), (Handles{256, -1}));
    EXPECT_EQ(stack.getNumAvailable(), 0);
}

TEST(SceneGraphPlotGroup, addPlotReplacesAPlotOfTheSameIdWithoutNotifyingIt)
{
    Scene scene({5});
    const auto other = boost::make_shared<FakePlot>(5);
    EXPECT_TRUE(scene.group->addPlot(other));
    EXPECT_EQ(scene.group->getNoOfPlots(), 1);
    EXPECT_EQ(scene.group->plotPtr(5), other);
    EXPECT_EQ(scene.plots[0]->getTextureHandles(), (Handles{1, 2}));
    EXPECT_EQ(other->getTextureHandles(), (Handles{3, 4}));
}

TEST(SceneGraphPlotGroup, addPlotTwiceTakesHandlesTwice)
{
    Scene scene({5});
    scene.group->addPlot(scene.plots[0]);
    EXPECT_EQ(scene.plots[0]->getTextureHandles(), (Handles{3, 4}));
    EXPECT_EQ(scene.group->getTextureHandles().getNumAvailable(), 252);
}

TEST(SceneGraphPlotGroup, addPlotRefusesNullBeforeLogging)
{
    Scene scene;
    CapturedLog log(ErrorLog::Level::info);
    EXPECT_THROW(scene.group->addPlot({}), std::invalid_argument);
    EXPECT_EQ(log.text(), "");
}

TEST(SceneGraphPlotGroup, removalLogsAndCountsOnlyWhatLeaves)
{
    Scene scene({1, 2});
    const std::string node = std::to_string(scene.group->getNodeId());
    CapturedLog log(ErrorLog::Level::info);
    const int start = scene.group->getTitleChangeId();
    scene.group->removePlot(7);
    EXPECT_EQ(scene.group->getTitleChangeId(), start);
    EXPECT_EQ(log.text(), "");
    scene.group->removePlot(2);
    EXPECT_EQ(scene.group->getTitleChangeId(), start + 1);
    scene.group->addPlot(scene.plots[1]);
    scene.group->removeAllPlots();
    EXPECT_EQ(scene.group->getTitleChangeId(), start + 3);
    scene.group->removeAllPlots();
    EXPECT_EQ(scene.group->getTitleChangeId(), start + 3);
    EXPECT_EQ(log.messages(), (Messages{"Removing plot 2 from plot group (node " + node + ")",
                                        "Adding plot 2 to plot group (node " + node + ")",
                                        "Removing all plots from plot group (node " + node + ")",
                                        "Removing all plots from plot group (node " + node + ")"}));
    EXPECT_EQ(scene.group->getTextureHandles().getNumAvailable(), 256);
}

TEST(SceneGraphPlotGroup, itsDestructionLeavesPlotsWithHandlesThatTheyReport)
{
    auto plot = boost::make_shared<FakePlot>(1);
    SceneGraphPlotGroup::create()->addPlot(plot);
    EXPECT_EQ(plot->getTextureHandles(), (Handles{1, 2}));
    EXPECT_EQ(plot->getPlotGroup(), nullptr);
    CapturedLog log(ErrorLog::Level::warning);
    plot.reset();
    EXPECT_EQ(log.messages(), Messages(2, "Destroying plot without pushing texture handle."));
}

TEST(SceneGraphPlotGroup, lookupsOfAMissingPlotThrow)
{
    Scene scene({4});
    EXPECT_EQ(&scene.group->getPlot(4), scene.plots[0].get());
    EXPECT_EQ(&scene.group->plot(4), scene.plots[0].get());
    EXPECT_THROW(scene.group->getPlot(5), std::out_of_range);
    EXPECT_THROW(scene.group->plot(5), std::out_of_range);
    EXPECT_THROW(scene.group->plotPtr(5), std::out_of_range);
}

TEST(SceneGraphPlotGroup, plotsAreOrderedById)
{
    Scene scene({3, -1, 2});
    std::vector<int> ids;
    for (auto [at, end] = scene.group->getPlots(); at != end; ++at) {
        ids.push_back(at->first);
    }
    EXPECT_EQ(ids, (std::vector<int>{-1, 2, 3}));
}

TEST(SceneGraphPlotGroup, getTotalTitleJoinsTheTitlesOfGroupAndActivePlotsInTheirOwnFormats)
{
    Scene scene({1, 2, 3, 4});
    scene.plots[0]->setTitle(TextFormat::markup, "a^2");
    scene.plots[1]->setTitle(TextFormat::plain, "hidden");
    scene.plots[1]->setActive(false);
    scene.plots[3]->setTitle(TextFormat::plain, "{b}");
    EXPECT_EQ(totalTitle(*scene.group), "\\begin{center} \\mbox{a^2} \\mbox{\\unicode{\\{b\\}}} \\end{center}");
    scene.group->setTitle(TextFormat::plain, "g{");
    EXPECT_EQ(totalTitle(*scene.group),
              "\\begin{center} \\mbox{\\unicode{g\\{}} \\mbox{a^2} \\mbox{\\unicode{\\{b\\}}} \\end{center}");
    scene.group->removeAllPlots();
    EXPECT_EQ(totalTitle(*scene.group), "\\begin{center} \\mbox{\\unicode{g\\{}} \\end{center}");
    scene.group->setTitle(TextFormat::markup, "g{");
    EXPECT_EQ(totalTitle(*scene.group), "\\begin{center} \\mbox{g{} \\end{center}");
    scene.group->setTitle(TextFormat::plain, "");
    EXPECT_EQ(totalTitle(*scene.group), "");
}

TEST(SceneGraphPlotGroup, setTitleCountsATitleChangeEvenIfItIsTheSame)
{
    Scene scene;
    const int start = scene.group->getTitleChangeId();
    scene.group->setTitle(TextFormat::plain, "title");
    scene.group->setTitle(TextFormat::plain, "title");
    EXPECT_EQ(scene.group->getTitleChangeId(), start + 2);
}

TEST(SceneGraphPlotGroup, getNumberOfColorLegendsNeedsEveryCondition)
{
    Scene scene({1});
    FakePlot& plot = *scene.plots[0];
    plot.fillPlot(PostRecord().role(0, 0).group({{0.0}}, {}, {{0.0}}));
    plot.setColorTable("group test", {{1, 1, 1}}, true);
    EXPECT_EQ(scene.group->getNumberOfColorLegends(), 1);
    plot.setActive(false);
    EXPECT_EQ(scene.group->getNumberOfColorLegends(), 0);
    plot.setActive(true);
    plot.m_valid = false;
    EXPECT_EQ(scene.group->getNumberOfColorLegends(), 0);
    plot.m_valid = true;
    plot.setShowLegend(false);
    EXPECT_EQ(scene.group->getNumberOfColorLegends(), 0);
    plot.setShowLegend(true);
    plot.setColor({});
    EXPECT_EQ(scene.group->getNumberOfColorLegends(), 0);
    plot.setColorTable("group test", {}, true);
    EXPECT_EQ(scene.root->getNumberOfColorLegends(), 1);
    plot.fillPlot(PostRecord().group({{0.0}}, {}));
    EXPECT_EQ(scene.group->getNumberOfColorLegends(), 0);
}

TEST(SceneGraphPlotGroup, boxCoversActivePlotsAndReachesTheRoot)
{
    Scene scene({1, 2});
    scene.plots[0]->setBoundingBox(boxTo(3.0f));
    scene.plots[1]->setBoundingBox(boxTo(8.0f));
    EXPECT_EQ(maxX(scene.root->getBoundingBox()), 8.0f);
    scene.plots[1]->setActive(false);
    EXPECT_EQ(maxX(scene.root->getBoundingBox()), 3.0f);
    scene.group->removePlot(1);
    EXPECT_EQ(maxX(scene.root->getBoundingBox()), -1.0f);
}

TEST(SceneGraphPlotGroup, getMarkedBoundingBoxTakesAllPlotsOrTheGraphsWithLogarithmicAxes)
{
    Scene scene({1, 3});
    scene.plots[0]->setBoundingBox(boxTo(50.0f));
    scene.group->addPlot(boost::make_shared<FakeGraph>(2));
    for (const auto& [logAxes, expected] : {std::pair{0, 50.0f}, {1, 1.0f}, {3, 3.0f}}) {
        BoundingBox box;
        scene.group->getMarkedBoundingBox(box, logAxes, 99);
        EXPECT_EQ(maxX(box), expected);
    }
    scene.group->removeAllPlots();
    BoundingBox box = boxTo(7.0f);
    scene.group->getMarkedBoundingBox(box, 0, 0);
    EXPECT_EQ(maxX(box), 7.0f);
}

TEST(SceneGraphPlotGroup, getLineLegendAsksTheGraphsInTheOrderOfTheirIds)
{
    Scene scene({1});
    scene.group->addPlot(boost::make_shared<FakeGraph>(9));
    scene.group->addPlot(boost::make_shared<FakeGraph>(4));
    // The list is only passed on here: the graphs fill its entries.
    std::vector<int> storage;
    FakeGraph::s_asked.clear();
    scene.root->getLineLegend(reinterpret_cast<std::vector<LineLegend>&>(storage));
    EXPECT_EQ(FakeGraph::s_asked, (std::vector<std::pair<const void*, int>>{{&storage, 4}, {&storage, 9}}));
}

TEST(SceneGraphPlotGroup, answersTheRootsQueries)
{
    Scene scene({1});
    LastChangeId last;
    EXPECT_TRUE(scene.root->isTitleChanged(last));
    scene.root->resetTitleChanged(last);
    EXPECT_FALSE(scene.root->isTitleChanged(last));
    scene.plots[0]->setTitle(TextFormat::plain, "t");
    EXPECT_TRUE(scene.root->isTitleChanged(last));
    vxbase::UString title;
    scene.root->getTitle(title);
    EXPECT_EQ(title.toUtf8(), "\\begin{center} \\mbox{\\unicode{t}} \\end{center}");

    const auto other = SceneGraphRoot::create();
    EXPECT_FALSE(other->isTitleChanged(last));
    EXPECT_EQ(other->getNumberOfColorLegends(), 0);
    other->setChild(SceneGraphGroup::create());
    EXPECT_FALSE(other->isTitleChanged(last));
    EXPECT_EQ(other->getNumberOfColorLegends(), 0);
}

} // namespace
} // namespace vxgraphics3d
