#include "graphics3d/settings/rendererinfo.h"

#include <gtest/gtest.h>

#include <boost/make_shared.hpp>

#include <stdexcept>

using namespace vxgraphics3d;

namespace {

/// A record that the test fills as a renderer would.
struct Capabilities : RendererInfo {
    using RendererInfo::m_antialiasingType;
    using RendererInfo::m_colorFormat;
    using RendererInfo::m_missingRequirements;
    using RendererInfo::m_monitors;
    using RendererInfo::m_multisampleSettings;
    using RendererInfo::m_numberOfMultisampleSettings;

    bool hasOpenGlExtension(const std::string& name) const override { return name == "known"; }
};

} // namespace

TEST(RendererInfo, everyDefault)
{
    const RendererInfo info;
    EXPECT_TRUE(info.isRendererRequirementsFulfilled());
    EXPECT_EQ(info.getNumberOfMissingRequirements(), 0);
    EXPECT_EQ(info.getRendererType(), "");
    EXPECT_EQ(info.getNumberOfMonitors(), 0);
    EXPECT_EQ(info.getOpenGlVersion(), 0);
    EXPECT_FALSE(info.hasDoubleBuffering());
    EXPECT_FALSE(info.hasQuads());
    EXPECT_FALSE(info.has32BitIndexBuffer());
    EXPECT_EQ(info.getAntialiasingType(), 0);
    EXPECT_EQ(info.getNumberOfMultisampleSettings(), 0);
    EXPECT_EQ(info.getMaxNumberOfAvailableLights(), 0);
    EXPECT_EQ(info.getMaxTextureSize(), 0);
    EXPECT_EQ(info.getColorFormat(), 0);
    EXPECT_EQ(info.getMaxVertexArraySize(), 0);
    EXPECT_EQ(info.getMaxIndexArraySize(), 0);
    EXPECT_TRUE(info.isArraySizesHard());
    EXPECT_FALSE(info.hasOffscreenContext());
    EXPECT_FALSE(info.hasOpenGlExtension("GL_ARB_multisample"));

    const RendererInfo::MonitorInfo monitor;
    EXPECT_EQ(monitor.getDeviceID() + monitor.getVideoCardVendor() + monitor.getVideoCardName() +
                  monitor.getVideoCardVersion(),
              "");
    EXPECT_EQ(monitor.getOpenGlVersion(), 0);
    EXPECT_TRUE(monitor.getOpenGlExtensions().empty());
    EXPECT_EQ(monitor.getMaxNumberOfLights(), 0);
    EXPECT_EQ(monitor.getMaxTextureSize(), 0);
    EXPECT_EQ(monitor.getMaxVertexArraySize(), 0);
    EXPECT_EQ(monitor.getMaxIndexArraySize(), 0);
}

TEST(RendererInfo, numbersWithoutANameReadAsZero)
{
    struct {
        int number;
        const char* colorFormat;
        const char* antialiasingType;
    } const cases[] = {
        {0, "ERROR", "NoAntialiasing"},
        {1, "R8G8B8A8", "FullScreenAntialiasing"},
        {2, "A8R8G8B8", "AccumBufferAntialiasing"},
        {3, "ERROR", "NoAntialiasing"},
        {-1, "ERROR", "NoAntialiasing"},
    };
    Capabilities info;
    for (const auto& c : cases) {
        info.m_colorFormat = c.number;
        info.m_antialiasingType = c.number;
        EXPECT_EQ(info.getColorFormatStr(), c.colorFormat) << c.number;
        EXPECT_EQ(info.getAntialiasingTypeStr(), c.antialiasingType) << c.number;
    }
}

TEST(RendererInfo, indicesAreCheckedAgainstTheirCount)
{
    Capabilities info;
    info.m_missingRequirements = {"no context", "no shaders"};
    info.m_monitors = {boost::make_shared<RendererInfo::MonitorInfo>()};
    info.m_numberOfMultisampleSettings = 2;
    info.m_multisampleSettings[0] = 8;
    info.m_multisampleSettings[1] = 4;

    EXPECT_FALSE(info.isRendererRequirementsFulfilled());
    EXPECT_EQ(info.getMissingRequirement(1), "no shaders");
    EXPECT_EQ(info.getMultisampleSetting(1), 4);
    EXPECT_EQ(info.getMonitorInfo(0), info.m_monitors[0].get());
    for (const int index : {-1, 2, 1 << 30}) {
        EXPECT_THROW(info.getMissingRequirement(index), std::out_of_range) << index;
        EXPECT_THROW(info.getMultisampleSetting(index), std::out_of_range) << index;
        EXPECT_THROW(info.getMonitorInfo(index), std::out_of_range) << index;
        EXPECT_THROW(info.getMonitorInfoPtr(index), std::out_of_range) << index;
    }
    // A count beyond the capacity does not lead to accesses beyond it.
    info.m_numberOfMultisampleSettings = 100;
    EXPECT_EQ(info.getMultisampleSetting(9), 0);
    EXPECT_THROW(info.getMultisampleSetting(10), std::out_of_range);
}

TEST(RendererInfo, getMonitorInfoPtrSharesTheMonitorAndNeedsAnOwner)
{
    boost::shared_ptr<RendererInfo::MonitorInfo> kept;
    RendererInfo::MonitorInfo unowned;
    {
        Capabilities info;
        info.m_monitors = {
            boost::make_shared<RendererInfo::MonitorInfo>(), nullptr, {boost::shared_ptr<void>(), &unowned}};
        kept = info.getMonitorInfoPtr(0);
        EXPECT_EQ(kept, info.m_monitors[0]);
        EXPECT_THROW(info.getMonitorInfoPtr(1), std::logic_error);
        EXPECT_THROW(info.getMonitorInfoPtr(2), boost::bad_weak_ptr);
    }
    EXPECT_EQ(kept.use_count(), 1);
}

TEST(RendererInfo, extensionsComeFromTheRenderersOwnRecord)
{
    const Capabilities info;
    const RendererInfo& asked = info;
    EXPECT_TRUE(asked.hasOpenGlExtension("known"));
    EXPECT_FALSE(asked.hasOpenGlExtension("unknown"));
}
