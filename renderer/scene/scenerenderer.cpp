#include "renderer/scene/scenerenderer.h"

#include "base/ustring.h"
#include "graphics3d/cameras/camera2d.h"
#include "graphics3d/canvas/axissetup.h"
#include "graphics3d/canvas/canvas3dsettings.h"
#include "graphics3d/canvas/gridboxsettings.h"
#include "graphics3d/canvas/scenesettings.h"
#include "graphics3d/foundation/boundingbox.h"
#include "graphics3d/parts/markingsetups.h"
#include "graphics3d/picking/pickedobjectcollection.h"
#include "graphics3d/scene/scene.h"
#include "graphics3d/scenegraph/scenegraphroot.h"
#include "graphics3d/settings/canvas3dglobalsettings.h"
#include "graphics3d/viewing/icameratransforms.h"
#include "renderer/axes/dataframe.h"
#include "renderer/decoration/lightmarkers.h"
#include "renderer/decoration/triadpainter.h"
#include "renderer/frame/contrast.h"
#include "renderer/frame/lighting.h"
#include "renderer/frame/seenextent.h"
#include "renderer/gl/target.h"
#include "renderer/objects/visibleparts.h"
#include "renderer/overlays/shapepainter.h"
#include "renderer/paint/cutframe.h"
#include "renderer/paint/paintcontext.h"
#include "renderer/scene/flatextent.h"
#include "renderer/scene/scenefit.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <functional>
#include <numbers>
#include <optional>
#include <utility>

namespace vxrenderer {
namespace {

using namespace vxgraphics3d;

/// Widths of the lines of light markers, in pixels of the screen.
constexpr float c_markerWidth = 1.5f;
constexpr float c_selectedMarkerWidth = 3.5f;
constexpr int c_markerRimAlpha = 110;
/// Number of font sets kept before those of former sizes are given up.
constexpr std::size_t c_manyFontSets = 24;
/// Within which surfaces hide ambient light from each other, for each unit of the diagonal of the scene.
constexpr float c_occlusionRadius = 0.06f;

/// Whether what is drawn covers what is there by its alpha, or replaces it.
void setBlending(bool on)
{
    if (on) {
        glEnable(GL_BLEND);
        glBlendFuncSeparate(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA, GL_ONE, GL_ONE_MINUS_SRC_ALPHA);
    } else {
        glDisable(GL_BLEND);
    }
}

ObjectStyle styleOf(const Appearance& appearance)
{
    const MarkingSetups& markings = Canvas3dGlobalSettings::getInstance()->getMarkingSetups();
    return {markings.getMarkingModeSetup(appearance.markingMode), appearance.showLabels, appearance.showLineDirections,
            appearance.showPhysicsMarkers};
}

Lighting lightOf(const Frame& frame)
{
    return Lighting::of(*frame.scene->getSceneLight(), *frame.sceneSettings->getLight(), frame.camera);
}

/// The diagonal of a box as the eye sees it.
float diagonalOf(const BoundingBox& box, const Matrixf& toEye)
{
    const Vector3f size = box.getMax() - box.getMin();
    const auto along = [&](int axis) { return Vector3f(toEye.get(1, axis), toEye.get(2, axis), toEye.get(3, axis)); };
    return std::sqrt(size.x * size.x * along(1).lengthSquared() + size.y * size.y * along(2).lengthSquared() +
                     size.z * size.z * along(3).lengthSquared());
}

bool isFinite(const BoundingBox& box)
{
    const auto isFiniteAt = [](const Vector3f& point) { return std::isfinite(point.x + point.y + point.z); };
    return isFiniteAt(box.getCenter()) && isFiniteAt(box.getHalfSize());
}

/// Whether axes may enclose a part of the area alone. What an overlay shows has no box.
bool hasFrameOfData(const Frame& frame)
{
    return frame.isFlat() && frame.appearance.showAxes && frame.overlay == nullptr &&
           frame.camera2d().getCameraMode() == Camera2d::ModeOrdinary && frame.camera2d().isPreserveAspectRatio() &&
           !frame.canvas.getAxisSetupPtr()->isPolar();
}

} // namespace

SceneRenderer::SceneRenderer(PlotPainters plotPainters, ObjectPainters objectPainters)
    : m_plotPainters(std::move(plotPainters)), m_objectPainters(std::move(objectPainters))
{}

void SceneRenderer::updateTitle(const Scene& scene)
{
    const SceneGraphRoot& root = *scene.getRoot();
    // Another group of plots may have the same change number for its titles.
    const bool isSameTree =
        m_titleRoot.lock().get() == &root && !root.isTreeStructureChanged(m_lastTreeStructure.changeId);
    if (isSameTree && !root.isTitleChanged(m_lastTitle)) {
        return;
    }
    vxbase::UString title;
    root.getTitle(title);
    m_title = parseTitle(title);
    m_titleRoot = root.self();
    m_lastTreeStructure.take(root.getTreeStructureChangeId());
    root.resetTitleChanged(m_lastTitle);
}

FrameLayout SceneRenderer::layOut(const Frame& frame, int width, int height)
{
    if (frame.scene == nullptr) {
        return layOutDecoration(frame, {}, {}, m_fontSets, width, height);
    }
    updateTitle(*frame.scene);
    FrameLayout layout =
        layOutDecoration(frame, collectItems(*frame.scene->getRoot()), m_title, m_fontSets, width, height);
    placeScene(frame, layout);
    return layout;
}

void SceneRenderer::placeScene(const Frame& frame, FrameLayout& layout)
{
    if (frame.scene == nullptr) {
        return;
    }
    layout.box =
        frame.isFlat() ? boxOf(layout.items, frame.logAxes()) : boxInSpace(*frame.scene->getRoot(), layout.items);
    if (!isFinite(layout.box)) {
        PointBox finite;
        visitPoints(layout.items, frame, [&](const PointRun& points) { finite.add(points); });
        layout.box = finite.get();
    }
    layout.heightUnits = heightUnitsOf(layout.items);
    layout.area = divideSpace(frame, layout.space, layout.wideSpace, layout.width, layout.height, layout.axisFonts);
    const PixelArea& area = layout.area.whole;
    if (!area.isEmpty()) {
        frame.camera.setRenderArea(layout.width, layout.height, area.x, layout.height - area.y - area.height,
                                   area.width, area.height);
        frame.camera.setBoundingBox(layout.box);
        if (hasFrameOfData(frame)) {
            const BoundingBox extent = FlatExtent(frame, layout, frame.camera2d()).withLabels(frame.camera2d());
            layout.area.frame = frameOfData(frame.camera2d(), area, extent, marginOfFit());
        }
        const PixelArea& enclosed = layout.area.frame;
        const float middle = static_cast<float>(enclosed.x) + 0.5f * static_cast<float>(enclosed.width);
        const float rightmost = static_cast<float>(layout.width - layout.space.x) - layout.title.width;
        layout.titleLeft =
            std::max(std::min(middle - 0.5f * layout.title.width, rightmost), static_cast<float>(layout.space.x));
        placeLineLegend(frame, layout);
    }
}

void SceneRenderer::drawScene(const Frame& frame, const FrameLayout& layout, const AxesPainter* axes,
                              const Target& target, std::vector<PlacedLabel>* free)
{
    PictureCanvas canvas = pictureCanvas(layout);
    canvas.enterArea(m_view.area);
    if (axes != nullptr && free == nullptr) {
        setBlending(true);
        axes->drawBehind(canvas);
        setBlending(false);
    }
    std::vector<SceneIcon> icons;
    std::vector<SceneLabel> labels;
    std::function<void()> trace;
    if (axes != nullptr && hasPlotsBesidesGraphs(layout.items)) {
        trace = [&] { drawTrace(*axes, layout); };
    }
    drawData(frame, layout, target, trace, icons, labels);
    if (!frame.isFlat() || axes == nullptr) {
        drawCutFrame(m_view, layout.width, layout.height, frame.appearance.scale,
                     frame.canvas.getGridBoxSettingsPtr()->getGridColor(), m_lines);
    }
    canvas.leaveArea();
    drawIcons(std::move(icons), m_view, layout.width, layout.height, frame.appearance.scale, m_images, m_overlay);
    drawLabels(labels, m_view, layout.width, layout.height, layout.labelFonts, m_overlay, free);
}

void SceneRenderer::beginMeshes(const Frame& frame, const View& view, bool hasOcclusion)
{
    const Lighting light = lightOf(frame);
    if (frame.appearance.style.isStudio) {
        m_meshes.beginStudio(view, light, hasOcclusion ? m_occlusion.get() : nullptr);
    } else {
        m_meshes.begin(view, light);
    }
}

bool SceneRenderer::findOcclusion(const Frame& frame, const FrameLayout& layout,
                                  const std::vector<const SceneItem*>& items, const Target& target,
                                  const PaintContext& context)
{
    if (!frame.appearance.style.isStudio || frame.isDraft || m_view.isFlat || !lightOf(frame).isUsed || items.empty() ||
        frame.appearance.opacity < 1.0f || !layout.box.isValid()) {
        return false;
    }
    GLint viewport[4];
    glGetIntegerv(GL_VIEWPORT, viewport);
    if (!m_occlusion) {
        m_occlusion = std::make_unique<AmbientOcclusion>();
    }
    const View view = m_occlusion->beginShapes(m_view);
    m_meshes.beginShapes(view);
    const PaintContext shapes = context.in(view, DrawBodies | DrawFaces | DrawMarks, Pass::opaque);
    for (const SceneItem* item : items) {
        drawItem(*item, shapes);
    }
    m_occlusion->finish(c_occlusionRadius * diagonalOf(layout.box, m_view.sceneToEye));
    target.bindScene();
    glViewport(viewport[0], viewport[1], viewport[2], viewport[3]);
    glEnable(GL_SCISSOR_TEST);
    return true;
}

void SceneRenderer::drawTrace(const AxesPainter& axes, const FrameLayout& layout)
{
    m_sceneCopy.take(layout.width, layout.height);
    glDepthMask(GL_FALSE);
    glDepthFunc(GL_GREATER);
    axes.drawOver(m_lines);
    glDepthFunc(GL_LEQUAL);
    glDepthMask(GL_TRUE);
}

void SceneRenderer::drawData(const Frame& frame, const FrameLayout& layout, const Target& target,
                             const std::function<void()>& trace, std::vector<SceneIcon>& icons,
                             std::vector<SceneLabel>& labels)
{
    // A picture that failed may have left it elsewhere.
    setOutput(FragmentOutput::picture, target.getSamples());
    glEnable(GL_DEPTH_TEST);
    glDepthFunc(GL_LEQUAL);
    std::vector<const SceneItem*> shown;
    for (const SceneItem& item : layout.items) {
        const unsigned bit = std::holds_alternative<PlotItem>(item) ? RenderPlots : RenderObjects;
        if ((frame.canvas.getRenderMask() & bit) != 0 && frame.appearance.opacity > 0.0f) {
            shown.push_back(&item);
        }
    }
    const RenderStyle& style = frame.appearance.style;
    m_uploads.setCreaseAngle(style.creaseAngle * std::numbers::pi_v<float> / 180.0f);
    const PaintContext context = {m_view,
                                  frame.appearance.opacity,
                                  frame.appearance.scale,
                                  style.showFeatureEdges && !m_view.isFlat,
                                  frame.logAxes(),
                                  styleOf(frame.appearance),
                                  m_uploads,
                                  m_colorTextures,
                                  m_images,
                                  m_meshes,
                                  m_lines,
                                  m_symbols,
                                  icons,
                                  labels};
    m_hasOcclusion = findOcclusion(frame, layout, shown, target, context);
    beginMeshes(frame, m_view, m_hasOcclusion);
    if (m_view.isFlat) {
        drawFlat(std::move(shown), trace, context);
    } else {
        drawInSpace(shown, frame, target, context);
    }
    if (frame.appearance.showLightMarkers && !m_view.isFlat) {
        drawLightMarkers(frame);
    }
    glDisable(GL_DEPTH_TEST);
}

void SceneRenderer::drawItem(const SceneItem& item, const PaintContext& context) const
{
    const auto drawBy = [&](const auto& painters, auto type, const auto& it) {
        const auto painter =
            std::ranges::find_if(painters, [&](const auto& candidate) { return candidate->draws(type); });
        if (painter != painters.end()) {
            (*painter)->draw(it, context);
        }
    };
    if (const auto* plot = std::get_if<PlotItem>(&item)) {
        drawBy(m_plotPainters, plot->plot->getType(), *plot);
    } else {
        const ObjectItem& object = std::get<ObjectItem>(item);
        drawBy(m_objectPainters, object->getObjectType(), object);
    }
}

bool SceneRenderer::isTranslucent(const SceneItem& item) const
{
    const auto* object = std::get_if<ObjectItem>(&item);
    return object != nullptr && std::ranges::any_of(m_objectPainters, [&](const auto& painter) {
               return painter->isTranslucent() && painter->draws((*object)->getObjectType());
           });
}

void SceneRenderer::drawFlat(std::vector<const SceneItem*> items, const std::function<void()>& trace,
                             const PaintContext& context) const
{
    const auto isOpaque = [&](const SceneItem* item) { return context.opacity >= 1.0f && !isTranslucent(*item); };
    const auto firstTranslucent = std::stable_partition(items.begin(), items.end(), isOpaque);
    const auto drawOpaque = [&](unsigned kinds, auto&& isWanted) {
        const PaintContext some = context.in(context.view, kinds, Pass::all);
        std::for_each(items.begin(), firstTranslucent, [&](const SceneItem* item) {
            if (isWanted(*item)) {
                drawItem(*item, some);
            }
        });
    };
    const auto isPlot = [](const SceneItem& item) { return std::holds_alternative<PlotItem>(item); };
    drawOpaque(DrawBodies | DrawFaces, isPlot);
    if (trace) {
        trace();
    }
    drawOpaque(DrawBodies | DrawFaces, std::not_fn(isPlot));
    for (const DrawKind kind : {DrawMarks, DrawLines}) {
        drawOpaque(kind, [](const SceneItem&) { return true; });
    }
    if (firstTranslucent != items.end()) {
        const auto draw = [&](const SceneItem* item) { drawItem(*item, context); };
        setBlending(true);
        glDepthMask(GL_FALSE);
        std::for_each(firstTranslucent, items.end(), draw);
        glDepthMask(GL_TRUE);
        setBlending(false);
    }
}

void SceneRenderer::drawInSpace(const std::vector<const SceneItem*>& items, const Frame& frame, const Target& target,
                                const PaintContext& context)
{
    std::vector<const SceneItem*> translucent;
    bool areLinesLayers = false;
    for (const DrawKind kind : {DrawBodies, DrawFaces, DrawMarks, DrawLines}) {
        PaintContext opaque = context.in(m_view, kind, Pass::opaque);
        areLinesLayers = kind == DrawLines && !translucent.empty();
        opaque.areLinesLayers = areLinesLayers;
        for (const SceneItem* item : items) {
            bool isSomethingLeft = false;
            opaque.isSomethingLeft = &isSomethingLeft;
            drawItem(*item, opaque);
            if (isSomethingLeft && std::ranges::find(translucent, item) == translucent.end()) {
                translucent.push_back(item);
            }
        }
        if (kind == DrawBodies && context.showFeatureEdges && !items.empty()) {
            m_silhouettes.draw(target, m_view, PaintContext::c_edgeWidth * context.scale, PaintContext::c_edgeColor);
        }
    }
    if (translucent.empty()) {
        if (m_transparency) {
            m_transparency->release();
        }
        return;
    }
    if (!m_transparency) {
        m_transparency = std::make_unique<Transparency>();
    }
    setOutput(FragmentOutput::layers, target.getSamples());
    const int numLayers = frame.isDraft ? 0 : Transparency::c_fullLayers;
    m_transparency->draw(target, m_view, numLayers, [&](const View& view) {
        beginMeshes(frame, view, false);
        PaintContext layers = context.in(view, DrawAll, Pass::translucent);
        layers.areLinesLayers = areLinesLayers;
        for (const SceneItem* item : translucent) {
            drawItem(*item, layers);
        }
    });
    setOutput(FragmentOutput::picture, target.getSamples());
}

void SceneRenderer::setOutput(FragmentOutput output, int numSamples)
{
    m_meshes.setOutput(output);
    m_lines.setOutput(output, numSamples);
    m_symbols.setOutput(output);
}

void SceneRenderer::drawLightMarkers(const Frame& frame)
{
    const BoundingBox& box = frame.scene->getBoundingBox();
    for (const LightMarker& marker : lightMarkers(*frame.scene->getSceneLight(), box, frame.camera)) {
        const float width = (marker.isSelected ? c_selectedMarkerWidth : c_markerWidth) * frame.appearance.scale;
        m_solids.draw(marker.solids, m_view.projection);
        // A rim lets them be seen on data of any colour.
        Color rim = contrastingWith(marker.color);
        rim.alpha = c_markerRimAlpha;
        const float rimWidth = width + 2.0f * frame.appearance.scale;
        const auto draw = [&](float lineWidth, float above, const Color& color) {
            m_lines.draw(
                marker.lines,
                {m_view.projection, m_view.area.width, m_view.area.height, lineWidth, m_view.aboveFaces(above)}, color);
        };
        draw(rimWidth, rimWidth, rim);
        draw(width, 1.2f * rimWidth, marker.color);
    }
}

void SceneRenderer::drawOverlays(const Frame& frame, const FrameLayout& layout, DecorationCanvas& canvas,
                                 OverlayTexts texts)
{
    if (frame.overlay != nullptr && !m_view.area.isEmpty()) {
        drawOverlay(*frame.overlay, frame.framedBox != nullptr ? *frame.framedBox : layout.box, m_view, frame, layout,
                    canvas, texts);
    }
    if (frame.screenOverlay != nullptr) {
        View pixels;
        pixels.area = {0, 0, layout.width, layout.height};
        pixels.projection = pixelsToClip(layout.width, layout.height);
        pixels.isFlat = true;
        drawOverlay(*frame.screenOverlay, {}, pixels, frame, layout, canvas, texts);
    }
}

void SceneRenderer::drawOverlay(const Overlay& overlay, const BoundingBox& framedBox, const View& view,
                                const Frame& frame, const FrameLayout& layout, DecorationCanvas& canvas,
                                OverlayTexts texts)
{
    canvas.enterArea(view.area);
    setBlending(true);
    std::vector<SceneLabel> numbers;
    drawShapes(overlay, {view, framedBox, frame.appearance, canvas, numbers});
    setBlending(false);
    canvas.leaveArea();
    std::vector<PlacedLabel> placed;
    drawLabels(numbers, view, layout.width, layout.height, layout.labelFonts, m_overlay,
               texts == OverlayTexts::onCanvas ? &placed : nullptr);
    drawPlaced(placed, layout, canvas);
    setBlending(false);
}

void SceneRenderer::drawPlaced(const std::vector<PlacedLabel>& labels, const FrameLayout& layout,
                               DecorationCanvas& canvas)
{
    for (const PlacedLabel& label : labels) {
        canvas.drawText(label.text, layout.labelFonts, label.left, label.top, label.colors);
    }
}

void SceneRenderer::drawDecoration(const FrameLayout& layout, const Surroundings& around, DecorationCanvas& canvas)
{
    canvas.drawText(layout.title, layout.titleFonts, layout.titleLeft, layout.titleTop,
                    layout.legendStyle.textColors());

    float headHeight = 0.0f;
    for (const auto& legend : layout.legends) {
        headHeight = std::max(headHeight, legend->getHeadHeight());
    }
    float left = layout.legendLeft;
    for (const auto& legend : layout.legends) {
        legend->draw(canvas, layout.legendStyle, left, layout.legendTop, headHeight);
        left += legend->getWidth() + layout.legendGap;
    }
    if (layout.lineLegend && !layout.area.whole.isEmpty()) {
        layout.lineLegend->draw(canvas, layout.legendStyle, layout.lineLegendLeft, layout.lineLegendTop, layout.width,
                                layout.height);
    }
    if (around.axes) {
        around.axes->drawLabels(canvas, layout.axisFonts);
    }
    if (around.triad) {
        around.triad->drawLetters(canvas);
    }
}

void SceneRenderer::dropUnused()
{
    m_uploads.dropLost();
    m_colorTextures.dropLost();
    m_images.dropLost();
    if (m_fontSets.getSize() > c_manyFontSets) {
        m_overlay.forgetFonts();
        m_fontSets.forget();
    }
}

SceneRenderer::Surroundings SceneRenderer::layOutSurroundings(const Frame& frame, const FrameLayout& layout)
{
    Surroundings around;
    m_view = View();
    if (!layout.area.whole.isEmpty()) {
        m_view = View::of(frame.camera, layout.area.whole, frame.isFlat());
        if (frame.appearance.showAxes) {
            around.axes.emplace(frame, BoxedScene{layout.box, layout.heightUnits, layout.area.frame}, m_view,
                                layout.width, layout.height, layout.axisFonts);
        }
        if (frame.appearance.showAxisOrientation && !frame.isFlat()) {
            around.triad.emplace(frame, m_view, layout.height, layout.orientationFonts);
        }
    }
    return around;
}

PictureCanvas SceneRenderer::pictureCanvas(const FrameLayout& layout)
{
    return {{m_overlay, m_lines, m_symbols, m_fills, m_solids, m_colorTextures}, layout.width, layout.height};
}

void SceneRenderer::draw(const Frame& frame, const FrameLayout& layout, const Target& target)
{
    target.beginScene();
    m_background.draw(frame.appearance.backdrop, layout.width, layout.height, frame.appearance.scale);
    const Surroundings around = layOutSurroundings(frame, layout);
    PictureCanvas canvas = pictureCanvas(layout);
    if (!layout.area.whole.isEmpty()) {
        drawScene(frame, layout, around.axes ? &*around.axes : nullptr, target, nullptr);
    }
    setBlending(true);
    if (around.axes) {
        around.axes->drawAround(canvas);
    }
    if (around.triad) {
        around.triad->drawAxes(canvas);
    }
    setBlending(false);
    drawOverlays(frame, layout, canvas, OverlayTexts::inTarget);
    target.beginOverlay();
    m_overlay.begin(layout.width, layout.height);
    drawDecoration(layout, around, canvas);
    dropUnused();
}

void SceneRenderer::keepShown(PickedObjectCollection& picked, const Frame& frame, const View& view,
                              const Target& target)
{
    std::vector<PickedObject> results;
    for (int i = 0; i < picked.getNumberOfPickedObjects(); ++i) {
        results.push_back(picked.getPickedObject(i));
    }
    const bool areObjectsShown = frame.scene != nullptr && !view.area.isEmpty() && frame.appearance.opacity > 0.0f &&
                                 (frame.canvas.getRenderMask() & RenderObjects) != 0;
    std::vector<bool> shown(results.size(), areObjectsShown);
    if (areObjectsShown) {
        std::vector<ObjectItem> objects;
        for (const SceneItem& item : collectItems(*frame.scene->getRoot())) {
            if (const auto* object = std::get_if<ObjectItem>(&item)) {
                objects.push_back(*object);
            }
        }
        const PixelArea& area = view.area;
        target.bindScene();
        glViewport(area.x, target.getHeight() - area.y - area.height, area.width, area.height);
        // With the light of the picture, since that decides about the shaders, and so about the last bits of depths.
        beginMeshes(frame, view, m_hasOcclusion);
        std::vector<SceneIcon> icons;
        std::vector<SceneLabel> labels;
        shown = findShown(results, objects,
                          {view, 1.0f, frame.appearance.scale, false, frame.logAxes(), styleOf(frame.appearance),
                           m_uploads, m_colorTextures, m_images, m_meshes, m_lines, m_symbols, icons, labels});
    }
    picked.reset();
    for (std::size_t i = 0; i < results.size(); ++i) {
        if (shown[i]) {
            picked.add(results[i]);
        }
    }
}

} // namespace vxrenderer
