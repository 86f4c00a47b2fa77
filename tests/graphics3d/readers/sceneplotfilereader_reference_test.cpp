// Compares the reader with the reference reader, on generated inputs.

#include "datacarrier/postdataobject.h"
#include "graphics3d/readers/sceneplotfilereader.h"
#include "tests/support/capturederror.h"
#include "tests/support/plotcomparison.h"
#include "tests/support/plotfiles.h"
#include "tests/support/temporaryfile.h"
#include "tests/support/textchanges.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstdio>
#include <random>
#include <string>
#include <vector>

namespace vxgraphics3d {
namespace {

using Record = vxdatacarrier::PostDataObject;

/// Files with all sections, with changes.
class Mutations {
public:
    explicit Mutations(unsigned seed) : m_changes(seed) {}

    std::string next() { return m_changes.changed(whole()); }

private:
    std::size_t pick(std::size_t count) { return m_changes.pick(count); }

    std::vector<std::string> whole()
    {
        static const char* const numbers[] = {"0",        "1",       "-1",     "2.5",    "-0.125", "1e3",
                                              "1.000001", "1.00002", "0x1p-2", "1e-320", "1e39",   "7.",
                                              ".5e1",     "inf",     "-nan",   "3",      "+4",     "1.5e"};
        const auto number = [this] { return std::string(numbers[pick(pick(4) == 0 ? std::size(numbers) : 6)]); };
        const std::size_t numPoints = pick(12) + 3;
        std::vector<std::string> rows = {"% Coordinates"};
        for (std::size_t i = 0; i < numPoints; ++i) {
            rows.push_back(number() + " " + number() + " " + number());
        }
        const auto elements = [&](const char* tag, std::size_t numCorners) {
            rows.emplace_back(tag);
            for (std::size_t count = pick(6) + 1, first = 1; count != 0; --count) {
                std::string row;
                first = std::min(first + pick(2), numPoints);
                for (std::size_t corner = 0; corner < numCorners; ++corner) {
                    row += std::to_string(corner == 0 ? first : std::min(first + pick(4), numPoints)) + " ";
                }
                rows.push_back(row);
            }
        };
        elements("% Elements (triangular)", 3);
        if (pick(2) == 0) {
            elements("%_Elements (rectangular)", 4);
            elements("% Elements (lines) of the border", 2);
            elements("% Elements (tetrahedral)", 4);
        }
        rows.emplace_back("% Data");
        // Few levels, so that some elements are within one.
        const std::size_t numLevels = pick(3) + 1;
        for (std::size_t i = 0; i < numPoints; ++i) {
            rows.push_back(pick(8) == 0 ? number() : std::to_string(i * numLevels / numPoints));
        }
        if (pick(3) == 0) {
            rows.emplace_back("% Vector data");
            for (std::size_t i = 0; i < numPoints; ++i) {
                rows.push_back(number() + "\t" + number() + "  " + number());
            }
        }
        return rows;
    }

    TextChanges m_changes;
};

TEST(ScenePlotFileReaderReference, agreesOnResultsAndMessagesForChangedFiles)
{
    Mutations mutations(4);
    CapturedError error;
    const auto takeError = [&error] { return error.take(); };
    const TemporaryFile file;
    int numGood = 0;
    constexpr int c_numFiles = 3000;
    for (int i = 0; i < c_numFiles; ++i) {
        const std::string text = mutations.next();
        file.write(text);
        ASSERT_EQ(differenceFromReference(file.path(), takeError, numGood), "") << "file " << i << ":\n" << text;
    }
    // Neither all valid nor all invalid, or the files would show little.
    EXPECT_GT(numGood, c_numFiles / 4);
    EXPECT_LT(numGood, c_numFiles * 2);
}

TEST(ScenePlotFileReaderReference, agreesOnFilesOfManyBlocks)
{
    CapturedError error;
    const auto takeError = [&error] { return error.take(); };
    const TemporaryFile file;
    for (const int digits : {3, 7, 9, 17, 25}) {
        int numGood = 0;
        file.write(gridPlotText(60, 40, digits));
        ASSERT_EQ(differenceFromReference(file.path(), takeError, numGood), "") << digits << " digits";
        EXPECT_EQ(numGood, 2); // each of its iso levels is a single point
    }
}

TEST(ScenePlotFileReaderReference, readsAWrittenMeshBackToTheBit)
{
    std::mt19937 random(5);
    std::uniform_real_distribution<float> real(-1000.0f, 1000.0f);
    for (int round = 0; round < 20; ++round) {
        const auto numPoints = random() % 500 + 3;
        std::array<std::vector<double>, 3> axes;
        std::array<std::vector<int>, 3> corners;
        std::string points = "% Coordinates\n";
        std::string triangles = "% Elements (triangular)\n";
        std::string data = "% Data\n";
        char row[100];
        for (std::size_t i = 0; i < numPoints; ++i) {
            for (std::vector<double>& axis : axes) {
                axis.push_back(static_cast<double>(std::ldexp(real(random), static_cast<int>(random() % 80) - 40)));
            }
            std::snprintf(row, sizeof row, "%.9g %.9g %.9g\n", axes[0].back(), axes[1].back(), axes[2].back());
            points += row;
            data += i % 2 == 0 ? "-1\n" : "3\n";
        }
        for (auto count = random() % 900 + 1; count != 0; --count) {
            for (std::vector<int>& corner : corners) {
                corner.push_back(static_cast<int>(random() % numPoints));
            }
            std::snprintf(row, sizeof row, "%d %d %d\n", corners[0].back() + 1, corners[1].back() + 1,
                          corners[2].back() + 1);
            triangles += row;
        }
        const TemporaryFile file(points + triangles + data);
        Record record;
        ASSERT_TRUE(ScenePlotFileReader::readSurfacePlot3d(record, file.path()));
        for (std::size_t i = 0; i < 3; ++i) {
            EXPECT_EQ(record.m_coordinates.at(0)->at(i), axes[i]);
            EXPECT_EQ(record.m_elements.at(0)->at(i), corners[i]);
        }
        EXPECT_EQ(record.m_data.at(0)->at(0).at(1), 1.0);
        EXPECT_EQ(record.m_data.at(0)->at(0).at(2), 0.0);
    }
}

} // namespace
} // namespace vxgraphics3d
