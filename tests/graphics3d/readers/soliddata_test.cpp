// The solid files that come with the project: the sample data, and the samples in the documentation.

#include "datacarrier/renderdraw3d.h"
#include "graphics3d/foundation/vector3f.h"
#include "graphics3d/readers/postdatareader.h"
#include "graphics3d/readers/sceneobjectfilereader.h"
#include "tests/support/formatpage.h"
#include "tests/support/referencesolidreader.h"
#include "tests/support/solidcomparison.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numeric>
#include <string>
#include <string_view>
#include <vector>

namespace vxgraphics3d {
namespace {

using vxdatacarrier::RenderDraw3D;

TEST(SolidData, readsTheBracketAsTheSimpleReaderDoes)
{
    const std::string path = VX_DATA_FOLDER "/bracket_solid.txt";
    RenderDraw3D record;
    ASSERT_TRUE(SceneObjectFileReader::readDrawObjectSolid(record, path, Vector3f()));
    RenderDraw3D expected;
    std::string message;
    ASSERT_TRUE(readSolidPlainly(expected, path, Vector3f(), message));
    EXPECT_EQ(differenceOf(record, expected), "");

    // The sizes of its page.
    EXPECT_EQ(record.m_numSheets, 226);
    EXPECT_EQ(record.m_numCurves, 522);
    EXPECT_EQ(record.m_numPoints, 309);
    EXPECT_EQ(record.m_numSubdomains, 0);
    EXPECT_EQ(record.m_lineToPoint.m_numUsed, 1012);
    EXPECT_EQ(record.m_sheetToPoint.m_numUsed, 1003);
    EXPECT_EQ(record.m_sheetToLine.m_numUsed, 1026);
    int numTriangles = 0;
    for (int i = 0; i < record.m_numSheets; ++i) {
        const vxdatacarrier::Sheet3D& sheet = record.m_sheets[static_cast<std::size_t>(i)];
        EXPECT_TRUE(sheet.m_isValid);
        numTriangles += sheet.m_numTriangles;
        for (int vertex = 0; vertex < sheet.m_numVertices; ++vertex) {
            const auto& at = sheet.m_vertices[static_cast<std::size_t>(vertex)];
            EXPECT_NEAR(Vector3f(at.nx, at.ny, at.nz).length(), 1.0f, 1e-6f);
        }
    }
    EXPECT_EQ(numTriangles, 9660);
}

FormatPage page()
{
    return {VX_TEST_FOLDER "/../docs/", "solid-data-format.md", "solid-"};
}

TEST(SolidData, eachInvalidSampleGivesTheMessageAndTheRowThatThePageStates)
{
    EXPECT_EQ(page().faults().size(), 20u);
    const auto beginsWith = [](std::string_view message, std::string_view text) { return message.rfind(text, 0) == 0; };
    expectFaults(
        page(),
        [](const std::string& path, ReaderError& error) {
            RenderDraw3D record;
            record.m_numPoints = 0;
            const bool good = readDrawObjectSolid(record, path, Vector3f(), error);
            EXPECT_EQ(differenceOf(record, RenderDraw3D()), "") << path;
            return good;
        },
        [&](std::string_view message) {
            return beginsWith(message, "Could not open") || beginsWith(message, "Unknown tag");
        },
        [&](std::string_view message) {
            return !beginsWith(message, "No count") && !beginsWith(message, "More coordinates");
        });
}

TEST(SolidData, everySampleIsOnThePageAndThoseShownThereAreValid)
{
    const std::vector<std::string> samples = page().shownSamples();
    EXPECT_EQ(samples.size(), 2u);
    for (const std::string& path : samples) {
        RenderDraw3D record;
        EXPECT_TRUE(SceneObjectFileReader::readDrawObjectSolid(record, path, Vector3f())) << path;
    }
}

} // namespace
} // namespace vxgraphics3d
