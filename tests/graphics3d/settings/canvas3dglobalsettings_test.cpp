#include "graphics3d/settings/canvas3dglobalsettings.h"

#include "graphics3d/parts/markingsetups.h"
#include "graphics3d/settings/rendererinfo.h"

#include <gtest/gtest.h>

#include <boost/make_shared.hpp>

#include <stdexcept>

using namespace vxgraphics3d;

namespace {

using Settings = Canvas3dGlobalSettings;

/// Settings as in a new process, independent of other tests.
struct FreshSettings : Settings {};

struct Multisampling : RendererInfo {
    explicit Multisampling(std::initializer_list<int> settings)
    {
        for (const int setting : settings) {
            m_multisampleSettings[m_numberOfMultisampleSettings++] = setting;
        }
    }
};

/// Gives the process the capabilities of a renderer for one test.
class WithRenderer {
public:
    explicit WithRenderer(const boost::shared_ptr<RendererInfo>& info) { Settings::setRendererInfo(info); }
    ~WithRenderer() { Settings::setRendererInfo(nullptr); }
};

} // namespace

TEST(Canvas3dGlobalSettings, everyDefault)
{
    const FreshSettings settings;
    EXPECT_EQ(settings.getChangeId(), 1);
    EXPECT_EQ(settings.getOnScreenResolution(), 72);
    EXPECT_TRUE(settings.isOpenGlDisplayListsUsed());
    EXPECT_TRUE(settings.isPBufferUsedForPicking());
    EXPECT_EQ(settings.getMultisampleSetting(), 0);
    EXPECT_FALSE(settings.isAntiAliasing());
    EXPECT_FALSE(settings.isShadersUsed());
    EXPECT_EQ(settings.getPickingTolerance(), 5);
    EXPECT_EQ(settings.getResizeBehaviour(), 3);
    EXPECT_EQ(settings.getZoomToExtentBehaviour(), 0);
    EXPECT_EQ(settings.getZoomToExtentMargin(), 0.05f);
    EXPECT_EQ(settings.getCameraMouseOrbitSpeed(), 0.01f);
    EXPECT_EQ(settings.getCameraMouseDollySpeed(), 0.02f);
    EXPECT_EQ(settings.getCameraMouseZoomSpeed(), 200.0f);
    for (int button = 1; button <= 3; ++button) {
        for (int mask = 0; mask < 8; ++mask) {
            EXPECT_EQ(settings.getCameraMouseAction(button, mask), 10) << button << ' ' << mask;
        }
    }
    EXPECT_EQ(settings.getOnScreenRenderQuality(), 1);
    EXPECT_EQ(settings.getOffScreenRenderQuality(), 2);
    for (int item = 0; item < 7; ++item) {
        const FontSetting& font = settings.getFont(static_cast<TextItem>(item));
        EXPECT_EQ(font.getName(), "default") << item;
        EXPECT_EQ(font.getSize(), 12) << item;
        EXPECT_EQ(font.getChangeCount(), 2) << item;
    }
    EXPECT_EQ(settings.getLegendTickPrecision(), 5);
    EXPECT_EQ(settings.getLegendMinMaxPrecision(), 5);
    EXPECT_EQ(settings.getGridbox2dTickPrecision(), 4);
    EXPECT_EQ(settings.getGridbox3dTickPrecision(), 3);
    EXPECT_EQ(settings.getMarkingSetups().getMarking(MarkingSetups::MarkingMode2, RowNormal).getLineWidth(), 1.5f);
    EXPECT_EQ(&settings.getMarkingSetups(), settings.getMarkingSetupsPtr().get());
}

TEST(Canvas3dGlobalSettings, onlyFourSettersCountAndTheyAlwaysDo)
{
    FreshSettings settings;
    settings.setOnScreenResolution(96);
    settings.setUsePBufferForPicking(false);
    settings.setUseShaders(true);
    settings.setPickingTolerance(-1);
    settings.setZoomToExtentBehaviour(Settings::ZoomToExtentSphere);
    settings.setZoomToExtentMargin(-2.5f);
    settings.setCameraMouseOrbitSpeed(1.5f);
    settings.setCameraMouseDollySpeed(2.5f);
    settings.setCameraMouseZoomSpeed(3.5f);
    settings.setCameraMouseAction(1, 0, Settings::ActionZoom);
    settings.setOnScreenRenderQuality(QualityBest);
    settings.setOffScreenRenderQuality(QualityFast);
    settings.font(TextItem::TextTitle).setFont("Serif", 14);
    settings.setLegendTickPrecision(6);
    settings.setLegendMinMaxPrecision(7);
    settings.setGridbox2dTickPrecision(8);
    settings.setGridbox3dTickPrecision(9);
    EXPECT_EQ(settings.getChangeId(), 1);
    EXPECT_EQ(settings.getOnScreenResolution(), 96);
    EXPECT_FALSE(settings.isPBufferUsedForPicking());
    EXPECT_TRUE(settings.isShadersUsed());
    EXPECT_EQ(settings.getPickingTolerance(), -1);
    EXPECT_EQ(settings.getZoomToExtentBehaviour(), 1);
    EXPECT_EQ(settings.getZoomToExtentMargin(), -2.5f);
    EXPECT_EQ(settings.getCameraMouseOrbitSpeed(), 1.5f);
    EXPECT_EQ(settings.getCameraMouseDollySpeed(), 2.5f);
    EXPECT_EQ(settings.getCameraMouseZoomSpeed(), 3.5f);
    EXPECT_EQ(settings.getOnScreenRenderQuality(), 2);
    EXPECT_EQ(settings.getOffScreenRenderQuality(), 0);
    EXPECT_EQ(settings.getFont(TextItem::TextTitle).getName(), "Serif");
    EXPECT_EQ(settings.getLegendTickPrecision(), 6);
    EXPECT_EQ(settings.getLegendMinMaxPrecision(), 7);
    EXPECT_EQ(settings.getGridbox2dTickPrecision(), 8);
    EXPECT_EQ(settings.getGridbox3dTickPrecision(), 9);

    settings.setUseOpenGlDisplayLists(true);
    EXPECT_EQ(settings.getChangeId(), 2);
    settings.setMultisampleSetting(0);
    EXPECT_EQ(settings.getChangeId(), 3);
    settings.setResizeBehaviour(Settings::ResizeFit);
    EXPECT_EQ(settings.getChangeId(), 4);
    settings.setAntiAliasing(false);
    EXPECT_EQ(settings.getChangeId(), 5);
}

TEST(Canvas3dGlobalSettings, setAntiAliasingTakesTheFirstSettingThatTheRendererOffers)
{
    struct {
        boost::shared_ptr<RendererInfo> renderer;
        bool on;
        int samples;
    } const cases[] = {
        {nullptr, true, 0},
        {boost::make_shared<Multisampling>(std::initializer_list<int>{}), true, 0},
        {boost::make_shared<Multisampling>(std::initializer_list<int>{8, 4}), true, 8},
        {boost::make_shared<Multisampling>(std::initializer_list<int>{8, 4}), false, 0},
    };
    for (const auto& c : cases) {
        const WithRenderer renderer(c.renderer);
        FreshSettings settings;
        settings.setMultisampleSetting(2);
        settings.setAntiAliasing(c.on);
        EXPECT_EQ(settings.getMultisampleSetting(), c.samples);
        EXPECT_EQ(settings.isAntiAliasing(), c.samples > 0);
        EXPECT_EQ(settings.getChangeId(), 3);
    }
}

TEST(Canvas3dGlobalSettings, setDefaultCameraMouseActionsReplacesTheWholeTable)
{
    constexpr int wanted[3][8] = {
        {0, 1, 4, 5, 10, 10, 10, 10},
        {9, 3, 7, 10, 10, 10, 10, 10},
        {8, 2, 6, 10, 10, 10, 10, 10},
    };
    FreshSettings settings;
    settings.setCameraMouseAction(3, 7, Settings::ActionZoom);
    settings.setDefaultCameraMouseActions();
    for (int button = 1; button <= 3; ++button) {
        for (int mask = 0; mask < 8; ++mask) {
            EXPECT_EQ(settings.getCameraMouseAction(button, mask), wanted[button - 1][mask]) << button << ' ' << mask;
        }
    }
    settings.resetCameraMouseActions();
    EXPECT_EQ(settings.getCameraMouseAction(1, 0), 10);
}

TEST(Canvas3dGlobalSettings, mouseTableRefusesOtherButtonsAndFoldsMasksOnlyWhenRead)
{
    FreshSettings settings;
    EXPECT_TRUE(settings.setCameraMouseAction(3, 7, Settings::ActionPan));
    EXPECT_TRUE(settings.setCameraMouseAction(1, 0, Settings::ActionTurn));
    constexpr std::pair<int, int> refused[] = {{1, 8}, {1, -1}, {0, 0}, {4, 0}, {-1, 0}};
    for (const auto& [button, mask] : refused) {
        EXPECT_FALSE(settings.setCameraMouseAction(button, mask, Settings::ActionZoom)) << button << ' ' << mask;
    }
    EXPECT_EQ(settings.getCameraMouseAction(1, 0), Settings::ActionTurn);
    EXPECT_EQ(settings.getCameraMouseAction(1, 8), Settings::ActionTurn);
    EXPECT_EQ(settings.getCameraMouseAction(3, -1), Settings::ActionPan);
    EXPECT_EQ(settings.getCameraMouseAction(0, 0), Settings::ActionNone);
    EXPECT_EQ(settings.getCameraMouseAction(4, 0), Settings::ActionNone);
}

TEST(Canvas3dGlobalSettings, isButtonForMouseActionChecksAllMasksExceptTheLast)
{
    FreshSettings settings;
    settings.setCameraMouseAction(2, 6, Settings::ActionRoll);
    settings.setCameraMouseAction(3, 7, Settings::ActionRoll);
    EXPECT_FALSE(settings.isButtonForMouseAction(1, Settings::ActionRoll));
    EXPECT_TRUE(settings.isButtonForMouseAction(2, Settings::ActionRoll));
    EXPECT_FALSE(settings.isButtonForMouseAction(3, Settings::ActionRoll));
    EXPECT_FALSE(settings.isButtonForMouseAction(0, Settings::ActionNone));
    EXPECT_FALSE(settings.isButtonForMouseAction(4, Settings::ActionNone));
}

TEST(Canvas3dGlobalSettings, missingTextItemsAreRefused)
{
    FreshSettings settings;
    for (const int item : {-1, 7}) {
        EXPECT_THROW(settings.getFont(static_cast<TextItem>(item)), std::out_of_range);
        EXPECT_THROW(settings.font(static_cast<TextItem>(item)), std::out_of_range);
    }
}

TEST(Canvas3dGlobalSettings, getInstanceIsOneObject)
{
    EXPECT_EQ(Settings::getInstance(), Settings::getInstance());
}

TEST(FontSetting, countsRealChangesAndEveryAssignment)
{
    FontSetting font;
    EXPECT_EQ(font.getChangeCount(), 1);
    EXPECT_EQ(font.getName(), "");
    EXPECT_EQ(font.getSize(), -1);
    font.setFont("", -1);
    EXPECT_EQ(font.getChangeCount(), 1);
    font.setFont("Sans", -1);
    EXPECT_EQ(font.getChangeCount(), 2);
    font.setFont("Sans", 12);
    EXPECT_EQ(font.getChangeCount(), 3);
    font.setFont("Sans", 12);
    EXPECT_EQ(font.getChangeCount(), 3);

    FontSetting other;
    other = font;
    EXPECT_EQ(other.getChangeCount(), 2);
    EXPECT_EQ(other.getName(), "Sans");
    EXPECT_EQ(other.getSize(), 12);
    other = font;
    EXPECT_EQ(other.getChangeCount(), 3);
    const FontSetting& self = other;
    other = self;
    EXPECT_EQ(other.getChangeCount(), 3);
    const FontSetting copy = font;
    EXPECT_EQ(copy.getChangeCount(), 2);
}
