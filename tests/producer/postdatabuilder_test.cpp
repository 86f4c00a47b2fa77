#include "producer/postdatabuilder.h"

#include "graphics3d/plots/scalar/scenegraphplotsurface3d.h"
#include "producer/recordnormals.h"
#include "producer/recordoutline.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace vxproducer {
namespace {

using Record = vxdatacarrier::PostDataObject;
using Doubles = Record::DoubleArrays;

constexpr double c_nan = std::numeric_limits<double>::quiet_NaN();

/// Two triangles that form a square in space, one of them with a hole in its data.
PostDataGroup square()
{
    return {.coordinates = {{0, 2, 2, 0}, {0, 0, 1, 1}, {5, 5, 5, 5}},
            .elements = {{0, 0}, {1, 2}, {2, 3}},
            .data = {{1, c_nan, 4, 2}, {7, 7, 7, 7}},
            .computeNormals = true,
            .limits = {{}, {0, 10}}};
}

TEST(PostDataBuilder, buildsARecordWithLimitsBoundsAndNormalsForAPlot)
{
    PostDataBuilder builder(Record::Surface3d);
    const Record record = builder.role(Record::ColorData, 0).addGroup(square()).build();
    EXPECT_EQ(record.m_plotKind, Record::Surface3d);
    EXPECT_EQ(record.m_dataIndex[Record::ColorData], 0);
    EXPECT_EQ(record.m_dataIndex[Record::HeightData], -1);
    EXPECT_EQ(*record.m_bounds, (Doubles{{0, 2}, {0, 1}, {5, 5}}));
    EXPECT_EQ(*record.m_dataMin.at(0), (std::vector<double>{1, 0}));
    EXPECT_EQ(*record.m_dataMax.at(0), (std::vector<double>{4, 10}));
    EXPECT_EQ(*record.m_normals.at(0), (Record::FloatArrays{{0, 0, 0, 0}, {0, 0, 0, 0}, {1, 1, 1, 1}}));
    EXPECT_EQ(*record.m_elements.at(0), square().elements);
    EXPECT_TRUE(record.m_lineElements.at(0)->empty());

    vxgraphics3d::SceneGraphPlotSurface3d plot(1);
    plot.fillPlot(record);
    EXPECT_TRUE(plot.isValid());
    EXPECT_EQ(plot.getLegendMax(), 4);
    EXPECT_THROW(builder.build(), std::invalid_argument); // its groups were moved into the record
}

TEST(PostDataBuilder, acceptsOneValueForTheLevelOfAGroup)
{
    const auto level = [](double value) {
        return PostDataGroup{.coordinates = {{0, 1, 0}, {0, 0, 1}}, .data = {{value}}};
    };
    PostDataBuilder builder(Record::Contour2d);
    const Record record = builder.role(Record::IsoLevelData, 0).addGroup(level(3)).addGroup(level(4)).build();
    EXPECT_EQ(record.getDataMax(Record::IsoLevelData), 4);
    EXPECT_THROW(builder.role(Record::ColorData, 0).addGroup(level(3)).build(), std::invalid_argument);
}

TEST(PostDataBuilder, refusesInconsistentGroupsAndKeepsTheEarlierOnes)
{
    using Change = std::function<void(PostDataGroup&)>;
    const std::pair<Change, std::string> cases[] = {
        {[](auto& g) { g.coordinates.clear(); }, "group 1: coordinates: 0 arrays, not 1 to 3"},
        {[](auto& g) { g.coordinates[2].pop_back(); }, "group 1: coordinates[2] has 3 entries, coordinates[0] has 4"},
        {[](auto& g) { g.elements.resize(5); }, "group 1: elements: 5 arrays, not 0 to 4"},
        {[](auto& g) { g.elements[1][0] = 4; }, "group 1: elements[1][0] is point 4, but the group has points 0 to 3"},
        {[](auto& g) { g.lineElements = {{0}}; }, "group 1: lineElements: 1 arrays, not 2"},
        {[](auto& g) {
             g.lineElements = {{0}, {-1}};
         },
         "group 1: lineElements[1][0] is point -1, but the group has points 0 to 3"},
        {[](auto& g) { g.normals.resize(2); }, "group 1: normals: 2 arrays, not 3"},
        {[](auto& g) { g.normals.resize(3); }, "group 1: normals have 0 entries for 4 points"},
        {[](auto& g) { g.elements.pop_back(); },
         "group 1: computeNormals needs triangles in space; there are 3 axes and 2 corners"},
        {[](auto& g) {
             g.elements.pop_back();
             g.computeNormals = false;
             g.computeOutline = true;
         },
         "group 1: computeOutline needs triangles; there are 2 corners"},
        {[](auto& g) {
             g.coordinates.pop_back();
             g.computeNormals = false;
         },
         "group 1: coordinates have 2 axes, those of group 0 have 3"},
        {[](auto& g) { g.data.pop_back(); }, "group 1: 1 data arrays, group 0 has 2"},
    };
    PostDataBuilder builder(Record::Surface3d);
    builder.addGroup(square());
    for (const auto& [change, text] : cases) {
        PostDataGroup group = square();
        change(group);
        try {
            builder.addGroup(std::move(group));
            ADD_FAILURE() << "not refused: " << text;
        } catch (const std::exception& error) {
            EXPECT_EQ(error.what(), text);
        }
    }
    EXPECT_EQ(builder.build().m_coordinates.size(), 1u);
}

TEST(PostDataBuilder, refusesRolesWithoutData)
{
    PostDataBuilder builder(0);
    EXPECT_THROW(builder.role(Record::c_numRoles, 0), std::out_of_range);
    EXPECT_THROW(builder.role(Record::ColorData, -1), std::out_of_range);
    builder.role(Record::HeightData, 2).addGroup(square());
    EXPECT_THROW(builder.build(), std::out_of_range);
    PostDataGroup shorter = square();
    shorter.data[1].pop_back();
    EXPECT_THROW(PostDataBuilder(0).addGroup(shorter).build(), std::invalid_argument);
}

TEST(RecordOutline, isTheEdgesOfExactlyOneTriangle)
{
    EXPECT_EQ(outlineOf({{}, {}, {}}), (Record::IntArrays{{}, {}}));
    EXPECT_EQ(outlineOf(square().elements), (Record::IntArrays{{0, 0, 1, 2}, {1, 3, 2, 3}}));
    // An edge that three triangles share is inside; a point with many neighbours has no limit.
    Record::IntArrays fan = {{0, 1, 0}, {1, 0, 1}, {2, 3, 4}};
    EXPECT_EQ(outlineOf(fan), (Record::IntArrays{{0, 0, 0, 1, 1, 1}, {2, 3, 4, 2, 3, 4}}));
    fan = {{}, {}, {}};
    for (int i = 1; i < 60; i += 2) {
        fan[0].push_back(i);
        fan[1].push_back(0);
        fan[2].push_back(i + 1);
    }
    EXPECT_EQ(outlineOf(fan)[0].size(), 90u);

    PostDataGroup group = square();
    group.computeOutline = true;
    const Record record = PostDataBuilder(0).addGroup(group).build();
    EXPECT_EQ(*record.m_lineElements.at(0), outlineOf(group.elements));
}

TEST(RecordNormals, sumUnitNormalsAndSkipTrianglesWithoutOne)
{
    // A large triangle in the plane z = 0, a small one in the plane x = 0, one without area, one with a corner that is
    // not finite, one too large for single precision, and a point without a triangle.
    const Doubles points = {{0, 9, 0, 0, 5, c_nan, 1e30}, {0, 0, 9, 0, 5, 0, 0}, {0, 0, 0, 1, 5, 0, 0}};
    const Record::IntArrays triangles = {{0, 0, 0, 0, 0}, {1, 2, 1, 5, 6}, {2, 3, 1, 1, 2}};
    const float half = 1 / std::sqrt(2.0f);
    const Record::FloatArrays normals = normalsOf(points, triangles);
    EXPECT_EQ(normals[0], (std::vector<float>{half, 0, half, 1, 0, 0, 0}));
    EXPECT_EQ(normals[1], std::vector<float>(7));
    EXPECT_EQ(normals[2], (std::vector<float>{half, 1, half, 0, 0, 0, 0}));
}

} // namespace
} // namespace vxproducer
