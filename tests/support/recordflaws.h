#pragma once

#include "tests/support/postrecord.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <type_traits>
#include <vector>

namespace vxgraphics3d {

/// Something that a record lacks, and a part of the message with which it is refused.
struct RecordFlaw {
    const char* message;
    void (*apply)(vxdatacarrier::PostDataObject& record);
};

/// A copy that shares no array with the original.
inline PostRecord deepCopyOf(const PostRecord& original)
{
    PostRecord copy = original;
    const auto unshare = [](auto& groups) {
        for (auto& arrays : groups) {
            arrays = boost::make_shared<typename std::remove_reference_t<decltype(arrays)>::element_type>(*arrays);
        }
    };
    unshare(copy.record().m_coordinates);
    unshare(copy.record().m_data);
    unshare(copy.record().m_dataMin);
    unshare(copy.record().m_dataMax);
    unshare(copy.record().m_elements);
    unshare(copy.record().m_normals);
    unshare(copy.record().m_lineElements);
    copy.record().m_bounds =
        boost::make_shared<vxdatacarrier::PostDataObject::DoubleArrays>(*original.record().m_bounds);
    return copy;
}

/// Expects that a plot refuses a good record with each of the flaws, names itself and the flaw, and does not change.
/// @param makePlot returns a pointer to a new plot
/// @param stateOf returns what must not change
template <class MakePlot, class StateOf>
void expectRefusals(MakePlot makePlot, const PostRecord& good, const char* name, const std::vector<RecordFlaw>& flaws,
                    StateOf stateOf)
{
    for (const RecordFlaw& flaw : flaws) {
        const auto plot = makePlot();
        plot->fillPlot(good);
        const auto before = stateOf(*plot);
        const int geometry = plot->getGeometryChangeId();
        PostRecord record = deepCopyOf(good);
        flaw.apply(record.record());
        try {
            plot->fillPlot(record);
            ADD_FAILURE() << name << " took a record with this flaw: " << flaw.message;
        } catch (const std::invalid_argument& e) {
            EXPECT_EQ(std::string(e.what()).find(name), 0u) << e.what();
            EXPECT_NE(std::string(e.what()).find(flaw.message), std::string::npos) << e.what();
        }
        EXPECT_EQ(stateOf(*plot), before) << flaw.message;
        EXPECT_EQ(plot->getGeometryChangeId(), geometry) << flaw.message;
    }
}

} // namespace vxgraphics3d
