#include "graphics3d/plots/vector/scenegraphplotribbon3d.h"

#include "datacarrier/postdataview.h"
#include "graphics3d/plots/plotinput.h"

#include <boost/make_shared.hpp>

#include <array>
#include <cstddef>
#include <limits>
#include <stdexcept>
#include <string>
#include <utility>

using vxdatacarrier::c_colorData;
using vxdatacarrier::PostDataObject;
using vxdatacarrier::PostDataRole;
using vxdatacarrier::PostDataView;

namespace vxgraphics3d {

namespace {

constexpr PostDataRole c_widthData{PostDataObject::RadiusData, "DataRole.RADIUS"};
constexpr std::array<PostDataRole, 3> c_across{{{PostDataObject::FirstDirectionX, "DataRole.FIRST_DIRECTION_X"},
                                                {PostDataObject::FirstDirectionY, "DataRole.FIRST_DIRECTION_Y"},
                                                {PostDataObject::FirstDirectionZ, "DataRole.FIRST_DIRECTION_Z"}}};
constexpr std::array<PostDataRole, 3> c_normals{{{PostDataObject::SecondDirectionX, "DataRole.SECOND_DIRECTION_X"},
                                                 {PostDataObject::SecondDirectionY, "DataRole.SECOND_DIRECTION_Y"},
                                                 {PostDataObject::SecondDirectionZ, "DataRole.SECOND_DIRECTION_Z"}}};

/// Vertices of a ribbon across its line.
constexpr int c_rowLength = 3;

/// The components of a direction at each point.
struct Directions {
    Directions(const PostDataView& record, const std::array<PostDataRole, 3>& roles)
        : x(record.data(0, roles[0]).data()), y(record.data(0, roles[1]).data()), z(record.data(0, roles[2]).data())
    {}

    const double* x;
    const double* y;
    const double* z;
};

} // namespace

struct SceneGraphPlotRibbon3d::Input {
    explicit Input(const PostDataView& record)
        : box(boxOf(record.bounds(1), 3)),
          positions(record, 0, 3),
          colors(record, 0, c_colorData, ValueScale::ofGroup(record, 0, c_colorData)),
          widths(record.data(0, c_widthData).data()),
          across(record, c_across),
          normals(record, c_normals),
          lines(LineEnds::ofElements(record, 0))
    {}

    BoundingBox box;
    PointPositions positions;
    PointColors colors;
    const double* widths;
    Directions across;
    Directions normals;
    LineEnds lines;
};

SceneGraphPlotRibbon3d::Point::Point(double ax, double ay, double az, double aTexCoord, double aWidth, double acrossX,
                                     double acrossY, double acrossZ, double normalX, double normalY, double normalZ)
    : position(ax, ay, az),
      across(acrossX, acrossY, acrossZ),
      normal(normalX, normalY, normalZ),
      texCoord(static_cast<float>(aTexCoord)),
      width(static_cast<float>(aWidth))
{}

SceneGraphPlotRibbon3d::SceneGraphPlotRibbon3d(int id) : SceneGraphSingleTexturePlot(PlotType::ribbon3d, id) {}

SceneGraphPlotRibbon3d::~SceneGraphPlotRibbon3d() = default;

void SceneGraphPlotRibbon3d::resetPlotData() {}

bool SceneGraphPlotRibbon3d::isValid() const
{
    return !m_points.empty() && !m_segments.empty();
}

SceneGraphPlot::Fill SceneGraphPlotRibbon3d::prepareFill(const PostDataView& record)
{
    return [this, input = Input(record)] { fillPlotImpl(input); };
}

void SceneGraphPlotRibbon3d::fillPlotImpl(const Input& input)
{
    const auto count = static_cast<std::size_t>(input.positions.count);
    m_ribbons.clear();
    m_points.clear();
    m_segments.clear();
    try {
        m_points.reserve(count);
        const PointPositions& at = input.positions;
        for (std::size_t i = 0; i < count; ++i) {
            const double width = input.widths[i] < 0.0 ? 0.0 : input.widths[i];
            m_points.emplace_back(at.x[i], at.y[i], at.z[i], input.colors.scale(input.colors.values[i]), width,
                                  input.across.x[i], input.across.y[i], input.across.z[i], input.normals.x[i],
                                  input.normals.y[i], input.normals.z[i]);
        }
        assignSegments(m_segments, input.lines);
        computeRibbons();
    } catch (...) {
        m_points.clear();
        m_segments.clear();
        throw;
    }
    setBoundingBox(input.box);
}

void SceneGraphPlotRibbon3d::setWidthScaleFactor(float factor)
{
    if (factor == m_widthScaleFactor) {
        return;
    }
    const float previous = std::exchange(m_widthScaleFactor, factor);
    try {
        computeRibbons();
    } catch (...) {
        m_widthScaleFactor = previous;
        markGeometryChanged();
        throw;
    }
    markGeometryChanged();
}

void SceneGraphPlotRibbon3d::computeRibbons()
{
    m_ribbons.clear();
    try {
        forEachChain(m_segments, [this](std::span<const LineSegment> chain) { addRibbon(chain); });
    } catch (...) {
        m_ribbons.clear();
        throw;
    }
}

void SceneGraphPlotRibbon3d::addRibbon(std::span<const LineSegment> chain)
{
    if (chain.size() > std::numeric_limits<int>::max() / (4 * c_rowLength)) {
        throw std::invalid_argument("SceneGraphPlotRibbon3d: a ribbon of " + std::to_string(chain.size()) +
                                    " lines is too large.");
    }
    const int numLines = static_cast<int>(chain.size());
    const auto ribbon = boost::make_shared<Ribbon>();
    ribbon->m_ribbonVertices.allocate(c_rowLength * (numLines + 1));
    ribbon->m_ribbonTriangles.internalAllocate(4 * numLines, 1);
    ribbon->m_ribbonTriangles.newSegment();
    m_ribbons.push_back(ribbon);

    VertexNormalTex* out = ribbon->m_ribbonVertices.appendUnwritten(c_rowLength * (numLines + 1));
    const auto writeRow = [points = m_points.data(), factor = m_widthScaleFactor](VertexNormalTex* row, int index) {
        const Point point = points[index];
        for (int side = -1; side <= 1; ++side, ++row) {
            const Vector3f p = point.position + point.across * (static_cast<float>(side) * factor * point.width);
            *row = {p.x, p.y, p.z, point.normal.x, point.normal.y, point.normal.z, point.texCoord, 0.0f};
        }
    };
    for (const LineSegment& segment : chain) {
        writeRow(out, segment.first);
        out += c_rowLength;
    }
    writeRow(out, chain.back().second);
    ribbon->m_ribbonTriangles.appendBands(0, c_rowLength, numLines);
}

} // namespace vxgraphics3d
