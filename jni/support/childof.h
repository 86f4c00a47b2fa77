#pragma once

#include "base/java/peerhandle.h"
#include "graphics3d/scenegraph/scenegraphparent.h"

#include <boost/shared_ptr.hpp>

#include <typeinfo>

namespace vxgraphics3d {

/// A child of a parent's peer, to connect another peer to. A parent with a single child ignores the id.
/// @throws std::out_of_range if there is no such child
/// @throws std::bad_cast if the owner is no parent, or the child is of another class
template <class Node>
boost::shared_ptr<Node> childOf(JNIEnv* env, jobject owner, int childId)
{
    auto child = boost::dynamic_pointer_cast<Node>(vxbase::peer<SceneGraphParent>(env, owner).childPtr(childId));
    if (!child) {
        throw std::bad_cast();
    }
    return child;
}

} // namespace vxgraphics3d
