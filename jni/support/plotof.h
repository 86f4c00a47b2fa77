#pragma once

#include "base/java/peerhandle.h"
#include "graphics3d/plots/scenegraphplot.h"
#include "graphics3d/plots/scenegraphplotgroup.h"

#include <boost/pointer_cast.hpp>
#include <boost/shared_ptr.hpp>

#include <typeinfo>

namespace vxgraphics3d {

/// A plot of a plot group's peer, to connect another peer to.
/// @throws std::out_of_range if the group has no plot with the id
/// @throws std::bad_cast if the owner is no plot group, or the plot is of another class
template <class Plot>
boost::shared_ptr<Plot> plotOf(JNIEnv* env, jobject owner, int plotId)
{
    auto plot = boost::dynamic_pointer_cast<Plot>(vxbase::peer<SceneGraphPlotGroup>(env, owner).plotPtr(plotId));
    if (!plot) {
        throw std::bad_cast();
    }
    return plot;
}

} // namespace vxgraphics3d
