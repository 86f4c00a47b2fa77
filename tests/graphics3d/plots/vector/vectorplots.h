#pragma once

#include "graphics3d/plots/scenegraphplot.h"
#include "tests/support/postrecord.h"

#include <boost/make_shared.hpp>

#include <cstddef>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

namespace vxgraphics3d {

using Record = vxdatacarrier::PostDataObject;
using Doubles = std::vector<double>;

inline std::vector<float> limitsOf(const BoundingBox& box)
{
    const Vector3f min = box.getMin();
    const Vector3f max = box.getMax();
    return {min.x, max.x, min.y, max.y, min.z, max.z};
}

/// A copy that shares no coordinates and data with the record.
inline PostRecord copyOf(PostRecord record)
{
    for (auto& arrays : record.record().m_coordinates) {
        arrays = boost::make_shared<Record::DoubleArrays>(*arrays);
    }
    for (auto& arrays : record.record().m_data) {
        arrays = boost::make_shared<Record::DoubleArrays>(*arrays);
    }
    return record;
}

/// Names the first fault that a fill does not refuse, or after whose refusal the state of the plot has changed; empty
/// if there is none. The faults are: each role of the record that is empty or has too few values, and no coordinates,
/// bounds and elements.
/// @param state describes the contents of the plot
inline std::string acceptedFault(SceneGraphPlot& plot, const PostRecord& good, const std::vector<int>& roles,
                                 bool needsElements, const std::function<std::string()>& state)
{
    struct Fault {
        std::string name; ///< a part of the message
        std::function<void(Record&)> apply;
    };
    std::vector<Fault> faults{{"coordinates", [](Record& r) { r.m_coordinates[0]->pop_back(); }},
                              {"coordinates", [](Record& r) { r.m_coordinates[0]->front().pop_back(); }},
                              {"bounds", [](Record& r) { r.m_bounds.reset(); }},
                              {"no group", [](Record& r) { r.m_coordinates.clear(); }}};
    if (needsElements) {
        faults.push_back({"elements", [](Record& r) { r.m_elements.clear(); }});
    }
    for (const int role : roles) {
        const auto at = static_cast<std::size_t>(role);
        const std::string name = "(role " + std::to_string(role) + ")";
        faults.push_back({name, [at](Record& r) { r.m_dataIndex[at] = -1; }});
        faults.push_back(
            {name, [at](Record& r) { (*r.m_data[0])[static_cast<std::size_t>(r.m_dataIndex[at])].pop_back(); }});
    }
    plot.fillPlot(good);
    const std::string before = state();
    const int geometry = plot.getGeometryChangeId();
    for (const Fault& fault : faults) {
        PostRecord poor = copyOf(good);
        fault.apply(poor.record());
        try {
            plot.fillPlot(poor);
            return "took a record without " + fault.name;
        } catch (const std::invalid_argument& e) {
            if (std::string(e.what()).find(fault.name) == std::string::npos) {
                return fault.name + " is reported as: " + e.what();
            }
        }
        if (state() != before || plot.getGeometryChangeId() != geometry) {
            return "changed on " + fault.name;
        }
    }
    return "";
}

} // namespace vxgraphics3d
