#pragma once

#include "graphics3d/scenegraph/scenegraphgroup.h"
#include "graphics3d/scenegraph/scenegraphobject.h"
#include "graphics3d/scenegraph/scenegraphroot.h"

#include <vector>

namespace vxinteraction {

/// Visits the objects of a tree that are active, as are all groups above them, in the order of a pick.
/// @param enter says whether to visit the children of a group
template <class Enter, class Visit>
void forEachObject(vxgraphics3d::SceneGraphRoot& root, Enter enter, Visit visit)
{
    using vxgraphics3d::SceneGraphNode;
    // A list of open nodes instead of calls: groups may be nested deeper than any stack.
    std::vector<SceneGraphNode*> open;
    if (root.isActive() && root.doesChildExist(0)) {
        open.push_back(root.child(0));
    }
    while (!open.empty()) {
        SceneGraphNode& node = *open.back();
        open.pop_back();
        if (!node.isActive()) {
            continue;
        }
        if (node.getType() == SceneGraphNode::NodeObject) {
            visit(static_cast<vxgraphics3d::SceneGraphObject&>(node));
        } else if (node.getType() == SceneGraphNode::NodeGroup) {
            const auto& group = static_cast<vxgraphics3d::SceneGraphGroup&>(node);
            if (!enter(group)) {
                continue;
            }
            // The last child first, so that the first one is taken up next.
            auto [first, child] = group.getChildren();
            while (child != first) {
                --child;
                open.push_back(child->second.get());
            }
        }
    }
}

} // namespace vxinteraction
