#include "renderer/canvas/offscreencanvas.h"

#include "graphics3d/scene/scene.h"
#include "graphics3d/scenegraph/scenegraphroot.h"
#include "renderer/gl/target.h"
#include "renderer/scene/scenerenderer.h"

#include <cmath>
#include <stdexcept>
#include <utility>

namespace vxrenderer {
namespace {

void requireNoFault()
{
    const GLenum fault = glGetError();
    if (fault == GL_OUT_OF_MEMORY) {
        throw std::runtime_error("The driver has not enough memory for the picture.");
    }
    if (fault != GL_NO_ERROR) {
        throw std::runtime_error("The driver reports fault " + std::to_string(fault) + " while drawing.");
    }
}

} // namespace

OffscreenCanvas::OffscreenCanvas(int width, int height, int samples) : m_samples(samples)
{
    // Into the members at the end only: what fails on the way is undone while the context is still current.
    const EglContext::Current current(m_context);
    auto target = std::make_unique<Target>(width, height, samples);
    auto renderer = std::make_unique<SceneRenderer>();
    m_target = std::move(target);
    m_renderer = std::move(renderer);
}

OffscreenCanvas::~OffscreenCanvas()
{
    try {
        const EglContext::Current current(m_context);
        m_renderer.reset();
        m_target.reset();
    } catch (...) {
        // The context is in use on another thread, against the rules. Without it nothing can be freed in order.
        static_cast<void>(m_renderer.release());
        static_cast<void>(m_target.release());
    }
}

void OffscreenCanvas::resize(int width, int height)
{
    const EglContext::Current current(m_context);
    m_target = std::make_unique<Target>(width, height, m_samples);
    m_isDrawn = false;
}

int OffscreenCanvas::getWidth() const
{
    return m_target->getWidth();
}

int OffscreenCanvas::getHeight() const
{
    return m_target->getHeight();
}

int OffscreenCanvas::getSamples() const
{
    return m_target->getSamples();
}

void OffscreenCanvas::setScene(boost::shared_ptr<const vxgraphics3d::Scene> scene)
{
    m_scene = std::move(scene);
    m_root = m_scene ? m_scene->getRoot() : nullptr;
}

void OffscreenCanvas::setRoot(boost::shared_ptr<const vxgraphics3d::SceneGraphRoot> root)
{
    m_scene.reset();
    m_root = std::move(root);
}

void OffscreenCanvas::setSettings(const PictureSettings& settings)
{
    if (!std::isfinite(settings.direction.azimuth) || !std::isfinite(settings.direction.elevation)) {
        throw std::invalid_argument("The direction of view is not finite.");
    }
    if (settings.fontSize < 1) {
        throw std::invalid_argument("The font size " + std::to_string(settings.fontSize) + " is below 1.");
    }
    const EglContext::Current current(m_context);
    m_renderer->setSettings(settings);
}

const PictureSettings& OffscreenCanvas::getSettings() const
{
    return m_renderer->getSettings();
}

void OffscreenCanvas::draw()
{
    if (m_scene && m_scene->isDisposed()) {
        setScene(nullptr);
    }
    m_isDrawn = false;
    const EglContext::Current current(m_context);
    m_renderer->draw(m_root.get(), *m_target);
    requireNoFault();
    m_isDrawn = true;
}

std::size_t OffscreenCanvas::imageSize() const
{
    return std::size_t(4) * static_cast<std::size_t>(getWidth()) * static_cast<std::size_t>(getHeight());
}

void OffscreenCanvas::readImage(std::uint8_t* pixels, std::size_t numBytes) const
{
    if (numBytes != imageSize()) {
        throw std::invalid_argument("The image takes " + std::to_string(imageSize()) + " bytes, not " +
                                    std::to_string(numBytes) + ".");
    }
    if (!m_isDrawn) {
        throw std::logic_error("There is no image: nothing was drawn since the size was given.");
    }
    const EglContext::Current current(m_context);
    m_target->read(pixels);
    requireNoFault();
}

std::vector<std::uint8_t> OffscreenCanvas::encodePng(const PngSettings& settings) const
{
    std::vector<std::uint8_t> pixels(imageSize());
    readImage(pixels.data(), pixels.size());
    return vxrenderer::encodePng(pixels.data(), getWidth(), getHeight(), settings);
}

const UploadCounts& OffscreenCanvas::getUploadCounts() const
{
    return m_renderer->getUploadCounts();
}

const View& OffscreenCanvas::getView() const
{
    return m_renderer->getView();
}

std::string OffscreenCanvas::getDriver() const
{
    const EglContext::Current current(m_context);
    const auto text = [](GLenum name) {
        const GLubyte* value = glGetString(name);
        return std::string(value == nullptr ? "?" : static_cast<const char*>(static_cast<const void*>(value)));
    };
    return m_context.getPlatform() + ", " + text(GL_RENDERER) + ", OpenGL " + text(GL_VERSION);
}

} // namespace vxrenderer
