#include "interaction/overlaypicker.h"

#include "graphics3d/foundation/matrixf.h"
#include "graphics3d/overlays/overlay.h"
#include "graphics3d/overlays/overlaycurve.h"
#include "graphics3d/overlays/overlayoutline.h"
#include "graphics3d/overlays/overlaypoint.h"
#include "graphics3d/overlays/overlaysymbol.h"
#include "graphics3d/overlays/overlaytransformation.h"
#include "graphics3d/picking/pickedobjectcollection.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <stdexcept>
#include <utility>
#include <vector>

namespace vxinteraction {

using namespace vxgraphics3d;

namespace {

constexpr double c_infinity = std::numeric_limits<double>::infinity();
/// Half the size of a symbol on the screen, within which it is hit.
constexpr double c_symbolRadius = 6.0;

double distanceToSegment(const PlanePoint& point, const PlanePoint& a, const PlanePoint& b)
{
    const PlanePoint along = b - a;
    const PlanePoint from = point - a;
    const double square = along.x * along.x + along.y * along.y;
    const double part = square > 0.0 ? std::clamp((from.x * along.x + from.y * along.y) / square, 0.0, 1.0) : 0.0;
    return std::hypot(from.x - part * along.x, from.y - part * along.y);
}

/// Tests one object against one position.
class HitTest {
public:
    HitTest(const OverlayObject& object, const OverlayPlane& plane, const PlanePoint& pointer)
        : m_object(object), m_plane(plane), m_pointer(pointer), m_tolerance(pickingTolerance())
    {
        m_lineReach = m_tolerance + 0.5 * std::max(0.0, static_cast<double>(object.getLineSize()));
    }

    /// @return nothing if the object is not hit
    std::optional<std::pair<PartType, int>> run() const
    {
        const std::pair<PartType, int> whole(PartTypeNone, -1);
        switch (m_object.getType()) {
        case OverlayObject::TypePoint: {
            const auto& point = static_cast<const OverlayPoint&>(m_object);
            return isVisible() && distanceTo({point.getX(), point.getY(), 0.0}) <= m_lineReach ? std::optional(whole)
                                                                                               : std::nullopt;
        }
        case OverlayObject::TypeSymbol: {
            const auto& symbol = static_cast<const OverlaySymbol&>(m_object);
            return isVisible() && distanceTo({symbol.getX(), symbol.getY(), 0.0}) <= c_symbolRadius + m_tolerance
                       ? std::optional(whole)
                       : std::nullopt;
        }
        case OverlayObject::TypeTransformation:
            if (const int handle = nearestHandle(); handle >= 0) {
                return std::pair(OverlayPicker::c_handle, handle);
            }
            break;
        case OverlayObject::TypeRenderEdit:
        case OverlayObject::TypeDrawCurve:
            if (const auto part = nearestPart(static_cast<const OverlayCurve&>(m_object))) {
                return part;
            }
            break;
        case OverlayObject::TypeLine:
        case OverlayObject::TypeRectangle:
        case OverlayObject::TypeEllipse:
            break;
        }
        const std::vector<Vector3f> outline = outlineOf(m_object);
        const bool isHit =
            (m_object.isOutlined() && distanceTo(outline) <= m_lineReach) || (m_object.isFilled() && isInside(outline));
        return isHit ? std::optional(whole) : std::nullopt;
    }

private:
    bool isVisible() const { return m_object.isOutlined() || m_object.isFilled(); }

    std::optional<PlanePoint> seen(const Vector3f& point) const
    {
        return m_plane.toPicture(m_object.getTransformation() * point);
    }

    double distanceTo(const Vector3f& point) const
    {
        const auto position = seen(point);
        return position ? std::hypot(position->x - m_pointer.x, position->y - m_pointer.y) : c_infinity;
    }

    template <class Visit>
    void forEachLine(const std::vector<Vector3f>& lines, Visit visit) const
    {
        for (std::size_t i = 0; i + 1 < lines.size(); i += 2) {
            const auto a = seen(lines[i]);
            const auto b = seen(lines[i + 1]);
            if (a && b) {
                visit(*a, *b);
            }
        }
    }

    double distanceTo(const std::vector<Vector3f>& lines) const
    {
        double nearest = c_infinity;
        forEachLine(lines, [&](const PlanePoint& a, const PlanePoint& b) {
            nearest = std::min(nearest, distanceToSegment(m_pointer, a, b));
        });
        return nearest;
    }

    /// Whether a ray from the pointer crosses the lines an odd number of times.
    bool isInside(const std::vector<Vector3f>& lines) const
    {
        bool isOdd = false;
        forEachLine(lines, [&](const PlanePoint& a, const PlanePoint& b) {
            if ((a.y > m_pointer.y) != (b.y > m_pointer.y) &&
                m_pointer.x < a.x + (m_pointer.y - a.y) / (b.y - a.y) * (b.x - a.x)) {
                isOdd = !isOdd;
            }
        });
        return isOdd;
    }

    int nearestHandle() const
    {
        const auto& frame = static_cast<const OverlayTransformation&>(m_object);
        double nearest =
            static_cast<double>(static_cast<float>(frame.getHandleSize()) * frame.getHandleScale()) + m_tolerance;
        int found = -1;
        for (int handle = 0; frame.isOutlined() && handle < frame.getNumHandles(); ++handle) {
            if (const double distance = distanceTo(frame.getHandlePos(handle)); distance <= nearest) {
                nearest = distance;
                found = handle;
            }
        }
        return found;
    }

    std::optional<std::pair<PartType, int>> nearestPart(const OverlayCurve& curve) const
    {
        std::optional<std::pair<PartType, int>> found;
        if (!curve.isOutlined()) {
            return found;
        }
        double nearest = m_tolerance;
        const auto consider = [&](double distance, PartType type, int part) {
            if (distance <= nearest) {
                nearest = distance;
                found = std::pair(type, part);
            }
        };
        for (int vertex = 0; vertex < curve.getNVertices(); ++vertex) {
            if (curve.isVertexRendered(vertex)) {
                consider(distanceTo(curve.getVertex(vertex)), PartTypePoint, vertex);
            }
        }
        for (int edge = 0; !found && edge < curve.getNEdges(); ++edge) {
            if (curve.isEdgeRendered(edge)) {
                const auto shown = shownControlPoints(curve, edge);
                for (int index = shown.begin; index < shown.end; ++index) {
                    consider(distanceTo(curve.getControlPoint(edge, index)), OverlayPicker::c_controlPoint,
                             curve.getControlPointId(edge, index));
                }
            }
        }
        if (found) {
            return found;
        }
        nearest = m_lineReach;
        std::vector<Vector3f> lines;
        for (int edge = 0; edge < curve.getNEdges(); ++edge) {
            if (curve.isEdgeRendered(edge)) {
                lines.clear();
                appendEdge(lines, curve, edge);
                consider(distanceTo(lines), PartTypeLine, edge);
            }
        }
        return found;
    }

    const OverlayObject& m_object;
    const OverlayPlane& m_plane;
    PlanePoint m_pointer;
    double m_tolerance;
    /// From the middle of a line.
    double m_lineReach;
};

} // namespace

OverlayPicker::OverlayPicker(OverlayView view, boost::shared_ptr<Overlay> overlay)
    : m_view(std::move(view)), m_overlay(std::move(overlay))
{
    if (!m_overlay) {
        throw std::invalid_argument("There is no overlay to pick from.");
    }
}

bool OverlayPicker::pick(int x, int y, PickedObjectCollection& picked) const
{
    const OverlayPlane plane = m_view.plane();
    bool hasHit = false;
    const auto& objects = m_overlay->getOverlayObjects();
    for (auto object = objects.rbegin(); object != objects.rend(); ++object) {
        if (const auto part = HitTest(**object, plane, PlanePoint::ofPixel(x, y)).run()) {
            picked.addPickedOverlay((*object)->getObjectPickID(), part->first, part->second);
            hasHit = true;
        }
    }
    return hasHit;
}

} // namespace vxinteraction
