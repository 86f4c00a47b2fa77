#include "datacarrier/adjacencyrecord.h"

#include "tests/support/geometryrecords.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <stdexcept>

namespace vxdatacarrier {
namespace {

using vxgraphics3d::relationOf;

TEST(AdjacencyRecord, theInverseListsTheRowsThatNameAPart)
{
    AdjacencyRecord inverse;
    invertAdjacency(inverse, relationOf({{0, 1}, {1, 1}}), 3, 2);
    ASSERT_EQ(inverse.m_numRows, 3);
    EXPECT_EQ(inverse.m_rows[0].count, 1);
    EXPECT_EQ(inverse.m_rows[1].count, 3);
    EXPECT_EQ(inverse.m_rows[2].count, 0);
    ASSERT_EQ(inverse.m_numUsed, 4);
    const int expected[] = {0, 0, 1, 1};
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(inverse.m_values[static_cast<std::size_t>(i)], expected[i]) << i;
        EXPECT_EQ(inverse.m_extra[static_cast<std::size_t>(i)], 0) << i;
    }
}

TEST(AdjacencyRecord, aRelationThatCannotBeInvertedLeavesTheTargetAsItIs)
{
    const auto refuses = [](auto damage) {
        AdjacencyRecord source = relationOf({{0, 1}, {1}});
        damage(source);
        AdjacencyRecord target;
        EXPECT_THROW(invertAdjacency(target, source, 2, 2), std::logic_error);
        return target.m_numRows == 0;
    };
    EXPECT_TRUE(refuses([](AdjacencyRecord& r) { r.m_values[2] = 2; }));
    EXPECT_TRUE(refuses([](AdjacencyRecord& r) { r.m_rows[1].start = 3; }));
    EXPECT_TRUE(refuses([](AdjacencyRecord& r) { r.m_rows[1] = {0, 2}; })) << "rows that overlap";
    EXPECT_TRUE(refuses([](AdjacencyRecord& r) { r.m_rows.reset(); }));
    EXPECT_TRUE(refuses([](AdjacencyRecord& r) { r.m_values.reset(); }));
    EXPECT_TRUE(refuses([](AdjacencyRecord& r) { r.m_numRows = 1; }));
}

} // namespace
} // namespace vxdatacarrier
