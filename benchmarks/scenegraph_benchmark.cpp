// The scene tree, compared with the box merges that dominate its work. Each case checks the resulting box.

#include "graphics3d/scenegraph/scenegraphgroup.h"
#include "graphics3d/scenegraph/scenegraphroot.h"
#include "graphics3d/scenegraph/snapvertexindex.h"
#include "tests/support/testleaf.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <utility>
#include <vector>

namespace vxgraphics3d {
namespace {

using Children = std::vector<boost::shared_ptr<SceneGraphNode>>;

BoundingBox boxAt(int i)
{
    const auto x = static_cast<float>(i);
    return {x, x + 1.0f, -x, x, 0.0f, 1.0f};
}

BoundingBox boxOver(int count)
{
    BoundingBox box;
    for (int i = 0; i < count; ++i) {
        box.merge(boxAt(i));
    }
    return box;
}

Children makeLeaves(int count)
{
    Children leaves;
    for (int i = 0; i < count; ++i) {
        leaves.push_back(TestLeaf::create(boxAt(i)));
    }
    return leaves;
}

void check(benchmark::State& state, const BoundingBox& box, const BoundingBox& expected)
{
    if (!(box == expected)) {
        state.SkipWithError("the box is wrong");
    }
}

// --- adding children to one group: an entry in the table, the links between child and group, and one merge each ------
//
// The limit is merging the children's boxes alone, into a box in memory, like that of a group. Leaves are new each time
// and created outside the measured time, which has its own clock: pausing costs more than thousands of merges. The
// caller keeps its references and passes copies, or moves them.

/// Leaves the allocator with memory that has been written before: the first access to a page costs more than the work
/// on its contents, and is a cost of the system.
void warmMemory(int count)
{
    std::vector<char> memory(static_cast<std::size_t>(count) * 100);
    benchmark::DoNotOptimize(memory.data());
}

template <class Operation>
void withNewLeaves(benchmark::State& state, Operation operation)
{
    const auto count = static_cast<int>(state.range(0));
    const BoundingBox expected = boxOver(count);
    for (auto _ : state) {
        Children leaves = makeLeaves(count);
        warmMemory(count);
        std::chrono::steady_clock::duration time{};
        const BoundingBox box = operation([&](const auto& step) {
            const auto begin = std::chrono::steady_clock::now();
            for (auto& leaf : leaves) {
                step(leaf);
            }
            time = std::chrono::steady_clock::now() - begin;
        });
        state.SetIterationTime(std::chrono::duration<double>(time).count());
        check(state, box, expected);
    }
}

void addChildren(benchmark::State& state)
{
    withNewLeaves(state, [](const auto& measure) {
        const auto group = SceneGraphGroup::create();
        measure([&](const boost::shared_ptr<SceneGraphNode>& leaf) { group->addChild(leaf); });
        return group->getBoundingBox();
    });
    state.counters["allowed"] = 3;
}

void addChildren_given(benchmark::State& state)
{
    withNewLeaves(state, [](const auto& measure) {
        const auto group = SceneGraphGroup::create();
        measure([&](boost::shared_ptr<SceneGraphNode>& leaf) { group->addChild(std::move(leaf)); });
        return group->getBoundingBox();
    });
    state.counters["allowed"] = 3;
}

void addChildren_limit(benchmark::State& state)
{
    withNewLeaves(state, [](const auto& measure) {
        BoundingBox box;
        measure([&](const boost::shared_ptr<SceneGraphNode>& leaf) { box.merge(leaf->getBoundingBox()); });
        return box;
    });
}

BENCHMARK(addChildren)->Arg(1000)->Arg(10000)->Arg(100000)->UseManualTime();
BENCHMARK(addChildren_given)->Arg(1000)->Arg(10000)->Arg(100000)->UseManualTime();
BENCHMARK(addChildren_limit)->Arg(1000)->Arg(10000)->Arg(100000)->UseManualTime();

// --- the box of one leaf among 10 x 32 x 32: the merges of its siblings on each of three levels ----------------------

constexpr int c_levels[] = {32, 32, 10};

/// Two boxes that alternately change the box of every level.
const BoundingBox c_leafBoxes[] = {{0.0f, 1.0f, 0.0f, 20000.0f, 0.0f, 2.0f}, {0.0f, 1.0f, 0.0f, 20001.0f, 0.0f, 2.0f}};

void changeLeafBox(benchmark::State& state)
{
    const auto root = SceneGraphRoot::create();
    const auto top = SceneGraphGroup::create();
    root->setChild(top);
    boost::shared_ptr<TestLeaf> changed;
    for (int i = 0; i < c_levels[2]; ++i) {
        const auto middle = SceneGraphGroup::create();
        top->addChild(middle);
        for (int j = 0; j < c_levels[1]; ++j) {
            const auto bottom = SceneGraphGroup::create();
            middle->addChild(bottom);
            for (int k = 0; k < c_levels[0]; ++k) {
                const auto leaf = TestLeaf::create(boxAt(k));
                bottom->addChild(leaf);
                changed = i == 5 && j == 16 && k == 16 ? leaf : changed;
            }
        }
    }
    unsigned round = 0;
    for (auto _ : state) {
        changed->setBoundingBox(c_leafBoxes[++round % 2]);
    }
    BoundingBox expected = boxOver(c_levels[0]);
    expected.merge(c_leafBoxes[round % 2]);
    check(state, root->getBoundingBox(), expected);
    state.counters["allowed"] = 1.3;
}
BENCHMARK(changeLeafBox);

void changeLeafBox_limit(benchmark::State& state)
{
    std::vector<BoundingBox> boxes[3];
    for (int level = 0; level < 3; ++level) {
        for (int i = 0; i < c_levels[level]; ++i) {
            boxes[level].push_back(level == 0 ? boxAt(i) : boxOver(c_levels[0]));
        }
    }
    unsigned round = 0;
    BoundingBox top;
    for (auto _ : state) {
        BoundingBox changed = c_leafBoxes[++round % 2];
        for (std::vector<BoundingBox>& level : boxes) {
            level[5] = changed;
            BoundingBox box;
            for (const BoundingBox& child : level) {
                box.merge(child);
            }
            changed = box;
        }
        top = changed;
        benchmark::DoNotOptimize(top);
    }
    BoundingBox expected = boxOver(c_levels[0]);
    expected.merge(c_leafBoxes[round % 2]);
    check(state, top, expected);
}
BENCHMARK(changeLeafBox_limit);

// --- snap vertices of 1000 nodes, found for the first time: two sorts ------------------------------------------------

std::vector<SnapVertex> snapVertices(int count)
{
    std::vector<SnapVertex> vertices;
    for (int i = 0; i < count; ++i) {
        const unsigned scattered = static_cast<unsigned>(i) * 2654435761u;
        vertices.push_back({scattered % 100003u * 0.5, scattered % 9973u * 0.25, 0.0, i / (count / 1000), 0, i});
    }
    return vertices;
}

void collectSnapVertices(benchmark::State& state)
{
    const auto count = static_cast<int>(state.range(0));
    const std::vector<SnapVertex> all = snapVertices(count);
    const int portion = count / 1000;
    for (auto _ : state) {
        SnapVertexIndex index;
        for (int i = 0; i < count; i += portion) {
            index.add({all.begin() + i, all.begin() + i + portion});
        }
        double coordinate[3] = {};
        if (index.getClosestSnapCoordinate({}, coordinate, 0.01, {}) != 0.0) {
            state.SkipWithError("the vertex at the origin is not found");
        }
    }
    state.counters["allowed"] = 2.5;
}
BENCHMARK(collectSnapVertices)->Arg(10000)->Arg(100000)->Arg(1000000);

void collectSnapVertices_limit(benchmark::State& state)
{
    const std::vector<SnapVertex> all = snapVertices(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        std::vector<std::pair<double, const SnapVertex*>> order(all.size());
        for (double SnapVertex::*axis : {&SnapVertex::x, &SnapVertex::y}) {
            std::transform(all.begin(), all.end(), order.begin(),
                           [&](const SnapVertex& v) { return std::pair(v.*axis, &v); });
            std::stable_sort(order.begin(), order.end(),
                             [](const auto& a, const auto& b) { return a.first < b.first; });
            if (order.front().first != 0.0) {
                state.SkipWithError("the lowest coordinate is wrong");
            }
        }
    }
}
BENCHMARK(collectSnapVertices_limit)->Arg(10000)->Arg(100000)->Arg(1000000);

} // namespace
} // namespace vxgraphics3d
