#pragma once

#include "base/export.h"

#include <boost/shared_ptr.hpp>

namespace vxgraphics3d {

class Canvas3dSettings;
class SceneSettings;
struct CanvasPickSettings;
struct ContextData;

/// One view of a renderer, as far as Java peers connect to its objects.
///
/// A renderer implements this for its native canvas and attaches the peer of that canvas as an `IRendererCanvas`; the
/// peers of settings and of the context's data then connect through it. Each call returns a shared pointer to the
/// object that the view itself uses, or null if it has none, in which case the connection is refused.
class VX_API IRendererCanvas {
public:
    using PeerRoot = IRendererCanvas;

    virtual ~IRendererCanvas();

    virtual boost::shared_ptr<Canvas3dSettings> getCanvas3dSettings() = 0;
    virtual boost::shared_ptr<CanvasPickSettings> getCanvasPickSettings() = 0;
    /// The settings of the scene that the view shows.
    virtual boost::shared_ptr<SceneSettings> getSceneSettings() = 0;
    virtual boost::shared_ptr<ContextData> getContextData() = 0;
};

} // namespace vxgraphics3d
