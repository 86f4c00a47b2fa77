#pragma once

#include <string>

namespace vxrenderer {

/// An OpenGL 3.3 core context without a window.
///
/// The surfaceless platform is tried first, then every graphics device; neither needs a screen. A context belongs
/// to one thread at a time: everything that draws holds a `Current` while it draws, and no longer, so that the calls of
/// one renderer may come from any thread as long as they do not overlap.
class EglContext {
public:
    /// Makes a context current within a scope and restores the previous one at its end.
    class Current {
    public:
        /// @throws std::runtime_error if the context is in use on another thread
        explicit Current(const EglContext& context);
        ~Current();
        Current(const Current&) = delete;
        Current& operator=(const Current&) = delete;

    private:
        void* m_display;
        unsigned m_previousApi;
        void* m_previousDisplay;
        void* m_previousDraw;
        void* m_previousRead;
        void* m_previousContext;
    };

    /// @throws std::runtime_error that says what is missing, for every way that was tried
    EglContext();
    ~EglContext();
    EglContext(const EglContext&) = delete;
    EglContext& operator=(const EglContext&) = delete;

    /// Which way worked: `surfaceless` or `device 0`.
    const std::string& getPlatform() const { return m_platform; }

private:
    bool create(void* display, const std::string& platform, std::string& reasons);

    /// Displays are shared by the whole process and stay initialised: closing one would close it for all users.
    void* m_display = nullptr;
    void* m_context = nullptr;
    std::string m_platform;
};

} // namespace vxrenderer
