#include "graphics3d/canvas/hardcopysettings.h"

#include "graphics3d/settings/canvas3dglobalsettings.h"

#include <gtest/gtest.h>

#include <stdexcept>

using namespace vxgraphics3d;

namespace {

/// Gives the screen another resolution for one test.
class WithResolution {
public:
    explicit WithResolution(int dpi) : m_previous(Canvas3dGlobalSettings::getInstance()->getOnScreenResolution())
    {
        set(dpi);
    }
    ~WithResolution() { set(m_previous); }

    static void set(int dpi) { Canvas3dGlobalSettings::getInstance()->setOnScreenResolution(dpi); }

private:
    int m_previous;
};

} // namespace

TEST(HardcopySettings, everyDefault)
{
    const HardcopySettings settings;
    EXPECT_FALSE(settings.isAxisOrientationShown());
    EXPECT_FALSE(settings.isLegendsShown());
    EXPECT_FALSE(settings.isAxisShown());
    EXPECT_FALSE(settings.isTitleShown());
    EXPECT_FALSE(settings.isLogoShown());
    EXPECT_FALSE(settings.isUseCurrentBackground());
    EXPECT_TRUE(settings.isShowPhysicsMarkers());
    EXPECT_EQ(settings.getMultisampleSetting(), 1);
    EXPECT_FALSE(settings.isUseTransparency());
    EXPECT_EQ(settings.getTransparencyLayers(), 0);
    EXPECT_EQ(settings.getDpi(), 72);
    EXPECT_EQ(settings.getTopColor(), (Color{255, 255, 255, 255}));
    EXPECT_EQ(settings.getBottomColor(), (Color{255, 255, 255, 255}));
    for (int item = 0; item < 7; ++item) {
        EXPECT_EQ(settings.getFontSize(static_cast<TextItem>(item)), -1) << item;
        EXPECT_FALSE(settings.isFontSizeValid(static_cast<TextItem>(item))) << item;
    }
    EXPECT_EQ(settings.getFileTitle(), "");
    EXPECT_EQ(settings.getFileCreator(), "");
}

TEST(HardcopySettings, eachSetterReachesItsOwnField)
{
    using Setter = void (HardcopySettings::*)(bool);
    using Reader = bool (HardcopySettings::*)() const;
    struct {
        Setter set;
        Reader is;
    } const flags[] = {
        {&HardcopySettings::setAxisOrientationShown, &HardcopySettings::isAxisOrientationShown},
        {&HardcopySettings::setLegendsShown, &HardcopySettings::isLegendsShown},
        {&HardcopySettings::setAxisShown, &HardcopySettings::isAxisShown},
        {&HardcopySettings::setTitleShown, &HardcopySettings::isTitleShown},
        {&HardcopySettings::setLogoShown, &HardcopySettings::isLogoShown},
        {&HardcopySettings::setUseCurrentBackground, &HardcopySettings::isUseCurrentBackground},
        {&HardcopySettings::setShowPhysicsMarkers, &HardcopySettings::isShowPhysicsMarkers},
        {&HardcopySettings::setUseTransparency, &HardcopySettings::isUseTransparency},
    };
    HardcopySettings settings;
    settings.setShowPhysicsMarkers(false);
    for (const auto& flag : flags) {
        (settings.*flag.set)(true);
        int set = 0;
        for (const auto& other : flags) {
            set += (settings.*other.is)() ? 1 : 0;
        }
        EXPECT_EQ(set, 1);
        EXPECT_TRUE((settings.*flag.is)());
        (settings.*flag.set)(false);
    }
    settings.setMultisampleSetting(8);
    settings.setTransparencyLayers(9);
    settings.setDpi(300);
    settings.setFileTitle("title");
    settings.setFileCreator("creator");
    EXPECT_EQ(settings.getMultisampleSetting(), 8);
    EXPECT_EQ(settings.getTransparencyLayers(), 9);
    EXPECT_EQ(settings.getDpi(), 300);
    EXPECT_EQ(settings.getFileTitle(), "title");
    EXPECT_EQ(settings.getFileCreator(), "creator");
}

TEST(HardcopySettings, setBackgroundIgnoresTheHighByte)
{
    HardcopySettings settings;
    settings.setBackground(0x12345678, static_cast<int>(0xff000001u));
    EXPECT_EQ(settings.getTopColor(), (Color{0x34, 0x56, 0x78, 255}));
    EXPECT_EQ(settings.getBottomColor(), (Color{0, 0, 1, 255}));
}

TEST(HardcopySettings, fontSizesAreValidFromOne)
{
    HardcopySettings settings;
    settings.setFontSize(TextItem::TextTitle, 1);
    EXPECT_TRUE(settings.isFontSizeValid(TextItem::TextTitle));
    EXPECT_FALSE(settings.isFontSizeValid(TextItem::TextLegendTick));
    settings.setFontSize(TextItem::TextTitle, 0);
    EXPECT_EQ(settings.getFontSize(TextItem::TextTitle), 0);
    EXPECT_FALSE(settings.isFontSizeValid(TextItem::TextTitle));
    for (const int item : {-1, 7}) {
        EXPECT_THROW(settings.setFontSize(static_cast<TextItem>(item), 1), std::out_of_range);
        EXPECT_THROW(settings.getFontSize(static_cast<TextItem>(item)), std::out_of_range);
        EXPECT_THROW(settings.isFontSizeValid(static_cast<TextItem>(item)), std::out_of_range);
    }
}

TEST(HardcopySettings, resolutionIsThatOfTheScreenAtConstruction)
{
    const WithResolution resolution(96);
    const HardcopySettings settings;
    EXPECT_EQ(settings.getDpi(), 96);
    WithResolution::set(120);
    EXPECT_EQ(settings.getDpi(), 96);
}
