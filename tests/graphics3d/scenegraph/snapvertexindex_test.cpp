#include "graphics3d/scenegraph/snapvertexindex.h"

#include <gtest/gtest.h>

#include <list>
#include <memory>
#include <random>

namespace vxgraphics3d {
namespace {

SnapVertex vertexAt(double x, double y, double z, int nodeId, int index = 0)
{
    return {x, y, z, nodeId, 0, index};
}

/// The index as simple sorted lists: a search for every insertion, a scan for every removal.
class PlainLists {
public:
    void add(const std::vector<SnapVertex>& vertices)
    {
        for (const SnapVertex& v : vertices) {
            const auto shared = std::make_shared<SnapVertex>(v);
            m_vertices.push_back(shared);
            insert(m_byX, shared, &SnapVertex::x);
            insert(m_byY, shared, &SnapVertex::y);
            m_cursorX = m_byX.begin();
            m_cursorY = m_byY.begin();
        }
    }

    void remove(int nodeId)
    {
        const auto isNodes = [&](const std::shared_ptr<SnapVertex>& v) { return v->nodeId == nodeId; };
        const auto begin = std::find_if(m_vertices.begin(), m_vertices.end(), isNodes);
        if (begin == m_vertices.end()) {
            return;
        }
        m_vertices.erase(begin, std::find_if_not(begin, m_vertices.end(), isNodes));
        m_byX.remove_if(isNodes);
        m_byY.remove_if(isNodes);
        m_cursorX = m_byX.begin();
        m_cursorY = m_byY.begin();
    }

    double closest(const Vector3f& point, double* coordinate, double maxDistance, const Vector3f& direction)
    {
        if (m_byX.empty()) {
            return maxDistance;
        }
        double best = maxDistance;
        std::shared_ptr<SnapVertex> vertex;
        const auto nearer = [&](const std::shared_ptr<SnapVertex>& v) {
            const auto distance = static_cast<double>((point - Vector3f(v->x, v->y, v->z)).length());
            if (distance < best) {
                best = distance;
                vertex = v;
                return true;
            }
            return false;
        };
        const auto step = [&](List& list, List::iterator& cursor, float toward) {
            for (auto place = cursor; place != list.end();) {
                if (nearer(*place)) {
                    cursor = place;
                    return;
                }
                if (toward >= 0.0f) {
                    ++place;
                } else if (place == list.begin()) {
                    return;
                } else {
                    --place;
                }
            }
        };
        nearer(*m_cursorX);
        nearer(*m_cursorY);
        std::shared_ptr<SnapVertex> before;
        do {
            before = vertex;
            step(m_byX, m_cursorX, direction.x);
            step(m_byY, m_cursorY, direction.y);
        } while (vertex != before);
        if (vertex == nullptr) {
            return maxDistance;
        }
        coordinate[0] = vertex->x;
        coordinate[1] = vertex->y;
        coordinate[2] = vertex->z;
        return best;
    }

    std::vector<int> indices() const { return indicesOf(m_vertices); }
    std::vector<int> indicesByX() const { return indicesOf(m_byX); }
    std::vector<int> indicesByY() const { return indicesOf(m_byY); }

private:
    using List = std::list<std::shared_ptr<SnapVertex>>;

    static void insert(List& list, const std::shared_ptr<SnapVertex>& v, double SnapVertex::*axis)
    {
        list.insert(std::find_if(list.begin(), list.end(), [&](const auto& e) { return !((*e).*axis < (*v).*axis); }),
                    v);
    }

    template <class Vertices>
    static std::vector<int> indicesOf(const Vertices& vertices)
    {
        std::vector<int> result;
        for (const auto& v : vertices) {
            result.push_back(v->index);
        }
        return result;
    }

    std::vector<std::shared_ptr<SnapVertex>> m_vertices;
    List m_byX;
    List m_byY;
    List::iterator m_cursorX;
    List::iterator m_cursorY;
};

std::vector<int> indicesOf(const std::vector<SnapVertex>& vertices)
{
    std::vector<int> result;
    for (const SnapVertex& v : vertices) {
        result.push_back(v.index);
    }
    return result;
}

TEST(SnapVertexIndex, withoutVerticesNothingIsFound)
{
    SnapVertexIndex index;
    double coordinate[3] = {7.0, 8.0, 9.0};
    index.add({});
    index.remove(1);
    EXPECT_EQ(index.getClosestSnapCoordinate({}, coordinate, 2.5, {}), 2.5);
    index.add({vertexAt(100.0, 0.0, 0.0, 1)});
    EXPECT_EQ(index.getClosestSnapCoordinate({}, coordinate, 2.5, {}), 2.5);
    // A vertex at the limit is not nearer.
    index.add({vertexAt(0.0, 2.5, 0.0, 1)});
    EXPECT_EQ(index.getClosestSnapCoordinate({}, coordinate, 2.5, {}), 2.5);
    EXPECT_EQ(coordinate[0], 7.0);
    EXPECT_EQ(coordinate[2], 9.0);
}

TEST(SnapVertexIndex, theNewestOfEqualCoordinatesComesFirst)
{
    SnapVertexIndex index;
    index.add({vertexAt(1.0, 5.0, 0.0, 1, 0), vertexAt(0.0, 5.0, 0.0, 1, 1), vertexAt(1.0, 5.0, 0.0, 1, 2)});
    EXPECT_EQ(indicesOf(index.getOrder(SnapVertexIndex::AxisX)), (std::vector<int>{1, 2, 0}));
    index.add({vertexAt(1.0, 4.0, 0.0, 2, 3), vertexAt(1.0, 5.0, 0.0, 2, 4)});
    EXPECT_EQ(indicesOf(index.getOrder(SnapVertexIndex::AxisX)), (std::vector<int>{1, 4, 3, 2, 0}));
    EXPECT_EQ(indicesOf(index.getOrder(SnapVertexIndex::AxisY)), (std::vector<int>{3, 4, 2, 1, 0}));
    EXPECT_EQ(indicesOf(index.getVertices()), (std::vector<int>{0, 1, 2, 3, 4}));
}

TEST(SnapVertexIndex, removalTakesTheFirstRunFromTheVerticesAndAllFromTheOrders)
{
    SnapVertexIndex index;
    index.add({vertexAt(0.0, 0.0, 0.0, 1, 0)});
    index.add({vertexAt(1.0, 0.0, 0.0, 1, 1)});
    index.add({vertexAt(2.0, 0.0, 0.0, 2, 2)});
    index.add({vertexAt(3.0, 0.0, 0.0, 1, 3)});
    index.remove(1);
    EXPECT_EQ(indicesOf(index.getVertices()), (std::vector<int>{2, 3}));
    EXPECT_EQ(indicesOf(index.getOrder(SnapVertexIndex::AxisX)), (std::vector<int>{2}));
    index.remove(2);
    double coordinate[3] = {};
    EXPECT_EQ(index.getClosestSnapCoordinate({3.0f, 0.0f, 0.0f}, coordinate, 1.0, {}), 1.0);
    index.remove(1);
    EXPECT_TRUE(index.getVertices().empty());
}

TEST(SnapVertexIndex, aSearchStopsAtTheFirstNearerVertexAndTheNextContinuesThere)
{
    SnapVertexIndex index;
    index.add({vertexAt(0.0, 0.0, 0.0, 1, 0), vertexAt(1.0, 9.0, 0.0, 1, 1), vertexAt(2.0, 1.0, 0.0, 1, 2),
               vertexAt(3.0, 8.0, 0.0, 1, 3)});
    double coordinate[3] = {};
    const Vector3f up(1.0f, 1.0f, 0.0f);
    EXPECT_EQ(index.getClosestSnapCoordinate({3.0f, 8.0f, 0.0f}, coordinate, 100.0, up), 0.0);
    EXPECT_EQ(coordinate[1], 8.0);
    // Both cursors are at high coordinates now: a search in a direction away from vertex 0 does not find it.
    EXPECT_EQ(index.getClosestSnapCoordinate({0.0f, 0.0f, 0.0f}, coordinate, 0.5, up), 0.5);
    EXPECT_EQ(index.getClosestSnapCoordinate({0.0f, 0.0f, 0.0f}, coordinate, 0.5, {-1.0f, 1.0f, 0.0f}), 0.0);
    // Any change moves the cursors back to the lowest coordinates.
    EXPECT_EQ(index.getClosestSnapCoordinate({3.0f, 8.0f, 0.0f}, coordinate, 100.0, up), 0.0);
    index.add({vertexAt(50.0, 50.0, 0.0, 2, 4)});
    EXPECT_EQ(index.getClosestSnapCoordinate({0.0f, 0.0f, 0.0f}, coordinate, 0.5, up), 0.0);
}

TEST(SnapVertexIndex, distancesAreMeasuredInFloat)
{
    SnapVertexIndex index;
    index.add({vertexAt(1.0 + 0x1p-30, 0.0, 0.0, 1)});
    double coordinate[3] = {};
    EXPECT_EQ(index.getClosestSnapCoordinate({1.0f, 0.0f, 0.0f}, coordinate, 1.0, {}), 0.0);
    EXPECT_EQ(coordinate[0], 1.0 + 0x1p-30);
}

TEST(SnapVertexIndex, behavesLikeSimpleListsUnderRandomOperations)
{
    std::mt19937 random(3);
    const auto number = [&](unsigned below) { return static_cast<int>(random() % below); };
    SnapVertexIndex index;
    PlainLists lists;
    int nextIndex = 0;
    for (int round = 0; round < 4000; ++round) {
        const int what = number(10);
        if (what < 3) {
            std::vector<SnapVertex> vertices;
            const int nodeId = number(12);
            for (int i = number(6); i > 0; --i) {
                // Few different coordinates, so that many are equal; occasionally a vertex of another node.
                vertices.push_back(
                    vertexAt(number(8), number(8), number(8), number(9) == 0 ? number(12) : nodeId, nextIndex++));
            }
            index.add(vertices);
            lists.add(vertices);
        } else if (what < 5) {
            const int nodeId = number(12);
            index.remove(nodeId);
            lists.remove(nodeId);
        } else {
            const Vector3f point(static_cast<float>(number(80)) * 0.1f, static_cast<float>(number(80)) * 0.1f,
                                 static_cast<float>(number(80)) * 0.1f);
            const Vector3f direction(static_cast<float>(number(3) - 1), static_cast<float>(number(3) - 1), 0.0f);
            const double maxDistance = number(40) * 0.1;
            double found[3] = {-1.0, -1.0, -1.0};
            double expected[3] = {-1.0, -1.0, -1.0};
            ASSERT_EQ(index.getClosestSnapCoordinate(point, found, maxDistance, direction),
                      lists.closest(point, expected, maxDistance, direction))
                << "round " << round;
            ASSERT_TRUE(std::equal(found, found + 3, expected)) << "round " << round;
        }
        if (round % 7 == 0) {
            ASSERT_EQ(indicesOf(index.getVertices()), lists.indices()) << "round " << round;
            ASSERT_EQ(indicesOf(index.getOrder(SnapVertexIndex::AxisX)), lists.indicesByX()) << "round " << round;
            ASSERT_EQ(indicesOf(index.getOrder(SnapVertexIndex::AxisY)), lists.indicesByY()) << "round " << round;
        }
    }
}

TEST(SnapVertexIndex, aNanCoordinateDoesNotAffectTheOthers)
{
    SnapVertexIndex index;
    const double none = std::nan("");
    index.add({vertexAt(2.0, 0.0, 0.0, 1, 0), vertexAt(none, none, 0.0, 2, 1), vertexAt(1.0, 0.0, 0.0, 1, 2)});
    EXPECT_EQ(indicesOf(index.getOrder(SnapVertexIndex::AxisX)), (std::vector<int>{1, 2, 0}));
    double coordinate[3] = {};
    EXPECT_EQ(index.getClosestSnapCoordinate({2.0f, 0.0f, 0.0f}, coordinate, 1.0, {}), 0.0);
    EXPECT_EQ(coordinate[0], 2.0);
}

} // namespace
} // namespace vxgraphics3d
