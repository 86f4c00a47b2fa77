#include "graphics3d/plots/graph/graphfill.h"

#include "graphics3d/plots/graph/graphline.h"
#include "graphics3d/plots/graph/graphpolylines.h"

#include <cmath>
#include <cstddef>

namespace vxgraphics3d {

namespace {

/// Fills the linear version with the points in their order. Those out of range leave no gap.
void fillInOrder(GraphLine& line, const GraphPoints& points, GraphLimits& limits)
{
    const auto count = static_cast<std::size_t>(points.count);
    int numAccepted = 0;
    for (std::size_t i = 0; i < count; ++i) {
        numAccepted += points.isInRange(i) ? 1 : 0;
    }
    if (count < 2 && numAccepted == 0) {
        return;
    }
    line.m_vertices.allocate(points.count);
    if (numAccepted > 1) {
        line.m_strips.internalAllocate(points.count - 1, 1);
        line.m_strips.newStripOf(0, numAccepted);
    }
    VertexCoords* out = line.m_vertices.appendUnwritten(numAccepted);
    GraphLimits own = limits;
    const bool all = numAccepted == points.count;
    for (std::size_t i = 0; i < count; ++i) {
        if (all || points.isInRange(i)) {
            *out = {static_cast<float>(points.x[i]), static_cast<float>(points.y[i]), 0.0f};
            own.cover(out->x, out->y);
            ++out;
        }
    }
    limits = own;
}

// A version with a logarithmic axis consists of runs: the parts of the strips in which the coordinates concerned are
// positive. A positive vertex between two others that are not has no run.

enum class RunStep { none, open, extend };

/// Follows the runs of one version from vertex to vertex.
class RunTracker {
public:
    RunStep step(bool positive, bool nextPositive)
    {
        const bool wasOpen = m_open;
        m_open = positive && (wasOpen || nextPositive);
        return !m_open ? RunStep::none : wasOpen ? RunStep::extend : RunStep::open;
    }

private:
    bool m_open = false;
};

class RunCount {
public:
    void take(RunStep step)
    {
        m_numVertices += step != RunStep::none ? 1 : 0;
        m_numRuns += step == RunStep::open ? 1 : 0;
    }
    void allocate(VertexBufferCoords& vertices, IndexBufferLineStrips& strips) const
    {
        vertices.allocate(m_numVertices);
        strips.internalAllocate(m_numVertices - m_numRuns, m_numRuns);
    }

private:
    int m_numVertices = 0;
    int m_numRuns = 0;
};

class RunFill {
public:
    RunFill(VertexBufferCoords& vertices, IndexBufferLineStrips& strips, GraphLimits& limits)
        : m_vertices(vertices), m_strips(strips), m_limits(limits)
    {}

    void take(RunStep step, float x, float y)
    {
        if (step == RunStep::none) {
            return;
        }
        const int vertex = m_vertices.appendVertex(x, y, 0.0f);
        m_limits.cover(x, y);
        if (step == RunStep::open) {
            m_strips.newStrip(vertex);
        } else {
            m_strips.appendStrip(vertex);
        }
    }

private:
    VertexBufferCoords& m_vertices;
    IndexBufferLineStrips& m_strips;
    GraphLimits& m_limits;
};

/// Calls `visit` for each vertex of each strip, with the steps of the runs of log x, log y and of both. A run of both
/// opens before a vertex that continues it, unless `looksAhead` is false: then it opens alone.
template <class Visit>
void forEachStep(const GraphLine& line, bool looksAhead, Visit visit)
{
    const VertexCoords* vertices = line.m_vertices.vertices();
    const std::vector<int>& starts = line.m_strips.getSegmentStarts();
    const auto inStrips = [&](const auto* indices) {
        for (std::size_t strip = 0; strip + 1 < starts.size(); ++strip) {
            RunTracker runX;
            RunTracker runY;
            RunTracker runXY;
            const int end = starts[strip + 1];
            for (int i = starts[strip]; i < end; ++i) {
                const VertexCoords& vertex = vertices[indices[i]];
                const bool hasNext = i + 1 < end;
                const VertexCoords& next = hasNext ? vertices[indices[i + 1]] : vertex;
                const bool nextX = hasNext && next.x > 0.0f;
                const bool nextY = hasNext && next.y > 0.0f;
                const RunStep x = runX.step(vertex.x > 0.0f, nextX);
                const RunStep y = runY.step(vertex.y > 0.0f, nextY);
                visit(vertex, x, y,
                      runXY.step(x != RunStep::none && y != RunStep::none, !looksAhead || (nextX && nextY)));
            }
        }
    };
    if (line.m_strips.uses32BitIndices()) {
        inStrips(line.m_strips.getIndices32());
    } else {
        inStrips(line.m_strips.getIndices16());
    }
}

void appendPoint(VertexBufferCoords& vertices, GraphLimits& limits, float x, float y)
{
    vertices.allocate(1);
    vertices.appendVertex(x, y, 0.0f);
    limits.cover(x, y);
}

/// The logarithmic versions of a single point.
void fillPoint(GraphLine& line, GraphVersionLimits& limits)
{
    const VertexCoords point = line.m_vertices.vertices()[0];
    if (point.x > 0.0f) {
        appendPoint(line.m_verticesLogX, limits.logX, std::log10(point.x), point.y);
    }
    if (point.y > 0.0f) {
        appendPoint(line.m_verticesLogY, limits.logY, point.x, std::log10(point.y));
    }
    if (point.x > 0.0f && point.y > 0.0f) {
        appendPoint(line.m_verticesLogXY, limits.logXY, std::log10(point.x), std::log10(point.y));
    }
}

void fillLogarithmic(GraphLine& line, GraphVersionLimits& limits)
{
    RunCount countX;
    RunCount countY;
    RunCount countXY;
    forEachStep(line, false, [&](const VertexCoords&, RunStep x, RunStep y, RunStep xy) {
        countX.take(x);
        countY.take(y);
        countXY.take(xy);
    });
    countX.allocate(line.m_verticesLogX, line.m_stripsLogX);
    countY.allocate(line.m_verticesLogY, line.m_stripsLogY);
    countXY.allocate(line.m_verticesLogXY, line.m_stripsLogXY);

    RunFill fillX(line.m_verticesLogX, line.m_stripsLogX, limits.logX);
    RunFill fillY(line.m_verticesLogY, line.m_stripsLogY, limits.logY);
    RunFill fillXY(line.m_verticesLogXY, line.m_stripsLogXY, limits.logXY);
    forEachStep(line, true, [&](const VertexCoords& vertex, RunStep x, RunStep y, RunStep xy) {
        const float logX = x != RunStep::none ? std::log10(vertex.x) : 0.0f;
        const float logY = y != RunStep::none ? std::log10(vertex.y) : 0.0f;
        fillX.take(x, logX, vertex.y);
        fillY.take(y, vertex.x, logY);
        fillXY.take(xy, logX, logY);
    });
}

} // namespace

void fillGraphLine(GraphLine& line, const GraphPoints& points, GraphVersionLimits& limits)
{
    if (points.edges) {
        GraphPolylines(points, limits.linear).fill(line);
    } else {
        fillInOrder(line, points, limits.linear);
    }
    if (line.m_vertices.getNumberOfVertices() == 1) {
        fillPoint(line, limits);
    } else {
        fillLogarithmic(line, limits);
    }
}

} // namespace vxgraphics3d
