#include "graphics3d/canvas/axissetup.h"

#include <gtest/gtest.h>

#include <functional>

namespace vxgraphics3d {
namespace {

TEST(AxisSetup, startsWithItsDefaults)
{
    const AxisSetup setup;
    EXPECT_EQ(setup.getChangeId(), 1);
    EXPECT_EQ(setup.getAxisType(), 5);
    EXPECT_EQ(setup.getAxisKind(), 1);
    EXPECT_FALSE(setup.getXAxisLog() || setup.getYAxisLog() || setup.isPolar() || setup.isGraph());
    EXPECT_TRUE(setup.isAutoSpacing());
    EXPECT_EQ(setup.getXAxisSpacing(), 0.0);
    EXPECT_EQ(setup.getYAxisSpacing(), 0.0);
    EXPECT_TRUE(setup.getExtraX().empty() && setup.getExtraY().empty());
    EXPECT_EQ(setup.getLegendPosition(), 0);
    EXPECT_EQ(setup.getLegendLayoutStrategy(), 1);
    EXPECT_TRUE(setup.getXAxisTitle().empty() && setup.getYAxisTitle().empty() && setup.getSymmetryAxisTitle().empty());
}

TEST(AxisSetup, theTypeDecidesTheKind)
{
    constexpr int kinds[] = {2, 1, 2, 1, 1, 1, 2};
    for (int type = 0; type < 7; ++type) {
        AxisSetup setup;
        setup.setAxisType(type == 5 ? 0 : 5);
        setup.setAxisType(type);
        EXPECT_EQ(setup.getAxisKind(), kinds[type]) << type;
        EXPECT_EQ(setup.isPolar(), type == 1);
        EXPECT_EQ(setup.isGraph(), type == 4);
    }
    AxisSetup setup;
    setup.setAxisType(7);
    EXPECT_EQ(setup.getAxisKind(), 0);
    setup.setAxisType(-1);
    EXPECT_EQ(setup.getAxisKind(), 0);
}

TEST(AxisSetup, countsAChangeIfTheValueDiffersOrTheSetterAlwaysCounts)
{
    struct Case {
        const char* name;
        std::function<void(AxisSetup&)> set;
        int first;  ///< changes counted by the first call
        int second; ///< changes counted by the same call again
    };
    const Case cases[] = {
        {"type", [](AxisSetup& s) { s.setAxisType(2); }, 1, 0},
        {"x log", [](AxisSetup& s) { s.setXAxisLog(true); }, 1, 0},
        {"y log", [](AxisSetup& s) { s.setYAxisLog(true); }, 1, 0},
        {"auto spacing", [](AxisSetup& s) { s.setAutoSpacing(false); }, 1, 0},
        {"x spacing", [](AxisSetup& s) { s.setXSpacing(2.0); }, 1, 0},
        {"y spacing", [](AxisSetup& s) { s.setYSpacing(2.0); }, 1, 0},
        {"position", [](AxisSetup& s) { s.setLegendPosition(3); }, 1, 0},
        {"strategy", [](AxisSetup& s) { s.setLegendLayoutStrategy(3); }, 0, 0},
        {"extra x", [](AxisSetup& s) { s.setExtraX({1.0}); }, 1, 1},
        {"extra y", [](AxisSetup& s) { s.setExtraY({}); }, 1, 1},
        {"x title", [](AxisSetup& s) { s.setXAxisTitle(""); }, 1, 1},
        {"y title", [](AxisSetup& s) { s.setYAxisTitle("y"); }, 1, 1},
        {"symmetry", [](AxisSetup& s) { s.setSymmetryAxis("r"); }, 1, 1},
    };
    for (const Case& c : cases) {
        AxisSetup setup;
        c.set(setup);
        EXPECT_EQ(setup.getChangeId(), 1 + c.first) << c.name;
        c.set(setup);
        EXPECT_EQ(setup.getChangeId(), 1 + c.first + c.second) << c.name;
    }
}

TEST(AxisSetup, titlesAreStoredAsMarkup)
{
    AxisSetup setup;
    setup.setXAxisTitle("a{b}");
    EXPECT_EQ(setup.getXAxisTitle().toUtf8(), "\\begin{center}\\unicode{a\\{b\\}}\\end{center}");
    setup.setXAxisTitle("");
    EXPECT_EQ(setup.getXAxisTitle().toUtf8(), "");
    setup.setSymmetryAxis("r");
    EXPECT_EQ(setup.getSymmetryAxisTitle().toUtf8(), "\\begin{center}\\unicode{r=0}\\end{center}");
    setup.setSymmetryAxis("");
    EXPECT_EQ(setup.getSymmetryAxisTitle().toUtf8(), "");
}

TEST(AxisSetup, aTitleCanBeMadeFromTheCurrentOne)
{
    AxisSetup setup;
    setup.setXAxisTitle("x");
    setup.setXAxisTitle(setup.getXAxisTitle());
    EXPECT_EQ(setup.getXAxisTitle().toUtf8(),
              "\\begin{center}\\unicode{\\\\begin\\{center\\}\\\\unicode\\{x\\}\\\\end\\{center\\}}\\end{center}");
    setup.setSymmetryAxis("r");
    setup.setSymmetryAxis(setup.getSymmetryAxisTitle());
    EXPECT_EQ(setup.getSymmetryAxisTitle().toUtf8(),
              "\\begin{center}\\unicode{\\\\begin\\{center\\}\\\\unicode\\{r=0\\}"
              "\\\\end\\{center\\}=0}\\end{center}");
}

TEST(AxisSetup, copiesHaveEveryValueExceptTheChangeNumber)
{
    AxisSetup source;
    source.setAxisType(1);
    source.setXAxisLog(true);
    source.setExtraY({1.0, 2.0});
    source.setYAxisTitle("y");
    source.setLegendLayoutStrategy(4);
    AxisSetup copy(source);
    EXPECT_EQ(copy.getChangeId(), 1);
    EXPECT_TRUE(copy.isPolar() && copy.getXAxisLog() && !copy.getYAxisLog());
    EXPECT_EQ(copy.getExtraY(), source.getExtraY());
    EXPECT_EQ(copy.getYAxisTitle(), source.getYAxisTitle());
    EXPECT_EQ(copy.getLegendLayoutStrategy(), 4);

    AxisSetup assigned;
    assigned.setXSpacing(3.0);
    assigned = source;
    EXPECT_EQ(assigned.getChangeId(), 2);
    EXPECT_EQ(assigned.getXAxisSpacing(), 0.0);
    assigned.import(assigned);
    EXPECT_EQ(assigned.getChangeId(), 2);
    assigned.import(AxisSetup());
    EXPECT_EQ(assigned.getChangeId(), 3);
    EXPECT_EQ(assigned.getAxisType(), 5);
}

} // namespace
} // namespace vxgraphics3d
