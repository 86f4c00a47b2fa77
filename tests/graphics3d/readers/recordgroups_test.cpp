#include "graphics3d/readers/recordgroups.h"

#include "graphics3d/readers/sceneplotfilereader.h"
#include "tests/support/failingallocation.h"
#include "tests/support/plotcomparison.h"
#include "tests/support/temporaryfile.h"

#include <gtest/gtest.h>

#include <string>

namespace vxgraphics3d {
namespace {

using Record = vxdatacarrier::PostDataObject;

TEST(RecordGroups, leaveTheRecordUnchangedWhicheverAllocationFails)
{
    const std::string points = "% Coordinates\n0 0 0\n1 0 0\n0 1 0\n0 0 1\n1 0 1\n0 1 1\n% Elements (triangular)\n";
    const std::string levels = "% Data\n1\n1\n1\n2\n2\n2\n";
    const struct {
        bool (*read)(Record&, std::string);
        std::string elements;
        bool isRead;
        std::size_t numGroups;
    } cases[] = {
        {ScenePlotFileReader::readSurfacePlot2d, "1 2 3\n", true, 1},
        {ScenePlotFileReader::readSurfacePlot3d, "1 2 3\n4 5 6\n", true, 1},
        {ScenePlotFileReader::readIsoSurfacePlot3dData, "1 2 3\n4 5 6\n", true, 2},
        // The group before a faulty row.
        {ScenePlotFileReader::readIsoSurfacePlot3dData, "1 2 3\n\n4 5 6\n", false, 1},
    };
    for (const auto& c : cases) {
        const TemporaryFile file(points + c.elements + levels);
        Record record;
        c.read(record, file.path());
        const Record before = record;
        bool result = !c.isRead;
        const long numFailures = failEachAllocation([&] { result = c.read(record, file.path()); },
                                                    [&] {
                                                        ASSERT_EQ(differenceOf(record, before), "") << c.elements;
                                                        // Without the capacity reserved by the failed call.
                                                        record = Record(before);
                                                    });
        EXPECT_GT(numFailures, 20);
        EXPECT_EQ(result, c.isRead);
        EXPECT_EQ(record.m_coordinates.size(), 2 * c.numGroups);
        EXPECT_EQ(record.m_elements.size(), 2 * c.numGroups);
        EXPECT_EQ(record.m_data.size(), 2 * c.numGroups);
        EXPECT_EQ(record.m_dataMin.size(), 2 * c.numGroups);
        EXPECT_EQ(record.m_dataMax.size(), 2 * c.numGroups);
        EXPECT_EQ(record.m_normals.size(), c.read == ScenePlotFileReader::readSurfacePlot2d ? 0u : 2 * c.numGroups);
        EXPECT_EQ(record.m_bounds != before.m_bounds, c.isRead);
    }
}

} // namespace
} // namespace vxgraphics3d
