// Draw objects with ten thousand faces. Marks are compared with a bare walk over the same rows that updates the same
// flags and counts of parts of the same size in memory; a fill with a bare loop that copies the vertices of each face
// into a new array and narrows its indices into another. The results are compared once.

#include "benchmarks/allocations.h"
#include "datacarrier/renderdraw3d.h"
#include "graphics3d/geometry/scenegraphdrawobjectsolid.h"

#include <benchmark/benchmark.h>

#include <array>
#include <cstddef>
#include <cstring>
#include <initializer_list>
#include <memory>
#include <vector>

namespace vxgraphics3d {
namespace {

using vxdatacarrier::AdjacencyRecord;
using vxdatacarrier::RenderDraw3D;
using Action = SceneGraphObject::MarkingType;

constexpr int c_side = 100;
constexpr int c_numFaces = c_side * c_side;
constexpr int c_numMarks = 1'000'000;

std::size_t at(int index)
{
    return static_cast<std::size_t>(index);
}

void addRow(AdjacencyRecord& relation, int row, std::initializer_list<int> values)
{
    relation.m_rows[at(row)] = {relation.m_numUsed, static_cast<int>(values.size())};
    for (const int value : values) {
        relation.m_values[at(relation.m_numUsed++)] = value;
    }
}

/// A grid of square faces with their lines and points, all around one subdomain.
/// @param columns the number of cells in a row of a face; each cell is two triangles
RenderDraw3D makeGrid(int columns, int rows)
{
    RenderDraw3D record;
    record.m_isValid = true;
    record.m_numSheets = c_numFaces;
    record.m_sheets = std::make_unique<vxdatacarrier::Sheet3D[]>(c_numFaces);
    const int numVertices = (columns + 1) * (rows + 1);
    for (int face = 0; face < c_numFaces; ++face) {
        vxdatacarrier::Sheet3D& sheet = record.m_sheets[at(face)];
        sheet.m_isValid = true;
        sheet.m_numVertices = numVertices;
        sheet.m_vertices = std::make_unique<vxdatacarrier::CoordsNormal3D[]>(at(numVertices));
        for (int i = 0; i < numVertices; ++i) {
            const float x =
                static_cast<float>(face % c_side) + static_cast<float>(i % (columns + 1)) / static_cast<float>(columns);
            const float y =
                static_cast<float>(face / c_side) + static_cast<float>(i / (columns + 1)) / static_cast<float>(rows);
            sheet.m_vertices[at(i)] = {x, y, 0.01f * static_cast<float>(i % 7), 0.0f, 0.0f, 1.0f};
        }
        sheet.m_numTriangles = 2 * columns * rows;
        sheet.m_triangles = std::make_unique<vxdatacarrier::Triangle[]>(at(sheet.m_numTriangles));
        vxdatacarrier::Triangle* triangle = sheet.m_triangles.get();
        for (int cell = 0; cell < columns * rows; ++cell) {
            const int i = cell / columns * (columns + 1) + cell % columns;
            *triangle++ = {i, i + 1, i + columns + 2};
            *triangle++ = {i, i + columns + 2, i + columns + 1};
        }
    }

    const auto point = [](int column, int row) { return row * (c_side + 1) + column; };
    const auto across = [](int column, int row) { return row * c_side + column; };
    const auto up = [](int column, int row) { return c_side * (c_side + 1) + row * (c_side + 1) + column; };
    record.m_numPoints = (c_side + 1) * (c_side + 1);
    record.m_points = std::make_unique<vxdatacarrier::Coords3D[]>(at(record.m_numPoints));
    record.m_numCurves = 2 * c_side * (c_side + 1);
    record.m_curves = std::make_unique<vxdatacarrier::Curve3D[]>(at(record.m_numCurves));
    record.m_lineToPoint.allocate(record.m_numCurves, 2 * record.m_numCurves);
    record.m_sheetToLine.allocate(c_numFaces, 4 * c_numFaces);
    record.m_sheetToPoint.allocate(c_numFaces, 4 * c_numFaces);
    for (int row = 0; row <= c_side; ++row) {
        for (int column = 0; column < c_side; ++column) {
            addRow(record.m_lineToPoint, across(column, row), {point(column, row), point(column + 1, row)});
            addRow(record.m_lineToPoint, up(row, column), {point(row, column), point(row, column + 1)});
        }
    }
    for (int face = 0; face < c_numFaces; ++face) {
        const int c = face % c_side;
        const int r = face / c_side;
        addRow(record.m_sheetToLine, face, {across(c, r), up(c + 1, r), across(c, r + 1), up(c, r)});
        addRow(record.m_sheetToPoint, face, {point(c, r), point(c + 1, r), point(c + 1, r + 1), point(c, r + 1)});
    }
    invertAdjacency(record.m_pointToLine, record.m_lineToPoint, record.m_numPoints, record.m_numCurves);
    invertAdjacency(record.m_pointToSheet, record.m_sheetToPoint, record.m_numPoints, c_numFaces);
    invertAdjacency(record.m_lineToSheet, record.m_sheetToLine, record.m_numCurves, c_numFaces);
    return record;
}

// --- marks -----------------------------------------------------------------------------------------------------------

/// The marks of a part and nothing else, but as far from those of the next one as in a real part.
template <class Part>
struct BarePart {
    unsigned flags = 0;
    int controlLevel = 0;
    int controlCount = 0;
    std::array<int, 7> adjacentCounts{};
    int primary = 0;
    int hidden = 0;
    std::array<char, sizeof(Part) - 12 * sizeof(int)> rest{};
};

template <class Part>
struct BareParts {
    std::vector<std::unique_ptr<BarePart<Part>>> parts;
    int numMarked = 0;

    template <class Parts>
    explicit BareParts(const Parts& real)
    {
        for (int i = 0; i < real.getNumParts(); ++i) {
            parts.push_back(std::make_unique<BarePart<Part>>());
            parts.back()->controlLevel = real.getPart(i).getControlLevel();
            parts.back()->controlCount = real.getPart(i).getControlCount();
        }
    }

    BarePart<Part>& operator[](int index) { return *parts[at(index)]; }

    void countPrimary(int index, bool on)
    {
        BarePart<Part>& part = *parts[at(index)];
        const bool wasMarked = (part.flags & 0xffff) != 0;
        part.primary += on ? 1 : -1;
        part.flags = part.primary > 0 ? part.flags | MarkPrimaryAdjacent : part.flags & ~MarkPrimaryAdjacent;
        numMarked += ((part.flags & 0xffff) != 0 ? 1 : 0) - (wasMarked ? 1 : 0);
    }

    bool countHidden(int index, int level, bool on)
    {
        BarePart<Part>& part = *parts[at(index)];
        const bool wasMarked = (part.flags & 0xffff) != 0;
        const unsigned former = part.flags;
        part.adjacentCounts[at(level)] -= on ? 1 : -1;
        if (part.controlLevel == level) {
            part.hidden += on ? 1 : -1;
            part.flags =
                part.hidden >= part.controlCount ? part.flags | MarkHiddenAdjacent : part.flags & ~MarkHiddenAdjacent;
        }
        numMarked += ((part.flags & 0xffff) != 0 ? 1 : 0) - (wasMarked ? 1 : 0);
        return part.flags != former;
    }
};

struct BareSolid {
    const ObjectParts& real;
    BareParts<Sheet> sheets{real.getSheets()};
    BareParts<Line> lines{real.getLines()};
    BareParts<Point> points{real.getPoints()};

    void markPrimary(int index, bool on)
    {
        sheets[index].flags ^= MarkPrimary;
        sheets.numMarked += on ? 1 : -1;
        for (const int line : real.getAdjacents(PartSheet, PartLine).of(index)) {
            lines.countPrimary(line, on);
        }
        for (const int point : real.getAdjacents(PartSheet, PartPoint).of(index)) {
            points.countPrimary(point, on);
        }
    }

    void markHidden(int index, bool on)
    {
        sheets[index].flags ^= MarkHidden;
        sheets.numMarked += on ? 1 : -1;
        for (const int line : real.getAdjacents(PartSheet, PartLine).of(index)) {
            if (lines.countHidden(line, PartSheet, on)) {
                for (const int point : real.getAdjacents(PartLine, PartPoint).of(line)) {
                    points.countHidden(point, PartLine, on);
                }
            }
        }
        for (const int point : real.getAdjacents(PartSheet, PartPoint).of(index)) {
            points.countHidden(point, PartSheet, on);
        }
    }

    void mark(Action action, int index, bool on)
    {
        if (action == SceneGraphObject::MarkingPrimary) {
            markPrimary(index, on);
        } else {
            markHidden(index, on);
        }
    }
};

/// Marks and unmarks the faces in an order without pattern, a million times.
template <class Mark>
void markFaces(Mark mark)
{
    for (int i = 0; i < c_numMarks; ++i) {
        // 7919 has no divisor in common with the number of faces, so each face has its turn in every round.
        mark(static_cast<int>(static_cast<long>(i) * 7919 % c_numFaces), i / c_numFaces % 2 == 0);
    }
}

bool areMarkedEqually(const SceneGraphDrawObjectSolid& solid, BareSolid& bare)
{
    const ObjectParts& parts = solid.getParts();
    const auto isEqual = [](const auto& real, auto& marks) {
        bool result = real.getNumMarked() == marks.numMarked;
        for (int i = 0; i < real.getNumParts(); ++i) {
            result = result && real.getPart(i).getMarkFlags() == marks[i].flags;
        }
        return result;
    };
    return isEqual(parts.getSheets(), bare.sheets) && isEqual(parts.getLines(), bare.lines) &&
           isEqual(parts.getPoints(), bare.points);
}

void checkMarks(benchmark::State& state, Action action)
{
    const auto solid = SceneGraphDrawObjectSolid::create(0);
    solid->fillData(makeGrid(1, 1));
    BareSolid bare{solid->getParts()};
    for (int i = 0; i < 3 * c_numFaces / 2; ++i) {
        const int face = i * 7919 % c_numFaces;
        solid->mark(PartSheet, face, action, i < c_numFaces);
        bare.mark(action, face, i < c_numFaces);
        if (i % 100 == 0 && !areMarkedEqually(*solid, bare)) {
            state.SkipWithError("the marks differ");
            return;
        }
    }
}

void marks(benchmark::State& state, Action action)
{
    checkMarks(state, action);
    const auto solid = SceneGraphDrawObjectSolid::create(0);
    solid->fillData(makeGrid(1, 1));
    const std::size_t before = numAllocations();
    for (auto _ : state) {
        markFaces([&](int face, bool on) { solid->mark(PartSheet, face, action, on); });
    }
    const std::size_t allocations = numAllocations() - before;
    state.counters["allowed"] = 1.5;
    state.counters["allocations"] = static_cast<double>(allocations);
}

void marksLimit(benchmark::State& state, Action action)
{
    const auto solid = SceneGraphDrawObjectSolid::create(0);
    solid->fillData(makeGrid(1, 1));
    BareSolid bare{solid->getParts()};
    for (auto _ : state) {
        markFaces([&](int face, bool on) { bare.mark(action, face, on); });
        benchmark::DoNotOptimize(bare.points.numMarked);
    }
}

BENCHMARK_CAPTURE(marks, primary, SceneGraphObject::MarkingPrimary)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(marksLimit, primary, SceneGraphObject::MarkingPrimary)
    ->Name("marks_limit/primary")
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(marks, hidden, SceneGraphObject::MarkingHidden)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(marksLimit, hidden, SceneGraphObject::MarkingHidden)
    ->Name("marks_limit/hidden")
    ->Unit(benchmark::kMillisecond);

// --- fills -----------------------------------------------------------------------------------------------------------

struct BareFace {
    std::unique_ptr<VertexNormal[]> vertices;
    std::unique_ptr<unsigned short[]> indices;
};

std::vector<BareFace> copyFaces(const RenderDraw3D& record)
{
    std::vector<BareFace> faces(at(record.m_numSheets));
    for (std::size_t face = 0; face < faces.size(); ++face) {
        const vxdatacarrier::Sheet3D& sheet = record.m_sheets[face];
        faces[face].vertices.reset(new VertexNormal[at(sheet.m_numVertices)]);
        faces[face].indices.reset(new unsigned short[at(3 * sheet.m_numTriangles)]);
        std::memcpy(faces[face].vertices.get(), sheet.m_vertices.get(), at(sheet.m_numVertices) * sizeof(VertexNormal));
        unsigned short* out = faces[face].indices.get();
        for (std::size_t i = 0; i < at(sheet.m_numTriangles); ++i, out += 3) {
            out[0] = static_cast<unsigned short>(sheet.m_triangles[i].a);
            out[1] = static_cast<unsigned short>(sheet.m_triangles[i].b);
            out[2] = static_cast<unsigned short>(sheet.m_triangles[i].c);
        }
    }
    return faces;
}

bool areEqual(const SheetCollection& sheets, const std::vector<BareFace>& faces)
{
    for (int i = 0; i < sheets.getNumParts(); ++i) {
        const Sheet& sheet = sheets.getPart(i);
        const BareFace& face = faces[at(i)];
        if (std::memcmp(sheet.getVertices().vertices(), face.vertices.get(),
                        at(sheet.getVertices().getNumberOfVertices()) * sizeof(VertexNormal)) != 0 ||
            std::memcmp(sheet.getTriangles().getIndices16(), face.indices.get(),
                        at(sheet.getTriangles().getNumIndices()) * sizeof(unsigned short)) != 0) {
            return false;
        }
    }
    return true;
}

/// A million triangles in faces of a hundred, without lines and points.
RenderDraw3D makeFaces()
{
    RenderDraw3D record;
    RenderDraw3D grid = makeGrid(10, 5);
    record.m_isValid = true;
    record.m_sheets = std::move(grid.m_sheets);
    record.m_numSheets = c_numFaces;
    return record;
}

void fillSolid(benchmark::State& state)
{
    const RenderDraw3D record = makeFaces();
    const auto solid = SceneGraphDrawObjectSolid::create(0);
    for (auto _ : state) {
        solid->fillData(record);
    }
    if (!areEqual(solid->getParts().getSheets(), copyFaces(record))) {
        state.SkipWithError("the buffers differ");
    }
    state.counters["allowed"] = 1.3;
}
BENCHMARK(fillSolid)->Unit(benchmark::kMillisecond);

void fillSolidLimit(benchmark::State& state)
{
    const RenderDraw3D record = makeFaces();
    std::vector<BareFace> faces;
    for (auto _ : state) {
        // As a fill does, which replaces what the solid has.
        faces.clear();
        faces = copyFaces(record);
        benchmark::DoNotOptimize(faces.data());
    }
}
BENCHMARK(fillSolidLimit)->Name("fillSolid_limit")->Unit(benchmark::kMillisecond);

} // namespace
} // namespace vxgraphics3d
