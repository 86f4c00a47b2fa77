// The plot files that come with the project: the sample data, and the samples in the documentation.

#include "datacarrier/postdataobject.h"
#include "graphics3d/readers/postdatareader.h"
#include "tests/support/capturederror.h"
#include "tests/support/capturedlog.h"

#include <gtest/gtest.h>

#include <fstream>
#include <regex>
#include <sstream>
#include <string>
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
        char told[200];
        std::snprintf(told, sizeof told, "File contains %zu coordinates with data, %zu triangles and 0 quads [%f, %f]",
                      file.numPoints, file.numTriangles, static_cast<double>(static_cast<float>(file.data.min)),
                      static_cast<double>(static_cast<float>(file.data.max)));
        EXPECT_EQ(log.messages().back(), told);
    }
}

TEST(PlotData, samplesOfThePageBehaveAsDocumented)
{
    std::ifstream stream(c_docsFolder + "plot-data-format.md");
    std::ostringstream text;
    text << stream.rdbuf();
    const std::string page = text.str();
    // A sample, and its message if it is invalid.
    const std::regex sample(R"(<!-- from docs/samples/(\S+) -->\s```\n[^`]*```\n(\nMessage: `(.*)`\n)?)");
    int numSamples = 0;
    for (std::sregex_iterator match(page.begin(), page.end(), sample), end; match != end; ++match) {
        const std::string name = match->str(1);
        const std::string path = c_docsFolder + "samples/" + name;
        std::string message = match->str(3);
        if (const std::size_t at = message.find("FILE"); at != std::string::npos) {
            message.replace(at, 4, path);
        }
        const CapturedLog log(ErrorLog::Level::error);
        CapturedError error;
        Record record;
        record.m_plotKind = name.rfind("plot-levels", 0) == 0 ? Record::IsoSurface : Record::Surface3d;
        EXPECT_EQ(readPostData(record, path), message.empty()) << name;
        EXPECT_EQ(log.messages(), message.empty() ? std::vector<std::string>() : std::vector{message}) << name;
        ++numSamples;
    }
    EXPECT_EQ(numSamples, 9);
}

} // namespace
} // namespace vxgraphics3d
