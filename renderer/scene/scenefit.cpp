#include "renderer/scene/scenefit.h"

#include "graphics3d/cameras/camera2d.h"
#include "graphics3d/cameras/camera3d.h"
#include "graphics3d/scene/scene.h"
#include "graphics3d/settings/canvas3dglobalsettings.h"
#include "renderer/axes/gridbox.h"
#include "renderer/axes/labelplacer.h"
#include "renderer/decoration/axespainter.h"
#include "renderer/decoration/lightmarkers.h"
#include "renderer/frame/frame.h"
#include "renderer/frame/seenextent.h"
#include "renderer/frame/view.h"
#include "renderer/paint/scenelabel.h"
#include "renderer/scene/flatextent.h"
#include "renderer/scene/framelayout.h"
#include "renderer/scene/sceneitems.h"

#include <algorithm>
#include <cmath>

namespace vxrenderer {
namespace {

using namespace vxgraphics3d;

/// Labels may take this part of the area at most; beyond it they are cut.
constexpr double c_mostForLabels = 0.5;
/// The least free space around a scene, as a part of it.
constexpr float c_leastMargin = 1e-3f;
/// The layout of labels follows the zoom, and the zoom the space for labels.
constexpr int c_mostRounds = 12;
/// A change in pixels that ends the search.
constexpr double c_accuracy = 0.1;
/// Nothing is magnified further than by this factor over the view of the whole box, and what is seen as a point not at
/// all.
constexpr double c_largestZoom = 1000.0;
constexpr double c_pointSize = 1e-3;

float marginOf(const Canvas3dGlobalSettings& settings)
{
    // The setting may have any value.
    const float margin = settings.getZoomToExtentMargin();
    return margin > c_leastMargin ? std::min(margin, 1.0f) : c_leastMargin;
}

/// A rectangle in pixels of the picture, which may be empty.
struct Rect {
    double left = HUGE_VAL;
    double top = HUGE_VAL;
    double right = -HUGE_VAL;
    double bottom = -HUGE_VAL;

    /// @param label of a type with these sides
    template <class Label>
    void merge(const Label& label)
    {
        left = std::min(left, static_cast<double>(label.left));
        top = std::min(top, static_cast<double>(label.top));
        right = std::max(right, static_cast<double>(label.right));
        bottom = std::max(bottom, static_cast<double>(label.bottom));
    }
};

/// How far labels reach beyond what they belong to, in pixels.
struct Overhang {
    double left = 0.0;
    double top = 0.0;
    double right = 0.0;
    double bottom = 0.0;

    double across() const { return left + right; }
    double along() const { return top + bottom; }

    /// Reduced to what labels may take of a rectangle, on all sides of a direction alike.
    Overhang limitedTo(double width, double height) const
    {
        const double x = std::min(1.0, c_mostForLabels * width / across());
        const double y = std::min(1.0, c_mostForLabels * height / along());
        return {across() > 0.0 ? x * left : 0.0, along() > 0.0 ? y * top : 0.0, across() > 0.0 ? x * right : 0.0,
                along() > 0.0 ? y * bottom : 0.0};
    }
};

/// The part of an area that is left by a margin around its middle, and at most by labels.
Rect targetOf(const PixelArea& area, float margin)
{
    const double part = 0.5 / (1.0 + static_cast<double>(margin));
    const double x = area.x + 0.5 * area.width;
    const double y = area.y + 0.5 * area.height;
    return {x - part * area.width, y - part * area.height, x + part * area.width, y + part * area.height};
}

/// Finds magnification and offset of the image.
class Fit {
public:
    Fit(Camera3d& camera, const Frame& frame, const FrameLayout& layout)
        : m_camera(camera),
          m_frame(frame),
          m_layout(layout),
          m_area(layout.area.whole),
          m_target(targetOf(layout.area.inner, marginOf(*Canvas3dGlobalSettings::getInstance()))),
          m_labels(labelsOf(layout.items, frame), layout.labelFonts)
    {
        SeenExtent seen(camera);
        visitPoints(layout.items, frame, [&seen](const PointRun& points) { seen.add(points); });
        if (seen.isEmpty()) {
            for (int corner = 0; corner < 8; ++corner) {
                seen.add(layout.box.getVertex(corner));
            }
        }
        if (frame.appearance.showAxes) {
            for (const AxisLine& edge : gridBox().edges) {
                seen.add(edge.from);
                seen.add(edge.to);
            }
        }
        m_isEmpty = seen.isEmpty();
        m_seen = {seen.left(), -seen.top(), seen.right(), -seen.bottom()};
        if (frame.appearance.showLightMarkers && !m_isEmpty) {
            addMarkers();
        }
    }

    void run()
    {
        if (m_isEmpty) {
            return;
        }
        const bool hasTexts = m_frame.appearance.showAxes || !m_labels.isEmpty();
        m_largest = c_largestZoom * pixelsAcross();
        Overhang overhang;
        double change = move(overhang);
        for (int round = 0; round < c_mostRounds && change > c_accuracy && hasTexts; ++round) {
            const Overhang next = overhangOfLabels();
            // Labels come and go with the zoom. From some rounds on they keep the space that they once took, so that
            // the search ends.
            const bool isKept = round >= c_mostRounds / 3;
            const auto taken = [isKept](double now, double before) { return isKept ? std::max(now, before) : now; };
            overhang = {taken(next.left, overhang.left), taken(next.top, overhang.top),
                        taken(next.right, overhang.right), taken(next.bottom, overhang.bottom)};
            change = move(overhang);
        }
    }

private:
    /// With the labels that the picture would cut.
    GridBoxLayout gridBox() const
    {
        return layOutGridBox(m_frame, {m_layout.box, m_layout.heightUnits}, m_area, m_layout.axisFonts, {});
    }

    /// Adds the markers of lights, as far as half of the size is left to the scene.
    void addMarkers()
    {
        SeenExtent markers(m_camera);
        const Scene& scene = *m_frame.scene;
        for (const LightMarker& marker : lightMarkers(*scene.getSceneLight(), scene.getBoundingBox(), m_camera)) {
            for (const Solid& solid : marker.solids) {
                markers.addAtEye(solid.from, solid.radius);
                markers.addAtEye(solid.to, solid.radius);
            }
            for (const LineSegment& line : marker.lines) {
                markers.addAtEye(line.from, 0.0f);
                markers.addAtEye(line.to, 0.0f);
            }
        }
        const double width = m_seen.right - m_seen.left;
        const double height = m_seen.bottom - m_seen.top;
        // What the target shows in units of the extent once the scene fills half of it.
        const double shownAcross = (m_target.right - m_target.left) / pixelsAcross();
        const double shownAlong = (m_target.bottom - m_target.top) / pixelsAlong();
        const double zoom = 2.0 * std::max(width / shownAcross, height / shownAlong);
        const double mostAcross = zoom * shownAcross - width;
        const double mostAlong = zoom * shownAlong - height;
        if (!markers.isEmpty() && mostAcross > 0.0 && mostAlong > 0.0) {
            const Overhang beyond =
                Overhang{std::max(m_seen.left - markers.left(), 0.0), std::max(m_seen.top + markers.top(), 0.0),
                         std::max(markers.right() - m_seen.right, 0.0),
                         std::max(-markers.bottom() - m_seen.bottom, 0.0)}
                    .limitedTo(mostAcross / c_mostForLabels, mostAlong / c_mostForLabels);
            m_seen = {m_seen.left - beyond.left, m_seen.top - beyond.top, m_seen.right + beyond.right,
                      m_seen.bottom + beyond.bottom};
        }
    }

    // Pixels for a unit of the extent.
    double pixelsAcross() const
    {
        return 0.5 * m_area.width * static_cast<double>(m_camera.getProjectionTransformRH().get(1, 1));
    }
    double pixelsAlong() const
    {
        return 0.5 * m_area.height * static_cast<double>(m_camera.getProjectionTransformRH().get(2, 2));
    }
    /// Where the line of sight is in the picture.
    double sightX() const
    {
        return m_area.x + m_area.width * (0.5 + static_cast<double>(m_camera.getRelativeViewOffsetX()));
    }
    double sightY() const
    {
        return m_area.y + m_area.height * (0.5 - static_cast<double>(m_camera.getRelativeViewOffsetY()));
    }

    Rect seenRect() const
    {
        const double x = pixelsAcross();
        const double y = pixelsAlong();
        return {sightX() + x * m_seen.left, sightY() + y * m_seen.top, sightX() + x * m_seen.right,
                sightY() + y * m_seen.bottom};
    }

    Overhang overhangOfLabels() const
    {
        const Rect seen = seenRect();
        Rect all = seen;
        if (m_frame.appearance.showAxes) {
            for (const AxisLabel& label : gridBox().labels) {
                all.merge(rectOf(label, m_layout.axisFonts.metrics()));
            }
        }
        for (const PixelRect& label : m_labels.rectsIn(View::of(m_camera, m_area, false))) {
            all.merge(label);
        }
        return {seen.left - all.left, seen.top - all.top, all.right - seen.right, all.bottom - seen.bottom};
    }

    /// Magnifies and moves the image so that it fills the target with this space for labels.
    /// @return by how many pixels an end of the scene has moved
    double move(const Overhang& labels)
    {
        const Rect before = seenRect();
        const double width = m_target.right - m_target.left;
        const double height = m_target.bottom - m_target.top;
        const Overhang overhang = labels.limitedTo(width, height);
        const double zoom =
            std::min({(width - overhang.across()) / (before.right - before.left),
                      (height - overhang.along()) / (before.bottom - before.top), m_largest / pixelsAcross()});
        const bool isPoint = std::max(before.right - before.left, before.bottom - before.top) < c_pointSize;
        if (!isPoint && zoom > 0.0 && std::isfinite(zoom)) {
            magnify(zoom);
        }
        const Rect zoomed = seenRect();
        const double right =
            0.5 * (m_target.left + m_target.right - zoomed.left - zoomed.right + overhang.left - overhang.right);
        const double down =
            0.5 * (m_target.top + m_target.bottom - zoomed.top - zoomed.bottom + overhang.top - overhang.bottom);
        m_camera.setRelativeViewOffset(m_camera.getRelativeViewOffsetX() + static_cast<float>(right / m_area.width),
                                       m_camera.getRelativeViewOffsetY() - static_cast<float>(down / m_area.height));
        const Rect after = seenRect();
        return std::max({std::abs(after.left - before.left), std::abs(after.right - before.right),
                         std::abs(after.top - before.top), std::abs(after.bottom - before.bottom)});
    }

    void magnify(double zoom)
    {
        const float offsetX = m_camera.getRelativeViewOffsetX();
        const float offsetY = m_camera.getRelativeViewOffsetY();
        const double pixels = pixelsAcross();
        m_camera.setAdditionalScale(0.5f, 0.5f, static_cast<float>(1.0 / zoom));
        m_camera.mergeAdditionalTransformation();
        m_camera.setRelativeViewOffset(offsetX, offsetY);
        // A camera with a fixed number of pixels per unit ignores angles and extents.
        if (std::abs(pixelsAcross() / pixels - zoom) > 0.01 * zoom) {
            m_camera.setViewingScale(m_camera.getViewingScale() * static_cast<float>(zoom * pixels / pixelsAcross()));
        }
    }

    Camera3d& m_camera;
    const Frame& m_frame;
    const FrameLayout& m_layout;
    PixelArea m_area;
    Rect m_target;
    /// How far the scene reaches to the sides, counted from the line of sight to the right and downwards.
    Rect m_seen;
    bool m_isEmpty = false;
    LabelExtent m_labels;
    double m_largest = 0.0;
};

bool isSphereShown()
{
    return Canvas3dGlobalSettings::getInstance()->getZoomToExtentBehaviour() ==
           Canvas3dGlobalSettings::ZoomToExtentSphere;
}

} // namespace

double marginOfFit()
{
    const auto margin = static_cast<double>(marginOf(*Canvas3dGlobalSettings::getInstance()));
    return 0.5 * margin / (1.0 + margin);
}

void fitCamera(Camera3d& camera, const Frame& frame, const FrameLayout& layout)
{
    camera.setRotationPoint(layout.box.getCenter());
    camera.setRelativeViewOffset(0.0f, 0.0f);
    camera.moveToBoundingBox(layout.box, layout.box, 0.0f);
    // Clipping planes of a former scene may limit the magnification.
    camera.setBoundingBox(layout.box);
    if (isSphereShown()) {
        // Every rotation keeps its space for labels.
        const PixelArea& whole = layout.area.whole;
        const PixelArea inner =
            frame.appearance.showAxes ? spaceInGridBox(frame, layout.area.inner, layout.axisFonts) : layout.area.inner;
        const double part = std::max(c_mostForLabels, std::min(static_cast<double>(inner.width) / whole.width,
                                                               static_cast<double>(inner.height) / whole.height));
        camera.setAdditionalScale(0.5f, 0.5f, static_cast<float>(1.0 / part));
        camera.mergeAdditionalTransformation();
        return;
    }
    Fit(camera, frame, layout).run();
}

namespace {

/// Shows a box with the margin around it.
void moveTo(const BoundingBox& box, Camera2d& camera, const FrameLayout& layout)
{
    const PixelArea& whole = layout.area.whole;
    const PixelArea& inner = layout.area.inner;
    // Half of the margin on each side, as in space.
    const float margin = 0.5f * marginOf(*Canvas3dGlobalSettings::getInstance());
    if (inner.width == whole.width && inner.height == whole.height) {
        camera.moveToBoundingBox(box, margin);
        return;
    }
    const auto setArea = [&](const PixelArea& area) {
        camera.setRenderArea(layout.width, layout.height, area.x, layout.height - area.y - area.height, area.width,
                             area.height);
    };
    setArea(inner);
    camera.moveToBoundingBox(box, margin);
    // The same pixels per unit in the whole area.
    const float unitX = (camera.getActualMaxX() - camera.getActualMinX()) / static_cast<float>(inner.width);
    const float unitY = (camera.getActualMaxY() - camera.getActualMinY()) / static_cast<float>(inner.height);
    const float minX = camera.getActualMinX() - unitX * static_cast<float>(inner.x - whole.x);
    const float maxY = camera.getActualMaxY() + unitY * static_cast<float>(inner.y - whole.y);
    setArea(whole);
    camera.setViewLimits(minX, minX + unitX * static_cast<float>(whole.width),
                         maxY - unitY * static_cast<float>(whole.height), maxY);
}

} // namespace

void fitCamera(Camera2d& camera, const Frame& frame, const FrameLayout& layout)
{
    const FlatExtent extent(frame, layout, camera);
    BoundingBox box = extent.getBox();
    moveTo(box, camera, layout);
    for (int round = 0; round < c_mostRounds && extent.hasLabels(); ++round) {
        const BoundingBox next = extent.withLabels(camera);
        const Vector3f low = next.getMin() - box.getMin();
        const Vector3f high = next.getMax() - box.getMax();
        const auto isStill = [](float first, float second, float range, int pixels) {
            const float most = static_cast<float>(c_accuracy) * range / static_cast<float>(pixels);
            return std::abs(first) <= most && std::abs(second) <= most;
        };
        if (isStill(low.x, high.x, camera.getActualMaxX() - camera.getActualMinX(), layout.area.whole.width) &&
            isStill(low.y, high.y, camera.getActualMaxY() - camera.getActualMinY(), layout.area.whole.height)) {
            return;
        }
        box = next;
        moveTo(box, camera, layout);
    }
}

} // namespace vxrenderer
