#include "datacarrier/postdataview.h"

#include <gtest/gtest.h>

#include <boost/make_shared.hpp>

#include <functional>
#include <limits>
#include <stdexcept>
#include <string>

namespace vxdatacarrier {
namespace {

using Doubles = PostDataObject::DoubleArrays;
using Floats = PostDataObject::FloatArrays;
using Ints = PostDataObject::IntArrays;

/// Two groups of 3 and 2 points in the plane; colour data in array 1, iso levels, one value per group, in array 0.
PostDataObject twoGroups()
{
    PostDataObject record;
    record.m_dataIndex[PostDataObject::ColorData] = 1;
    record.m_dataIndex[PostDataObject::IsoLevelData] = 0;
    record.m_bounds = boost::make_shared<Doubles>(Doubles{{0, 1}, {0, 2}});
    record.m_coordinates = {boost::make_shared<Doubles>(Doubles{{0, 1, 0}, {0, 0, 2}}),
                            boost::make_shared<Doubles>(Doubles{{0, 1}, {1, 1}})};
    record.m_elements = {boost::make_shared<Ints>(Ints{{0}, {1}, {2}}), boost::make_shared<Ints>(Ints{{}, {}})};
    record.m_data = {boost::make_shared<Doubles>(Doubles{{5}, {1, 4, 2}}),
                     boost::make_shared<Doubles>(Doubles{{6}, {-3, 3}})};
    record.m_dataMin = {boost::make_shared<std::vector<double>>(std::vector<double>{5, 1}),
                        boost::make_shared<std::vector<double>>(std::vector<double>{6, -3})};
    record.m_dataMax = {boost::make_shared<std::vector<double>>(std::vector<double>{5, 4}),
                        boost::make_shared<std::vector<double>>(std::vector<double>{6, 3})};
    record.m_normals = {boost::make_shared<Floats>(Floats{{0, 0, 0}, {0, 0, 0}, {1, 1, 1}}),
                        boost::make_shared<Floats>(Floats{{0}, {0}, {1}})};
    return record;
}

TEST(PostDataObject, aNewRecordFillsNoRole)
{
    const PostDataObject record;
    for (const int index : record.m_dataIndex) {
        EXPECT_LT(index, 0);
    }
}

TEST(PostDataObject, limitsOfARoleCoverAllGroups)
{
    const PostDataObject record = twoGroups();
    EXPECT_EQ(record.getDataMin(PostDataObject::ColorData), -3);
    EXPECT_EQ(record.getDataMax(PostDataObject::ColorData), 4);
    EXPECT_EQ(record.getDataMin(PostDataObject::IsoLevelData), 5);
    EXPECT_EQ(record.getDataMax(PostDataObject::IsoLevelData), 6);
}

TEST(PostDataView, returnsTheContentsOfARecord)
{
    const PostDataObject record = twoGroups();
    const PostDataView view(record, "Plot");
    EXPECT_EQ(view.numGroups(), 2);
    EXPECT_EQ(view.numPoints(0), 3);
    EXPECT_EQ(view.numPoints(1), 2);
    EXPECT_EQ(&view.coordinates(1, 2), record.m_coordinates[1].get());
    EXPECT_EQ(&view.normals(0), record.m_normals[0].get());
    EXPECT_EQ(&view.elements(0, 3), record.m_elements[0].get());
    EXPECT_TRUE(view.hasRole(c_colorData));
    EXPECT_FALSE(view.hasRole(c_heightData));
    EXPECT_EQ(view.data(1, c_colorData), (std::vector<double>{-3, 3}));
    EXPECT_EQ(view.levelData(1, c_isoLevelData), std::vector<double>{6});
    EXPECT_EQ(view.dataMin(0, c_colorData), 1);
    EXPECT_EQ(view.dataMax(1, c_colorData), 3);
    EXPECT_EQ(view.dataMin(c_colorData), -3);
    EXPECT_EQ(view.dataMax(c_colorData), 4);
    EXPECT_EQ(view.bounds(2)[1][1], 2);
}

TEST(PostDataView, messagesNameThePlotAndTheFault)
{
    struct Case {
        std::function<void(PostDataObject&)> spoil;
        std::function<void(const PostDataView&)> read;
        std::string text;
    };
    constexpr int color = PostDataObject::ColorData;
    const auto readColor = [](const PostDataView& view) { view.data(1, c_colorData); };
    const auto unspoilt = [](PostDataObject&) {};
    const Case cases[] = {
        {[](PostDataObject& r) { r.m_coordinates.clear(); }, readColor, "the record has no group"},
        {[](PostDataObject& r) { r.m_coordinates[1].reset(); }, readColor, "coordinates of group 1 are missing"},
        {[](PostDataObject& r) { r.m_coordinates[1]->clear(); }, readColor,
         "coordinates of group 1 have 0 arrays, not 1"},
        {[](PostDataObject& r) { (*r.m_coordinates[1])[1].pop_back(); }, readColor,
         "coordinates of group 1 have arrays of different length"},
        {unspoilt, [](const PostDataView& v) { v.coordinates(0, 3); }, "coordinates of group 0 have 2 arrays, not 3"},
        {unspoilt, [](const PostDataView& v) { v.coordinates(-1, 1); }, "coordinates of group -1 are missing"},
        {unspoilt, [](const PostDataView& v) { v.data(0, c_heightData); }, "DataRole.HEIGHT (role 4) is not filled"},
        {unspoilt,
         [](const PostDataView& v) {
             v.data(0, {7, "length of axis 0"});
         },
         "length of axis 0 (role 7) is not filled"},
        {[](PostDataObject& r) { r.m_dataIndex[color] = 2; }, readColor,
         "DataRole.COLOR (role 0) of group 1 is data array 2 of 2"},
        {[](PostDataObject& r) { r.m_data.pop_back(); }, readColor, "data of group 1 are missing"},
        {[](PostDataObject& r) { (*r.m_data[1])[1].pop_back(); }, readColor,
         "DataRole.COLOR (role 0) of group 1 has 1 values for 2 points"},
        {[](PostDataObject& r) { (*r.m_data[1])[1].push_back(0); }, readColor,
         "DataRole.COLOR (role 0) of group 1 has 3 values for 2 points"},
        {[](PostDataObject& r) { r.m_dataMin[0]->pop_back(); }, [](const PostDataView& v) { v.dataMin(c_colorData); },
         "DataRole.COLOR (role 0) of group 0 is entry 1 of 1 data minima"},
        {[](PostDataObject& r) { r.m_dataMax.pop_back(); }, [](const PostDataView& v) { v.dataMax(c_colorData); },
         "data maxima of group 1 are missing"},
        {[](PostDataObject& r) { r.m_normals[0]->pop_back(); }, [](const PostDataView& v) { v.normals(0); },
         "normals of group 0 have 2 arrays, not 3"},
        {[](PostDataObject& r) { r.m_normals[0]->clear(); }, [](const PostDataView& v) { v.normals(0); },
         "normals of group 0 are missing; the producer's computeNormals computes them from triangles"},
        {[](PostDataObject& r) { r.m_normals.clear(); }, [](const PostDataView& v) { v.normals(1); },
         "normals of group 1 are missing; the producer's computeNormals computes them from triangles"},
        {unspoilt, [](const PostDataView& v) { v.normals(1); }, "normals of group 1 have 1 values for 2 points"},
        {unspoilt, [](const PostDataView& v) { v.elements(0, 4); }, "elements of group 0 have 3 arrays, not 4"},
        {[](PostDataObject& r) { (*r.m_elements[0])[2].push_back(0); }, [](const PostDataView& v) { v.elements(0, 3); },
         "elements of group 0 have arrays of different length"},
        {unspoilt, [](const PostDataView& v) { v.lineElements(0); }, "line elements of group 0 are missing"},
        {unspoilt, [](const PostDataView& v) { v.bounds(3); }, "the record has no bounds of 3 axes"},
        {[](PostDataObject& r) { r.m_bounds.reset(); }, [](const PostDataView& v) { v.bounds(1); },
         "the record has no bounds of 1 axes"},
        {[](PostDataObject& r) { (*r.m_bounds)[1].pop_back(); }, [](const PostDataView& v) { v.bounds(1); },
         "an axis of the bounds has no minimum and maximum"},
    };
    for (const Case& each : cases) {
        PostDataObject record = twoGroups();
        each.spoil(record);
        try {
            each.read(PostDataView(record, "SceneGraphPlotTube"));
            ADD_FAILURE() << "not refused: " << each.text;
        } catch (const std::invalid_argument& error) {
            EXPECT_EQ(error.what(), "SceneGraphPlotTube: " + each.text + ".");
        }
    }
}

} // namespace
} // namespace vxdatacarrier
