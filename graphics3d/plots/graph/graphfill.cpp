#include "graphics3d/plots/graph/graphfill.h"

#include "graphics3d/plots/graph/graphline.h"
#include "graphics3d/plots/graph/graphpolylines.h"

#include <cmath>
#include <cstddef>

namespace vxgraphics3d {

namespace {

/// Fills the linear version with the points in their order. Those out of range leave no gap.
GraphLimits fillInOrder(GraphLine& line, const GraphPoints& points)
{
    GraphLimits limits;
    const auto count = static_cast<std::size_t>(points.count);
    int numAccepted = 0;
    for (std::size_t i = 0; i < count; ++i) {
        numAccepted += points.isInRange(i) ? 1 : 0;
    }
    if (count < 2 && numAccepted == 0) {
        return limits;
    }
    line.m_vertices.allocate(points.count);
    if (numAccepted > 1) {
        line.m_strips.internalAllocate(points.count - 1, 1);
        line.m_strips.newStripOf(0, numAccepted);
    }
    VertexCoords* out = line.m_vertices.appendUnwritten(numAccepted);
    const bool all = numAccepted == points.count;
    for (std::size_t i = 0; i < count; ++i) {
        if (all || points.isInRange(i)) {
            *out = {static_cast<float>(points.x[i]), static_cast<float>(points.y[i]), 0.0f};
            limits.cover(out->x, out->y);
            ++out;
        }
    }
    return limits;
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
    /// Takes a whole strip, which is one run unless it is a single vertex.
    void takeRun(int length)
    {
        m_numVertices += length > 1 ? length : 0;
        m_numRuns += length > 1 ? 1 : 0;
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

/// Writes the runs of one version directly into its buffers. What changes with each vertex is kept here, so that it can
/// stay in registers; a run is counted and indexed when it ends.
class RunFill {
public:
    RunFill(VertexBufferCoords& vertices, IndexBufferLineStrips& strips, const GraphLimits& limits)
        : m_vertices(vertices), m_strips(strips), m_limits(limits), m_next(vertices.appendUnwritten(0))
    {}

    void take(RunStep step, float x, float y)
    {
        if (step == RunStep::none) {
            return;
        }
        if (step == RunStep::open) {
            endRun();
        }
        *m_next++ = {x, y, 0.0f};
        ++m_length;
        m_limits.cover(x, y);
    }

    /// Ends the last run and returns the limits.
    GraphLimits finish()
    {
        endRun();
        return m_limits;
    }

private:
    void endRun()
    {
        if (m_length > 0) {
            const int first = m_vertices.getNumberOfVertices();
            m_vertices.appendUnwritten(m_length);
            m_strips.newStripOf(first, m_length);
            m_length = 0;
        }
    }

    VertexBufferCoords& m_vertices;
    IndexBufferLineStrips& m_strips;
    GraphLimits m_limits;
    VertexCoords* m_next;
    int m_length = 0;
};

template <class Use>
void withIndices(const IndexBufferLineStrips& strips, Use use)
{
    if (strips.uses32BitIndices()) {
        use(strips.getIndices32());
    } else {
        use(strips.getIndices16());
    }
}

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
            const auto* index = indices + starts[strip];
            const auto* const end = indices + starts[strip + 1];
            VertexCoords vertex = vertices[*index];
            bool positiveX = vertex.x > 0.0f;
            bool positiveY = vertex.y > 0.0f;
            while (index != end) {
                ++index;
                const VertexCoords next = index != end ? vertices[*index] : VertexCoords{};
                const bool nextX = next.x > 0.0f;
                const bool nextY = next.y > 0.0f;
                const RunStep x = runX.step(positiveX, nextX);
                const RunStep y = runY.step(positiveY, nextY);
                visit(vertex, x, y,
                      runXY.step(x != RunStep::none && y != RunStep::none, !looksAhead || (nextX && nextY)));
                vertex = next;
                positiveX = nextX;
                positiveY = nextY;
            }
        }
    };
    withIndices(line.m_strips, inStrips);
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

/// The logarithmic versions of a line of positive points alone, in which every strip is one run of all versions: the
/// usual case, several times faster than following the runs.
void fillPositive(GraphLine& line, GraphVersionLimits& limits)
{
    RunCount count;
    const std::vector<int>& starts = line.m_strips.getSegmentStarts();
    for (std::size_t strip = 0; strip + 1 < starts.size(); ++strip) {
        count.takeRun(starts[strip + 1] - starts[strip]);
    }
    count.allocate(line.m_verticesLogX, line.m_stripsLogX);
    count.allocate(line.m_verticesLogY, line.m_stripsLogY);
    count.allocate(line.m_verticesLogXY, line.m_stripsLogXY);

    const VertexCoords* vertices = line.m_vertices.vertices();
    GraphLimits values;
    GraphLimits logs;
    withIndices(line.m_strips, [&](const auto* indices) {
        for (std::size_t strip = 0; strip + 1 < starts.size(); ++strip) {
            const int length = starts[strip + 1] - starts[strip];
            if (length < 2) {
                continue;
            }
            const int first = line.m_verticesLogXY.getNumberOfVertices();
            VertexCoords* logX = line.m_verticesLogX.appendUnwritten(length);
            VertexCoords* logY = line.m_verticesLogY.appendUnwritten(length);
            VertexCoords* logXY = line.m_verticesLogXY.appendUnwritten(length);
            const auto* index = indices + starts[strip];
            for (int i = 0; i < length; ++i) {
                const VertexCoords vertex = vertices[index[i]];
                const float x = std::log10(vertex.x);
                const float y = std::log10(vertex.y);
                logX[i] = {x, vertex.y, 0.0f};
                logY[i] = {vertex.x, y, 0.0f};
                logXY[i] = {x, y, 0.0f};
                logs.cover(x, y);
                values.cover(vertex.x, vertex.y);
            }
            line.m_stripsLogX.newStripOf(first, length);
            line.m_stripsLogY.newStripOf(first, length);
            line.m_stripsLogXY.newStripOf(first, length);
        }
    });
    limits.logX.merge({logs.minX, logs.maxX, values.minY, values.maxY});
    limits.logY.merge({values.minX, values.maxX, logs.minY, logs.maxY});
    limits.logXY.merge(logs);
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
    limits.logX = fillX.finish();
    limits.logY = fillY.finish();
    limits.logXY = fillXY.finish();
}

} // namespace

void fillGraphLine(GraphLine& line, const GraphPoints& points, GraphVersionLimits& limits)
{
    const GraphLimits own = points.edges ? GraphPolylines(points).fill(line) : fillInOrder(line, points);
    limits.linear.merge(own);
    if (line.m_vertices.getNumberOfVertices() < 1) {
        return;
    }
    if (line.m_vertices.getNumberOfVertices() == 1) {
        fillPoint(line, limits);
    } else if (own.minX > 0.0f && own.minY > 0.0f) {
        fillPositive(line, limits);
    } else {
        fillLogarithmic(line, limits);
    }
}

} // namespace vxgraphics3d
