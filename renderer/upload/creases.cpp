#include "renderer/upload/creases.h"

#include "renderer/upload/vertexrecords.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numbers>
#include <numeric>
#include <tuple>

namespace vxrenderer {
namespace {

using vxgraphics3d::Vector3f;

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

/// The triangles of a surface by the sites of their corners: vertices of a border at one position have a common site,
/// the lowest of them.
class Surface {
public:
    Surface(const VertexRecords& records, std::uint32_t numVertices, std::span<const std::uint32_t> indices)
        : m_records(records),
          m_indices(indices),
          m_areas(indices.size() / 3),
          m_sums(numVertices),
          m_sites(numVertices),
          m_isOpen(numVertices)
    {
        std::iota(m_sites.begin(), m_sites.end(), 0u);
        weld(addUp());
    }

    /// Looks for the sites that may have a crease or a border, and collects their corners.
    void openRoughSites(float angle)
    {
        // Two triangles that make a crease cannot both be within half of its angle from the mean normal.
        const float cosine = std::cos(0.5f * angle);
        for (std::uint32_t corner = 0; corner < m_indices.size(); ++corner) {
            const std::uint32_t site = siteOf(corner);
            if (!m_isOpen[site] && !isWithin(cosine, areaOf(corner), m_sums[site])) {
                m_isOpen[site] = true;
            }
        }
        m_starts.assign(m_sites.size() + 1, 0);
        for (std::uint32_t corner = 0; corner < m_indices.size(); ++corner) {
            m_starts[siteOf(corner)] += m_isOpen[siteOf(corner)] ? 1u : 0u;
        }
        std::exclusive_scan(m_starts.begin(), m_starts.end(), m_starts.begin(), 0u);
        m_corners.resize(m_starts.back());
        std::vector<std::uint32_t> ends(m_starts);
        for (std::uint32_t corner = 0; corner < m_indices.size(); ++corner) {
            if (m_isOpen[siteOf(corner)]) {
                m_corners[ends[siteOf(corner)]++] = corner;
            }
        }
    }

    std::uint32_t numSites() const { return static_cast<std::uint32_t>(m_sites.size()); }
    /// The corners at a site; none if there is nothing to look for.
    std::span<const std::uint32_t> cornersAt(std::uint32_t site) const
    {
        return std::span(m_corners).subspan(m_starts[site], m_starts[site + 1] - m_starts[site]);
    }
    std::uint32_t siteOf(std::uint32_t corner) const { return m_sites[m_indices[corner]]; }
    std::uint32_t vertexOf(std::uint32_t corner) const { return m_indices[corner]; }
    /// The normal of the triangle of a corner, as long as twice its area.
    const Vector3f& areaOf(std::uint32_t corner) const { return m_areas[corner / 3]; }

private:
    /// Computes areas and their sums.
    /// @return the vertices on borders
    std::vector<std::uint32_t> addUp()
    {
        // Triangles all around a vertex have as many edges that lead to it as edges that lead away.
        std::vector<std::uint64_t> balances(m_sums.size());
        for (std::uint32_t corner = 0; corner < m_indices.size(); ++corner) {
            if (corner % 3 == 0) {
                const Vector3f a = m_records.position(m_indices[corner]);
                m_areas[corner / 3] = (m_records.position(m_indices[corner + 1]) - a)
                                          .cross(m_records.position(m_indices[corner + 2]) - a);
            }
            m_sums[m_indices[corner]] += areaOf(corner);
            balances[m_indices[corner]] +=
                scattered(m_indices[nextCorner(corner)]) - scattered(m_indices[previousCorner(corner)]);
        }
        std::vector<std::uint32_t> border;
        for (std::uint32_t vertex = 0; vertex < balances.size(); ++vertex) {
            if (balances[vertex] != 0) {
                border.push_back(vertex);
            }
        }
        return border;
    }

    void weld(std::vector<std::uint32_t> border)
    {
        const auto keyOf = [this](std::uint32_t vertex) {
            const Vector3f p = m_records.position(vertex);
            return std::tuple(p.x, p.y, p.z);
        };
        std::ranges::sort(border, {}, [&](std::uint32_t vertex) { return std::tuple(keyOf(vertex), vertex); });
        for (std::size_t i = 0; i < border.size(); ++i) {
            if (i > 0 && keyOf(border[i]) == keyOf(border[i - 1])) {
                m_sites[border[i]] = m_sites[border[i - 1]];
                m_sums[m_sites[border[i]]] += m_sums[border[i]];
            }
            m_isOpen[m_sites[border[i]]] = true;
        }
    }

    const VertexRecords& m_records;
    std::span<const std::uint32_t> m_indices;
    std::vector<Vector3f> m_areas;
    std::vector<Vector3f> m_sums;
    std::vector<std::uint32_t> m_sites;
    std::vector<bool> m_isOpen;
    std::vector<std::uint32_t> m_starts;
    std::vector<std::uint32_t> m_corners;
};

/// Takes up the corners of one site after another.
class Finder {
public:
    // Triangles that are folded back on each other must not fall short of the cosine of the widest angle by rounding.
    Finder(const Surface& surface, float angle)
        : m_surface(surface), m_cosine(angle < std::numbers::pi_v<float> ? std::cos(angle) : -2.0f)
    {}

    /// Joins the triangles at a site that are smooth at the edge between them, and reports all other edges that lead to
    /// higher sites.
    void joinFans(std::uint32_t site, std::vector<Creases::Edge>& edges)
    {
        m_corners = m_surface.cornersAt(site);
        m_fans.reset(m_corners.size());
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
                isSmooth = isWithin(m_cosine, m_surface.areaOf(m_corners[a]), m_surface.areaOf(m_corners[b]));
                if (isSmooth) {
                    m_fans.join(a, b);
                }
            }
            if (site < end && !(isSmooth && last - first == 2)) {
                edges.emplace_back(site, end);
            }
        }
    }

    /// Gives a new vertex to each fan of a vertex that belongs to several.
    /// @param change called with a corner and its new vertex
    template <class Change>
    void split(std::vector<Creases::Vertex>& vertices, Change change)
    {
        m_normals.assign(m_corners.size(), Vector3f());
        m_members.clear();
        for (std::uint32_t i = 0; i < m_corners.size(); ++i) {
            const std::uint32_t fan = m_fans.find(i);
            m_normals[fan] += m_surface.areaOf(m_corners[i]);
            m_members.emplace_back(m_surface.vertexOf(m_corners[i]), fan, m_corners[i]);
        }
        std::ranges::sort(m_members);
        for (auto first = m_members.begin(), last = first; first != m_members.end(); first = last) {
            const std::uint32_t source = std::get<0>(*first);
            last = std::find_if(first, m_members.end(), [&](const auto& it) { return std::get<0>(it) != source; });
            if (std::get<1>(*first) == std::get<1>(*(last - 1))) {
                continue;
            }
            for (auto it = first; it != last; ++it) {
                if (it == first || std::get<1>(*it) != std::get<1>(*(it - 1))) {
                    vertices.push_back({source, m_normals[std::get<1>(*it)].normalized()});
                }
                change(std::get<2>(*it), static_cast<std::uint32_t>(vertices.size() - 1));
            }
        }
    }

private:
    const Surface& m_surface;
    float m_cosine;
    std::span<const std::uint32_t> m_corners;
    Fans m_fans;
    /// The other end of an edge at the site, and the position of a corner in the list of the site.
    std::vector<std::pair<std::uint32_t, std::uint32_t>> m_spokes;
    /// Vertex, fan and corner.
    std::vector<std::tuple<std::uint32_t, std::uint32_t, std::uint32_t>> m_members;
    std::vector<Vector3f> m_normals;
};

} // namespace

Creases::Creases(const VertexRecords& records, std::uint32_t numVertices, std::span<std::uint32_t> indices, float angle)
{
    Surface surface(records, numVertices, indices);
    surface.openRoughSites(angle);
    Finder finder(surface, angle);
    // They take effect at the end: the search needs the indices as they were.
    std::vector<std::pair<std::uint32_t, std::uint32_t>> changes;
    for (std::uint32_t site = 0; site < surface.numSites(); ++site) {
        if (!surface.cornersAt(site).empty()) {
            finder.joinFans(site, m_edges);
            finder.split(m_vertices, [&](std::uint32_t corner, std::uint32_t vertex) {
                changes.emplace_back(corner, numVertices + vertex);
            });
        }
    }
    for (const auto& [corner, vertex] : changes) {
        indices[corner] = vertex;
    }
}

} // namespace vxrenderer
