#pragma once

#include "base/java/peerhandle.h"
#include "graphics3d/lights/scenelight.h"

#include <boost/shared_ptr.hpp>

#include <typeinfo>

namespace vxgraphics3d {

/// A light of a scene light's peer, to connect another peer to.
/// @throws std::out_of_range if there is no such light
/// @throws std::bad_cast if the light is of another class
template <class Source>
boost::shared_ptr<Source> lightOf(JNIEnv* env, jobject owner, int lightId)
{
    auto source = boost::dynamic_pointer_cast<Source>(vxbase::peer<SceneLight>(env, owner).getLightSourcePtr(lightId));
    if (!source) {
        throw std::bad_cast();
    }
    return source;
}

} // namespace vxgraphics3d
