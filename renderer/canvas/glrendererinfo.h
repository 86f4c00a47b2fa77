#pragma once

#include "graphics3d/settings/contextdata.h"
#include "graphics3d/settings/rendererinfo.h"

#include <boost/shared_ptr.hpp>

#include <string>

namespace vxrenderer {

class Target;

/// What the drawing contexts of this renderer can do, or why there are none.
class GlRendererInfo : public vxgraphics3d::RendererInfo {
public:
    /// Asks the context that is current. There is one monitor, which represents the driver: nothing is shown on any.
    explicit GlRendererInfo(const std::string& platform);
    /// For a process in which no context can be had.
    static boost::shared_ptr<GlRendererInfo> ofFailure(const std::string& missing);

    /// Lets the settings of the process know the context that is current, unless they know one already.
    static void announce(const std::string& platform);
    /// The info of the process. If no picture was made yet, a context is made to ask it; if that fails, the info says
    /// what is missing.
    static boost::shared_ptr<vxgraphics3d::RendererInfo> ofProcess();

    bool hasOpenGlExtension(const std::string& name) const override;

private:
    GlRendererInfo() = default;
};

/// What the buffers of a picture are like, by the context that is current.
vxgraphics3d::ContextData contextDataOf(const Target& target);

} // namespace vxrenderer
