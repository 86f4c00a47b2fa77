#pragma once

#include "graphics3d/foundation/vector3f.h"
#include "graphics3d/scenegraph/snapvertex.h"

#include <cstddef>
#include <list>
#include <unordered_map>
#include <vector>

namespace vxgraphics3d {

/// All snap vertices of a scene, sorted by their coordinates, with the position where the last search ended.
///
/// Among equal coordinates the vertex that was added last comes first. A search starts where the last one ended, so a
/// small movement of the pointer needs only a short search; every change of the vertices moves it back to the lowest
/// coordinates. Only x and y are searched.
///
/// The orders are updated by the next search, not by each change: n vertices take O(n log n) time, no matter how they
/// are added and removed, and a scene without searches costs nothing. A coordinate that is NaN sorts before all others;
/// its vertex is never found.
class SnapVertexIndex {
public:
    enum Axis { AxisX = 0, AxisY = 1 };

    /// Adds copies of the vertices, each for the node that it refers to.
    void add(const std::vector<SnapVertex>& vertices);
    /// Removes all vertices of the node from the sorted orders, and its first contiguous run from `getVertices`. The
    /// vertices of a node are usually added by one call and form one run. Without vertices of the node nothing changes.
    void remove(int nodeId);

    /// Looks for a vertex nearer to the point than `maxDistance`: first the two vertices at which the last search
    /// ended, then along the orders of x and y in turn, until neither has a nearer one. Each step ends at the first
    /// vertex that is nearer, and the next step along that order starts there.
    /// @param direction a negative x or y searches that order downwards, any other value upwards
    /// @param coordinate receives x, y and z of the vertex found; unchanged if none is
    /// @return the distance of that vertex, measured in float, or `maxDistance`
    double getClosestSnapCoordinate(const Vector3f& point, double* coordinate, double maxDistance,
                                    const Vector3f& direction);

    /// All vertices in the order of arrival.
    std::vector<SnapVertex> getVertices() const;
    /// The vertices, sorted by one coordinate.
    std::vector<SnapVertex> getOrder(Axis axis);

private:
    /// Vertices of one node that were added together. They are never moved, so entries may point to them.
    struct Run {
        int nodeId;
        std::vector<SnapVertex> vertices;
        bool listed = true;  ///< belongs in the orders: its node was not removed
        bool sorted = false; ///< is in the orders: entries point to its vertices
    };
    using Runs = std::list<Run>;

    struct Entry {
        double coordinate;
        Vector3f position;
        const Run* run;
        const SnapVertex* vertex;
    };

    struct Order {
        std::vector<Entry> entries; ///< in ascending order of the coordinate, the newest of equals first
        std::size_t cursor = 0;
    };

    struct Best {
        double distance;
        const SnapVertex* vertex = nullptr;

        bool improve(const Entry& entry, const Vector3f& point);
    };

    void changed();
    void sort();
    std::vector<Entry> merged(Axis axis, const std::vector<Entry>& added) const;
    static void step(Order& order, const Vector3f& point, float direction, Best& best);

    Runs m_runs;    ///< in the order of arrival
    Runs m_retired; ///< removed, but entries point to them until the next sort
    std::unordered_map<int, std::vector<Runs::iterator>> m_runsOfNode;
    Order m_orders[2];
    bool m_upToDate = true;
};

} // namespace vxgraphics3d
