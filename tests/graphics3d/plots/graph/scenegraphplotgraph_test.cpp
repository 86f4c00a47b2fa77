#include "graphics3d/plots/graph/scenegraphplotgraph.h"

#include "graphics3d/plots/graph/graphline.h"
#include "graphics3d/plots/graph/linelegend.h"
#include "graphics3d/plots/scenegraphplotgroup.h"
#include "graphics3d/scenegraph/scenegraphroot.h"
#include "tests/support/failingallocation.h"
#include "tests/support/postrecord.h"
#include "tests/support/randomnumbers.h"

#include <gtest/gtest.h>

#include <boost/make_shared.hpp>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <set>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace vxgraphics3d {
namespace {

using Record = vxdatacarrier::PostDataObject;
using Doubles = std::vector<double>;
using Point = std::pair<float, float>;
using Strip = std::vector<Point>;
using Strips = std::vector<Strip>;
using Edges = std::vector<std::pair<int, int>>;

constexpr double c_nan = std::numeric_limits<double>::quiet_NaN();
constexpr double c_infinity = std::numeric_limits<double>::infinity();
constexpr int c_y = Record::HeightData;
enum Axes { linear = 0, logX = 1, logY = 2, logXY = 3 };

PostRecord graphRecord(Doubles x, Doubles y, const Edges& edges = {})
{
    Record::IntArrays corners(edges.empty() ? 0 : 2);
    for (const auto& [a, b] : edges) {
        corners[0].push_back(a);
        corners[1].push_back(b);
    }
    return PostRecord().role(c_y, 0).group({std::move(x)}, corners, {std::move(y)});
}

/// One version of a line as the points of its strips; a version of a vertex alone is a strip of one point.
Strips stripsOf(const GraphLine& line, int axes)
{
    const GraphLine::Version version = line.getVersion(axes);
    const std::vector<int>& starts = version.strips.getSegmentStarts();
    Strips result;
    for (std::size_t strip = 0; strip + 1 < starts.size(); ++strip) {
        result.emplace_back();
        for (int i = 0; i < starts[strip + 1] - starts[strip]; ++i) {
            const Vector3f p = version.strips.getVertex(static_cast<int>(strip), i);
            EXPECT_EQ(p.z, 0.0f);
            result.back().push_back({p.x, p.y});
        }
    }
    if (result.empty() && version.vertices.getNumberOfVertices() == 1) {
        result.push_back({{version.vertices.getCoord(0).x, version.vertices.getCoord(0).y}});
    }
    return result;
}

const GraphLine& lineOf(const SceneGraphPlotGraph& plot, std::size_t index = 0)
{
    return *plot.getLines().at(index);
}

Strips fillAndGet(const PostRecord& record, int axes = linear)
{
    SceneGraphPlotGraph plot(1);
    plot.fillPlot(record);
    return stripsOf(lineOf(plot), axes);
}

std::vector<float> limitsOf(const BoundingBox& box)
{
    const Vector3f min = box.getMin();
    const Vector3f max = box.getMax();
    EXPECT_EQ(min.z, 0.0f);
    EXPECT_EQ(max.z, 0.0f);
    return {min.x, max.x, min.y, max.y};
}

TEST(SceneGraphPlotGraph, singlePointIsAVertexInEachVersionThatCanShowIt)
{
    struct Case {
        double x, y;
        Strips versions[4];
    };
    const Case cases[] = {
        {1.0, 10.0, {{{{1, 10}}}, {{{0, 10}}}, {{{1, 1}}}, {{{0, 1}}}}},
        {-1.0, 10.0, {{{{-1, 10}}}, {}, {{{-1, 1}}}, {}}},
        {100.0, 0.0, {{{{100, 0}}}, {{{2, 0}}}, {}, {}}},
        {0.0, -3.0, {{{{0, -3}}}, {}, {}, {}}},
        {c_nan, 1.0, {{}, {}, {}, {}}},
        {1.0, 1e39, {{}, {}, {}, {}}},
    };
    for (const Case& c : cases) {
        SceneGraphPlotGraph plot(1);
        plot.fillPlot(graphRecord({c.x}, {c.y}));
        for (int axes = 0; axes < 4; ++axes) {
            EXPECT_EQ(stripsOf(lineOf(plot), axes), c.versions[axes]) << c.x << ", " << c.y << ", axes " << axes;
            EXPECT_EQ(lineOf(plot).getVersion(axes).strips.getNumIndices(), 0);
        }
    }
}

TEST(SceneGraphPlotGraph, pointsFormALineInTheirOrderWithoutThoseOutOfRange)
{
    EXPECT_EQ(fillAndGet(graphRecord({3, 1, 2}, {0, 5, -5})), (Strips{{{3, 0}, {1, 5}, {2, -5}}}));
    const auto large = static_cast<double>(std::numeric_limits<float>::max());
    EXPECT_EQ(fillAndGet(graphRecord({c_nan, 1, 2, -c_infinity, 4, 5}, {1, 1, c_nan, 1, -large, 1e300})),
              (Strips{{{1, 1}, {4, -std::numeric_limits<float>::max()}}}));
    // One accepted point of several keeps its vertex, and no strip.
    SceneGraphPlotGraph plot(1);
    plot.fillPlot(graphRecord({c_nan, 10}, {1, 10}));
    EXPECT_EQ(stripsOf(lineOf(plot), logXY), (Strips{{{1, 1}}}));
    EXPECT_EQ(lineOf(plot).m_strips.getNumIndices(), 0);
}

TEST(SceneGraphPlotGraph, logarithmicVersionsConsistOfRunsOfPositivePoints)
{
    const PostRecord record = graphRecord({1, -1, 10, 1000}, {1, 1, 1, 1});
    EXPECT_EQ(fillAndGet(record, logX), (Strips{{{1, 1}, {3, 1}}}));
    EXPECT_EQ(fillAndGet(record, logY), (Strips{{{1, 0}, {-1, 0}, {10, 0}, {1000, 0}}}));
    EXPECT_EQ(fillAndGet(record, logXY), (Strips{{{1, 0}, {3, 0}}}));
    // Both runs are open at the third point, but they have only one point in common.
    EXPECT_EQ(fillAndGet(graphRecord({1, 1, 1, -1}, {-1, -1, 1, 1}), logXY), Strips{});
    // Values that vanish in single precision are not positive.
    EXPECT_EQ(fillAndGet(graphRecord({1e-60, 1e-60, 1, 10}, {1, 1, 1, 1}), logX), (Strips{{{0, 1}, {1, 1}}}));
}

TEST(SceneGraphPlotGraph, boxesAreThoseOfTheirVersions)
{
    PostRecord record = graphRecord({-1, 10, 1000}, {5, 100, 1});
    record.group({{2, 2}}, {}, {{-50, 150}});
    SceneGraphPlotGraph plot(1);
    plot.fillPlot(record);
    EXPECT_EQ(limitsOf(plot.getBoundingBox()), (std::vector<float>{-1, 1000, -50, 150}));
    EXPECT_EQ(limitsOf(plot.getBoundingBoxLog(logXY)), (std::vector<float>{1, 3, 0, 2}));
    EXPECT_EQ(limitsOf(plot.getBoundingBoxLog(linear)), limitsOf(plot.getBoundingBox()));
    const float log2 = std::log10(2.0f);
    EXPECT_NEAR(plot.getBoundingBoxLog(logX).getMin().x, log2, 1e-6f);
    EXPECT_EQ(plot.getBoundingBoxLog(logX).getMax().x, 3.0f);
    EXPECT_EQ(plot.getBoundingBoxLog(logY).getMin().x, -1.0f);
    plot.setActive(false);
    EXPECT_FALSE(plot.getBoundingBoxLog(logXY).isValid());
    EXPECT_FALSE(plot.getBoundingBoxLog(linear).isValid());
    plot.setActive(true);

    plot.fillPlot(graphRecord({c_nan, c_nan}, {c_nan, c_nan}));
    for (int axes = 0; axes < 4; ++axes) {
        EXPECT_EQ(limitsOf(plot.getBoundingBoxLog(axes)), (std::vector<float>{0, 0, 0, 0}));
    }
    EXPECT_TRUE(plot.isValid());
}

TEST(SceneGraphPlotGraph, edgesAreJoinedToPolylinesAndRings)
{
    const Doubles x{0, 1, 2, 3, 9};
    const Doubles y{0, 10, 20, 30, 90};
    struct Case {
        const char* what;
        Edges edges;
        Strips expected;
    };
    const Case cases[] = {
        {"any order and direction", {{2, 1}, {3, 2}, {0, 1}}, {{{0, 0}, {1, 10}, {2, 20}, {3, 30}}}},
        {"two pieces", {{3, 2}, {1, 0}}, {{{0, 0}, {1, 10}}, {{2, 20}, {3, 30}}}},
        {"a ring, which repeats its first point", {{0, 1}, {1, 2}, {2, 0}}, {{{0, 0}, {1, 10}, {2, 20}, {0, 0}}}},
        {"a ring runs along the first edge of its first point",
         {{2, 0}, {1, 2}, {0, 1}},
         {{{0, 0}, {2, 20}, {1, 10}, {0, 0}}}},
        {"a ring after a polyline",
         {{0, 1}, {1, 2}, {2, 0}, {4, 3}},
         {{{3, 30}, {9, 90}}, {{0, 0}, {1, 10}, {2, 20}, {0, 0}}}},
        {"an edge from a point to itself", {{1, 1}, {0, 2}}, {{{0, 0}, {2, 20}}}},
        {"a third edge starts at its other end and stops at a point already drawn",
         {{0, 1}, {1, 2}, {1, 3}},
         {{{0, 0}, {1, 10}, {2, 20}}, {{3, 30}}}},
        {"two equal edges are one", {{0, 1}, {0, 1}}, {{{0, 0}, {1, 10}}}},
        {"a last edge that is listed twice does not lead back", {{0, 1}, {1, 2}, {1, 2}}, {{{0, 0}, {1, 10}, {2, 20}}}},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(fillAndGet(graphRecord(x, y, c.edges)), c.expected) << c.what;
    }
    // From larger x at the lower index, at equal x from the lower index.
    EXPECT_EQ(fillAndGet(graphRecord({5, 4, 1}, {0, 1, 2}, {{0, 1}, {1, 2}})), (Strips{{{1, 2}, {4, 1}, {5, 0}}}));
    EXPECT_EQ(fillAndGet(graphRecord({5, 5}, {0, 1}, {{1, 0}})), (Strips{{{5, 0}, {5, 1}}}));
    // An edge to a point out of range is left out, and a point without edges.
    EXPECT_EQ(fillAndGet(graphRecord({0, 1, 2, 3, 4}, {0, c_nan, 2, 3, 4}, {{0, 1}, {1, 2}, {2, 3}})),
              (Strips{{{2, 2}, {3, 3}}}));
    EXPECT_EQ(fillAndGet(graphRecord({0, 1}, {0, c_nan}, {{0, 1}})), Strips{});
}

TEST(SceneGraphPlotGraph, polylinesVisitEachEdgeOfAPathOnceForAnyOrderOfEdges)
{
    RandomNumbers random(3);
    for (int round = 0; round < 50; ++round) {
        // Some paths and rings over shuffled points; x is the number of the point.
        const int count = random.integer(2, 200);
        std::vector<int> points(static_cast<std::size_t>(count));
        Doubles x, y;
        for (int i = 0; i < count; ++i) {
            points[static_cast<std::size_t>(i)] = i;
            x.push_back(i);
            y.push_back(-i);
        }
        const auto shuffle = [&](auto& values) {
            for (std::size_t i = values.size(); i > 1; --i) {
                std::swap(values[i - 1], values[static_cast<std::size_t>(random.integer(0, static_cast<int>(i) - 1))]);
            }
        };
        shuffle(points);
        Edges edges;
        for (std::size_t first = 0; first < points.size();) {
            const std::size_t last =
                std::min(points.size() - 1, first + static_cast<std::size_t>(random.integer(0, 30)));
            for (std::size_t i = first; i < last; ++i) {
                edges.push_back({points[i], points[i + 1]});
            }
            if (last > first + 1 && random.integer(0, 1) == 0) {
                edges.push_back({points[last], points[first]});
            }
            first = last + 1;
        }
        shuffle(edges);
        std::multiset<std::pair<float, float>> expected;
        for (auto& [a, b] : edges) {
            expected.insert({static_cast<float>(std::min(a, b)), static_cast<float>(std::max(a, b))});
            if (random.integer(0, 1) == 0) {
                std::swap(a, b);
            }
        }
        if (edges.empty()) {
            continue;
        }
        std::multiset<std::pair<float, float>> drawn;
        for (const Strip& strip : fillAndGet(graphRecord(x, y, edges))) {
            for (std::size_t i = 1; i < strip.size(); ++i) {
                drawn.insert(std::minmax(strip[i - 1].first, strip[i].first));
            }
            EXPECT_LE(strip.front().first, strip.back().first);
        }
        EXPECT_EQ(drawn, expected);
    }
}

TEST(SceneGraphPlotGraph, edgesWithoutOrderEndAndUseEachPointOnce)
{
    // Branches, equal edges and loops, in which points and their neighbours do not know each other.
    RandomNumbers random(8);
    for (int round = 0; round < 2000; ++round) {
        const int count = random.integer(1, 9);
        Doubles x, y;
        for (int i = 0; i < count; ++i) {
            x.push_back(random.integer(0, 5));
            y.push_back(i);
        }
        Edges edges;
        for (int i = random.integer(1, 14); i > 0; --i) {
            edges.push_back({random.integer(0, count - 1), random.integer(0, count - 1)});
        }
        SceneGraphPlotGraph plot(1);
        plot.fillPlot(graphRecord(x, y, edges));
        const VertexBufferCoords& vertices = lineOf(plot).m_vertices;
        EXPECT_EQ(vertices.getNumberOfVertices(), std::max(vertices.getCapacity(), 0));
        std::set<float> seen;
        for (int i = 0; i < vertices.getNumberOfVertices(); ++i) {
            EXPECT_TRUE(seen.insert(vertices.getCoord(i).y).second);
        }
        const IndexBufferLineStrips& strips = lineOf(plot).m_strips;
        EXPECT_LE(strips.getSegmentStarts().back(), strips.getNumIndices());
    }
}

/// A version as the definition says: the runs of at least two points whose logarithms exist.
Strips referenceVersion(const Strips& strips, int axes)
{
    const bool isPoint = strips.size() == 1 && strips[0].size() == 1;
    Strips result;
    for (const Strip& strip : strips) {
        Strip run;
        const auto close = [&] {
            if (run.size() > 1 || (isPoint && !run.empty())) {
                result.push_back(run);
            }
            run.clear();
        };
        for (const auto& [x, y] : strip) {
            if (((axes & 1) != 0 && !(x > 0.0f)) || ((axes & 2) != 0 && !(y > 0.0f))) {
                close();
            } else {
                run.push_back({(axes & 1) != 0 ? std::log10(x) : x, (axes & 2) != 0 ? std::log10(y) : y});
            }
        }
        close();
    }
    return result;
}

TEST(SceneGraphPlotGraph, versionsMatchTheirDefinitionForRandomRecords)
{
    RandomNumbers random(5);
    for (int round = 0; round < 300; ++round) {
        PostRecord record = PostRecord().role(c_y, 0);
        const int numGroups = random.integer(1, 3);
        std::vector<Strips> expected;
        for (int group = 0; group < numGroups; ++group) {
            // A third of the values is not positive, except in some lines; some are not numbers.
            const float low = random.integer(0, 3) == 0 ? 0.001f : -1.0f;
            const int count = round == 0 ? 70000 : random.integer(0, 40);
            Doubles x, y;
            Strip points;
            for (int i = 0; i < count; ++i) {
                const auto value = [&] {
                    return random.integer(0, 19) == 0 ? c_nan : static_cast<double>(random.uniform(low, 2.0f));
                };
                x.push_back(value());
                y.push_back(value());
                if (!std::isnan(x.back()) && !std::isnan(y.back())) {
                    points.push_back({static_cast<float>(x.back()), static_cast<float>(y.back())});
                }
            }
            Record::IntArrays corners;
            expected.push_back(points.empty() ? Strips{} : Strips{points});
            record.group({x}, corners, {y});
        }
        SceneGraphPlotGraph plot(1);
        plot.fillPlot(record);
        for (int axes = 0; axes < 4; ++axes) {
            BoundingBox box;
            for (std::size_t group = 0; group < expected.size(); ++group) {
                const Strips strips = stripsOf(lineOf(plot, group), axes);
                EXPECT_TRUE(strips == referenceVersion(expected[group], axes)) << round << ", axes " << axes;
                for (const Strip& strip : strips) {
                    for (const auto& [x, y] : strip) {
                        EXPECT_TRUE(std::isfinite(x) && std::isfinite(y));
                        box.merge(BoundingBox(x, x, y, y, 0.0f, 0.0f));
                    }
                }
            }
            const BoundingBox& stored = plot.getBoundingBoxLog(axes);
            EXPECT_NEAR(stored.getMin().x, box.getMin().x, 1e-4f);
            EXPECT_NEAR(stored.getMax().y, box.getMax().y, 1e-4f);
        }
    }
}

TEST(SceneGraphPlotGraph, logarithmicVersionsOfARingCutIt)
{
    const PostRecord record = graphRecord({1, 10, 10, -1}, {1, 1, 10, 10}, {{0, 1}, {1, 2}, {2, 3}, {3, 0}});
    EXPECT_EQ(fillAndGet(record, logY), (Strips{{{1, 0}, {10, 0}, {10, 1}, {-1, 1}, {1, 0}}}));
    EXPECT_EQ(fillAndGet(record, logX), (Strips{{{0, 1}, {1, 1}, {1, 10}}})); // the last point is alone
}

TEST(SceneGraphPlotGraph, settingsOfLinesFollowTheirCycles)
{
    SceneGraphPlotGraph plot(1);
    EXPECT_EQ(plot.setLineColorCycle(true, 5), 5);
    PostRecord record = PostRecord().role(c_y, 0);
    for (int i = 0; i < 4; ++i) {
        record.group({{0.0, 1.0}}, {}, {{0.0, 1.0}});
    }
    plot.fillPlot(record);
    const auto symbols = [&] {
        std::vector<int> result;
        for (const auto& line : plot.getLines()) {
            result.push_back(static_cast<int>(line->m_marker));
        }
        return result;
    };
    const auto styles = [&] {
        std::vector<int> result;
        for (const auto& line : plot.getLines()) {
            result.push_back(static_cast<int>(line->m_lineStyle));
        }
        return result;
    };
    EXPECT_EQ(symbols(), (std::vector<int>{-1, -1, -1, -1}));
    EXPECT_EQ(styles(), (std::vector<int>{0, 0, 0, 0}));
    plot.setMarkerType(true, RenderSymbol::none);
    EXPECT_EQ(symbols(), (std::vector<int>{-1, 0, 1, 2}));
    plot.setMarkerType(true, RenderSymbol::cross);
    EXPECT_EQ(symbols(), (std::vector<int>{6, 7, 0, 1}));
    plot.setMarkerType(false, RenderSymbol::star);
    EXPECT_EQ(symbols(), (std::vector<int>{7, 7, 7, 7}));
    plot.setLineStyle(true, LineStyle::dotted);
    EXPECT_EQ(styles(), (std::vector<int>{2, 3, 0, 1}));
    plot.setLineStyle(true, LineStyle::none);
    EXPECT_EQ(styles(), (std::vector<int>{-1, 0, 1, 2}));

    // The flag survived the fill, the colours did not.
    EXPECT_EQ(plot.getColorOf(lineOf(plot, 1)), (Color{0, 0, 0, 255}));
    EXPECT_EQ(plot.setLineColorCycle(true, 5), 2);
    EXPECT_EQ(lineOf(plot, 0).m_lineColor, (Color{255, 194, 10, 255}));
    EXPECT_EQ(lineOf(plot, 1).m_lineColor, (Color{0, 0, 0, 255}));
    EXPECT_EQ(lineOf(plot, 2).m_lineColor, (Color{0, 0, 255, 255}));
    EXPECT_EQ(lineOf(plot, 3).m_lineColor, (Color{40, 185, 62, 255}));
    EXPECT_EQ(plot.setLineColorCycle(true, std::numeric_limits<int>::max()), 3);
    EXPECT_EQ(lineOf(plot, 1).m_lineColor, (Color{0, 0, 255, 255}));
    EXPECT_EQ(SceneGraphPlotGraph::getColorFromEnum(-1), (Color{255, 255, 255, 255}));
    plot.setColor({1, 2, 3, 255});
    EXPECT_EQ(plot.setLineColorCycle(false, 3), 3);
    EXPECT_EQ(lineOf(plot, 2).m_lineColor, (Color{1, 2, 3, 255}));
    plot.setColor({9, 9, 9, 255});
    EXPECT_EQ(plot.getColorOf(lineOf(plot, 2)), (Color{9, 9, 9, 255}));
}

TEST(SceneGraphPlotGraph, countersMoveWithWhatTheyCount)
{
    SceneGraphPlotGraph plot(1);
    EXPECT_FALSE(plot.isValid());
    plot.setNumberOfMarkers(3); // counts without lines
    EXPECT_EQ(plot.getMarkerChangeId(), 2);
    plot.setLegendDescription(0, "none"); // no such line
    EXPECT_EQ(plot.getGeometryChangeId(), 1);
    plot.fillPlot(graphRecord({1, 2}, {1, 2}));
    EXPECT_EQ(plot.getGeometryChangeId(), 2);
    EXPECT_EQ(plot.getColorChangeId(), 3);
    EXPECT_EQ(plot.getTextureChangeId(), 3);
    EXPECT_EQ(lineOf(plot).m_numMarkers, 0);

    plot.setNumberOfMarkers(3);
    plot.setMarkersInterpolation(true); // as it is
    EXPECT_EQ(plot.getMarkerChangeId(), 3);
    plot.setMarkersInterpolation(false);
    EXPECT_EQ(plot.getMarkerChangeId(), 4);
    EXPECT_EQ(lineOf(plot).m_numMarkers, 3);

    const int color = plot.getColorChangeId();
    plot.setShowUnitCircle(false); // as it is
    plot.setShowLegends(true);
    plot.setMarkerType(true, RenderSymbol::plus);
    plot.setLineStyle(true, LineStyle::dashed);
    plot.setLineColorCycle(true, 0);
    plot.setLineWidth(4);
    plot.setLegendDescription(1, "no such line");
    EXPECT_EQ(plot.getLineWidth(), 4.0f);
    EXPECT_EQ(plot.getGeometryChangeId(), 2);
    EXPECT_EQ(plot.getColorChangeId(), color);
    EXPECT_EQ(plot.getMarkerChangeId(), 4);
    plot.setShowUnitCircle(true);
    plot.setLegendDescription(0, "");
    EXPECT_EQ(plot.getGeometryChangeId(), 4);
    plot.resetPlotData();
    EXPECT_EQ(plot.getGeometryChangeId(), 5);
    EXPECT_FALSE(plot.isValid());

    plot.fillPlot(graphRecord({1, 2}, {1, 2}));
    EXPECT_TRUE(plot.isShowLegends() && plot.isShowUnitCircle() && plot.isCycleColor());
    EXPECT_FALSE(plot.isMarkersInterpolation());
    EXPECT_EQ(plot.getLineWidth(), 4.0f);
    EXPECT_EQ(plot.getColor(), (Color{0, 0, 0, 255}));
    EXPECT_FALSE(plot.hasColorTable());
}

TEST(SceneGraphPlotGraph, legendHasAnEntryForEachLineOfEachGraphThatShowsIts)
{
    const auto root = SceneGraphRoot::create();
    const auto group = SceneGraphPlotGroup::create();
    root->setChild(group);
    const auto graph = [&](int id, bool shows) {
        auto plot = boost::make_shared<SceneGraphPlotGraph>(id);
        PostRecord record = graphRecord({0, 1}, {0, 1});
        record.group({{0.0, 1.0}}, {}, {{0.0, 1.0}});
        plot->fillPlot(record);
        plot->setShowLegends(shows);
        EXPECT_TRUE(group->addPlot(plot));
        return plot;
    };
    const auto later = graph(7, true);
    const auto hidden = graph(5, false);
    const auto first = graph(2, true);
    TextureHandleStack handles = group->getTextureHandles();
    EXPECT_EQ(handles.pop(), 1); // graphs take no handles
    first->setLineColorCycle(true, 1);
    later->setColor({7, 7, 7, 255});
    later->setLegendDescription(1, "a{b");

    std::vector<LineLegend> legend;
    root->getLineLegend(legend);
    ASSERT_EQ(legend.size(), 4u);
    EXPECT_EQ(legend[1].line, first->getLines()[1]);
    EXPECT_EQ(legend[0].color, (Color{40, 185, 62, 255}));
    EXPECT_EQ(legend[1].color, (Color{255, 0, 0, 255}));
    EXPECT_EQ(legend[2].color, (Color{7, 7, 7, 255}));
    EXPECT_TRUE(legend[3].text.empty());
    EXPECT_EQ(legend[3].line->m_legendDescription.toUtf8(), "\\begin{center}\\unicode{a\\{b}\\end{center}");
    EXPECT_TRUE(legend[2].line->m_legendDescription.empty());
    later->setLegendDescription(0, "");
    EXPECT_EQ(legend[2].line->m_legendDescription.toUtf8(), "\\begin{center}\\unicode{}\\end{center}");

    BoundingBox box;
    group->getMarkedBoundingBox(box, logX, 0);
    EXPECT_EQ(limitsOf(box), (std::vector<float>{0, 0, 0, 0})); // no run of two positive points
    group->removeAllPlots();
}

TEST(SceneGraphPlotGraph, fillThatRunsOutOfMemoryLeavesNoLinesAndCanBeRepeated)
{
    const PostRecord first = graphRecord({1, 2, 3}, {1, 2, 3});
    PostRecord second = graphRecord({1, 2, 3}, {1, 2, 3}, {{0, 1}, {1, 2}, {2, 0}});
    second.group({{1.0, 2.0}}, {}, {{1.0, 2.0}});
    SceneGraphPlotGraph plot(1);
    plot.fillPlot(first);
    int geometry = plot.getGeometryChangeId();
    const long failures =
        failEachAllocation([&] { plot.fillPlot(second); },
                           [&] {
                               if (plot.getGeometryChangeId() == geometry) {
                                   EXPECT_EQ(stripsOf(lineOf(plot), linear), (Strips{{{1, 1}, {2, 2}, {3, 3}}}));
                               } else {
                                   EXPECT_FALSE(plot.isValid());
                               }
                               plot.fillPlot(first);
                               EXPECT_EQ(stripsOf(lineOf(plot), logXY).size(), 1u);
                               geometry = plot.getGeometryChangeId();
                           });
    EXPECT_GE(failures, 28); // for each line itself, and vertices, indices and segments of its four versions
    EXPECT_EQ(plot.getLines().size(), 2u);
}

TEST(SceneGraphPlotGraph, fillRefusesARecordThatLacksSomethingAndChangesNothing)
{
    struct Flaw {
        const char* message;
        void (*apply)(Record& record);
    };
    const Flaw flaws[] = {
        {"no group", [](Record& r) { r.m_coordinates.clear(); }},
        {"role 4", [](Record& r) { r.m_dataIndex[c_y] = -1; }},
        {"role 4", [](Record& r) { r.m_dataIndex[c_y] = 1; }},
        {"coordinates of group 1", [](Record& r) { r.m_coordinates[1].reset(); }},
        {"3 values for 2 points", [](Record& r) { (*r.m_coordinates[0])[0].pop_back(); }},
        {"elements of group 0 have 1 arrays, not 2", [](Record& r) { r.m_elements[0]->pop_back(); }},
        {"elements of group 0 have arrays of different length", [](Record& r) { (*r.m_elements[0])[1].pop_back(); }},
    };
    for (const Flaw& flaw : flaws) {
        SceneGraphPlotGraph plot(1);
        plot.fillPlot(graphRecord({7, 8}, {7, 8}));
        plot.setColor({1, 2, 3, 255});
        PostRecord record = graphRecord({1, 2, 3}, {1, 2, 3}, {{0, 1}, {1, 2}});
        record.group({{1.0, 2.0}}, {}, {{1.0, 2.0}});
        flaw.apply(record.record());
        try {
            plot.fillPlot(record);
            ADD_FAILURE() << "took a record with this flaw: " << flaw.message;
        } catch (const std::invalid_argument& e) {
            EXPECT_EQ(std::string(e.what()).find("SceneGraphPlotGraph: "), 0u) << e.what();
            EXPECT_NE(std::string(e.what()).find(flaw.message), std::string::npos) << e.what();
        }
        EXPECT_EQ(stripsOf(lineOf(plot), linear), (Strips{{{7, 7}, {8, 8}}}));
        EXPECT_EQ(plot.getColor(), (Color{1, 2, 3, 255}));
        EXPECT_EQ(plot.getGeometryChangeId(), 2);
    }
    // A record without lists of elements has lines of points.
    PostRecord record = graphRecord({1, 2}, {1, 2});
    record.record().m_elements.clear();
    EXPECT_EQ(fillAndGet(record), (Strips{{{1, 1}, {2, 2}}}));
}

} // namespace
} // namespace vxgraphics3d
