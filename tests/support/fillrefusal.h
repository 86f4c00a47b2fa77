#pragma once

#include "datacarrier/postdataobject.h"
#include "graphics3d/plots/scenegraphplot.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

namespace vxgraphics3d {

/// The message with which a plot refuses a record, which must leave its change numbers alone; empty if it takes it.
inline std::string refusalOf(SceneGraphPlot& plot, const vxdatacarrier::PostDataObject& record)
{
    const int geometry = plot.getGeometryChangeId();
    const int texture = plot.getTextureChangeId();
    try {
        plot.fillPlot(record);
        return {};
    } catch (const std::invalid_argument& refusal) {
        EXPECT_EQ(plot.getGeometryChangeId(), geometry);
        EXPECT_EQ(plot.getTextureChangeId(), texture);
        return refusal.what();
    }
}

} // namespace vxgraphics3d
