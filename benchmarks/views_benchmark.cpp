// What a renderer and Java do with views besides drawing: asking every node whether it has changed, showing a scene in
// another view, creating scenes. The sizes show that no cost grows faster than the number of objects.

#include "graphics3d/canvas/irenderersetup.h"
#include "graphics3d/canvas/scenesettings.h"
#include "graphics3d/lights/scenelight.h"
#include "graphics3d/scene/scene.h"
#include "graphics3d/scenegraph/scenegraphroot.h"
#include "tests/support/testleaf.h"

#include <benchmark/benchmark.h>

#include <boost/make_shared.hpp>

#include <map>
#include <vector>

namespace vxgraphics3d {
namespace {

// --- asking 10,000 nodes for changes: a number behind each of 10,000 pointers ----------------------------------------

constexpr std::size_t c_numNodes = 10000;

/// A number in as much memory as a node uses.
struct Cell {
    int changeId = 1;
    char rest[sizeof(TestLeaf) - sizeof(int)] = {};
};

template <class Object, class ChangeIdOf>
int countChanged(const std::vector<const Object*>& objects, const std::vector<int>& seen, ChangeIdOf changeIdOf)
{
    int changed = 0;
    for (std::size_t i = 0; i < objects.size(); ++i) {
        changed += changeIdOf(*objects[i]) != seen[i] ? 1 : 0;
    }
    return changed;
}

template <class Object, class ChangeIdOf>
void poll(benchmark::State& state, const std::vector<boost::shared_ptr<Object>>& owners, ChangeIdOf changeIdOf)
{
    std::vector<const Object*> objects;
    std::vector<int> seen;
    for (const auto& owner : owners) {
        objects.push_back(owner.get());
        seen.push_back(changeIdOf(*owner));
    }
    for (auto _ : state) {
        if (countChanged(objects, seen, changeIdOf) != 0) {
            state.SkipWithError("a node has changed");
        }
        benchmark::ClobberMemory();
    }
    --seen.back();
    if (countChanged(objects, seen, changeIdOf) != 1) {
        state.SkipWithError("a change is not seen");
    }
}

void pollNodes(benchmark::State& state)
{
    std::vector<boost::shared_ptr<TestLeaf>> leaves;
    while (leaves.size() < c_numNodes) {
        leaves.push_back(TestLeaf::create());
    }
    poll(state, leaves, [](const SceneGraphNode& node) { return node.getChangeId(); });
    state.counters["allowed"] = 1.2;
}
BENCHMARK(pollNodes);

void pollNodes_limit(benchmark::State& state)
{
    std::vector<boost::shared_ptr<Cell>> cells;
    while (cells.size() < c_numNodes) {
        cells.emplace_back(new Cell);
    }
    poll(state, cells, [](const Cell& cell) { return cell.changeId; });
}
BENCHMARK(pollNodes_limit);

// --- one scene in many views, which come and go: the settings of each, in a table by their ids -----------------------

struct Setup : IRendererSetup {};

/// Detaches every second view first and then the rest, so that neither end of the table is favoured.
template <class Detach>
void detachAll(const std::vector<boost::shared_ptr<SceneSettings>>& views, Detach detach)
{
    for (const std::size_t start : {std::size_t{0}, std::size_t{1}}) {
        for (std::size_t i = start; i < views.size(); i += 2) {
            detach(views[i]);
        }
    }
}

void attachViews(benchmark::State& state)
{
    const auto count = static_cast<std::size_t>(state.range(0));
    Setup setup;
    Scene scene;
    std::vector<boost::shared_ptr<SceneSettings>> views;
    views.reserve(count);
    for (auto _ : state) {
        while (views.size() < count) {
            views.push_back(scene.createSceneSettings(setup));
        }
        detachAll(views, [&](const auto& view) { scene.disconnect(view); });
        views.clear();
        if (!scene.getSceneSettingsMap().empty()) {
            state.SkipWithError("a view is still attached");
        }
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
    state.counters["allowed"] = 1.3;
}
BENCHMARK(attachViews)->Arg(10)->Arg(1000)->Arg(100000);

void attachViews_limit(benchmark::State& state)
{
    const auto count = static_cast<std::size_t>(state.range(0));
    Setup setup;
    std::map<int, boost::shared_ptr<SceneSettings>> table;
    std::vector<boost::shared_ptr<SceneSettings>> views;
    views.reserve(count);
    for (auto _ : state) {
        while (views.size() < count) {
            views.push_back(boost::make_shared<SceneSettings>(setup));
            table.emplace(views.back()->getId(), views.back());
        }
        detachAll(views, [&](const auto& view) { table.erase(view->getId()); });
        views.clear();
        if (!table.empty()) {
            state.SkipWithError("a view is still in the table");
        }
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(attachViews_limit)->Arg(10)->Arg(1000)->Arg(100000);

// --- scenes that live side by side: a root and a set of lights each --------------------------------------------------

void createScenes(benchmark::State& state)
{
    const auto count = static_cast<std::size_t>(state.range(0));
    std::vector<boost::shared_ptr<Scene>> scenes;
    scenes.reserve(count);
    for (auto _ : state) {
        while (scenes.size() < count) {
            scenes.push_back(boost::make_shared<Scene>());
        }
        if (scenes.back()->getSceneId() - scenes.front()->getSceneId() != static_cast<int>(count) - 1) {
            state.SkipWithError("the ids of the scenes have gaps");
        }
        scenes.clear();
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
    state.counters["allowed"] = 1.3;
}
BENCHMARK(createScenes)->Arg(10)->Arg(1000)->Arg(100000);

void createScenes_limit(benchmark::State& state)
{
    struct Parts {
        boost::shared_ptr<SceneLight> light = SceneLight::create();
        std::map<int, boost::shared_ptr<SceneSettings>> settings;
        boost::shared_ptr<SceneGraphRoot> root = SceneGraphRoot::create();
    };
    const auto count = static_cast<std::size_t>(state.range(0));
    std::vector<boost::shared_ptr<Parts>> all;
    all.reserve(count);
    for (auto _ : state) {
        while (all.size() < count) {
            all.push_back(boost::make_shared<Parts>());
        }
        benchmark::DoNotOptimize(all.back());
        all.clear();
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(createScenes_limit)->Arg(10)->Arg(1000)->Arg(100000);

} // namespace
} // namespace vxgraphics3d
