#include "graphics3d/scenegraph/snapvertexindex.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

namespace vxgraphics3d {

void SnapVertexIndex::changed()
{
    m_upToDate = false;
    for (Order& order : m_orders) {
        order.cursor = 0;
    }
}

// --- vertices -------------------------------------------------------------------------------------------------------

void SnapVertexIndex::add(const std::vector<SnapVertex>& vertices)
{
    for (auto begin = vertices.begin(); begin != vertices.end();) {
        const int nodeId = begin->nodeId;
        const auto end = std::find_if(begin, vertices.end(), [&](const SnapVertex& v) { return v.nodeId != nodeId; });
        Runs run;
        run.push_back({nodeId, {begin, end}});
        m_runsOfNode[nodeId].push_back(run.begin());
        m_runs.splice(m_runs.end(), run);
        changed();
        begin = end;
    }
}

void SnapVertexIndex::remove(int nodeId)
{
    const auto found = m_runsOfNode.find(nodeId);
    if (found == m_runsOfNode.end() || found->second.empty()) {
        return;
    }
    std::vector<Runs::iterator>& runs = found->second;
    for (const Runs::iterator run : runs) {
        run->listed = false;
    }
    // Runs that are adjacent in the order of arrival count as one.
    auto last = runs.begin() + 1;
    while (last != runs.end() && *last == std::next(*(last - 1))) {
        ++last;
    }
    for (auto run = runs.begin(); run != last; ++run) {
        if ((*run)->sorted) {
            m_retired.splice(m_retired.end(), m_runs, *run);
        } else {
            m_runs.erase(*run);
        }
    }
    runs.erase(runs.begin(), last);
    if (runs.empty()) {
        m_runsOfNode.erase(found);
    }
    changed();
}

std::vector<SnapVertex> SnapVertexIndex::getVertices() const
{
    std::vector<SnapVertex> result;
    for (const Run& run : m_runs) {
        result.insert(result.end(), run.vertices.begin(), run.vertices.end());
    }
    return result;
}

// --- orders ---------------------------------------------------------------------------------------------------------

/// Brings the orders up to date. New runs are at the end.
void SnapVertexIndex::sort()
{
    if (m_upToDate) {
        return;
    }
    for (Order& order : m_orders) {
        std::erase_if(order.entries, [](const Entry& entry) { return !entry.run->listed; });
    }
    m_retired.clear();

    std::vector<Entry> added;
    for (auto run = m_runs.rbegin(); run != m_runs.rend() && !run->sorted; ++run) {
        if (run->listed) {
            std::for_each(run->vertices.rbegin(), run->vertices.rend(), [&](const SnapVertex& v) {
                added.push_back({0.0, Vector3f(v.x, v.y, v.z), &*run, &v});
            });
        }
    }
    std::vector<Entry> byX = merged(AxisX, added);
    std::vector<Entry> byY = merged(AxisY, added);
    m_orders[AxisX].entries = std::move(byX);
    m_orders[AxisY].entries = std::move(byY);
    for (auto run = m_runs.rbegin(); run != m_runs.rend() && !run->sorted; ++run) {
        run->sorted = run->listed;
    }
    m_upToDate = true;
}

/// The order of an axis with further entries merged into it. These come newest first, so that the stable sort and the
/// merge put the newest of equal coordinates first.
std::vector<SnapVertexIndex::Entry> SnapVertexIndex::merged(Axis axis, const std::vector<Entry>& added) const
{
    // Entries are large: what is sorted are their coordinates.
    struct Key {
        double coordinate;
        const Entry* entry;
    };
    std::vector<Key> keys;
    keys.reserve(added.size());
    for (const Entry& entry : added) {
        keys.push_back({axis == AxisX ? entry.vertex->x : entry.vertex->y, &entry});
    }
    const auto before = [](double a, double b) { return a < b || (std::isnan(a) && !std::isnan(b)); };
    std::stable_sort(keys.begin(), keys.end(),
                     [&](const Key& a, const Key& b) { return before(a.coordinate, b.coordinate); });

    const std::vector<Entry>& present = m_orders[axis].entries;
    std::vector<Entry> result;
    result.reserve(keys.size() + present.size());
    const auto append = [&](const Key& key) {
        result.push_back(*key.entry);
        result.back().coordinate = key.coordinate;
    };
    auto key = keys.begin();
    for (const Entry& entry : present) {
        for (; key != keys.end() && !before(entry.coordinate, key->coordinate); ++key) {
            append(*key);
        }
        result.push_back(entry);
    }
    std::for_each(key, keys.end(), append);
    return result;
}

std::vector<SnapVertex> SnapVertexIndex::getOrder(Axis axis)
{
    sort();
    std::vector<SnapVertex> result;
    for (const Entry& entry : m_orders[axis].entries) {
        result.push_back(*entry.vertex);
    }
    return result;
}

// --- search ---------------------------------------------------------------------------------------------------------

bool SnapVertexIndex::Best::improve(const Entry& entry, const Vector3f& point)
{
    const auto entryDistance = static_cast<double>((entry.position - point).length());
    if (!(entryDistance < distance)) {
        return false;
    }
    distance = entryDistance;
    vertex = entry.vertex;
    return true;
}

/// Moves the cursor to the first entry that is nearer; if there is none, the cursor stays.
void SnapVertexIndex::step(Order& order, const Vector3f& point, float direction, Best& best)
{
    if (direction < 0.0f) {
        for (std::size_t i = order.cursor + 1; i-- > 0;) {
            if (best.improve(order.entries[i], point)) {
                order.cursor = i;
                return;
            }
        }
    } else {
        for (std::size_t i = order.cursor; i < order.entries.size(); ++i) {
            if (best.improve(order.entries[i], point)) {
                order.cursor = i;
                return;
            }
        }
    }
}

double SnapVertexIndex::getClosestSnapCoordinate(const Vector3f& point, double* coordinate, double maxDistance,
                                                 const Vector3f& direction)
{
    sort();
    Order& byX = m_orders[AxisX];
    Order& byY = m_orders[AxisY];
    if (byX.entries.empty()) {
        return maxDistance;
    }
    Best best{maxDistance};
    best.improve(byX.entries[byX.cursor], point);
    best.improve(byY.entries[byY.cursor], point);
    const SnapVertex* before = nullptr;
    do {
        before = best.vertex;
        step(byX, point, direction.x, best);
        step(byY, point, direction.y, best);
    } while (best.vertex != before);
    if (best.vertex == nullptr) {
        return maxDistance;
    }
    coordinate[0] = best.vertex->x;
    coordinate[1] = best.vertex->y;
    coordinate[2] = best.vertex->z;
    return best.distance;
}

} // namespace vxgraphics3d
