#include "renderer/export/vectorsolids.h"

#include <boost/shared_ptr.hpp>

#include <algorithm>
#include <cairo.h>
#include <cmath>
#include <numbers>

namespace vxrenderer {
namespace {

using vxgraphics3d::Color;
using vxgraphics3d::Vector3f;

/// Colours of a gradient between its ends.
constexpr int c_stops = 12;
/// Below this part of a radius an ellipse is a line.
constexpr double c_flattest = 1e-3;

using PatternPointer = boost::shared_ptr<cairo_pattern_t>;

double channel(int value)
{
    return value / 255.0;
}

void fillWith(_cairo& context, const Color& color)
{
    cairo_set_source_rgb(&context, channel(color.red), channel(color.green), channel(color.blue));
    cairo_fill(&context);
}

/// Fills the path with the colours of a body where its surface has the normals that a function gives for the positions
/// 0 to 1 of a pattern.
template <class NormalAt>
void fillWith(_cairo& context, const PatternPointer& pattern, const Color& color, NormalAt normalAt)
{
    for (int i = 0; i <= c_stops; ++i) {
        const double position = static_cast<double>(i) / c_stops;
        const Color lit = litColor(color, normalAt(position));
        cairo_pattern_add_color_stop_rgb(pattern.get(), position, channel(lit.red), channel(lit.green),
                                         channel(lit.blue));
    }
    cairo_set_source(&context, pattern.get());
    cairo_fill(&context);
}

// Unit vectors: towards the light, the same as it is seen, and at right angles to both.
const Vector3f c_light = c_signLight.normalized();
const Vector3f c_seenLight = Vector3f(c_signLight.x, c_signLight.y, 0.0f).normalized();
const Vector3f c_aside(c_seenLight.y, -c_seenLight.x, 0.0f);

void drawBall(_cairo& context, const Solid& ball)
{
    const double radius = static_cast<double>(ball.radius);
    // The brightest point is the one that faces the light; from there the colours change towards the rim.
    const double brightX = static_cast<double>(c_light.x) * radius;
    const double brightY = -static_cast<double>(c_light.y) * radius;
    const PatternPointer pattern(cairo_pattern_create_radial(brightX, brightY, 0.0, 0.0, 0.0, radius),
                                 cairo_pattern_destroy);
    cairo_new_sub_path(&context);
    cairo_arc(&context, 0.0, 0.0, radius, 0.0, 2.0 * std::numbers::pi);
    fillWith(context, pattern, ball.color, [&](double position) {
        const auto part = static_cast<float>(position);
        Vector3f normal = c_light * (1.0f - part) + c_aside * part;
        normal.z = std::sqrt(std::max(1.0f - normal.x * normal.x - normal.y * normal.y, 0.0f));
        return normal;
    });
}

/// A cylinder or a cone, in coordinates from the middle of its base: x in the direction in which its axis is seen, y at
/// right angles to it.
class Pointed {
public:
    Pointed(_cairo& context, const Solid& solid)
        : m_context(context),
          m_solid(solid),
          m_whole(solid.to - solid.from),
          m_axis(m_whole.normalized()),
          m_seen(std::hypot(static_cast<double>(m_whole.x), static_cast<double>(m_whole.y))),
          m_radius(static_cast<double>(solid.radius)),
          m_flat(std::max(std::abs(static_cast<double>(m_axis.z)), c_flattest))
    {
        const bool isSeen = m_seen > c_flattest * m_radius;
        m_along = isSeen
                      ? Vector3f(static_cast<double>(m_whole.x) / m_seen, static_cast<double>(m_whole.y) / m_seen, 0.0)
                      : Vector3f(1.0, 0.0, 0.0);
        // The picture has y downwards.
        m_across = Vector3f(static_cast<double>(m_along.y), -static_cast<double>(m_along.x), 0.0);
        m_outwards = m_axis.cross(m_across);
        if (m_outwards.z < 0.0f) {
            m_outwards = -m_outwards;
        }
    }

    void draw()
    {
        cairo_rotate(&m_context, std::atan2(-static_cast<double>(m_along.y), static_cast<double>(m_along.x)));
        const bool isCone = m_solid.shape == Solid::Shape::cone;
        const bool isTowardsViewer = m_axis.z > 0.0f;
        if (isCone) {
            drawCone();
        } else {
            drawCylinder();
        }
        if (!isTowardsViewer) {
            drawEnd(0.0, -m_axis);
        } else if (!isCone) {
            drawEnd(m_seen, m_axis);
        }
    }

private:
    /// Adds a part of the circle around a point of the axis, as it is seen.
    void addArc(double x, double from, double to)
    {
        cairo_save(&m_context);
        cairo_translate(&m_context, x, 0.0);
        cairo_scale(&m_context, m_flat, 1.0);
        cairo_arc(&m_context, 0.0, 0.0, m_radius, from, to);
        cairo_restore(&m_context);
    }

    void drawEnd(double x, const Vector3f& normal)
    {
        cairo_new_sub_path(&m_context);
        addArc(x, 0.0, 2.0 * std::numbers::pi);
        fillWith(m_context, litColor(m_solid.color, normal));
    }

    /// Fills with the colours along half a circle around the axis.
    /// @param across from the one end of the half circle to the other, as it is seen
    /// @param outwards from the axis to its middle
    /// @param slope of the surface towards the axis, 0 for a cylinder
    void fill(const Vector3f& across, const Vector3f& outwards, double slope)
    {
        const double x = m_radius * static_cast<double>(across.dot(m_along));
        const double y = m_radius * static_cast<double>(across.dot(m_across));
        const PatternPointer pattern(cairo_pattern_create_linear(-x, -y, x, y), cairo_pattern_destroy);
        fillWith(m_context, pattern, m_solid.color, [&](double position) {
            const double aside = 2.0 * position - 1.0;
            const double towards = std::sqrt(std::max(1.0 - aside * aside, 0.0));
            const Vector3f out = across * static_cast<float>(aside) + outwards * static_cast<float>(towards);
            return (out + m_axis * static_cast<float>(slope)).normalized();
        });
    }

    void drawCylinder()
    {
        constexpr double c_quarter = 0.5 * std::numbers::pi;
        addArc(0.0, c_quarter, 3.0 * c_quarter);
        addArc(m_seen, -c_quarter, c_quarter);
        cairo_close_path(&m_context);
        fill(m_across, m_outwards, 0.0);
    }

    void drawCone()
    {
        const double slope = m_radius / static_cast<double>(m_whole.length());
        if (m_seen <= m_flat * m_radius) {
            // The tip is seen within the base: one side is lit, the other one is dark.
            cairo_new_sub_path(&m_context);
            addArc(0.0, 0.0, 2.0 * std::numbers::pi);
            fill(c_seenLight, c_aside, slope);
            return;
        }
        // Lines from the tip touch the base at this angle.
        const double touch = std::acos(m_flat * m_radius / m_seen);
        addArc(0.0, touch, 2.0 * std::numbers::pi - touch);
        cairo_line_to(&m_context, m_seen, 0.0);
        cairo_close_path(&m_context);
        fill(m_across, m_outwards, slope);
    }

    _cairo& m_context;
    const Solid& m_solid;
    Vector3f m_whole;
    Vector3f m_axis;
    /// The length that is seen.
    double m_seen;
    double m_radius;
    /// The width of a circle around the axis, as it is seen, in units of its height.
    double m_flat;
    // Unit vectors: in the picture along and across the axis, and from the axis towards the viewer.
    Vector3f m_along;
    Vector3f m_across;
    Vector3f m_outwards;
};

} // namespace

void drawSolidAsVectors(_cairo& context, const Solid& solid, PixelPoint origin)
{
    if (!(solid.radius > 0.0f) || (solid.shape != Solid::Shape::ball && !((solid.to - solid.from).length() > 0.0f))) {
        return;
    }
    cairo_save(&context);
    cairo_translate(&context, static_cast<double>(origin.x + solid.from.x),
                    static_cast<double>(origin.y - solid.from.y));
    if (solid.shape == Solid::Shape::ball) {
        drawBall(context, solid);
    } else {
        Pointed(context, solid).draw();
    }
    cairo_restore(&context);
}

} // namespace vxrenderer
