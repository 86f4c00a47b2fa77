#include "interaction/curveinteraction.h"

#include "graphics3d/cameras/camera2d.h"
#include "graphics3d/canvas/canvas3dsettings.h"
#include "graphics3d/overlays/overlay.h"
#include "graphics3d/overlays/overlaycurve.h"
#include "graphics3d/overlays/overlayoutline.h"

#include <boost/pointer_cast.hpp>

#include <cmath>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace vxinteraction {

using vxgraphics3d::Camera2d;
using vxgraphics3d::Canvas3dSettings;
using vxgraphics3d::Matrixf;
using vxgraphics3d::Overlay;
using vxgraphics3d::OverlayCurve;
using vxgraphics3d::Vector3f;

namespace {

int requireHeight(int canvasHeight)
{
    if (canvasHeight < 1) {
        throw std::invalid_argument("The canvas height is " + std::to_string(canvasHeight) + ", not 1 or more.");
    }
    return canvasHeight;
}

/// From pixels of the picture to the coordinates of a curve, row by row; nothing if the curve is not seen as an area.
std::optional<std::array<double, 4>> scaleOf(const Camera2d& camera, const OverlayCurve& curve)
{
    const Matrixf toClip = camera.getProjectionTransformRH() * camera.getViewTransform() * curve.getTransformation();
    const double width = camera.getRenderAreaWidth() / 2.0;
    const double height = camera.getRenderAreaHeight() / 2.0;
    const double a = double{toClip.get(1, 1)} * width;
    const double b = double{toClip.get(1, 2)} * width;
    const double c = double{toClip.get(2, 1)} * height;
    const double d = double{toClip.get(2, 2)} * height;
    const double determinant = a * d - b * c;
    const std::array<double, 4> scale = {d / determinant, -b / determinant, -c / determinant, a / determinant};
    for (const double value : scale) {
        if (!std::isfinite(value)) {
            return std::nullopt;
        }
    }
    return scale;
}

} // namespace

CurveInteraction::CurveInteraction(boost::shared_ptr<Canvas3dSettings> settings, boost::shared_ptr<Overlay> overlay,
                                   int canvasHeight)
    : m_settings(std::move(settings)), m_overlay(std::move(overlay)), m_canvasHeight(requireHeight(canvasHeight))
{
    if (!m_settings || !m_overlay) {
        throw std::invalid_argument("There are no settings of a view, or there is no overlay to interact with.");
    }
}

void CurveInteraction::setCanvasHeight(int canvasHeight)
{
    m_canvasHeight = requireHeight(canvasHeight);
}

bool CurveInteraction::press(int x, int y)
{
    release();
    if (m_settings->getRenderMode() != Canvas3dSettings::RenderMode2d) {
        return false;
    }
    const Camera2d& camera = *m_settings->camera2d();
    const Pointer pointer = {x + 0.5, m_canvasHeight - (y + 0.5)};
    const double column = pointer.x - camera.getRenderAreaLeft();
    const double row = pointer.y - camera.getRenderAreaBottom();
    if (!(column > 0.0 && column < camera.getRenderAreaWidth() && row > 0.0 && row < camera.getRenderAreaHeight())) {
        return false;
    }
    std::optional<Grip> grip = findGrip(camera, pointer);
    const auto scale = grip ? scaleOf(camera, *grip->curve) : std::nullopt;
    if (!scale) {
        return false;
    }
    m_grip = std::move(grip);
    m_toCurve = *scale;
    m_pressX = m_lastX = x;
    m_pressY = m_lastY = y;
    return true;
}

bool CurveInteraction::drag(int x, int y)
{
    if (!m_grip || (x == m_lastX && y == m_lastY)) {
        return false;
    }
    m_lastX = x;
    m_lastY = y;
    const double dx = static_cast<double>(x) - m_pressX;
    const double dy = static_cast<double>(m_pressY) - y;
    moveTo(m_grip->x + m_toCurve[0] * dx + m_toCurve[1] * dy, m_grip->y + m_toCurve[2] * dx + m_toCurve[3] * dy);
    return true;
}

void CurveInteraction::release()
{
    m_grip.reset();
}

bool CurveInteraction::cancel()
{
    const bool hasMoved = drag(m_pressX, m_pressY);
    release();
    return hasMoved;
}

boost::shared_ptr<OverlayCurve> CurveInteraction::getCurve() const
{
    return m_grip ? m_grip->curve : nullptr;
}

int CurveInteraction::getControlPoint() const
{
    return m_grip && m_grip->vertex < 0 ? m_grip->curve->getControlPointId(m_grip->edge, m_grip->index) : -1;
}

std::optional<CurveInteraction::Grip> CurveInteraction::findGrip(const Camera2d& camera, const Pointer& pointer) const
{
    const auto& objects = m_overlay->getOverlayObjects();
    for (auto object = objects.rbegin(); object != objects.rend(); ++object) {
        const auto curve = boost::dynamic_pointer_cast<OverlayCurve>(*object);
        if (!curve) {
            continue;
        }
        Grip nearest;
        double reach = c_reach;
        const auto offer = [&](const Vector3f& point, int vertex, int edge, int index) {
            const Vector3f pixel = camera.worldToScreenRH(point.transformed(curve->getTransformation()));
            const double distance = std::hypot(double{pixel.x} - pointer.x, double{pixel.y} - pointer.y);
            if (distance < reach) {
                reach = distance;
                nearest = {curve, vertex, edge, index};
            }
        };
        for (int vertex = 0; vertex < curve->getNVertices(); ++vertex) {
            if (curve->isVertexRendered(vertex)) {
                offer(curve->getVertex(vertex), vertex, -1, -1);
            }
        }
        for (int edge = 0; edge < curve->getNEdges(); ++edge) {
            if (curve->isEdgeRendered(edge)) {
                const auto shown = vxgraphics3d::shownControlPoints(*curve, edge);
                for (int index = shown.begin; index < shown.end; ++index) {
                    offer(curve->getControlPoint(edge, index), -1, edge, index);
                }
            }
        }
        if (nearest.curve) {
            std::vector<double> position(3);
            if (nearest.vertex >= 0) {
                curve->getVertex(nearest.vertex, position);
            } else {
                curve->getControlPoint(nearest.edge, nearest.index, position);
            }
            nearest.x = position[0];
            nearest.y = position[1];
            return nearest;
        }
    }
    return std::nullopt;
}

void CurveInteraction::moveTo(double x, double y) const
{
    if (m_grip->vertex >= 0) {
        m_grip->curve->setVertex(m_grip->vertex, x, y);
    } else {
        m_grip->curve->setControlPoint(m_grip->edge, m_grip->index, x, y);
    }
}

} // namespace vxinteraction
