// The plot files that come with the project: the sample data, and the samples in the documentation.

#include "datacarrier/postdataobject.h"
#include "graphics3d/readers/postdatareader.h"
#include "tests/support/capturederror.h"
#include "tests/support/capturedlog.h"
#include "tests/support/formatpage.h"
#include "tests/support/temporaryfile.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <future>
#include <limits>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace vxgraphics3d {
namespace {

using Record = vxdatacarrier::PostDataObject;

const std::string c_dataFolder = VX_DATA_FOLDER "/";
const std::string c_docsFolder = VX_TEST_FOLDER "/../docs/";

TEST(PlotData, hasTheSizesAndLimitsOfItsPage)
{
    struct Limits {
        double min, max;
    };
    const struct {
        const char* name;
        Record::PlotKind kind;
        std::size_t numGroups, numPoints, numTriangles;
        Limits x, y, z, data;
    } files[] = {
        {"terrain_2d", Record::Surface2d, 1, 34744, 68742, {0, 29.855}, {0, 31.692}, {249, 1073}, {0, 35.0224}},
        {"terrain_fine_2d", Record::Surface2d, 1, 70000, 138942, {0, 20.7202}, {0, 23.074}, {270, 1076}, {0, 36.1844}},
        {"sea_temperature_2d", Record::Surface2d, 1, 9436, 17546, {21, 379}, {-77, 77}, {0, 0}, {-1.7, 31}},
        {"earth_relief_3d",
         Record::Surface3d,
         1,
         16202,
         32400,
         {-0.977666, 0.993331},
         {-0.99258, 0.990946},
         {-1.01395, 0.996033},
         {-6450.18, 5433.25}},
        {"bracket_stress_3d",
         Record::Surface3d,
         1,
         9396,
         18738,
         {0, 175.997},
         {-46, 46},
         {-62, 62},
         {0.00863472, 150.915}},
        {"ocean_isotherms",
         Record::IsoSurface,
         5,
         35643,
         67292,
         {278.5, 378.5},
         {-58.2545, 64.5},
         {-19.3189, 0},
         {5, 25}},
    };
    for (const auto& file : files) {
        const CapturedLog log(ErrorLog::Level::info);
        Record record;
        record.m_plotKind = file.kind;
        ASSERT_TRUE(readPostData(record, c_dataFolder + file.name + ".txt")) << file.name;
        std::size_t numPoints = 0;
        std::size_t numTriangles = 0;
        double min = 1.0;
        double max = 0.0;
        for (std::size_t group = 0; group < record.m_coordinates.size(); ++group) {
            numPoints += record.m_coordinates[group]->at(0).size();
            numTriangles += record.m_elements.at(group)->at(0).size();
            min = std::min(min, record.m_dataMin.at(group)->at(0));
            max = std::max(max, record.m_dataMax.at(group)->at(0));
        }
        EXPECT_EQ(record.m_coordinates.size(), file.numGroups) << file.name;
        EXPECT_EQ(numPoints, file.numPoints) << file.name;
        EXPECT_EQ(numTriangles, file.numTriangles) << file.name;
        EXPECT_EQ(min, 0.0) << file.name;
        EXPECT_NEAR(max, 1.0, 1e-7) << file.name;
        Record::DoubleArrays expected;
        for (const Limits& axis : {file.x, file.y, file.z}) {
            expected.push_back(
                {static_cast<double>(static_cast<float>(axis.min)), static_cast<double>(static_cast<float>(axis.max))});
        }
        if (file.kind == Record::Surface2d) {
            EXPECT_EQ(record.m_dataMin[0]->at(1), expected[2][0]) << file.name;
            EXPECT_EQ(record.m_dataMax[0]->at(1), expected[2][1]) << file.name;
            expected.pop_back();
        }
        EXPECT_EQ(*record.m_bounds, expected) << file.name;
        char message[200];
        std::snprintf(message, sizeof message,
                      "File contains %zu coordinates with data, %zu triangles and 0 quads [%f, %f]", file.numPoints,
                      file.numTriangles, static_cast<double>(static_cast<float>(file.data.min)),
                      static_cast<double>(static_cast<float>(file.data.max)));
        EXPECT_EQ(log.messages().back(), message);
    }
}

FormatPage page()
{
    return {c_docsFolder, "plot-data-format.md", "plot-"};
}

/// A record of the kind that a sample is for.
Record recordFor(const std::string& sample)
{
    Record record;
    record.m_plotKind = sample.find("/plot-levels") != std::string::npos ? Record::IsoSurface : Record::Surface3d;
    return record;
}

TEST(PlotData, eachInvalidSampleGivesTheMessageAndTheRowThatThePageStates)
{
    EXPECT_EQ(page().faults().size(), 27u);
    expectFaults(
        page(),
        [](const std::string& path, ReaderError& error) {
            Record record = recordFor(path);
            return readPostData(record, path, error);
        },
        [](std::string_view message) { return message.rfind("Illegal", 0) != 0; },
        [](std::string_view) { return true; });
}

TEST(PlotData, everySampleIsOnThePageAndThoseShownThereAreValid)
{
    const std::vector<std::string> samples = page().shownSamples();
    EXPECT_EQ(samples.size(), 3u);
    for (const std::string& path : samples) {
        Record record = recordFor(path);
        EXPECT_TRUE(readPostData(record, path)) << path;
    }
}

TEST(PlotData, treatsValuesThatAreNotFiniteAsThePageStates)
{
    // NaN is written as -1, which is neither a scaled value nor a component of these normals.
    const auto marked = [](const auto& values) {
        std::vector<double> result(values.begin(), values.end());
        std::replace_if(
            result.begin(), result.end(), [](double value) { return std::isnan(value); }, -1.0);
        return result;
    };
    const auto read = [](Record::PlotKind kind, const std::string& coordinates, const std::string& data) {
        const TemporaryFile file("% Coordinates\n" + coordinates + "% Elements (triangular)\n1 2 3\n1 3 4\n% Data\n" +
                                 data);
        Record record;
        record.m_plotKind = kind;
        EXPECT_TRUE(readPostData(record, file.path()));
        return record;
    };
    using Values = std::vector<double>;
    const std::string square = "0 0 0\n1 0 0\n1 1 0\n0 1 0\n";
    const struct {
        Record::PlotKind kind;
        const char* data;
        Values scaled;
    } cases[] = {
        {Record::Surface3d, "2\nnan\n4\n6\n", {0, -1, 0.5, 1}},
        {Record::Surface3d, "2\n-NaN(x)\n4\n6\n", {0, -1, 0.5, 1}},
        {Record::Surface3d, "2\ninf\n4\n6\n", {0, -1, 0, 0}},
        {Record::Surface3d, "2\n1e39\n4\n6\n", {0, -1, 0, 0}},
        {Record::Surface3d, "2\n-Infinity\n4\n6\n", {-1, -1, -1, -1}},
        {Record::IsoSurface, "2\n2\nnan\n2\n", {0, 0, -1, 0}},
        {Record::IsoSurface, "2\n2\ninf\n2\n", {0, 0, -1, 0}},
        {Record::IsoSurface, "nan\n2\n4\n6\n", {-1, 0, 0.5, 1}},
    };
    for (const auto& [kind, data, scaled] : cases) {
        const Record record = read(kind, square, data);
        ASSERT_EQ(record.m_data.size(), 1u) << data;
        EXPECT_EQ(marked(record.m_data[0]->back()), scaled) << data;
    }
    const Record hole = read(Record::Surface3d, square, "2\nnan\n4\n6\n");
    EXPECT_EQ(*hole.m_dataMin[0], Values{0});
    EXPECT_EQ(*hole.m_dataMax[0], Values{1});

    const Record nan = read(Record::Surface3d, "0 0 0\nnan 0 0\n1 1 0\n0 1 0\n", "1\n2\n3\n4\n");
    EXPECT_EQ(*nan.m_bounds, (Record::DoubleArrays{{0, 1}, {0, 1}, {0, 0}}));
    EXPECT_EQ(marked(nan.m_normals[0]->at(2)), (Values{-1, -1, -1, 1}));
    const Record infinite = read(Record::Surface3d, "0 0 0\ninf 0 0\n1 1 0\n0 1 0\n", "1\n2\n3\n4\n");
    EXPECT_EQ(infinite.m_bounds->at(0), (Values{0, std::numeric_limits<double>::infinity()}));
    EXPECT_EQ(marked(infinite.m_normals[0]->at(2)), (Values{-1, -1, -1, 1}));
}

TEST(PlotData, separatesTheErrorsOfThreads)
{
    const auto messageOf = [](const std::string& sample) {
        Record record = recordFor(sample);
        ReaderError error;
        readPostData(record, c_docsFolder + "samples/" + sample, error);
        return error.message;
    };
    CapturedError standardError;
    auto elsewhere = std::async(std::launch::async, [&] {
        for (int i = 0; i < 200; ++i) {
            EXPECT_EQ(messageOf("plot-count.txt"), "Coordinates do not match Data.");
        }
    });
    for (int i = 0; i < 200; ++i) {
        EXPECT_EQ(messageOf("plot-value.txt"), "Illegal data: \"high\"");
    }
    elsewhere.get();
}

TEST(PlotData, namesTheRowOfAnErrorAmongManyRows)
{
    std::string text = "% Coordinates\n";
    for (int i = 0; i < 300; ++i) {
        text += "0 0 0\n";
    }
    std::string triangles = "% Elements (triangular)\n";
    for (int i = 0; i < 300; ++i) {
        triangles += i == 200 ? "1 2 301\n" : "1 2 3\n";
    }
    std::string data = "% Data\n";
    for (int i = 0; i < 305; ++i) {
        data += "1\n";
    }
    CapturedError standardError;
    for (const auto& [file, row] : {std::pair(text + triangles, 503), std::pair(text + data, 603)}) {
        const TemporaryFile target(file);
        Record record = recordFor("");
        ReaderError error;
        EXPECT_FALSE(readPostData(record, target.path(), error));
        EXPECT_EQ(error.row, row) << error.message;
    }
}

TEST(PlotData, reportsThatNoFileContainsDataOfAnotherKind)
{
    Record record;
    record.m_plotKind = Record::Mesh3d;
    ReaderError error;
    EXPECT_FALSE(readPostData(record, c_docsFolder + "samples/plot-square.txt", error));
    EXPECT_EQ(error.message, "No file holds data of plot kind 12");
    EXPECT_EQ(error.row, 0);
}

} // namespace
} // namespace vxgraphics3d
