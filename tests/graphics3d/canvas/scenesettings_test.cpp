#include "graphics3d/canvas/scenesettings.h"

#include "graphics3d/canvas/irenderersetup.h"
#include "graphics3d/lights/scenesettingslight.h"
#include "graphics3d/settings/canvas3dglobalsettings.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace vxgraphics3d {
namespace {

class TestSetup : public IRendererSetup {};

TEST(SceneSettings, startWithTheirDefaults)
{
    TestSetup setup;
    const SceneSettings settings(setup);
    EXPECT_EQ(&settings.getSetup(), &setup);
    EXPECT_EQ(settings.getChangedFlags(), 0u);
    EXPECT_TRUE(settings.isLegendsShown() && settings.isMinMaxShown() && settings.isTitleShown());
    EXPECT_FALSE(settings.isLabelsShown() || settings.isPhysicsMarkersShown() || settings.isLineDirectionsShown());
    EXPECT_EQ(settings.getGlobalOpacity(), 1.0f);
    EXPECT_TRUE(settings.getLight()->isLightUsed());
}

TEST(SceneSettings, takeTheirFontsFromTheGlobalSettings)
{
    Canvas3dGlobalSettings& process = *Canvas3dGlobalSettings::getInstance();
    const int labelBefore = process.font(TextItem::TextLabel).getSize();
    const int titleBefore = process.font(TextItem::TextTitle).getSize();
    process.font(TextItem::TextLabel).setFont(process.getFont(TextItem::TextLabel).getName(), 31);
    process.font(TextItem::TextTitle).setFont(process.getFont(TextItem::TextTitle).getName(), 32);
    TestSetup setup;
    const SceneSettings settings(setup);
    process.font(TextItem::TextLabel).setFont(process.getFont(TextItem::TextLabel).getName(), labelBefore);
    process.font(TextItem::TextTitle).setFont(process.getFont(TextItem::TextTitle).getName(), titleBefore);
    EXPECT_EQ(settings.getFont(SceneSettings::TextLabel).getSize(), 31);
    EXPECT_EQ(settings.getFont(SceneSettings::TextTitle).getSize(), 32);
    EXPECT_THROW(settings.getFont(static_cast<SceneSettings::TextItem>(2)), std::out_of_range);
    EXPECT_THROW(settings.getFont(static_cast<SceneSettings::TextItem>(-1)), std::out_of_range);
}

TEST(SceneSettings, onlyAChangeSetsTheBitOfItsKind)
{
    struct Case {
        void (SceneSettings::*set)(bool);
        bool present;
        unsigned bit;
    };
    constexpr Case cases[] = {
        {&SceneSettings::setShowLegends, true, 0x08},         {&SceneSettings::setShowMinMax, true, 0x08},
        {&SceneSettings::setShowTitle, true, 0x10},           {&SceneSettings::setShowLabels, false, 0x20},
        {&SceneSettings::setShowPhysicsMarkers, false, 0x40}, {&SceneSettings::setShowLineDirections, false, 0x80},
    };
    TestSetup setup;
    for (const Case& c : cases) {
        SceneSettings settings(setup);
        (settings.*c.set)(c.present);
        EXPECT_EQ(settings.getChangedFlags(), 0u) << c.bit;
        (settings.*c.set)(!c.present);
        EXPECT_EQ(settings.getChangedFlags(), c.bit);
        settings.setGlobalOpacity(0.5f);
        EXPECT_EQ(settings.getChangedFlags(), c.bit);
        settings.resetChangedFlags();
        EXPECT_EQ(settings.getChangedFlags(), 0u);
    }
}

TEST(SceneSettings, areOpaqueFromOneUp)
{
    TestSetup setup;
    SceneSettings settings(setup);
    for (const auto& [opacity, opaque] : {std::pair(1.0f, true), std::pair(1.5f, true), std::pair(0.99f, false)}) {
        settings.setGlobalOpacity(opacity);
        EXPECT_EQ(settings.isGlobalOpaque(), opaque) << opacity;
    }
}

TEST(SceneSettings, thoseOfAnotherViewStartEqualAndAreIndependent)
{
    TestSetup setup;
    TestSetup other;
    SceneSettings source(setup);
    source.setShowLabels(true);
    source.setShowTitle(false);
    source.setGlobalOpacity(0.25f);
    source.font(SceneSettings::TextTitle).setFont("title", 40);
    source.getLight()->setDiffuseLight(false);
    const SceneSettings first(other, source);
    const SceneSettings second(other, source);
    EXPECT_EQ(first.getId(), source.getId() + 1);
    EXPECT_EQ(second.getId(), source.getId() + 2);
    EXPECT_EQ(&first.getSetup(), &other);
    EXPECT_EQ(first.getChangedFlags(), 0u);
    EXPECT_TRUE(first.isLabelsShown());
    EXPECT_FALSE(first.isTitleShown());
    EXPECT_EQ(first.getGlobalOpacity(), 0.25f);
    EXPECT_EQ(first.getFont(SceneSettings::TextTitle).getSize(), 40);
    EXPECT_FALSE(first.getLight()->isDiffuseLight());
    EXPECT_EQ(first.getLight()->getChangeId(), 1);
    first.getLight()->setDiffuseLight(true);
    EXPECT_FALSE(second.getLight()->isDiffuseLight());
}

} // namespace
} // namespace vxgraphics3d
