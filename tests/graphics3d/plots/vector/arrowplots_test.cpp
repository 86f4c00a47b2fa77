#include "graphics3d/plots/vector/scenegraphplotarrow2d.h"
#include "graphics3d/plots/vector/scenegraphplotarrow3d.h"
#include "graphics3d/plots/vector/scenegraphplotprincipal.h"
#include "graphics3d/readers/sceneplotfilereader.h"
#include "tests/graphics3d/plots/vector/vectorplots.h"
#include "tests/support/failingallocation.h"
#include "tests/support/randomnumbers.h"
#include "tests/support/temporaryfile.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <numbers>

namespace vxgraphics3d {
namespace {

using Floats = std::vector<float>;

/// The records of a plot as plain numbers.
template <class Plot>
std::vector<Floats> arrowsOf(const Plot& plot)
{
    std::vector<Floats> result(static_cast<std::size_t>(plot.getNumArrows()),
                               Floats(sizeof(typename Plot::Arrow) / sizeof(float)));
    for (std::size_t i = 0; i < result.size(); ++i) {
        std::memcpy(result[i].data(), plot.getArrows() + i, sizeof(typename Plot::Arrow));
    }
    return result;
}

template <class Plot>
std::string textOf(const Plot& plot)
{
    std::string text;
    for (const Floats& arrow : arrowsOf(plot)) {
        for (const float number : arrow) {
            text += std::to_string(number) + " ";
        }
    }
    return text;
}

/// Geometry and arrow numbers.
std::pair<int, int> countersOf(const SceneGraphPlotArrow& plot)
{
    return {plot.getGeometryChangeId(), plot.getArrowChangeId()};
}

constexpr float c_pi = std::numbers::pi_v<float>;

/// Four points on a square with edge 2: vectors along x, y, minus x, and none. Values 0 to 10.
PostRecord square(int numAxes)
{
    PostRecord record;
    record.role(Record::ColorData, 0).role(Record::VectorX, 1).role(Record::VectorY, 2);
    Record::DoubleArrays points{{0, 2, 0, 2}, {0, 0, 2, 2}};
    Record::DoubleArrays bounds{{0, 2}, {0, 2}};
    Record::DoubleArrays data{{0, 5, 10, 2.5}, {1, 0, -2, 0}, {0, 1, 0, 0}};
    if (numAxes == 3) {
        record.role(Record::VectorZ, 3);
        points.push_back({7, 7, 7, 7});
        bounds.push_back({7, 7});
        data.push_back({0, 0, 0, 0});
    }
    return record.bounds(bounds).group(points, {}, data);
}

TEST(SceneGraphPlotArrow2d, fillScalesTheLongestArrowToTheDistanceOfPoints)
{
    SceneGraphPlotArrow2d plot(1);
    EXPECT_FALSE(plot.isValid());
    plot.fillPlot(square(2));
    // The mean extent 2 over the root of 4 points is 1: the longest vector, 2, becomes 0.85.
    EXPECT_EQ(arrowsOf(plot),
              (std::vector<Floats>{
                  {0, 0, 0, 0.425f, 0}, {2, 0, c_pi / 2, 0.425f, 0.5f}, {0, 2, c_pi, 0.85f, 1}, {2, 2, 0, 0, 0.25f}}));
    EXPECT_EQ(plot.getMaxLength(), 0.85f);
    EXPECT_EQ(plot.getCapacity(), 4);
    const Floats expected{-0.85f, 2, 0, 2, 0, 0};
    const Floats limits = limitsOf(plot.getBoundingBox());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_NEAR(limits[i], expected[i], 1e-6f) << i;
    }
}

TEST(SceneGraphPlotArrow3d, fillStoresAnglesFromTheAxes)
{
    SceneGraphPlotArrow3d plot(1);
    PostRecord record = square(3);
    (*record.record().m_data[0])[3] = {0, 1, 0, -1};
    plot.setCommonArrowScale(2.0f);
    plot.fillPlot(record);
    const double length = 2.0 * 2.0 / 3.0 / static_cast<double>(std::pow(4.0f, 1.0f / 3)) * 0.85;
    const std::vector<Floats> arrows = arrowsOf(plot);
    const std::vector<Floats> angles{{0, c_pi / 2}, {c_pi / 2, c_pi / 4}, {c_pi, c_pi / 2}, {0, c_pi}};
    const Floats lengths{0.5f, std::sqrt(0.5f), 1.0f, 0.5f};
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_EQ(arrows[i][2], 7.0f);
        EXPECT_NEAR(arrows[i][3], angles[i][0], 1e-6f) << i;
        EXPECT_NEAR(arrows[i][4], angles[i][1], 1e-6f) << i;
        EXPECT_NEAR(arrows[i][5], lengths[i] * static_cast<float>(length), 1e-6f) << i;
    }
    // The box includes the arrows with their common scale of 2.
    const Floats limits = limitsOf(plot.getBoundingBox());
    EXPECT_NEAR(limits[0], -2 * length, 1e-5);
    EXPECT_NEAR(limits[4], 7 - length, 1e-5);
    EXPECT_NEAR(limits[5], 7 + length, 1e-5);
}

TEST(ArrowPlots, fillMatchesPlainFormulasOnRandomRecords)
{
    RandomNumbers random(3);
    for (const int dimension : {2, 3}) {
        const int count = random.integer(100, 200);
        const auto axes = static_cast<std::size_t>(dimension);
        Record::DoubleArrays points(axes), data(axes + 1), bounds(axes);
        for (std::size_t axis = 0; axis < axes; ++axis) {
            for (int i = 0; i < count; ++i) {
                points[axis].push_back(static_cast<double>(random.uniform(-5.0f, 20.0f)));
                data[axis].push_back(static_cast<double>(random.uniform(-3.0f, 3.0f)));
            }
            bounds[axis] = {-5.0, 20.0 + static_cast<double>(axis)};
        }
        for (int i = 0; i < count; ++i) {
            data[axes].push_back(static_cast<double>(random.uniform(1.0f, 9.0f)));
        }
        PostRecord record;
        record.role(Record::VectorX, 0).role(Record::VectorY, 1).role(Record::ColorData, dimension);
        if (dimension == 3) {
            record.role(Record::VectorZ, 2);
        }
        record.bounds(bounds).group(points, {}, data);
        record.group(points, {}, data).limits(1, dimension, 0.0, 10.0); // widens the range of all values

        SceneGraphPlotArrow2d flat(1);
        SceneGraphPlotArrow3d spatial(1);
        SceneGraphPlotArrow& plot = dimension == 2 ? static_cast<SceneGraphPlotArrow&>(flat) : spatial;
        plot.fillPlot(record);
        const std::vector<Floats> arrows = dimension == 2 ? arrowsOf(flat) : arrowsOf(spatial);
        ASSERT_EQ(arrows.size(), static_cast<std::size_t>(count));

        double longest = 0;
        double extents = 0;
        for (std::size_t axis = 0; axis < axes; ++axis) {
            extents += bounds[axis][1] - bounds[axis][0];
        }
        for (std::size_t i = 0; i < arrows.size(); ++i) {
            const double z = dimension == 3 ? data[2][i] : 0.0;
            longest = std::max(longest, std::sqrt(data[0][i] * data[0][i] + data[1][i] * data[1][i] + z * z));
        }
        const double target = 0.85 * extents / dimension / std::pow(count, 1.0 / dimension);
        Floats tips(6);
        for (std::size_t i = 0; i < arrows.size(); ++i) {
            const Floats& arrow = arrows[i];
            const double length = static_cast<double>(arrow[axes + axes - 1]);
            const double azimuth = static_cast<double>(arrow[axes]);
            const double sinPolar = dimension == 3 ? std::sin(static_cast<double>(arrow[4])) : 1.0;
            // The vector that a renderer draws is the scaled one.
            EXPECT_NEAR(length * sinPolar * std::cos(azimuth), data[0][i] * target / longest, 1e-5);
            EXPECT_NEAR(length * sinPolar * std::sin(azimuth), data[1][i] * target / longest, 1e-5);
            if (dimension == 3) {
                EXPECT_NEAR(length * std::cos(static_cast<double>(arrow[4])), data[2][i] * target / longest, 1e-5);
            }
            EXPECT_NEAR(arrow.back(), data[axes][i] / 10.0, 1e-6);
            for (std::size_t axis = 0; axis < axes; ++axis) {
                EXPECT_EQ(arrow[axis], static_cast<float>(points[axis][i]));
                const double tip = points[axis][i] + data[axis][i] * target / longest;
                for (const double end : {points[axis][i], tip}) {
                    float& low = tips[2 * axis];
                    float& high = tips[2 * axis + 1];
                    low = i == 0 && end == points[axis][i] ? static_cast<float>(end)
                                                           : std::min(low, static_cast<float>(end));
                    high = i == 0 && end == points[axis][i] ? static_cast<float>(end)
                                                            : std::max(high, static_cast<float>(end));
                }
            }
        }
        const Floats limits = limitsOf(plot.getBoundingBox());
        for (std::size_t i = 0; i < 2 * axes; ++i) {
            EXPECT_NEAR(limits[i], tips[i], 1e-4f);
        }
    }
}

TEST(ArrowPlots, withoutLengthsOrExtentsTheFillKeepsItsBoxOrUsesTheLengthOne)
{
    SceneGraphPlotArrow2d plot(1);
    plot.setBoundingBox(BoundingBox(1.0f, 2.0f, 3.0f, 4.0f, 5.0f, 6.0f));
    PostRecord still = square(2);
    (*still.record().m_data[0])[1] = (*still.record().m_data[0])[2] = {0, 0, 0, 0};
    plot.fillPlot(still);
    EXPECT_TRUE(plot.isValid());
    EXPECT_EQ(plot.getMaxLength(), 0.0f);
    EXPECT_EQ(limitsOf(plot.getBoundingBox()), (Floats{1, 2, 3, 4, 5, 6}));
    EXPECT_EQ(arrowsOf(plot)[2], (Floats{0, 2, 0, 0, 1}));

    plot.fillPlot(square(2).bounds({{1, 1}, {1, 1}}));
    EXPECT_EQ(plot.getMaxLength(), 1.0f);

    PostRecord plain = square(2);
    plain.role(Record::ColorData, -1);
    plot.fillPlot(plain);
    EXPECT_EQ(arrowsOf(plot)[2].back(), 0.0f);
    plot.fillPlot(square(2).limits(0, 0, 5, 5)); // constant values
    EXPECT_EQ(arrowsOf(plot)[2].back(), 0.0f);

    plot.fillPlot(PostRecord().role(7, 0).role(8, 0).bounds({{0, 1}, {0, 1}}).group({{}, {}}, {}, {{}}));
    EXPECT_FALSE(plot.isValid());
    EXPECT_EQ(plot.getCapacity(), 0);
}

TEST(ArrowPlots, aThirdComponentOfVectorsExtendsTheBoxOfArrowsInThePlane)
{
    SceneGraphPlotArrow2d plot(1);
    PostRecord record = square(3);
    (*record.record().m_data[0])[3] = {4, 0, 0, 0};
    plot.fillPlot(record);
    EXPECT_NEAR(limitsOf(plot.getBoundingBox())[5], 7 + 4 * 0.425f, 1e-5f);
    record.record().m_coordinates[0]->pop_back();
    EXPECT_THROW(plot.fillPlot(record), std::invalid_argument);
}

TEST(ArrowPlots, settersCountInTheNumberOfWhatTheyChange)
{
    using Anchor = SceneGraphPlotArrow::AnchorPoint;
    using Scaling = SceneGraphPlotArrow::ScalingType;
    SceneGraphPlotArrow3d plot(1);
    const auto change = [&](auto set) {
        const auto [geometry, arrow] = countersOf(plot);
        set();
        const auto [newGeometry, newArrow] = countersOf(plot);
        return std::pair(newGeometry - geometry, newArrow - arrow);
    };
    const std::pair<int, int> none{0, 0}, geometry{1, 0}, shape{0, 1};
    for (const bool again : {false, true}) {
        EXPECT_EQ(change([&] { plot.setLogRange(10.0f); }), again ? none : geometry);
        EXPECT_EQ(change([&] { plot.setCommonArrowScale(3.0f); }), again ? none : geometry);
        EXPECT_EQ(change([&] { plot.setShaftRadius(0.5f); }), again ? none : shape);
        EXPECT_EQ(change([&] { plot.setHeadLength(0.5f); }), again ? none : shape);
        EXPECT_EQ(change([&] { plot.setHeadRadius(0.5f); }), again ? none : shape);
        EXPECT_EQ(change([&] { plot.setAnchorPoint(Anchor::center); }), again ? none : shape);
        EXPECT_EQ(change([&] { plot.setScalingType(Scaling::logarithmic); }), geometry);
    }
    plot.setScalingType(Scaling::proportionalEqualHeads);
    EXPECT_EQ(change([&] { plot.setAnchorPoint(Anchor::tip); }), geometry);
    EXPECT_EQ(change([&] { plot.setAnchorPoint(Anchor::tip); }), none);
    EXPECT_EQ(change([&] { plot.resetPlotData(); }), none); // there is nothing yet

    EXPECT_EQ(change([&] { plot.fillPlot(square(3)); }), std::pair(2, 1));
    EXPECT_EQ(plot.getDescription().m_scalingType, Scaling::proportional);
    EXPECT_EQ(plot.getDescription().m_anchorPoint, Anchor::tip);
    EXPECT_EQ(change([&] { plot.fillPlot(square(3)); }), std::pair(3, 2));
    EXPECT_EQ(change([&] { plot.resetPlotData(); }), std::pair(1, 1));
    EXPECT_EQ(plot.getMaxLength(), 0.0f);
    EXPECT_EQ(change([&] { plot.resetPlotData(); }), none);
}

TEST(ArrowPlots, appendedArrowsKeepTheirLengths)
{
    SceneGraphPlotArrow3d plot(1);
    plot.allocate(2);
    EXPECT_EQ(plot.appendArrow(1, 2, 3, 0, 0, -5, 0.5f), 0);
    EXPECT_EQ(plot.appendArrow(4, 5, 6, 0, 0, 0, 1), 1);
    EXPECT_EQ(arrowsOf(plot), (std::vector<Floats>{{1, 2, 3, 0, c_pi, 5, 0.5f}, {4, 5, 6, 0, 0, 0, 1}}));
    EXPECT_EQ(plot.getMaxLength(), 5.0f);
    EXPECT_EQ(countersOf(plot), std::pair(1, 1));
    EXPECT_THROW(plot.allocate(-1), std::invalid_argument);
    EXPECT_EQ(plot.getNumArrows(), 2);
    plot.allocate(1);
    EXPECT_FALSE(plot.isValid());
    EXPECT_EQ(countersOf(plot), std::pair(2, 2));
}

TEST(SceneGraphPlotArrow3d, readsAFileWithScaledValuesAndUnscaledVectors)
{
    const TemporaryFile file("% Coordinates\n0 0 0\n-1 2 3\n% Data\n2\n6\n% Vector data\n1 0 0\n0 0 4\n");
    SceneGraphPlotArrow3d plot(1);
    ASSERT_TRUE(ScenePlotFileReader::readArrowPlot3d(plot, file.path()));
    EXPECT_EQ(arrowsOf(plot), (std::vector<Floats>{{0, 0, 0, 0, c_pi / 2, 1, 0}, {-1, 2, 3, 0, 0, 4, 1}}));
    EXPECT_EQ(limitsOf(plot.getBoundingBox()), (Floats{-1, 0, 0, 2, 0, 3}));
    EXPECT_EQ(countersOf(plot), std::pair(2, 1));
    const TemporaryFile plain("% Coordinates\n1 1 1\n% Vector data\n0 2 0\n");
    ASSERT_TRUE(ScenePlotFileReader::readArrowPlot3d(plot, plain.path()));
    EXPECT_EQ(arrowsOf(plot), (std::vector<Floats>{{1, 1, 1, c_pi / 2, c_pi / 2, 2, 0}}));
    EXPECT_EQ(countersOf(plot), std::pair(4, 2));

    for (const char* text : {"% Coordinates\n1 1 1\n2 2 2\n% Vector data\n0 2 0\n",
                             "% Coordinates\n1 1 1\n2 2 2\n% Data\n1\n% Vector data\n0 2 0\n0 0 1\n"}) {
        const TemporaryFile faulty(text);
        EXPECT_FALSE(ScenePlotFileReader::readArrowPlot3d(plot, faulty.path()));
    }
    EXPECT_FALSE(ScenePlotFileReader::readArrowPlot3d(plot, file.path() + ".missing"));
    EXPECT_EQ(plot.getNumArrows(), 1);
    EXPECT_EQ(countersOf(plot), std::pair(4, 2));
}

/// Two points with axes along x, y and z, turned by the second; lengths 4, -2 and 1, then 0.
PostRecord principal(int numAxes)
{
    PostRecord record;
    Record::DoubleArrays data{{4, 0}, {-2, 0}, {1, 0}};
    for (int axis = 0; axis < 3; ++axis) {
        record.role(Record::PrincipalLengths + axis, axis);
        for (int component = 0; component < numAxes; ++component) {
            record.role(Record::PrincipalX + 3 * component + axis, static_cast<int>(data.size()));
            data.push_back({axis == component ? 1.0 : 0.0, (axis + 1) % 3 == component ? -1.0 : 0.0});
        }
    }
    Record::DoubleArrays points{{0, 2}, {0, 4}, {0, 6}};
    Record::DoubleArrays bounds{{0, 2}, {0, 4}, {0, 6}};
    points.resize(static_cast<std::size_t>(numAxes));
    bounds.resize(static_cast<std::size_t>(numAxes));
    return record.kind(numAxes == 2 ? Record::Principal2d : 0).bounds(bounds).group(points, {}, data);
}

TEST(SceneGraphPlotPrincipal, fillStoresThreeAxesPerPoint)
{
    SceneGraphPlotPrincipal plot(3, true, 1);
    EXPECT_EQ(plot.getTextureShift(), 0.0f);
    plot.fillPlot(principal(3));
    EXPECT_EQ(plot.getTextureShift(), 0.5f);
    const float longest = 6.0f / std::pow(2.0f, 0.33333334f) * 0.85f; // half of the sum of the extents
    EXPECT_EQ(plot.getMaxLength(), longest);
    const std::vector<Floats> records = arrowsOf(plot);
    EXPECT_EQ(records[0],
              (Floats{0, 0, 0, longest, -longest / 2, longest / 4, longest, 0, c_pi / 2, 0, c_pi / 2, c_pi / 2, 0, 0}));
    EXPECT_EQ(records[1], (Floats{2, 4, 6, 0, 0, 0, 1, -c_pi / 2, 0, c_pi, c_pi / 2, c_pi, c_pi / 2, 0}));
    const float reach = longest * 0.4f;
    const Floats limits = limitsOf(plot.getBoundingBox());
    const Floats expected{-reach, 2 + reach, -reach, 4 + reach, -reach, 6 + reach};
    for (std::size_t i = 0; i < 6; ++i) {
        EXPECT_NEAR(limits[i], expected[i], 1e-5f);
    }
    EXPECT_EQ(countersOf(plot), std::pair(3, 2));
    plot.fillPlot(principal(3).role(Record::ColorData, 0));
    EXPECT_EQ(countersOf(plot), std::pair(5, 3)); // a fill does not reset the records first
    EXPECT_EQ(plot.getTextureShift(), 0.0f);
    EXPECT_EQ(arrowsOf(plot)[0].back(), 1.0f);
    plot.resetPlotData();
    EXPECT_EQ(countersOf(plot), std::pair(6, 4));
    EXPECT_FALSE(plot.isValid());
}

TEST(SceneGraphPlotPrincipal, inThePlaneDirectionsAddTheirLengths)
{
    SceneGraphPlotPrincipal plot(2, true, 1);
    PostRecord record = principal(2);
    (*record.record().m_data[0])[5] = {0, 3}; // the first component of the second axis of the second point
    (*record.record().m_data[0])[6] = {2, 4};
    (*record.record().m_data[0])[1] = {-2, 1};
    plot.fillPlot(record);
    // The second axis of the first point is -2 times 2, that of the second point 5: the longest.
    const float longest = 3.0f / std::pow(2.0f, 0.33333334f) * 0.85f;
    const std::vector<Floats> records = arrowsOf(plot);
    EXPECT_NEAR(records[0][4], -longest * 4 / 5, 1e-6f);
    EXPECT_NEAR(records[1][4], longest, 1e-6f);
    EXPECT_NEAR(records[1][8], std::atan2(4.0f, 3.0f), 1e-6f);
    EXPECT_EQ(records[1][11], c_pi / 2);
    EXPECT_EQ(records[1][2], 0.0f);
    const Floats limits = limitsOf(plot.getBoundingBox());
    EXPECT_EQ((Floats{limits[4], limits[5]}), (Floats{0, 0}));
    EXPECT_NEAR(limits[0], -0.4f * longest, 1e-6f);
}

TEST(SceneGraphPlotPrincipal, axesOfCoordinateSystemsAreEquallyLong)
{
    SceneGraphPlotPrincipal plot(3, false, 1);
    PostRecord record = principal(3);
    for (int axis = 0; axis < 3; ++axis) {
        record.role(Record::PrincipalLengths + axis, -1); // not read
    }
    plot.fillPlot(record.bounds({{1, 1}, {1, 1}, {1, 1}}));
    for (const Floats& axes : arrowsOf(plot)) {
        EXPECT_EQ((Floats{axes.begin() + 3, axes.begin() + 7}), (Floats{1, 1, 1, 1}));
    }
    using Plot = SceneGraphPlotPrincipal;
    EXPECT_EQ(Plot::getType(2, false), PlotType::coordSys2d);
    EXPECT_EQ(Plot::getType(2, true), PlotType::principal2d);
    EXPECT_EQ(Plot::getType(7, false), PlotType::coordSys3d);
    EXPECT_EQ(Plot::getType(3, true), PlotType::principal3d);
    EXPECT_TRUE(Plot(2, false, 1).isCoordSysPlot());
    EXPECT_FALSE(Plot(2, true, 1).isCoordSysPlot());
}

TEST(SceneGraphPlotPrincipal, withoutPointsOrLengthsTheBoxIsThatOfTheBounds)
{
    SceneGraphPlotPrincipal plot(3, true, 1);
    PostRecord record = principal(3);
    record.group({{}, {}, {}}, {});
    for (auto& values : *record.record().m_data[0]) {
        values.assign(2, 0.0);
    }
    plot.fillPlot(record);
    EXPECT_EQ(limitsOf(plot.getBoundingBox()), (Floats{0, 2, 0, 4, 0, 6}));
    EXPECT_EQ(arrowsOf(plot)[0][6], 1.0f);
    std::swap(record.record().m_coordinates[0], record.record().m_coordinates[1]);
    for (auto& values : *record.record().m_data[0]) {
        values.clear();
    }
    plot.fillPlot(record);
    EXPECT_FALSE(plot.isValid());
    EXPECT_EQ(plot.getCapacity(), 0);
}

TEST(ArrowPlots, fillRefusesARecordThatLacksSomethingAndNamesIt)
{
    SceneGraphPlotArrow2d flat(1);
    EXPECT_EQ(acceptedFault(flat, square(2), {7, 8}, false, [&] { return textOf(flat); }), "");
    SceneGraphPlotArrow3d spatial(1);
    EXPECT_EQ(acceptedFault(spatial, square(3), {7, 8, 9}, false, [&] { return textOf(spatial); }), "");
    SceneGraphPlotPrincipal principal2d(2, true, 1);
    EXPECT_EQ(acceptedFault(principal2d, principal(2), {7, 8, 9, 10, 11, 12, 13, 14, 15}, false,
                            [&] { return textOf(principal2d); }),
              "");
    SceneGraphPlotPrincipal principal3d(3, true, 1);
    EXPECT_EQ(acceptedFault(principal3d, principal(3), {7, 8, 9, 10, 13, 16, 17, 18}, false,
                            [&] { return textOf(principal3d); }),
              "");
}

template <class Plot>
void expectToSurviveFailures(Plot& plot, const PostRecord& record)
{
    plot.fillPlot(record);
    const std::string filled = textOf(plot);
    int geometry = plot.getGeometryChangeId();
    const auto fill = [&] { plot.fillPlot(record); };
    const long failures = failEachAllocation(fill, [&] {
        EXPECT_EQ(textOf(plot), plot.getGeometryChangeId() == geometry ? filled : "");
        plot.fillPlot(record);
        EXPECT_EQ(textOf(plot), filled);
        geometry = plot.getGeometryChangeId();
    });
    EXPECT_GE(failures, 1);
}

TEST(ArrowPlots, fillThatRunsOutOfMemoryLeavesNoArrowsAndCanBeRepeated)
{
    SceneGraphPlotArrow2d flat(1);
    expectToSurviveFailures(flat, square(2));
    SceneGraphPlotArrow3d spatial(1);
    expectToSurviveFailures(spatial, square(3));
    SceneGraphPlotPrincipal axes(3, true, 1);
    expectToSurviveFailures(axes, principal(3));
}

} // namespace
} // namespace vxgraphics3d
