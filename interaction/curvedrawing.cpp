#include "interaction/curvedrawing.h"

#include "graphics3d/foundation/matrixf.h"
#include "graphics3d/overlays/overlay.h"
#include "graphics3d/overlays/overlaydrawcurve.h"

#include <boost/make_shared.hpp>

#include <cmath>
#include <stdexcept>
#include <string>
#include <utility>

namespace vxinteraction {

using vxgraphics3d::Overlay;
using vxgraphics3d::OverlayDrawCurve;

CurveDrawing::CurveDrawing(OverlayView view, boost::shared_ptr<Overlay> overlay,
                           boost::shared_ptr<OverlayDrawCurve> curve)
    : OverlayInteraction(std::move(view)), m_overlay(std::move(overlay)), m_curve(std::move(curve))
{
    if (!m_overlay || !m_curve) {
        throw std::invalid_argument("There is no overlay or no curve to draw.");
    }
}

CurveDrawing::~CurveDrawing() = default;

void CurveDrawing::setDegree(int degree)
{
    if (degree < 1 || degree > 3) {
        throw std::invalid_argument("The degree is " + std::to_string(degree) + ", not 1 to 3.");
    }
    m_degree = degree;
    if (isActive()) {
        m_points.resize(1);
        hidePreview();
    }
}

bool CurveDrawing::isAtFirstVertex(const PlanePoint& picture) const
{
    if (m_firstVertex < 0) {
        return false;
    }
    const auto first = plane().toPicture(m_curve->getTransformation() * m_curve->getVertex(m_firstVertex));
    return first && std::hypot(first->x - picture.x, first->y - picture.y) <= pickingTolerance();
}

bool CurveDrawing::press(int x, int y)
{
    const PlanePoint picture = PlanePoint::ofPixel(x, y);
    const auto point = toObject(*m_curve, picture);
    if (!point) {
        return false;
    }
    m_points.push_back(*point);
    if (static_cast<int>(m_points.size()) > m_degree) {
        const bool isClosing = isAtFirstVertex(picture);
        addEdge(isClosing);
        if (isClosing) {
            finish();
            return true;
        }
    }
    showPreview(*point);
    return true;
}

void CurveDrawing::addEdge(bool isClosing)
{
    if (m_firstVertex < 0) {
        m_firstVertex = m_curve->addVertex(m_points.front().x, m_points.front().y);
        m_lastVertex = m_firstVertex;
    }
    if (isClosing) {
        std::vector<double> first(3);
        m_curve->getVertex(m_firstVertex, first);
        m_points.back() = {first[0], first[1]};
    }
    const PlanePoint end = m_points.back();
    const int endVertex = isClosing ? m_firstVertex : m_curve->addVertex(end.x, end.y);
    const int edge = m_curve->addEdge(m_lastVertex, endVertex);
    for (const PlanePoint& point : m_points) {
        m_curve->addControlPoint(edge, point.x, point.y);
    }
    m_lastVertex = endVertex;
    m_points = {end};
    hidePreview();
}

bool CurveDrawing::drag(int x, int y)
{
    const auto pointer = isActive() ? toObject(*m_curve, PlanePoint::ofPixel(x, y)) : std::nullopt;
    if (!pointer) {
        return false;
    }
    showPreview(*pointer);
    return true;
}

bool CurveDrawing::finish()
{
    const bool wasActive = isActive();
    hidePreview();
    m_points.clear();
    m_firstVertex = -1;
    m_lastVertex = -1;
    return wasActive;
}

void CurveDrawing::showPreview(const PlanePoint& pointer)
{
    const PlanePoint& start = m_points.front();
    if (!m_preview) {
        m_preview = boost::make_shared<OverlayDrawCurve>();
        m_preview->setTransformation(m_curve->getTransformation());
        m_preview->setUseColor(m_curve->isColorUsed());
        m_preview->setOutlineColor(m_curve->getOutlineColor());
        m_preview->setLineSize(m_curve->getLineSize());
        const int first = m_preview->addVertex(start.x, start.y);
        const int edge = m_preview->addEdge(first, m_preview->addVertex(pointer.x, pointer.y));
        for (int i = 0; i <= m_degree; ++i) {
            m_preview->addControlPoint(edge, start.x, start.y);
        }
        m_overlay->addOverlayObject(m_preview, 0);
    }
    // Control points that are not set yet are where the pointer is.
    for (int i = 1; i <= m_degree; ++i) {
        const auto index = static_cast<std::size_t>(i);
        const PlanePoint& point = index < m_points.size() ? m_points[index] : pointer;
        m_preview->setControlPoint(0, i, point.x, point.y);
    }
    m_preview->setVertex(1, pointer.x, pointer.y);
}

void CurveDrawing::hidePreview()
{
    if (m_preview) {
        m_overlay->removeOverlayObject(m_preview);
        m_preview.reset();
    }
}

} // namespace vxinteraction
