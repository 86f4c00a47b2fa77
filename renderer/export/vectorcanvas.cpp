#include "renderer/export/vectorcanvas.h"

#include "graphics3d/foundation/matrixf.h"
#include "graphics3d/plots/colour/colortable.h"
#include "renderer/export/svgfile.h"
#include "renderer/export/tablegradient.h"
#include "renderer/export/vectorsolids.h"

#include <algorithm>
#include <array>
#include <cairo-pdf.h>
#include <cairo-svg.h>
#include <cmath>
#include <cstddef>
#include <initializer_list>
#include <new>
#include <numbers>
#include <optional>
#include <stdexcept>
#include <utility>

namespace vxrenderer {
namespace {

using vxgraphics3d::Color;
using vxgraphics3d::Matrixf;
using vxgraphics3d::Vector3f;

constexpr double c_pointsPerInch = 72.0;
/// Corners of lines are pointed up to the angle of `LinePainter`.
constexpr double c_miterLimit = 2.24;

extern "C" cairo_status_t vxTakeVectorBytes(void* closure, const unsigned char* data, unsigned int size)
{
    auto& bytes = *static_cast<std::vector<std::uint8_t>*>(closure);
    // An exception must not pass the library.
    try {
        bytes.insert(bytes.end(), data, data + size);
    } catch (const std::bad_alloc&) {
        return CAIRO_STATUS_NO_MEMORY;
    }
    return CAIRO_STATUS_SUCCESS;
}

void require(cairo_status_t status)
{
    if (status == CAIRO_STATUS_NO_MEMORY) {
        throw std::bad_alloc();
    }
    if (status != CAIRO_STATUS_SUCCESS) {
        throw std::runtime_error(std::string("The vectors of the picture cannot be written: ") +
                                 cairo_status_to_string(status));
    }
}

std::string utf8Of(char32_t character)
{
    const auto code = static_cast<unsigned>(character);
    const auto next = [code](unsigned shift) { return static_cast<char>(0x80U | (code >> shift & 0x3FU)); };
    if (code < 0x80U) {
        return {static_cast<char>(code)};
    }
    if (code < 0x800U) {
        return {static_cast<char>(0xC0U | code >> 6U), next(0)};
    }
    if (code < 0x10000U) {
        return {static_cast<char>(0xE0U | code >> 12U), next(6), next(0)};
    }
    return {static_cast<char>(0xF0U | code >> 18U), next(12), next(6), next(0)};
}

using PatternPointer = boost::shared_ptr<cairo_pattern_t>;

void addStop(cairo_pattern_t* pattern, double position, const Color& color)
{
    cairo_pattern_add_color_stop_rgba(pattern, position, color.red / 255.0, color.green / 255.0, color.blue / 255.0,
                                      color.alpha / 255.0);
}

/// A point in clip coordinates.
struct ClipPoint {
    double x;
    double y;
    double z;
    double w;

    // Distances behind the near plane and in front of the far plane.
    double behindNear() const { return w + z; }
    double beforeFar() const { return w - z; }

    static ClipPoint of(const Matrixf& toClip, const Vector3f& point)
    {
        const float* m = toClip.data();
        const auto row = [&](int i) {
            return static_cast<double>(m[i]) * static_cast<double>(point.x) +
                   static_cast<double>(m[4 + i]) * static_cast<double>(point.y) +
                   static_cast<double>(m[8 + i]) * static_cast<double>(point.z) + static_cast<double>(m[12 + i]);
        };
        return {row(0), row(1), row(2), row(3)};
    }

    ClipPoint towards(const ClipPoint& other, double part) const
    {
        return {std::lerp(x, other.x, part), std::lerp(y, other.y, part), std::lerp(z, other.z, part),
                std::lerp(w, other.w, part)};
    }
};

struct Point {
    double x;
    double y;

    bool operator==(const Point&) const = default;
};

Point pixelOf(const ClipPoint& point, const PixelArea& area)
{
    return {area.x + 0.5 * (1.0 + point.x / point.w) * area.width,
            area.y + 0.5 * (1.0 - point.y / point.w) * area.height};
}

/// A line in pixels, without what lies in front of the near plane, behind the far plane or outside of an area with a
/// margin: formats keep only small coordinates exactly.
std::optional<std::pair<Point, Point>> clipped(ClipPoint a, ClipPoint b, const PixelArea& area, double margin)
{
    for (double (ClipPoint::*distance)() const : {&ClipPoint::behindNear, &ClipPoint::beforeFar}) {
        const double atA = (a.*distance)();
        const double atB = (b.*distance)();
        if (!std::isfinite(atA) || !std::isfinite(atB) || (atA < 0.0 && atB < 0.0)) {
            return std::nullopt;
        }
        if (atA < 0.0) {
            a = a.towards(b, atA / (atA - atB));
        } else if (atB < 0.0) {
            b = b.towards(a, atB / (atB - atA));
        }
    }
    const Point from = pixelOf(a, area);
    const Point to = pixelOf(b, area);
    const double dx = to.x - from.x;
    const double dy = to.y - from.y;
    if (!std::isfinite(dx) || !std::isfinite(dy)) {
        return std::nullopt;
    }
    double first = 0.0;
    double last = 1.0;
    // Along each direction the line enters and leaves the area.
    const auto cut = [&](double start, double step, double low, double high) {
        if (step == 0.0) {
            return start >= low && start <= high;
        }
        const double one = (low - start) / step;
        const double other = (high - start) / step;
        first = std::max(first, std::min(one, other));
        last = std::min(last, std::max(one, other));
        return first <= last;
    };
    if (!cut(from.x, dx, area.x - margin, area.x + area.width + margin) ||
        !cut(from.y, dy, area.y - margin, area.y + area.height + margin)) {
        return std::nullopt;
    }
    const auto at = [&](double part) {
        return part == 0.0 ? from : part == 1.0 ? to : Point{from.x + part * dx, from.y + part * dy};
    };
    return std::pair(at(first), at(last));
}

/// What of a polygon is on that side of a plane where a function of its points is not negative.
template <class Distance>
std::vector<ClipPoint> cut(const std::vector<ClipPoint>& polygon, Distance distance)
{
    std::vector<ClipPoint> rest;
    for (std::size_t i = 0; i < polygon.size(); ++i) {
        const ClipPoint& from = polygon[i];
        const ClipPoint& to = polygon[(i + 1) % polygon.size()];
        const double before = distance(from);
        const double after = distance(to);
        if (before >= 0.0) {
            rest.push_back(from);
        }
        if ((before < 0.0) != (after < 0.0)) {
            rest.push_back(from.towards(to, before / (before - after)));
        }
    }
    return rest;
}

/// What of a polygon is in view, and therefore has pixels.
std::vector<ClipPoint> cutToView(std::vector<ClipPoint> polygon)
{
    polygon = cut(polygon, [](const ClipPoint& point) { return point.behindNear(); });
    polygon = cut(polygon, [](const ClipPoint& point) { return point.beforeFar(); });
    polygon = cut(polygon, [](const ClipPoint& point) { return point.w - point.x; });
    polygon = cut(polygon, [](const ClipPoint& point) { return point.w + point.x; });
    polygon = cut(polygon, [](const ClipPoint& point) { return point.w - point.y; });
    return cut(polygon, [](const ClipPoint& point) { return point.w + point.y; });
}

} // namespace

VectorCanvas::VectorCanvas(VectorFormat format, int width, int height, float pixelsPerInch, const std::string& title,
                           const std::string& creator)
    : m_format(format), m_page{0, 0, width, height}, m_area(m_page), m_title(title), m_creator(creator)
{
    const double scale = c_pointsPerInch / static_cast<double>(pixelsPerInch);
    const auto make =
        format == VectorFormat::pdf ? cairo_pdf_surface_create_for_stream : cairo_svg_surface_create_for_stream;
    m_surface.reset(make(vxTakeVectorBytes, &m_bytes, width * scale, height * scale), cairo_surface_destroy);
    require(cairo_surface_status(m_surface.get()));
    if (format == VectorFormat::pdf) {
        const auto set = [&](cairo_pdf_metadata_t key, const std::string& text) {
            if (!text.empty()) {
                cairo_pdf_surface_set_metadata(m_surface.get(), key, text.c_str());
            }
        };
        set(CAIRO_PDF_METADATA_TITLE, title);
        set(CAIRO_PDF_METADATA_CREATOR, creator);
        // Two exports of one view are equal.
        cairo_pdf_surface_set_metadata(m_surface.get(), CAIRO_PDF_METADATA_CREATE_DATE, nullptr);
    } else {
        cairo_svg_surface_set_document_unit(m_surface.get(), CAIRO_SVG_UNIT_PT);
    }
    m_context.reset(cairo_create(m_surface.get()), cairo_destroy);
    require(cairo_status(m_context.get()));
    cairo_scale(m_context.get(), scale, scale);
    const boost::shared_ptr<cairo_font_options_t> options(cairo_font_options_create(), cairo_font_options_destroy);
    cairo_font_options_set_hint_style(options.get(), CAIRO_HINT_STYLE_NONE);
    cairo_font_options_set_hint_metrics(options.get(), CAIRO_HINT_METRICS_OFF);
    cairo_set_font_options(m_context.get(), options.get());
    cairo_set_miter_limit(m_context.get(), c_miterLimit);
}

std::vector<std::uint8_t> VectorCanvas::finish()
{
    require(cairo_status(m_context.get()));
    cairo_surface_show_page(m_surface.get());
    cairo_surface_finish(m_surface.get());
    require(cairo_surface_status(m_surface.get()));
    return m_format == VectorFormat::svg ? completeSvg(m_bytes, m_title, m_creator) : m_bytes;
}

void VectorCanvas::setColor(const Color& color)
{
    cairo_set_source_rgba(m_context.get(), color.red / 255.0, color.green / 255.0, color.blue / 255.0,
                          color.alpha / 255.0);
}

void VectorCanvas::addRect(const PixelRect& rect)
{
    cairo_rectangle(m_context.get(), static_cast<double>(rect.left), static_cast<double>(rect.top),
                    static_cast<double>(rect.right - rect.left), static_cast<double>(rect.bottom - rect.top));
}

void VectorCanvas::fillBackdrop(const Color& top, const Color& bottom)
{
    Color opaqueTop = top;
    Color opaqueBottom = bottom;
    opaqueTop.alpha = opaqueBottom.alpha = 255;
    cairo_rectangle(m_context.get(), 0.0, 0.0, m_page.width, m_page.height);
    if (top == bottom) {
        setColor(opaqueTop);
    } else {
        const PatternPointer pattern(cairo_pattern_create_linear(0.0, 0.0, 0.0, m_page.height), cairo_pattern_destroy);
        addStop(pattern.get(), 0.0, opaqueTop);
        addStop(pattern.get(), 1.0, opaqueBottom);
        cairo_set_source(m_context.get(), pattern.get());
    }
    cairo_fill(m_context.get());
}

void VectorCanvas::drawPicture(const TranslucentPicture& picture)
{
    if (picture.argb.empty()) {
        return;
    }
    const boost::shared_ptr<cairo_surface_t> image(
        cairo_image_surface_create(CAIRO_FORMAT_ARGB32, picture.width, picture.height), cairo_surface_destroy);
    require(cairo_surface_status(image.get()));
    unsigned char* const rows = cairo_image_surface_get_data(image.get());
    const std::ptrdiff_t stride = cairo_image_surface_get_stride(image.get());
    const auto width = static_cast<std::size_t>(picture.width);
    for (int y = 0; y < picture.height; ++y) {
        void* const row = rows + y * stride;
        std::copy_n(picture.argb.data() + static_cast<std::size_t>(y) * width, width, static_cast<std::uint32_t*>(row));
    }
    cairo_surface_mark_dirty(image.get());
    cairo_set_source_surface(m_context.get(), image.get(), picture.left, picture.top);
    cairo_paint(m_context.get());
}

void VectorCanvas::enterArea(const PixelArea& area)
{
    m_area = area;
    cairo_save(m_context.get());
    cairo_rectangle(m_context.get(), area.x, area.y, area.width, area.height);
    cairo_clip(m_context.get());
}

void VectorCanvas::leaveArea()
{
    m_area = m_page;
    cairo_restore(m_context.get());
}

void VectorCanvas::fillRect(const PixelRect& rect, const Color& color)
{
    setColor(color);
    addRect(rect);
    cairo_fill(m_context.get());
}

void VectorCanvas::strokeRect(const PixelRect& rect, float width, const Color& color)
{
    setColor(color);
    const float half = 0.5f * width;
    addRect({rect.left + half, rect.top + half, rect.right - half, rect.bottom - half});
    cairo_set_line_join(m_context.get(), CAIRO_LINE_JOIN_MITER);
    cairo_set_line_width(m_context.get(), static_cast<double>(width));
    cairo_stroke(m_context.get());
}

void VectorCanvas::fillPolygon(std::span<const PixelPoint> corners, const Color& color)
{
    setColor(color);
    for (const PixelPoint& corner : corners) {
        cairo_line_to(m_context.get(), static_cast<double>(corner.x), static_cast<double>(corner.y));
    }
    cairo_fill(m_context.get());
}

void VectorCanvas::useColorTable(const boost::shared_ptr<const vxgraphics3d::SceneGraphPlotGroup>&, int,
                                 const boost::shared_ptr<const vxgraphics3d::ColorTable>& table)
{
    m_table = table;
}

void VectorCanvas::fillWithGradient(const PixelRect& rect, PixelPoint from, PixelPoint to, float fromColor,
                                    float toColor)
{
    const double x = static_cast<double>(from.x);
    const double y = static_cast<double>(from.y);
    const double dx = static_cast<double>(to.x - from.x);
    const double dy = static_cast<double>(to.y - from.y);
    cairo_save(m_context.get());
    addRect(rect);
    cairo_clip(m_context.get());
    for (const GradientPiece& piece : gradientOf(*m_table, fromColor, toColor)) {
        const auto colorOf = [](const GradientPiece::Stop& stop) {
            return Color{stop.color[0], stop.color[1], stop.color[2], 255};
        };
        if (piece.stops.size() == 1) {
            setColor(colorOf(piece.stops.front()));
        } else {
            const PatternPointer pattern(cairo_pattern_create_linear(x, y, x + dx, y + dy), cairo_pattern_destroy);
            for (const GradientPiece::Stop& stop : piece.stops) {
                addStop(pattern.get(), stop.position, colorOf(stop));
            }
            cairo_set_source(m_context.get(), pattern.get());
        }
        // Up to the end of the bar, so that no gap is seen between two pieces.
        const double begin = piece.begin;
        const double left = dx == 0.0 ? static_cast<double>(rect.left) : x + begin * dx;
        const double right = dx == 0.0 ? static_cast<double>(rect.right) : x + dx;
        const double top = dy == 0.0 ? static_cast<double>(rect.top) : y + begin * dy;
        const double bottom = dy == 0.0 ? static_cast<double>(rect.bottom) : y + dy;
        cairo_rectangle(m_context.get(), std::min(left, right), std::min(top, bottom), std::abs(right - left),
                        std::abs(bottom - top));
        cairo_fill(m_context.get());
    }
    cairo_restore(m_context.get());
}

void VectorCanvas::fillWithColorTable(const PixelRect& rect, float bottomColor, float topColor)
{
    fillWithGradient(rect, {rect.left, rect.bottom}, {rect.left, rect.top}, bottomColor, topColor);
}

void VectorCanvas::fillWithColorTableAcross(const PixelRect& rect, float leftColor, float rightColor)
{
    fillWithGradient(rect, {rect.left, rect.top}, {rect.right, rect.top}, leftColor, rightColor);
}

void VectorCanvas::fillPolygonWithColorTable(std::span<const PixelPoint> corners, float position)
{
    const std::array<int, 3> color = gradientOf(*m_table, position, position).front().stops.front().color;
    fillPolygon(corners, {color[0], color[1], color[2], 255});
}

void VectorCanvas::drawText(const TextLayout& text, FontSet& fonts, float left, float top, const TextColors& colors)
{
    cairo_save(m_context.get());
    cairo_translate(m_context.get(), static_cast<double>(std::round(left)), static_cast<double>(std::round(top)));
    drawGlyphs(text, fonts, colors);
    cairo_restore(m_context.get());
}

void VectorCanvas::drawTextUpwards(const TextLayout& text, FontSet& fonts, float left, float bottom,
                                   const TextColors& colors)
{
    cairo_save(m_context.get());
    cairo_translate(m_context.get(), static_cast<double>(std::round(left)), static_cast<double>(std::round(bottom)));
    cairo_rotate(m_context.get(), -0.5 * std::numbers::pi);
    drawGlyphs(text, fonts, colors);
    cairo_restore(m_context.get());
}

void VectorCanvas::drawGlyphs(const TextLayout& text, FontSet& fonts, const TextColors& colors)
{
    /// Characters in one font.
    struct Run {
        FontFace face;
        int pixelSize;
        std::string utf8{};
        std::vector<cairo_glyph_t> glyphs{};
        std::vector<cairo_text_cluster_t> clusters{};
    };
    std::vector<Run> runs;
    for (const PlacedCharacter& placed : text.characters) {
        const FontSet::Found found = fonts.find(placed.character, placed.style);
        if (found.glyph->width == 0) {
            continue;
        }
        const int size = found.font->getPixelSize();
        if (runs.empty() || runs.back().face != found.face || runs.back().pixelSize != size) {
            runs.push_back({found.face, size});
        }
        const std::string bytes = utf8Of(placed.character);
        Run& run = runs.back();
        run.utf8 += bytes;
        run.glyphs.push_back({m_fonts.glyphOf(found.character, found.face), static_cast<double>(placed.x),
                              static_cast<double>(placed.y)});
        run.clusters.push_back({static_cast<int>(bytes.size()), 1});
    }
    const auto useFont = [&](const Run& run) {
        cairo_set_font_face(m_context.get(), m_fonts.face(run.face));
        cairo_set_font_size(m_context.get(), run.pixelSize);
    };
    if (colors.halo) {
        for (const Run& run : runs) {
            useFont(run);
            cairo_glyph_path(m_context.get(), run.glyphs.data(), static_cast<int>(run.glyphs.size()));
        }
        setColor(*colors.halo);
        cairo_set_line_join(m_context.get(), CAIRO_LINE_JOIN_ROUND);
        cairo_set_line_width(m_context.get(), 2.0 * static_cast<double>(haloWidth(fonts.fontSize())));
        cairo_stroke(m_context.get());
    }
    setColor(colors.text);
    for (const Run& run : runs) {
        useFont(run);
        cairo_show_text_glyphs(m_context.get(), run.utf8.data(), static_cast<int>(run.utf8.size()), run.glyphs.data(),
                               static_cast<int>(run.glyphs.size()), run.clusters.data(),
                               static_cast<int>(run.clusters.size()), {});
    }
}

void VectorCanvas::drawLines(std::span<const LineSegment> lines, const LinePainter::Frame& frame, const Color& color)
{
    const double width = static_cast<double>(frame.lineWidth);
    setColor(color);
    cairo_set_line_width(m_context.get(), width);
    cairo_set_line_join(m_context.get(), frame.isRound ? CAIRO_LINE_JOIN_ROUND : CAIRO_LINE_JOIN_MITER);
    // As in the picture: the ends of translucent lines do not reach beyond their points.
    cairo_set_line_cap(m_context.get(), color.alpha < 255 ? CAIRO_LINE_CAP_BUTT
                                        : frame.isRound   ? CAIRO_LINE_CAP_ROUND
                                                          : CAIRO_LINE_CAP_SQUARE);
    std::optional<Point> last;
    for (const LineSegment& line : lines) {
        const auto pixels =
            clipped(ClipPoint::of(frame.toClip, line.from), ClipPoint::of(frame.toClip, line.to), m_area, width);
        if (pixels) {
            // Pieces that continue each other are one line, with joints.
            if (last != pixels->first) {
                cairo_move_to(m_context.get(), pixels->first.x, pixels->first.y);
            }
            cairo_line_to(m_context.get(), pixels->second.x, pixels->second.y);
            last = pixels->second;
        }
    }
    cairo_stroke(m_context.get());
}

void VectorCanvas::addSymbol(RenderSymbol symbol, double radius)
{
    cairo_t* const context = m_context.get();
    const auto polygon = [&](std::initializer_list<Point> corners) {
        cairo_new_sub_path(context);
        for (const Point& corner : corners) {
            cairo_line_to(context, radius * corner.x, radius * corner.y);
        }
        cairo_close_path(context);
    };
    const auto bars = [&](double angle) {
        cairo_save(context);
        cairo_rotate(context, angle);
        polygon({{-1.0, -0.2}, {1.0, -0.2}, {1.0, 0.2}, {-1.0, 0.2}});
        polygon({{-0.2, -1.0}, {0.2, -1.0}, {0.2, 1.0}, {-0.2, 1.0}});
        cairo_restore(context);
    };
    // The shapes of `SymbolPainter`.
    switch (symbol) {
    case RenderSymbol::none:
        break;
    case RenderSymbol::circle:
        cairo_new_sub_path(context);
        cairo_arc(context, 0.0, 0.0, 0.9 * radius, 0.0, 2.0 * std::numbers::pi);
        cairo_close_path(context);
        break;
    case RenderSymbol::square:
        polygon({{-0.8, -0.8}, {0.8, -0.8}, {0.8, 0.8}, {-0.8, 0.8}});
        break;
    case RenderSymbol::diamond:
        polygon({{0.0, -1.1}, {1.1, 0.0}, {0.0, 1.1}, {-1.1, 0.0}});
        break;
    case RenderSymbol::triangleUp:
        polygon({{0.0, -1.02}, {0.987, 0.69}, {-0.987, 0.69}});
        break;
    case RenderSymbol::triangleDown:
        polygon({{0.0, 1.02}, {-0.987, -0.69}, {0.987, -0.69}});
        break;
    case RenderSymbol::plus:
        bars(0.0);
        break;
    case RenderSymbol::cross:
        bars(0.25 * std::numbers::pi);
        break;
    case RenderSymbol::star:
        bars(0.0);
        bars(0.25 * std::numbers::pi);
        break;
    }
}

void VectorCanvas::drawSymbols(std::span<const Vector3f> positions, const SymbolPainter::Frame& frame)
{
    cairo_t* const context = m_context.get();
    const double radius = std::max(0.5 * static_cast<double>(frame.size), 0.5);
    cairo_set_source_rgba(context, static_cast<double>(frame.color[0]), static_cast<double>(frame.color[1]),
                          static_cast<double>(frame.color[2]), static_cast<double>(frame.color[3]));
    for (const Vector3f& position : positions) {
        const ClipPoint point = ClipPoint::of(frame.toClip, position);
        const auto pixel = clipped(point, point, m_area, 2.0 * radius);
        if (pixel) {
            cairo_save(context);
            cairo_translate(context, pixel->first.x, pixel->first.y);
            addSymbol(frame.symbol, radius);
            cairo_restore(context);
            cairo_fill(context);
        }
    }
}

void VectorCanvas::fillOutline(std::span<const Vector3f> lines, const Matrixf& toClip, const Color& color)
{
    if (lines.size() < 4) {
        return;
    }
    // One way along all lines, by way of the first point between those that do not follow each other: back to it from
    // the end of a chain, which closes the chain, and out to the next one and back, which encloses nothing.
    std::vector<ClipPoint> way;
    const auto goTo = [&](const Vector3f& point) { way.push_back(ClipPoint::of(toClip, point)); };
    Vector3f last = lines.front();
    goTo(last);
    for (std::size_t i = 0; i + 1 < lines.size(); i += 2) {
        if (lines[i] != last) {
            goTo(lines.front());
            goTo(lines[i]);
        }
        goTo(lines[i + 1]);
        last = lines[i + 1];
    }
    if (std::ranges::any_of(way, [](const ClipPoint& p) { return !std::isfinite(p.x + p.y + p.z + p.w); })) {
        return;
    }
    for (const ClipPoint& point : cutToView(std::move(way))) {
        const Point pixel = pixelOf(point, m_area);
        cairo_line_to(m_context.get(), pixel.x, pixel.y);
    }
    cairo_close_path(m_context.get());
    setColor(color);
    cairo_set_fill_rule(m_context.get(), CAIRO_FILL_RULE_EVEN_ODD);
    cairo_fill(m_context.get());
    cairo_set_fill_rule(m_context.get(), CAIRO_FILL_RULE_WINDING);
}

void VectorCanvas::drawSolids(std::span<const Solid> solids, PixelPoint origin)
{
    for (const Solid& solid : solids) {
        drawSolidAsVectors(*m_context, solid, origin);
    }
}

} // namespace vxrenderer
