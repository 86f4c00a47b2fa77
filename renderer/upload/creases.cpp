#include "renderer/upload/creases.h"

#include "renderer/upload/vertexrecords.h"

#include <algorithm>
#include <cmath>
#include <compare>
#include <cstddef>
#include <numbers>
#include <numeric>
#include <tuple>

namespace vxrenderer {
namespace {

using vxgraphics3d::Vector3f;

/// From this part of the angle of a crease on, edges may close gaps of lines.
constexpr float c_blunt = 0.6f;
/// From this multiple of it on, no edge belongs to a rounding of large triangles.
constexpr float c_clear = 1.7f;
/// The shortest line with ends or without a clear edge, for each unit of the diagonal of a surface.
constexpr float c_shortestLine = 0.1f;

/// A number that tells vertices apart in sums.
std::uint64_t scattered(std::uint32_t vertex)
{
    std::uint64_t value = vertex + 0x9e3779b97f4a7c15u;
    value = (value ^ (value >> 30)) * 0xbf58476d1ce4e5b9u;
    value = (value ^ (value >> 27)) * 0x94d049bb133111ebu;
    return value ^ (value >> 31);
}

std::uint32_t nextCorner(std::uint32_t corner)
{
    return corner % 3 == 2 ? corner - 2 : corner + 1;
}

std::uint32_t previousCorner(std::uint32_t corner)
{
    return corner % 3 == 0 ? corner + 2 : corner - 1;
}

/// Whether the angle between two vectors has at least this cosine.
bool isWithin(float cosine, const Vector3f& a, const Vector3f& b)
{
    return a.dot(b) >= cosine * a.length() * b.length();
}

/// Of the box of all vertices that are drawn.
float diagonalOf(const VertexRecords& records, std::span<const std::uint32_t> indices)
{
    Vector3f low = records.position(indices.front());
    Vector3f high = low;
    for (const std::uint32_t vertex : indices) {
        const Vector3f p = records.position(vertex);
        low = {std::min(low.x, p.x), std::min(low.y, p.y), std::min(low.z, p.z)};
        high = {std::max(high.x, p.x), std::max(high.y, p.y), std::max(high.z, p.z)};
    }
    return (high - low).length();
}

/// Corners of triangles at one position, in sets that are joined step by step.
class Fans {
public:
    void reset(std::size_t count)
    {
        m_parents.resize(count);
        std::iota(m_parents.begin(), m_parents.end(), 0u);
    }
    std::uint32_t find(std::uint32_t member)
    {
        while (m_parents[member] != member) {
            member = m_parents[member] = m_parents[m_parents[member]];
        }
        return member;
    }
    void join(std::uint32_t a, std::uint32_t b) { m_parents[find(a)] = find(b); }

private:
    std::vector<std::uint32_t> m_parents;
};

/// The triangles of a surface at the sites that may have a crease or a border. Vertices of a border at one position
/// have a common site, the lowest of them; every other vertex is a site of its own.
class Surface {
public:
    Surface(const VertexRecords& records, std::uint32_t numVertices, std::span<const std::uint32_t> indices,
            float angle)
        : m_records(records),
          m_indices(indices),
          m_ownCosine(std::cos(0.5f * angle)),
          m_roughCosine(std::cos(0.5f * c_blunt * angle)),
          m_isOpen(numVertices)
    {
        weld(bordersOf(numVertices));
        openRoughSites(numVertices);
        for (std::uint32_t corner = 0; corner < m_indices.size(); ++corner) {
            if (m_isOpen[m_indices[corner]]) {
                m_corners.emplace_back(siteOf(corner), corner);
            }
        }
        std::ranges::sort(m_corners);
    }

    /// Corners with their sites, in ascending order; only those of sites at which there is something to look for.
    const std::vector<std::pair<std::uint32_t, std::uint32_t>>& getCorners() const { return m_corners; }
    std::uint32_t vertexOf(std::uint32_t corner) const { return m_indices[corner]; }
    std::uint32_t siteOf(std::uint32_t corner) const
    {
        const std::uint32_t vertex = vertexOf(corner);
        const auto welded = std::ranges::lower_bound(m_welded, vertex, {}, &Welded::first);
        return welded != m_welded.end() && welded->first == vertex ? welded->second : vertex;
    }
    /// The normal of the triangle of a corner, as long as twice its area.
    Vector3f areaOf(std::uint32_t corner) const
    {
        const std::uint32_t first = corner - corner % 3;
        const Vector3f a = m_records.position(m_indices[first]);
        return (m_records.position(m_indices[first + 1]) - a).cross(m_records.position(m_indices[first + 2]) - a);
    }
    /// Whether a vertex has the normal of a surface, except for less than half the angle of a crease.
    bool hasNormalOf(const Vector3f& surface, std::uint32_t vertex) const
    {
        return isWithin(m_ownCosine, surface, m_records.normal(vertex));
    }
    bool hasNormals() const { return m_records.hasNormals(); }

private:
    /// A vertex and its site.
    using Welded = std::pair<std::uint32_t, std::uint32_t>;

    std::vector<std::uint32_t> bordersOf(std::uint32_t numVertices) const
    {
        // Triangles all around a vertex have as many edges that lead to it as edges that lead away.
        std::vector<std::uint64_t> balances(numVertices);
        for (std::size_t i = 0; i < m_indices.size(); i += 3) {
            const std::uint64_t codes[3] = {scattered(m_indices[i]), scattered(m_indices[i + 1]),
                                            scattered(m_indices[i + 2])};
            for (std::size_t k = 0; k < 3; ++k) {
                balances[m_indices[i + k]] += codes[(k + 1) % 3] - codes[(k + 2) % 3];
            }
        }
        std::vector<std::uint32_t> borders;
        for (std::uint32_t vertex = 0; vertex < numVertices; ++vertex) {
            if (balances[vertex] != 0) {
                borders.push_back(vertex);
            }
        }
        return borders;
    }

    void weld(std::vector<std::uint32_t> borders)
    {
        const auto keyOf = [this](std::uint32_t vertex) {
            const Vector3f p = m_records.position(vertex);
            return std::tuple(p.x, p.y, p.z);
        };
        std::ranges::sort(borders, {}, [&](std::uint32_t vertex) { return std::tuple(keyOf(vertex), vertex); });
        std::uint32_t site = 0;
        for (std::size_t i = 0; i < borders.size(); ++i) {
            m_isOpen[borders[i]] = true;
            if (i > 0 && keyOf(borders[i]) == keyOf(borders[i - 1])) {
                m_welded.emplace_back(borders[i], site);
            } else {
                site = borders[i];
            }
        }
        std::ranges::sort(m_welded);
    }

    /// Two triangles that make a crease cannot both be within half of its angle from the normal of their vertex, nor
    /// from any other direction.
    void openRoughSites(std::uint32_t numVertices)
    {
        std::vector<Vector3f> sums(hasNormals() ? 0 : numVertices);
        for (std::uint32_t corner = 0; !sums.empty() && corner < m_indices.size(); ++corner) {
            sums[m_indices[corner]] += areaOf(corner);
        }
        for (std::uint32_t i = 0; i < m_indices.size(); i += 3) {
            const Vector3f area = areaOf(i);
            for (std::uint32_t corner = i; corner < i + 3; ++corner) {
                const std::uint32_t vertex = m_indices[corner];
                if (!isWithin(m_roughCosine, area, sums.empty() ? m_records.normal(vertex) : sums[vertex])) {
                    m_isOpen[vertex] = true;
                }
            }
        }
    }

    const VertexRecords& m_records;
    std::span<const std::uint32_t> m_indices;
    /// Of half the angle of a crease, and of half the angle of an edge that closes gaps.
    float m_ownCosine;
    float m_roughCosine;
    std::vector<bool> m_isOpen;
    std::vector<Welded> m_welded;
    std::vector<std::pair<std::uint32_t, std::uint32_t>> m_corners;
};

/// Takes up the corners of one site after another.
class Finder {
public:
    // Triangles that are folded back on each other must not fall short of the cosine of the widest angle by rounding.
    Finder(const Surface& surface, float angle)
        : m_surface(surface),
          m_cosine(angle < std::numbers::pi_v<float> ? std::cos(angle) : -2.0f),
          m_bluntCosine(std::cos(c_blunt * angle)),
          m_clearCosine(std::cos(std::min(c_clear * angle, std::numbers::pi_v<float>)))
    {}

    /// @param corners with their site
    void begin(std::span<const std::pair<std::uint32_t, std::uint32_t>> corners)
    {
        m_site = corners.front().first;
        m_corners.clear();
        m_areas.clear();
        for (const auto& [site, corner] : corners) {
            m_corners.push_back(corner);
            m_areas.push_back(m_surface.areaOf(corner));
        }
        m_fans.reset(m_corners.size());
    }

    /// Joins the triangles that are smooth at the edge between them, and reports all other edges that lead to higher
    /// sites, as well as those that are almost as sharp.
    void joinFans(EdgeLines::Found& edges)
    {
        m_spokes.clear();
        for (std::uint32_t i = 0; i < m_corners.size(); ++i) {
            m_spokes.emplace_back(m_surface.siteOf(nextCorner(m_corners[i])), i);
            m_spokes.emplace_back(m_surface.siteOf(previousCorner(m_corners[i])), i);
        }
        std::ranges::sort(m_spokes);
        for (std::size_t first = 0, last = 0; first < m_spokes.size(); first = last) {
            const std::uint32_t end = m_spokes[first].first;
            bool isSmooth = false;
            for (last = first + 1; last < m_spokes.size() && m_spokes[last].first == end; ++last) {
                const auto [a, b] = std::pair(m_spokes[last - 1].second, m_spokes[last].second);
                isSmooth = isWithin(m_cosine, m_areas[a], m_areas[b]);
                if (isSmooth) {
                    m_fans.join(a, b);
                }
            }
            if (m_site >= end) {
                continue;
            }
            if (last - first != 2) {
                edges.clear.emplace_back(m_site, end);
                continue;
            }
            const Vector3f& one = m_areas[m_spokes[first].second];
            const Vector3f& other = m_areas[m_spokes[first + 1].second];
            if (!isSmooth) {
                (isWithin(m_clearCosine, one, other) ? edges.sharp : edges.clear).emplace_back(m_site, end);
            } else if (!isWithin(m_bluntCosine, one, other)) {
                edges.blunt.emplace_back(m_site, end);
            }
        }
    }

    /// Gives a new vertex to each fan of a vertex that belongs to several, and to a vertex of a crease that has the
    /// normal of another side.
    /// @param change called with a corner and its new vertex
    template <class Change>
    void split(std::vector<Creases::Vertex>& vertices, Change change)
    {
        m_normals.assign(m_corners.size(), Vector3f());
        m_members.clear();
        for (std::uint32_t i = 0; i < m_corners.size(); ++i) {
            const std::uint32_t fan = m_fans.find(i);
            m_normals[fan] += m_areas[i];
            m_members.push_back({m_surface.vertexOf(m_corners[i]), fan, m_corners[i]});
        }
        if (std::ranges::all_of(m_members, [&](const Member& it) { return it.fan == m_members.front().fan; })) {
            return;
        }
        std::ranges::sort(m_members);
        for (auto first = m_members.begin(), last = first; first != m_members.end(); first = last) {
            last = std::find_if(first, m_members.end(), [&](const Member& it) { return it.vertex != first->vertex; });
            if (first->fan == (last - 1)->fan && m_surface.hasNormalOf(m_normals[first->fan], first->vertex)) {
                continue;
            }
            for (auto it = first; it != last; ++it) {
                if (it == first || it->fan != (it - 1)->fan) {
                    vertices.push_back({it->vertex, m_normals[it->fan].normalized()});
                }
                change(it->corner, static_cast<std::uint32_t>(vertices.size() - 1));
            }
        }
    }

private:
    struct Member {
        std::uint32_t vertex;
        std::uint32_t fan;
        std::uint32_t corner;
        auto operator<=>(const Member&) const = default;
    };

    const Surface& m_surface;
    float m_cosine;
    float m_bluntCosine;
    float m_clearCosine;
    std::uint32_t m_site = 0;
    std::vector<std::uint32_t> m_corners;
    std::vector<Vector3f> m_areas;
    Fans m_fans;
    /// The other end of an edge at the site, and the position of a corner in the list of the site.
    std::vector<std::pair<std::uint32_t, std::uint32_t>> m_spokes;
    std::vector<Member> m_members;
    std::vector<Vector3f> m_normals;
};

} // namespace

Creases::Creases(const VertexRecords& records, std::uint32_t numVertices, std::span<std::uint32_t> indices, float angle)
{
    const Surface surface(records, numVertices, indices, angle);
    Finder finder(surface, angle);
    // They take effect at the end: the search needs the indices as they were.
    std::vector<std::pair<std::uint32_t, std::uint32_t>> changes;
    EdgeLines::Found edges;
    const std::span corners(surface.getCorners());
    for (std::size_t first = 0, last = 0; first < corners.size(); first = last) {
        for (last = first + 1; last < corners.size() && corners[last].first == corners[first].first;) {
            ++last;
        }
        finder.begin(corners.subspan(first, last - first));
        finder.joinFans(edges);
        if (surface.hasNormals()) {
            finder.split(m_vertices, [&](std::uint32_t corner, std::uint32_t vertex) {
                changes.emplace_back(corner, numVertices + vertex);
            });
        }
    }
    if (!edges.clear.empty() || !edges.sharp.empty()) {
        EdgeLines lines(
            std::move(edges), numVertices, [&records](std::uint32_t vertex) { return records.position(vertex); },
            c_shortestLine * diagonalOf(records, indices));
        m_edges = std::move(lines.getEdges());
    }
    for (const auto& [corner, vertex] : changes) {
        indices[corner] = vertex;
    }
}

} // namespace vxrenderer
