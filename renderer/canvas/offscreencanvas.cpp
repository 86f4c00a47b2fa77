#include "renderer/canvas/offscreencanvas.h"

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
    const EglContext::Current current(m_context);
    m_target = std::make_unique<Target>(width, height, samples);
    m_renderer = std::make_unique<SceneRenderer>();
}

OffscreenCanvas::~OffscreenCanvas()
{
    const EglContext::Current current(m_context);
    m_renderer.reset();
    m_target.reset();
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

void OffscreenCanvas::setRoot(boost::shared_ptr<const vxgraphics3d::SceneGraphRoot> root)
{
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
    const EglContext::Current current(m_context);
    m_renderer->draw(m_root.get(), *m_target);
    requireNoFault();
    m_isDrawn = true;
}

void OffscreenCanvas::readImage(std::uint8_t* pixels, std::size_t numBytes) const
{
    const std::size_t needed =
        std::size_t(4) * static_cast<std::size_t>(getWidth()) * static_cast<std::size_t>(getHeight());
    if (numBytes != needed) {
        throw std::invalid_argument("The image takes " + std::to_string(needed) + " bytes, not " +
                                    std::to_string(numBytes) + ".");
    }
    if (!m_isDrawn) {
        throw std::logic_error("There is no image: nothing was drawn since the size was given.");
    }
    const EglContext::Current current(m_context);
    m_target->read(pixels);
    requireNoFault();
}

std::vector<std::uint8_t> OffscreenCanvas::image() const
{
    std::vector<std::uint8_t> pixels(std::size_t(4) * static_cast<std::size_t>(getWidth()) *
                                     static_cast<std::size_t>(getHeight()));
    readImage(pixels.data(), pixels.size());
    return pixels;
}

void OffscreenCanvas::writePng(const std::string& path, const PngSettings& settings) const
{
    vxrenderer::writePng(path, image().data(), getWidth(), getHeight(), settings);
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
