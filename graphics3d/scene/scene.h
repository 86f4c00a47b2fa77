#pragma once

#include "base/export.h"
#include "graphics3d/foundation/boundingbox.h"
#include "graphics3d/foundation/lastchangeid.h"

#include <boost/shared_ptr.hpp>

namespace vxbase {
class UString;
}

namespace vxgraphics3d {

class PickedObjectCollection;
class SceneGraphRoot;
class SelectionFrustrum;
struct CanvasPickSettings;

/// What one or several views show, answering for its tree as one object.
///
/// A scene lives while its Java peer or a renderer holds it. The tree may outlive it, as long as a peer holds the root.
class VX_API Scene {
public:
    Scene();
    Scene(const Scene&) = delete;
    Scene& operator=(const Scene&) = delete;
    virtual ~Scene();

    /// The id of the scene, unique over the process, from 1.
    int getSceneId() const { return m_sceneId; }

    /// Tells renderers to drop their shares. Nothing else happens: the scene stays usable.
    void dispose() { m_disposed = true; }
    bool isDisposed() const { return m_disposed; }

    /// The root of the tree, the same one always.
    const boost::shared_ptr<SceneGraphRoot>& getRoot() const { return m_root; }

    /// Appends to `result` what of the scene lies in the frustum and is asked for.
    void getSelection(const SelectionFrustrum& frustum, const CanvasPickSettings& settings,
                      PickedObjectCollection& result) const;
    /// The box of the tree.
    const BoundingBox& getBoundingBox() const;
    /// The box of what is marked in the tree; empty if nothing is.
    BoundingBox calculateMarkedBoundingBox(int include, int exclude) const;

    // Title and legends of the plots, as the root tells them.

    int getNumberOfColorLegends() const;
    void getTitle(vxbase::UString& result) const;
    bool isTitleChanged(const LastChangeId& last) const;
    void resetTitleChanged(LastChangeId& last) const;

private:
    static int m_lastSceneId;

    int m_sceneId;
    bool m_disposed = false;
    boost::shared_ptr<SceneGraphRoot> m_root;
};

} // namespace vxgraphics3d
