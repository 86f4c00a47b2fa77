#include "renderer/gl/eglcontext.h"

#include <EGL/egl.h>
#include <EGL/eglext.h>

#include <array>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <stdexcept>
#include <string_view>

namespace vxrenderer {
namespace {

bool hasExtension(const char* list, std::string_view name)
{
    for (std::string_view rest = list != nullptr ? list : ""; !rest.empty();) {
        const std::size_t end = rest.find(' ');
        if (rest.substr(0, end) == name) {
            return true;
        }
        rest = end == std::string_view::npos ? std::string_view() : rest.substr(end + 1);
    }
    return false;
}

void addReason(std::string& reasons, const std::string& platform, const std::string& what)
{
    reasons += (reasons.empty() ? "" : "; ") + platform + ": " + what;
}

std::string failed(const char* call)
{
    std::array<char, 16> number{};
    std::snprintf(number.data(), number.size(), "0x%x", static_cast<unsigned>(eglGetError()));
    return std::string(call) + " failed with " + number.data();
}

std::string failureText(const std::string& reasons)
{
    return "There is no drawing context (is a graphics driver installed? One that draws in software will do): " +
           reasons;
}

/// Lets the C library keep up to 64 MB of freed memory instead of giving it back to the system at once.
///
/// A driver that draws with the processor takes some 400 bytes for each triangle and frees them at the end of the
/// frame. Getting the same pages from the system again with every frame takes up to 15 ms for 100,000 triangles. The C
/// library keeps up to twice the size of the largest block that the process has freed so far, up to a limit: this is
/// that block. It costs no memory, as nothing is written to it.
void keepFreedMemory()
{
    constexpr std::size_t c_largestBlock = (std::size_t(32) << 20) - (std::size_t(64) << 10);
    // Volatile, as a compiler may remove a pair of calls without effect.
    void* volatile block = std::malloc(c_largestBlock);
    std::free(block);
}

template <class Function>
Function function(const char* name)
{
    return reinterpret_cast<Function>(eglGetProcAddress(name));
}

} // namespace

EglContext::EglContext()
{
    keepFreedMemory();
    std::string reasons;
    const char* extensions = eglQueryString(EGL_NO_DISPLAY, EGL_EXTENSIONS);
    const auto getDisplay = function<PFNEGLGETPLATFORMDISPLAYEXTPROC>("eglGetPlatformDisplayEXT");
    if (!hasExtension(extensions, "EGL_EXT_platform_base") || getDisplay == nullptr) {
        throw std::runtime_error(failureText("EGL has no EGL_EXT_platform_base"));
    }

    const std::string surfaceless = "surfaceless";
    if (!hasExtension(extensions, "EGL_MESA_platform_surfaceless")) {
        addReason(reasons, surfaceless, "EGL has no EGL_MESA_platform_surfaceless");
    } else if (create(getDisplay(EGL_PLATFORM_SURFACELESS_MESA, nullptr, nullptr), surfaceless, reasons)) {
        return;
    }

    const auto queryDevices = function<PFNEGLQUERYDEVICESEXTPROC>("eglQueryDevicesEXT");
    std::array<EGLDeviceEXT, 16> devices{};
    EGLint numDevices = 0;
    if (!hasExtension(extensions, "EGL_EXT_platform_device") || queryDevices == nullptr ||
        queryDevices(static_cast<EGLint>(devices.size()), devices.data(), &numDevices) == EGL_FALSE) {
        addReason(reasons, "device", "EGL does not list devices");
        numDevices = 0;
    }
    for (int i = 0; i < numDevices; ++i) {
        const EGLDeviceEXT device = devices[static_cast<std::size_t>(i)];
        if (create(getDisplay(EGL_PLATFORM_DEVICE_EXT, device, nullptr), "device " + std::to_string(i), reasons)) {
            return;
        }
    }
    throw std::runtime_error(failureText(reasons));
}

bool EglContext::create(void* display, const std::string& platform, std::string& reasons)
{
    if (display == EGL_NO_DISPLAY) {
        addReason(reasons, platform, failed("eglGetPlatformDisplay"));
        return false;
    }
    if (eglInitialize(display, nullptr, nullptr) == EGL_FALSE) {
        addReason(reasons, platform, failed("eglInitialize"));
        return false;
    }
    for (const char* needed : {"EGL_KHR_create_context", "EGL_KHR_no_config_context", "EGL_KHR_surfaceless_context"}) {
        if (!hasExtension(eglQueryString(display, EGL_EXTENSIONS), needed)) {
            addReason(reasons, platform, std::string("the driver has no ") + needed);
            return false;
        }
    }
    static constexpr EGLint c_attributes[] = {EGL_CONTEXT_MAJOR_VERSION_KHR,
                                              3,
                                              EGL_CONTEXT_MINOR_VERSION_KHR,
                                              3,
                                              EGL_CONTEXT_OPENGL_PROFILE_MASK_KHR,
                                              EGL_CONTEXT_OPENGL_CORE_PROFILE_BIT_KHR,
                                              EGL_NONE};
    const EGLenum previousApi = eglQueryAPI();
    eglBindAPI(EGL_OPENGL_API);
    const EGLContext context = eglCreateContext(display, EGL_NO_CONFIG_KHR, EGL_NO_CONTEXT, c_attributes);
    const std::string failure = context == EGL_NO_CONTEXT ? failed("creating an OpenGL 3.3 core context") : "";
    eglBindAPI(previousApi);
    if (context == EGL_NO_CONTEXT) {
        addReason(reasons, platform, failure);
        return false;
    }
    m_display = display;
    m_context = context;
    m_platform = platform;
    return true;
}

EglContext::~EglContext()
{
    eglDestroyContext(m_display, m_context);
}

EglContext::Current::Current(const EglContext& context)
    : m_display(context.m_display),
      m_previousApi(eglQueryAPI()),
      m_previousDisplay(eglGetCurrentDisplay()),
      m_previousDraw(eglGetCurrentSurface(EGL_DRAW)),
      m_previousRead(eglGetCurrentSurface(EGL_READ)),
      m_previousContext(eglGetCurrentContext())
{
    eglBindAPI(EGL_OPENGL_API);
    if (eglMakeCurrent(m_display, EGL_NO_SURFACE, EGL_NO_SURFACE, context.m_context) == EGL_FALSE) {
        const std::string failure = failed("eglMakeCurrent");
        eglBindAPI(m_previousApi);
        throw std::runtime_error("The drawing context cannot be used on this thread: " + failure);
    }
}

EglContext::Current::~Current()
{
    eglMakeCurrent(m_display, EGL_NO_SURFACE, EGL_NO_SURFACE, EGL_NO_CONTEXT);
    eglBindAPI(m_previousApi);
    if (m_previousContext != EGL_NO_CONTEXT) {
        eglMakeCurrent(m_previousDisplay, m_previousDraw, m_previousRead, m_previousContext);
    }
}

} // namespace vxrenderer
