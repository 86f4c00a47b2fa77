// Objects dropped by Java are released on some thread, while another one works on a scene that shares nodes or lights
// with them. Also meant for a run under a thread sanitizer, which reports destructors that access what they do not own.

#include "graphics3d/lights/pointlightsource.h"
#include "graphics3d/lights/scenelight.h"
#include "graphics3d/scenegraph/scenegraphgroup.h"
#include "graphics3d/scenegraph/scenegraphroot.h"
#include "tests/support/testleaf.h"

#include <gtest/gtest.h>

#include <atomic>
#include <functional>
#include <thread>
#include <vector>

namespace vxgraphics3d {
namespace {

constexpr int c_numShared = 500;

BoundingBox boxAt(int i)
{
    const auto x = static_cast<float>(i);
    return {x, x + 1.0f, 0.0f, 1.0f, 0.0f, 1.0f};
}

/// Releases the last owner on a separate thread, while this one works.
void workWhileDropping(boost::shared_ptr<void> owner, const std::function<void()>& work)
{
    std::atomic<bool> isWorking = false;
    std::thread thread([&] {
        while (!isWorking) {
        }
        owner.reset();
    });
    isWorking = true;
    work();
    thread.join();
}

/// A scene that shares leaves with a group to which they were added later, so that they report to that group.
class SharedLeaves : public testing::Test {
protected:
    SharedLeaves()
    {
        root->setChild(group);
        for (int i = 0; i < c_numShared; ++i) {
            leaves.push_back(TestLeaf::create(boxAt(i)));
            group->addChild(leaves.back());
            dropped->addChild(leaves.back());
        }
    }

    /// Passes on the group, so that only the caller owns it.
    boost::shared_ptr<void> drop() { return std::move(dropped); }

    boost::shared_ptr<SceneGraphRoot> root = SceneGraphRoot::create();
    boost::shared_ptr<SceneGraphGroup> group = SceneGraphGroup::create();
    boost::shared_ptr<SceneGraphGroup> dropped = SceneGraphGroup::create();
    std::vector<boost::shared_ptr<TestLeaf>> leaves;
};

TEST_F(SharedLeaves, canBeUsedWhileTheirGroupIsDestroyed)
{
    for (int i = 0; i < 20000; ++i) {
        dropped->addChild(TestLeaf::create(boxAt(i)));
    }
    workWhileDropping(drop(), [&] {
        for (int round = 0; round < 20; ++round) {
            for (const auto& leaf : leaves) {
                leaf->setShininess(2.0f);
                leaf->setBoundingBox(boxAt(round));
                leaf->snapTo({{1.0f, 2.0f, 3.0f}});
            }
        }
    });
    EXPECT_EQ(leaves[0]->getParent(), nullptr);
    // Added again, they report to the group of the scene, and the other no longer holds them.
    for (const auto& leaf : leaves) {
        group->addChild(leaf);
        EXPECT_EQ(leaf.use_count(), 3);
    }
    leaves[7]->setBoundingBox(boxAt(-7));
    EXPECT_EQ(root->getBoundingBox(), BoundingBox(-7.0f, 20.0f, 0.0f, 1.0f, 0.0f, 1.0f));
}

TEST_F(SharedLeaves, canBeAddedAndRemovedWhileTheirGroupIsDestroyed)
{
    workWhileDropping(drop(), [&] {
        for (const auto& leaf : leaves) {
            leaf->setActive(false);
            group->addChild(leaf);
            leaf->disconnectFromParent();
        }
    });
    EXPECT_EQ(group->getNoOfChildren(), c_numShared);
    EXPECT_EQ(leaves[0]->getChildId(), 0);
}

TEST_F(SharedLeaves, canBeUsedWhileADeepTreeAboveThemIsDestroyed)
{
    for (int i = 0; i < 20000; ++i) {
        const auto above = SceneGraphGroup::create();
        above->addChild(dropped);
        dropped = above;
    }
    workWhileDropping(drop(), [&] {
        // Meanwhile a second deep tree is destroyed here, by the same loop.
        auto chain = SceneGraphGroup::create();
        for (int i = 0; i < 20000; ++i) {
            const auto above = SceneGraphGroup::create();
            above->addChild(chain);
            chain = above;
        }
        chain.reset();
        for (const auto& leaf : leaves) {
            leaf->markChanged();
        }
    });
    EXPECT_EQ(leaves[0]->getParent(), nullptr);
}

TEST(SharedLights, canBeUsedWhileTheirSceneLightIsDestroyed)
{
    auto light = SceneLight::create();
    std::vector<boost::shared_ptr<LightSource>> sources;
    for (int i = 0; i < 2000; ++i) {
        sources.push_back(light->getLightSourcePtr(light->createPointLight()));
    }
    workWhileDropping(std::move(light), [&] {
        for (const auto& source : sources) {
            source->setIntensity(0.5f);
            source->setActive(true);
        }
    });
    EXPECT_EQ(sources[0]->getEffectiveIntensity(), 0.5f);
}

} // namespace
} // namespace vxgraphics3d
