#include "renderer/objects/partpainting.h"

#include "graphics3d/foundation/image.h"
#include "graphics3d/geometry/objectparts.h"
#include "graphics3d/parts/markingmodesetup.h"
#include "graphics3d/parts/pointcollection.h"
#include "graphics3d/parts/sceneobjectlabel.h"
#include "graphics3d/parts/sheetcollection.h"
#include "renderer/frame/view.h"
#include "renderer/objects/arrowhead.h"
#include "renderer/paint/linepainter.h"
#include "renderer/upload/imagetextures.h"
#include "renderer/upload/uploadcache.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace vxrenderer {
namespace {

using namespace vxgraphics3d;

/// Length of the arrow heads on lines, in pixels of the screen for each pixel of width and at least.
constexpr float c_headPerWidth = 4.0f;
constexpr float c_shortestHead = 9.0f;
/// Images of materials on the longest side of an object.
constexpr float c_imagesPerObject = 4.0f;

std::vector<MeshPart> meshPartsOf(const SheetCollection& sheets)
{
    std::vector<MeshPart> parts;
    parts.reserve(static_cast<std::size_t>(sheets.getNumParts()));
    for (int i = 0; i < sheets.getNumParts(); ++i) {
        parts.push_back({sheets.getPart(i).getVertices(), sheets.getPart(i).getTriangles()});
    }
    return parts;
}

/// Sheets that show the same image, or none.
struct ImageRanges {
    boost::shared_ptr<Image> image;
    std::vector<PartRange> ranges;
};

/// All sheets, the images in the order of the first sheets that show them.
std::vector<ImageRanges> rangesByImage(const SheetCollection& sheets, const PartPainting::Images& images)
{
    const auto isUsed = [&](const auto& material) {
        const auto image = images.find(material.first);
        return image != images.end() && image->second;
    };
    if (std::ranges::none_of(sheets.getMaterials(), isUsed)) {
        return {{nullptr, {{0, static_cast<std::size_t>(sheets.getNumParts())}}}};
    }
    std::vector<ImageRanges> found;
    std::map<boost::shared_ptr<Image>, std::size_t> positions;
    for (int i = 0; i < sheets.getNumParts(); ++i) {
        const boost::shared_ptr<std::string>& material = sheets.getPart(i).getMaterial();
        const auto named = material ? images.find(*material) : images.end();
        const boost::shared_ptr<Image> image = named != images.end() ? named->second : nullptr;
        const auto [position, isNew] = positions.try_emplace(image, found.size());
        if (isNew) {
            found.push_back({image, {}});
        }
        std::vector<PartRange>& ranges = found[position->second].ranges;
        const auto number = static_cast<std::size_t>(i);
        if (!ranges.empty() && ranges.back().first + ranges.back().count == number) {
            ++ranges.back().count;
        } else {
            ranges.push_back({number, 1});
        }
    }
    return found;
}

/// Adds the segments of a line, with its number as texture coordinate.
void addPieces(const Line& line, int index, std::vector<LineMesh::Piece>& pieces)
{
    const VertexBufferCoords& vertices = line.getVertices();
    const auto number = static_cast<float>(index);
    for (int v = 0; v + 1 < vertices.getNumberOfVertices(); v += 2) {
        pieces.push_back({vertices.getCoord(v), vertices.getCoord(v + 1), number, number});
    }
}

} // namespace

std::vector<LineMesh::Piece> piecesOf(const LineCollection& lines)
{
    std::vector<LineMesh::Piece> pieces;
    pieces.reserve(static_cast<std::size_t>(lines.getNumVertices() / 2));
    for (int i = 0; i < lines.getNumParts(); ++i) {
        addPieces(lines.getPart(i), i, pieces);
    }
    return pieces;
}

std::vector<Instance> instancesOf(const PointCollection& points)
{
    std::vector<Instance> instances;
    instances.reserve(static_cast<std::size_t>(points.getNumParts()));
    for (int i = 0; i < points.getNumParts(); ++i) {
        instances.push_back({.position = points.getPart(i).getPosition(), .axis = {}, .u = 0.0f});
    }
    return instances;
}

void visitLabels(const ObjectParts& parts, const MarkingModeSetup& markings, const TakeLabel& take)
{
    // Texts of points and lines lie next to them, those of faces and bodies on them.
    const auto visit = [&](const auto& collection, bool isBeside) {
        for (int i = 0; i < collection.getNumParts() && collection.getNumLabels() > 0; ++i) {
            const auto& part = collection.getPart(i);
            const Marking& marking = markings.getMarking(rowOfMesh(part.getDisplayFlags()));
            if (part.getLabel() && marking.isVisible()) {
                take({.point = part.getLabel()->getPosition(),
                      .text = part.getLabel()->getText(),
                      .color = marking.getLabelColor(),
                      .isBeside = isBeside});
            }
        }
    };
    visit(parts.getSubdomains(), false);
    visit(parts.getSheets(), false);
    visit(parts.getLines(), true);
    visit(parts.getPoints(), true);
}

MarkingType rowOfMesh(unsigned flags)
{
    return MarkingModeSetup::getMarkingType(static_cast<int>(flags & 0xffffu & ~unsigned{MarkMeshed}));
}

PartPainting::PartPainting(const ObjectItem& object, const PaintContext& context)
    : m_object(object), m_context(context), m_look{context.view.sceneToEye, {}}
{
    m_look.material.shininess = object->getShininess();
    for (std::size_t i = 0; i < PartRows::c_numRows; ++i) {
        m_layers.push_back(context.objects.markings.getMarking(static_cast<MarkingType>(i)).getPolygonLayer());
    }
    std::ranges::sort(m_layers);
    m_layers.erase(std::unique(m_layers.begin(), m_layers.end()), m_layers.end());
}

int PartPainting::rankOf(int layer) const
{
    // Layer 0 is that of plots. Only the order of layers counts, so that none of them reaches the lines.
    const auto position = [this](int value) { return std::ranges::lower_bound(m_layers, value) - m_layers.begin(); };
    return static_cast<int>(position(layer) - position(0));
}

PartRows PartPainting::rowsOf(const StyleOf& styleOf, const std::optional<Color>& color) const
{
    PartRows rows;
    for (std::size_t i = 0; i < PartRows::c_numRows; ++i) {
        const Marking& marking = m_context.objects.markings.getMarking(static_cast<MarkingType>(i));
        const Style style = styleOf(marking);
        const float size = style.size * m_context.scale;
        const DepthShift above = size > 0.0f ? m_context.view.aboveFaces(size) : DepthShift();
        const DepthShift layer = m_context.view.aboveLayers(rankOf(marking.getPolygonLayer()));
        PartRows::Row& row = rows.rows[i];
        row.color = channelsOf(i == RowNormal && color ? *color : style.color);
        row.towardsEye = {above.z + layer.z, above.w + layer.w};
        row.size = size;
        row.isVisible = marking.isVisible() ? 1 : 0;
    }
    return rows;
}

PartRows PartPainting::faceRows(const std::optional<Color>& color) const
{
    return rowsOf([](const Marking& row) { return Style{row.getSheetColor(), 0.0f}; }, color);
}

PartRows PartPainting::lineRows(const std::optional<Color>& color) const
{
    return rowsOf(
        [](const Marking& row) {
            return Style{row.getLineColor(), std::max(row.getLineWidth(), 1.0f)};
        },
        color);
}

PartRows PartPainting::pointRows(const std::optional<Color>& color) const
{
    return rowsOf(
        [](const Marking& row) {
            return Style{row.getPointColor(), std::max(row.getPointSize(), 1.0f)};
        },
        color);
}

template <class Parts>
const PartTable& PartPainting::tableOf(int number, const Parts& parts) const
{
    std::vector<std::uint8_t> rows(static_cast<std::size_t>(parts.getNumParts()), RowNormal);
    if (parts.getNumMarked() > 0) {
        for (int i = 0; i < parts.getNumParts(); ++i) {
            rows[static_cast<std::size_t>(i)] =
                static_cast<std::uint8_t>(MarkingModeSetup::getMarkingType(parts.getPart(i).getDisplayFlags()));
        }
    }
    return m_context.uploads.partTable(m_object, number, rows);
}

void PartPainting::drawAll(const ObjectParts& parts, const Images& images) const
{
    const auto colorOf = [&](int level) -> std::optional<Color> {
        const bool isHighest = std::min(parts.getHighestLevel(), PartSheet) == level;
        return isHighest && m_object->isObjectColorUsed() ? std::optional(m_object->getObjectColor()) : std::nullopt;
    };
    drawSheets(parts.getSheets(), parts.getChangeId(), colorOf(PartSheet), images);
    drawLines(parts.getLines(), parts.getChangeId(), colorOf(PartLine));
    drawPoints(parts.getPoints(), parts.getChangeId(), colorOf(PartPoint));
    if (m_context.objects.showLineDirections) {
        drawDirections(parts.getLines());
    }
    if (m_context.objects.showLabels) {
        visitLabels(parts, m_context.objects.markings, [this](const SceneLabel& label) { m_context.drawLabel(label); });
    }
}

void PartPainting::drawSheets(const SheetCollection& sheets, int changeId, const std::optional<Color>& color,
                              const Images& images) const
{
    if (sheets.getNumTriangles() < 1) {
        return;
    }
    const Mesh* mesh = m_context.uploads.mesh(m_object, UploadSheets, changeId, [&] { return meshPartsOf(sheets); });
    PartRows rows = faceRows(color);
    const PartTable& table = tableOf(UploadSheets, sheets);
    const BoundingBox& box = m_object->getStoredBoundingBox();
    const Vector3f corner = box.getMin();
    const Vector3f size = box.getMax() - corner;
    const float longest = std::max({size.x, size.y, size.z});
    for (const auto& [image, ranges] : rangesByImage(sheets, images)) {
        const bool isTextured = m_context.images.bind(image) && longest > 0.0f;
        if (isTextured) {
            const float density = image->getScale() > 0.0f ? image->getScale() : 1.0f;
            rows.imagePlace = {corner.x, corner.y, corner.z, density * c_imagesPerObject / longest};
        }
        m_context.drawBody(mesh, {table, rows, ranges, isTextured}, m_look);
    }
}

void PartPainting::drawLines(const LineCollection& lines, int changeId, const std::optional<Color>& color) const
{
    if (lines.getNumVertices() > 0) {
        const LineMesh* pieces =
            m_context.uploads.lines(m_object, UploadLines, changeId, [&] { return piecesOf(lines); });
        const PartRows rows = lineRows(color);
        m_context.drawLines(pieces, {tableOf(UploadLines, lines), rows}, m_look);
    }
}

void PartPainting::drawPoints(const PointCollection& points, int changeId, const std::optional<Color>& color) const
{
    if (points.getNumParts() > 0) {
        const InstanceBuffer* positions =
            m_context.uploads.instances(m_object, UploadPoints, changeId, [&] { return instancesOf(points); });
        const PartRows rows = pointRows(color);
        m_context.drawSymbols(positions, {tableOf(UploadPoints, points), rows}, RenderSymbol::circle, m_look);
    }
}

void PartPainting::drawDirections(const LineCollection& lines) const
{
    const View& view = m_context.view;
    std::array<std::vector<LineSegment>, PartRows::c_numRows> heads;
    for (int i = 0; i < lines.getNumParts(); ++i) {
        const Line& line = lines.getPart(i);
        const auto row = rowOfMesh(line.getDisplayFlags());
        const Marking& marking = m_context.objects.markings.getMarking(row);
        if (!line.getDirectionMarker() || !marking.isVisible()) {
            continue;
        }
        const auto& [position, direction] = *line.getDirectionMarker();
        const Vector3f tip = view.sceneToEye * position;
        const float pixels = m_context.scale * std::max(c_headPerWidth * marking.getLineWidth(), c_shortestHead);
        addArrowHead(heads[static_cast<std::size_t>(row)], tip, tip - view.sceneToEye * (position - direction),
                     pixels * view.pixelSizeAt(tip));
    }
    for (std::size_t i = 0; i < heads.size(); ++i) {
        const Marking& marking = m_context.objects.markings.getMarking(static_cast<MarkingType>(i));
        m_context.drawSegments(heads[i], view.projection, marking.getLineColor(),
                               std::max(marking.getLineWidth(), 1.5f));
    }
}

} // namespace vxrenderer
