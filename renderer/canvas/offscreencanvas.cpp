#include "renderer/canvas/offscreencanvas.h"

#include "graphics3d/cameras/camera2d.h"
#include "graphics3d/cameras/camera3d.h"
#include "graphics3d/canvas/canvas3dsettings.h"
#include "graphics3d/canvas/hardcopysettings.h"
#include "graphics3d/canvas/scenesettings.h"
#include "graphics3d/foundation/errorlog.h"
#include "graphics3d/overlays/overlay.h"
#include "graphics3d/picking/canvaspicksettings.h"
#include "graphics3d/scene/scene.h"
#include "graphics3d/scenegraph/scenegraphroot.h"
#include "graphics3d/settings/canvas3dglobalsettings.h"
#include "graphics3d/settings/contextdata.h"
#include "renderer/canvas/boxfilter.h"
#include "renderer/canvas/glrendererinfo.h"
#include "renderer/canvas/pngencoder.h"
#include "renderer/export/vectorcanvas.h"
#include "renderer/gl/target.h"
#include "renderer/scene/scenefit.h"
#include "renderer/scene/sceneitems.h"
#include "renderer/scene/scenerenderer.h"

#include <boost/make_shared.hpp>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <optional>
#include <stdexcept>
#include <type_traits>
#include <utility>

namespace vxrenderer {
namespace {

using namespace vxgraphics3d;

/// The difference of views that are the same except for rounding, as a part of the picture.
constexpr float c_sameView = 1e-3f;
/// How often a flat view is fitted at most.
constexpr int c_mostFits = 4;

/// Whether a pixel of the camera's area has the same size in the world however large the area is.
template <class Camera>
bool keepsPixels(const Camera& camera)
{
    const auto behaviour = camera.isOverrideResizeBehaviour()
                               ? camera.getOwnResizeBehaviour()
                               : Canvas3dGlobalSettings::getInstance()->getResizeBehaviour();
    return behaviour == Canvas3dGlobalSettings::ResizePixels;
}

/// Lets the copy of a camera show in its larger area what the camera shows, and not more of the scene.
void showTheSame(Camera3d& copy, const Camera3d& camera)
{
    if (keepsPixels(camera)) {
        copy.setViewingScale(camera.getViewingScale() * static_cast<float>(copy.getRenderAreaWidth()) /
                             static_cast<float>(camera.getRenderAreaWidth()));
    }
}

/// Whether a range of the view, from border to border, contains that of another view except for rounding.
bool contains(float min, float max, float otherMin, float otherMax)
{
    const float slack = 1e-4f * (otherMax - otherMin);
    return min <= otherMin + slack && max >= otherMax - slack;
}

/// The same for a flat view, which in addition never shows less: an area of another shape may cut limits off.
void showTheSame(Camera2d& copy, const Camera2d& camera)
{
    const bool showsAll =
        contains(copy.getActualMinX(), copy.getActualMaxX(), camera.getActualMinX(), camera.getActualMaxX()) &&
        contains(copy.getActualMinY(), copy.getActualMaxY(), camera.getActualMinY(), camera.getActualMaxY());
    if ((keepsPixels(camera) || !showsAll) && camera.getCameraMode() != Camera2d::ModePolar) {
        // What is displayed becomes the base, without a drag that is still going on.
        copy.discardAdditionalTransformation();
        copy.setViewLimits(camera.getActualMinX(), camera.getActualMaxX(), camera.getActualMinY(),
                           camera.getActualMaxY());
    }
}

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

std::size_t bytesOf(const Target& target)
{
    return std::size_t(4) * static_cast<std::size_t>(target.getWidth()) * static_cast<std::size_t>(target.getHeight());
}

/// The target of an export.
/// @param factor pixels in each direction that are drawn for one of the export
/// @throws std::invalid_argument for a size that the driver does not allow
Target hardcopyTarget(int width, int height, int factor, int samples)
{
    const auto enlarged = [factor](int size) {
        constexpr std::int64_t c_largest = std::numeric_limits<int>::max();
        return static_cast<int>(std::min(std::int64_t(size) * factor, c_largest));
    };
    try {
        return Target(width < 1 ? width : enlarged(width), height < 1 ? height : enlarged(height), samples);
    } catch (const std::invalid_argument& refusal) {
        if (factor == 1 || width < 1 || height < 1) {
            throw;
        }
        throw std::invalid_argument("The export has " + std::to_string(width) + " by " + std::to_string(height) +
                                    " pixels, and for each of them " + std::to_string(factor) + " by " +
                                    std::to_string(factor) + " are drawn. " + refusal.what());
    }
}

} // namespace

OffscreenCanvas::OffscreenCanvas(int width, int height, int samples)
    : m_samples(samples),
      m_settings(boost::make_shared<Canvas3dSettings>()),
      m_pickSettings(boost::make_shared<CanvasPickSettings>()),
      m_contextData(boost::make_shared<ContextData>())
{
    for (const auto mode : {Canvas3dSettings::RenderMode3d, Canvas3dSettings::RenderMode2d}) {
        m_settings->background(mode).setBackgroundColor(Color::fromRgb(0xffffff));
    }
    const EglContext::Current current(m_context);
    GlRendererInfo::announce(m_context.getPlatform());
    // Into the member at the end only: if the target is refused, the renderer goes while the context is still current.
    auto renderer = std::make_unique<SceneRenderer>();
    makeTarget(width, height);
    m_renderer = std::move(renderer);
}

OffscreenCanvas::~OffscreenCanvas()
{
    try {
        const EglContext::Current current(m_context);
        m_renderer.reset();
        m_target.reset();
        m_draftTarget.reset();
    } catch (...) {
        // The context is in use on another thread, against the rules. Without it nothing can be freed in order.
        static_cast<void>(m_renderer.release());
        static_cast<void>(m_target.release());
        static_cast<void>(m_draftTarget.release());
    }
}

int OffscreenCanvas::wantedSamples() const
{
    return m_samples > 0 ? m_samples : std::max(1, Canvas3dGlobalSettings::getInstance()->getMultisampleSetting());
}

void OffscreenCanvas::makeTarget(int width, int height)
{
    const int samples = wantedSamples();
    m_target = std::make_unique<Target>(width, height, samples);
    m_targetSamples = samples;
    m_draftTarget.reset();
    m_drawnTarget = nullptr;
    *m_contextData = contextDataOf(*m_target);
}

const Target& OffscreenCanvas::draftTarget()
{
    if (m_target->getSamples() == 1) {
        return *m_target;
    }
    if (!m_draftTarget) {
        m_draftTarget = std::make_unique<Target>(getWidth(), getHeight(), 1);
    }
    return *m_draftTarget;
}

void OffscreenCanvas::resize(int width, int height)
{
    const EglContext::Current current(m_context);
    makeTarget(width, height);
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

boost::shared_ptr<SceneSettings> OffscreenCanvas::getSceneSettings()
{
    return m_sceneView ? m_sceneView->shareSettings() : nullptr;
}

void OffscreenCanvas::setScene(const boost::shared_ptr<Scene>& scene)
{
    if (m_sceneView) {
        if (m_sceneView->getScene() == scene) {
            return;
        }
        m_sceneView->disconnect();
    }
    m_sceneView = scene ? std::make_unique<SceneView>(scene) : nullptr;
}

void OffscreenCanvas::dropDisposedScene()
{
    if (m_sceneView && m_sceneView->getScene()->isDisposed()) {
        setScene(nullptr);
    }
}

Appearance OffscreenCanvas::appearance() const
{
    Appearance look = Appearance::onScreen(*m_settings, m_sceneView ? &m_sceneView->getSettings() : nullptr);
    completeAppearance(look);
    return look;
}

void OffscreenCanvas::completeAppearance(Appearance& look) const
{
    look.markingMode = m_markingMode;
    look.style = m_style;
}

ICameraTransforms& OffscreenCanvas::camera()
{
    const Canvas3dSettings::RenderMode mode = m_settings->getRenderMode();
    if (mode != m_lastRenderMode && (mode < 0 || mode >= Canvas3dSettings::c_numRenderModes)) {
        logError("There is no render mode %d: the 3D view is drawn.", static_cast<int>(mode));
    }
    m_lastRenderMode = mode;
    if (renderModeOf(*m_settings) == Canvas3dSettings::RenderMode2d) {
        return *m_settings->camera2d();
    }
    return *m_settings->camera3d();
}

Frame OffscreenCanvas::frameOf(ICameraTransforms& camera, const Appearance& appearance) const
{
    return {*m_settings,
            m_sceneView ? m_sceneView->getScene().get() : nullptr,
            m_sceneView ? &m_sceneView->getSettings() : nullptr,
            camera,
            appearance,
            m_overlay.get(),
            m_screenOverlay.get(),
            framedBox()};
}

const BoundingBox* OffscreenCanvas::framedBox() const
{
    const boost::shared_ptr<SceneGraphNode> node = m_framedNode.lock();
    return node ? &node->getBoundingBox() : nullptr;
}

void OffscreenCanvas::setMarkingMode(MarkingSetups::MarkingMode mode)
{
    if (mode < 0 || mode >= MarkingSetups::c_numModes) {
        throw std::out_of_range("There is no marking mode " + std::to_string(mode) + ".");
    }
    m_markingMode = mode;
}

void OffscreenCanvas::setStyle(const RenderStyle& style)
{
    style.validate();
    m_style = style;
}

void OffscreenCanvas::zoomExtents()
{
    dropDisposedScene();
    if (!m_sceneView || collectItems(*m_sceneView->getScene()->getRoot()).empty()) {
        return;
    }
    const Appearance look = appearance();
    const Frame frame = frameOf(camera(), look);
    PixelArea fitted;
    for (int round = 0; round < c_mostFits; ++round) {
        const FrameLayout layout = m_renderer->layOut(frame, getWidth(), getHeight());
        const PixelArea& area = layout.area.whole;
        if (area.isEmpty() || !layout.box.isValid() || area == fitted) {
            return;
        }
        if (!frame.isFlat()) {
            fitCamera(*m_settings->camera3d(), frame, layout);
            return;
        }
        // The area of a flat view depends on the numbers of its axes, and these on the limits.
        fitCamera(*m_settings->camera2d(), frame, layout);
        fitted = area;
    }
}

bool OffscreenCanvas::isFitted(const Camera3d& camera) const
{
    Camera3d fitted = camera;
    const Appearance look = appearance();
    const Frame frame = frameOf(fitted, look);
    const FrameLayout layout = m_renderer->layOut(frame, getWidth(), getHeight());
    if (layout.area.whole.isEmpty() || !layout.box.isValid()) {
        return false;
    }
    fitCamera(fitted, frame, layout);
    const auto isSame = [](float a, float b, float unit) { return std::abs(a - b) <= c_sameView * std::abs(unit); };
    const Matrixf& projection = fitted.getProjectionTransformRH();
    const Matrixf& shown = camera.getProjectionTransformRH();
    const Vector3f moved = fitted.getActualPosition() - camera.getActualPosition();
    const float distance = (fitted.getActualPosition() - layout.box.getCenter()).length();
    return isSame(projection.get(1, 1), shown.get(1, 1), shown.get(1, 1)) &&
           isSame(fitted.getRelativeViewOffsetX(), camera.getRelativeViewOffsetX(), 1.0f) &&
           isSame(fitted.getRelativeViewOffsetY(), camera.getRelativeViewOffsetY(), 1.0f) &&
           moved.length() <= c_sameView * distance;
}

void OffscreenCanvas::draw(Quality quality)
{
    dropDisposedScene();
    const EglContext::Current current(m_context);
    if (m_targetSamples != wantedSamples()) {
        makeTarget(getWidth(), getHeight());
    }
    m_drawnTarget = nullptr;
    const Target& target = quality == Quality::draft ? draftTarget() : *m_target;
    const Appearance look = appearance();
    Frame frame = frameOf(camera(), look);
    frame.isDraft = quality == Quality::draft;
    m_renderer->draw(frame, m_renderer->layOut(frame, getWidth(), getHeight()), target);
    m_view = m_renderer->getView();
    if (m_sceneView) {
        m_sceneView->getSettings().resetChangedFlags();
    }
    requireNoFault();
    m_drawnTarget = &target;
}

std::size_t OffscreenCanvas::imageSize() const
{
    return bytesOf(*m_target);
}

void OffscreenCanvas::requireImage() const
{
    if (m_drawnTarget == nullptr) {
        throw std::logic_error("There is no image: nothing was drawn since the size was given.");
    }
}

void OffscreenCanvas::readImage(std::uint8_t* pixels, std::size_t numBytes) const
{
    if (numBytes != imageSize()) {
        throw std::invalid_argument("The image takes " + std::to_string(imageSize()) + " bytes, not " +
                                    std::to_string(numBytes) + ".");
    }
    requireImage();
    const EglContext::Current current(m_context);
    m_drawnTarget->read(pixels);
    requireNoFault();
}

std::vector<std::uint8_t> OffscreenCanvas::encodePng() const
{
    std::vector<std::uint8_t> pixels(imageSize());
    readImage(pixels.data(), pixels.size());
    PngSettings settings;
    settings.dpi =
        std::clamp(Canvas3dGlobalSettings::getInstance()->getOnScreenResolution(), 1, PngSettings::c_largestDpi);
    return vxrenderer::encodePng(pixels.data(), getWidth(), getHeight(), settings);
}

void OffscreenCanvas::keepVisible(PickedObjectCollection& picked)
{
    dropDisposedScene();
    requireImage();
    const EglContext::Current current(m_context);
    const Appearance look = appearance();
    m_renderer->keepShown(picked, frameOf(camera(), look), m_view, *m_drawnTarget);
    requireNoFault();
}

std::vector<std::uint8_t> OffscreenCanvas::encodeHardcopy(const HardcopySettings& settings, int width, int height,
                                                          HardcopyFormat format)
{
    dropDisposedScene();
    const EglContext::Current current(m_context);
    const int factor = m_style.supersampling;
    const Target target = hardcopyTarget(width, height, factor, std::max(1, settings.getMultisampleSetting()));
    Appearance look =
        Appearance::ofHardcopy(settings, *m_settings, m_sceneView ? &m_sceneView->getSettings() : nullptr);
    completeAppearance(look);
    look.enlarge(factor);
    std::optional<VectorCanvas> vectors;
    if (format != HardcopyFormat::png) {
        vectors.emplace(format == HardcopyFormat::pdf ? VectorFormat::pdf : VectorFormat::svg, target.getWidth(),
                        target.getHeight(), look.pixelsPerInch, settings.getFileTitle(), settings.getFileCreator());
    }
    // A camera that takes another size cannot always return to its base, so a copy does.
    const auto drawWithCopy = [&](const auto& camera) {
        auto copy = camera;
        Frame frame = frameOf(copy, look);
        frame.screenOverlay = nullptr;
        FrameLayout layout = m_renderer->layOut(frame, target.getWidth(), target.getHeight());
        showTheSame(copy, camera);
        if constexpr (std::is_same_v<decltype(copy), Camera3d>) {
            if (!layout.area.whole.isEmpty() && layout.box.isValid() && m_sceneView && isFitted(camera)) {
                fitCamera(copy, frame, layout);
            }
        }
        SceneRenderer::placeScene(frame, layout);
        if (vectors) {
            m_renderer->drawVectors(frame, layout, target, *vectors);
        } else {
            m_renderer->draw(frame, layout, target);
        }
    };
    if (renderModeOf(*m_settings) == Canvas3dSettings::RenderMode2d) {
        drawWithCopy(*m_settings->getCamera2d());
    } else {
        drawWithCopy(*m_settings->getCamera3d());
    }
    requireNoFault();
    if (vectors) {
        return vectors->finish();
    }
    std::vector<std::uint8_t> pixels(bytesOf(target));
    target.read(pixels.data());
    requireNoFault();
    if (factor > 1) {
        pixels = reduced(pixels, width, factor);
    }
    return vxrenderer::encodePng(
        pixels.data(), width, height,
        {.dpi = settings.getDpi(), .title = settings.getFileTitle(), .creator = settings.getFileCreator()});
}

const UploadCounts& OffscreenCanvas::getUploadCounts() const
{
    return m_renderer->getUploadCounts();
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
