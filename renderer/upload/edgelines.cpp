#include "renderer/upload/edgelines.h"

#include "renderer/upload/vertexnumbers.h"

#include <algorithm>
#include <cstddef>
#include <span>
#include <tuple>
#include <vector>

namespace vxrenderer {
namespace {

using vxgraphics3d::Vector3f;
using Edge = EdgeLines::Edge;

/// The cosine of the angle by which a line may turn where it is continued.
constexpr float c_straight = 0.8f;
constexpr std::size_t c_longestGap = 64;

/// Closes gaps between the ends of lines.
class Gaps {
public:
    Gaps(std::vector<Edge>& edges, std::span<const Edge> blunt, std::span<const Vector3f> positions)
        : m_edges(edges), m_positions(positions), m_degrees(positions.size())
    {
        for (const auto& [from, to] : blunt) {
            m_ways.emplace_back(from, to);
            m_ways.emplace_back(to, from);
        }
        std::ranges::sort(m_ways);
    }

    void close()
    {
        std::vector<Edge> ends;
        for (const auto& [from, to] : m_edges) {
            ++m_degrees[from];
            ++m_degrees[to];
        }
        for (const auto& [from, to] : m_edges) {
            if (m_degrees[to] == 1) {
                ends.emplace_back(from, to);
            }
            if (m_degrees[from] == 1) {
                ends.emplace_back(to, from);
            }
        }
        for (const Edge& end : ends) {
            if (m_degrees[end.second] == 1) {
                follow(end);
            }
        }
    }

private:
    /// Continues a line beyond its last edge, if that leads to a line.
    void follow(Edge last)
    {
        std::vector<Edge> path;
        while (path.size() < c_longestGap) {
            const auto next = continuationOf(last);
            if (next == m_ways.end() || std::ranges::find(path, next->second, &Edge::first) != path.end()) {
                return;
            }
            last = *next;
            path.push_back(last);
            if (m_degrees[last.second] > 0) {
                for (const auto& [from, to] : path) {
                    ++m_degrees[from];
                    ++m_degrees[to];
                    m_edges.emplace_back(from, to);
                }
                return;
            }
        }
    }

    std::vector<Edge>::const_iterator continuationOf(const Edge& last) const
    {
        const Vector3f along = (m_positions[last.second] - m_positions[last.first]).normalized();
        auto best = m_ways.end();
        float straightest = c_straight;
        auto way = std::ranges::lower_bound(m_ways, last.second, {}, &Edge::first);
        for (; way != m_ways.end() && way->first == last.second; ++way) {
            const float cosine = along.dot((m_positions[way->second] - m_positions[way->first]).normalized());
            if (way->second != last.first && cosine > straightest) {
                straightest = cosine;
                best = way;
            }
        }
        return best;
    }

    std::vector<Edge>& m_edges;
    std::span<const Vector3f> m_positions;
    /// Blunt edges in both directions.
    std::vector<Edge> m_ways;
    /// Edges that meet at a vertex.
    std::vector<int> m_degrees;
};

/// Leaves out edges from the ends of lines up to other lines, except for clear ones.
/// @param numClear the first ones of the list are
void trimEnds(std::vector<Edge>& edges, std::size_t numClear, std::size_t numVertices)
{
    struct Meeting {
        int degree = 0;
        /// The bits of the indices of all edges; of one edge, its index.
        std::size_t indices = 0;
    };
    std::vector<Meeting> meetings(numVertices);
    for (std::size_t i = 0; i < edges.size(); ++i) {
        for (const std::uint32_t vertex : {edges[i].first, edges[i].second}) {
            ++meetings[vertex].degree;
            meetings[vertex].indices ^= i;
        }
    }
    std::vector<bool> isLeftOut(edges.size());
    for (std::size_t i = numClear; i < edges.size(); ++i) {
        for (std::uint32_t vertex : {edges[i].first, edges[i].second}) {
            for (Meeting* end = &meetings[vertex]; end->degree == 1 && end->indices >= numClear;) {
                const std::size_t last = end->indices;
                isLeftOut[last] = true;
                *end = {};
                vertex = edges[last].first == vertex ? edges[last].second : edges[last].first;
                end = &meetings[vertex];
                --end->degree;
                end->indices ^= last;
            }
        }
    }
    std::size_t i = 0;
    std::erase_if(edges, [&](const Edge&) { return isLeftOut[i++]; });
}

/// Leaves out lines that are shorter than a length if they have ends or no clear edge.
/// @param numClear the first ones of the list are
void dropShort(std::vector<Edge>& edges, std::size_t numClear, std::span<const Vector3f> positions, float leastLength)
{
    struct Line {
        std::uint32_t parent = 0;
        int degree = 0;
        float length = 0.0f;
        bool hasEnds = false;
        bool isClear = false;
    };
    std::vector<Line> lines(positions.size());
    for (std::uint32_t vertex = 0; vertex < lines.size(); ++vertex) {
        lines[vertex].parent = vertex;
    }
    const auto lineOf = [&](std::uint32_t vertex) {
        std::uint32_t root = vertex;
        while (lines[root].parent != root) {
            root = lines[root].parent = lines[lines[root].parent].parent;
        }
        return root;
    };
    for (const auto& [from, to] : edges) {
        ++lines[from].degree;
        ++lines[to].degree;
        lines[lineOf(from)].parent = lineOf(to);
    }
    for (std::size_t i = 0; i < edges.size(); ++i) {
        const auto& [from, to] = edges[i];
        Line& line = lines[lineOf(from)];
        line.length += (positions[to] - positions[from]).length();
        line.hasEnds = line.hasEnds || lines[from].degree == 1 || lines[to].degree == 1;
        line.isClear = line.isClear || i < numClear;
    }
    std::erase_if(edges, [&](const Edge& edge) {
        const Line& line = lines[lineOf(edge.first)];
        return line.length < leastLength && (line.hasEnds || !line.isClear);
    });
}

} // namespace

EdgeLines::EdgeLines(Found found, std::size_t numVertices, const PositionOf& positionOf, float leastLength)
    : m_edges(std::move(found.clear))
{
    const std::size_t numClear = m_edges.size();
    m_edges.insert(m_edges.end(), found.sharp.begin(), found.sharp.end());
    VertexNumbers numbers(numVertices);
    for (std::vector<Edge>* edges : {&m_edges, &found.blunt}) {
        for (auto& [from, to] : *edges) {
            from = numbers.of(from);
            to = numbers.of(to);
        }
    }
    std::vector<Vector3f> positions;
    positions.reserve(numbers.getVertices().size());
    for (const std::uint32_t vertex : numbers.getVertices()) {
        positions.push_back(positionOf(vertex));
    }
    Gaps(m_edges, found.blunt, positions).close();
    trimEnds(m_edges, numClear, positions.size());
    dropShort(m_edges, numClear, positions, leastLength);
    for (auto& [from, to] : m_edges) {
        std::tie(from, to) = std::minmax(numbers.getVertices()[from], numbers.getVertices()[to]);
    }
}

} // namespace vxrenderer
