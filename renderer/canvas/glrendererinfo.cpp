#include "renderer/canvas/glrendererinfo.h"

#include "graphics3d/settings/canvas3dglobalsettings.h"
#include "renderer/frame/lighting.h"
#include "renderer/gl/eglcontext.h"
#include "renderer/gl/target.h"

#include <epoxy/gl.h>

#include <boost/make_shared.hpp>

#include <algorithm>
#include <array>
#include <cstdint>
#include <exception>

namespace vxrenderer {
namespace {

using vxgraphics3d::Canvas3dGlobalSettings;
using vxgraphics3d::ContextData;
using vxgraphics3d::RendererInfo;

constexpr const char* c_rendererType = "OpenGL";

/// Parts of the names of drivers that draw without graphics hardware.
constexpr std::array c_softwareRenderers = {"llvmpipe", "softpipe", "swrast"};

int integer(GLenum name)
{
    GLint value = 0;
    glGetIntegerv(name, &value);
    return value;
}

std::string text(GLenum name)
{
    const GLubyte* value = glGetString(name);
    return value == nullptr ? "" : static_cast<const char*>(static_cast<const void*>(value));
}

/// The only copy of what the driver reports about itself.
class GlMonitorInfo : public RendererInfo::MonitorInfo {
public:
    explicit GlMonitorInfo(const std::string& platform)
    {
        m_deviceId = platform;
        m_videoCardVendor = text(GL_VENDOR);
        m_videoCardName = text(GL_RENDERER);
        m_videoCardVersion = text(GL_VERSION);
        m_openGlVersion = static_cast<std::uint16_t>(integer(GL_MAJOR_VERSION) << 8 | integer(GL_MINOR_VERSION));
        const int numExtensions = integer(GL_NUM_EXTENSIONS);
        for (int i = 0; i < numExtensions; ++i) {
            const GLubyte* name = glGetStringi(GL_EXTENSIONS, static_cast<GLuint>(i));
            m_openGlExtensions.insert(static_cast<const char*>(static_cast<const void*>(name)));
        }
        m_maxNumberOfLights = static_cast<int>(Lighting::c_maxLights);
        m_maxTextureSize = integer(GL_MAX_TEXTURE_SIZE);
        m_maxVertexArraySize = integer(GL_MAX_ELEMENTS_VERTICES);
        m_maxIndexArraySize = integer(GL_MAX_ELEMENTS_INDICES);
    }
};

bool isSoftware(const std::string& renderer)
{
    return std::ranges::any_of(c_softwareRenderers,
                               [&](const char* name) { return renderer.find(name) != std::string::npos; });
}

/// The info of a context, once there was one.
boost::shared_ptr<GlRendererInfo> announced;

} // namespace

GlRendererInfo::GlRendererInfo(const std::string& platform)
{
    m_rendererType = c_rendererType;
    const auto monitor = boost::make_shared<GlMonitorInfo>(platform);
    m_monitors = {monitor};
    m_openGlVersion = monitor->getOpenGlVersion();
    m_has32BitIndexBuffer = true;
    m_antialiasingType = 1;
    const int maxSamples = integer(GL_MAX_SAMPLES);
    for (int samples = 2; samples <= maxSamples && m_numberOfMultisampleSettings < c_maxMultisampleSettings;
         samples *= 2) {
        m_multisampleSettings[m_numberOfMultisampleSettings++] = samples;
    }
    // The best one first, which is the one that antialiasing takes when it is switched on.
    std::reverse(m_multisampleSettings, m_multisampleSettings + m_numberOfMultisampleSettings);
    m_maxNumberOfAvailableLights = monitor->getMaxNumberOfLights();
    m_maxTextureSize = monitor->getMaxTextureSize();
    m_colorFormat = 1;
    m_maxVertexArraySize = monitor->getMaxVertexArraySize();
    m_maxIndexArraySize = monitor->getMaxIndexArraySize();
    m_isArraySizesHard = false;
    m_hasOffscreenContext = true;
}

boost::shared_ptr<GlRendererInfo> GlRendererInfo::ofFailure(const std::string& missing)
{
    boost::shared_ptr<GlRendererInfo> info(new GlRendererInfo());
    info->m_rendererType = c_rendererType;
    info->m_missingRequirements = {missing};
    return info;
}

void GlRendererInfo::announce(const std::string& platform)
{
    if (!announced) {
        announced = boost::make_shared<GlRendererInfo>(platform);
        Canvas3dGlobalSettings::setRendererInfo(announced);
    }
}

boost::shared_ptr<RendererInfo> GlRendererInfo::ofProcess()
{
    if (!announced) {
        try {
            const EglContext context;
            const EglContext::Current current(context);
            announce(context.getPlatform());
        } catch (const std::exception& e) {
            // Asked again when it is wanted again: what was missing may have become available meanwhile.
            boost::shared_ptr<RendererInfo> failure = ofFailure(e.what());
            Canvas3dGlobalSettings::setRendererInfo(failure);
            return failure;
        }
    }
    return announced;
}

bool GlRendererInfo::hasOpenGlExtension(const std::string& name) const
{
    return std::ranges::any_of(m_monitors,
                               [&](const auto& monitor) { return monitor->getOpenGlExtensions().count(name) != 0; });
}

ContextData contextDataOf(const Target& target)
{
    target.bindScene();
    const auto bits = [](GLenum buffer, GLenum name) {
        GLint value = 0;
        glGetFramebufferAttachmentParameteriv(GL_FRAMEBUFFER, buffer, name, &value);
        return value;
    };
    ContextData data;
    data.redBits = bits(GL_COLOR_ATTACHMENT0, GL_FRAMEBUFFER_ATTACHMENT_RED_SIZE);
    data.greenBits = bits(GL_COLOR_ATTACHMENT0, GL_FRAMEBUFFER_ATTACHMENT_GREEN_SIZE);
    data.blueBits = bits(GL_COLOR_ATTACHMENT0, GL_FRAMEBUFFER_ATTACHMENT_BLUE_SIZE);
    data.alphaBits = bits(GL_COLOR_ATTACHMENT0, GL_FRAMEBUFFER_ATTACHMENT_ALPHA_SIZE);
    data.colorBits = data.redBits + data.greenBits + data.blueBits + data.alphaBits;
    data.depthBits = bits(GL_DEPTH_ATTACHMENT, GL_FRAMEBUFFER_ATTACHMENT_DEPTH_SIZE);
    data.stencilBits = bits(GL_STENCIL_ATTACHMENT, GL_FRAMEBUFFER_ATTACHMENT_STENCIL_SIZE);
    data.hardwareAccelerated = !isSoftware(text(GL_RENDERER));
    data.multipleSamples = target.getSamples() > 1 ? target.getSamples() : 0;
    data.antialiasingType = data.multipleSamples > 0 ? 1 : 0;
    return data;
}

} // namespace vxrenderer
