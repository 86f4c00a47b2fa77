#pragma once

#include "base/export.h"

#include <boost/enable_shared_from_this.hpp>
#include <boost/shared_ptr.hpp>

#include <cstdint>
#include <set>
#include <string>
#include <vector>

namespace vxgraphics3d {

/// The capabilities of the renderer of this process, and any requirements that are missing.
///
/// The renderer creates one object of its own subclass, whose constructor sets the fields, and passes it to
/// `Canvas3dGlobalSettings::setRendererInfo`. Everything else, Java included, only reads it.
class VX_API RendererInfo {
public:
    using PeerRoot = RendererInfo;

    /// The capabilities of one monitor's video card. Filled by a subclass of the renderer, like the enclosing class.
    class VX_API MonitorInfo : public boost::enable_shared_from_this<MonitorInfo> {
    public:
        using PeerRoot = MonitorInfo;

        MonitorInfo() = default;
        MonitorInfo(const MonitorInfo&) = delete;
        MonitorInfo& operator=(const MonitorInfo&) = delete;
        virtual ~MonitorInfo();

        const std::string& getDeviceID() const { return m_deviceId; }
        const std::string& getVideoCardVendor() const { return m_videoCardVendor; }
        const std::string& getVideoCardName() const { return m_videoCardName; }
        const std::string& getVideoCardVersion() const { return m_videoCardVersion; }
        std::uint16_t getOpenGlVersion() const { return m_openGlVersion; }
        const std::set<std::string>& getOpenGlExtensions() const { return m_openGlExtensions; }
        int getMaxNumberOfLights() const { return m_maxNumberOfLights; }
        /// The longest side of a texture, in texels.
        int getMaxTextureSize() const { return m_maxTextureSize; }
        /// The number of vertices that one array may contain.
        int getMaxVertexArraySize() const { return m_maxVertexArraySize; }
        /// The number of indices that one array may contain.
        int getMaxIndexArraySize() const { return m_maxIndexArraySize; }

    protected:
        std::string m_deviceId;
        std::string m_videoCardVendor;
        std::string m_videoCardName;
        std::string m_videoCardVersion;
        std::uint16_t m_openGlVersion = 0;
        std::set<std::string> m_openGlExtensions;
        int m_maxNumberOfLights = 0;
        int m_maxTextureSize = 0;
        int m_maxVertexArraySize = 0;
        int m_maxIndexArraySize = 0;
    };

    /// The maximum number of multisample settings.
    static constexpr int c_maxMultisampleSettings = 10;

    RendererInfo() = default;
    RendererInfo(const RendererInfo&) = delete;
    RendererInfo& operator=(const RendererInfo&) = delete;
    virtual ~RendererInfo();

    /// Whether the renderer has an extension of its graphics interface.
    virtual bool hasOpenGlExtension(const std::string& name) const;

    /// Whether all requirements of the renderer are fulfilled.
    bool isRendererRequirementsFulfilled() const { return m_missingRequirements.empty(); }
    int getNumberOfMissingRequirements() const { return static_cast<int>(m_missingRequirements.size()); }
    /// The description of a missing requirement.
    /// @throws std::out_of_range for an index that is not below the number of missing requirements
    const std::string& getMissingRequirement(int index) const;
    const std::string& getRendererType() const { return m_rendererType; }

    int getNumberOfMonitors() const { return static_cast<int>(m_monitors.size()); }
    /// @throws std::out_of_range for an index that is not below the number of monitors
    const MonitorInfo* getMonitorInfo(int index) const;
    /// A shared pointer to a monitor's record.
    /// @throws std::out_of_range for an index that is not below the number of monitors
    /// @throws std::logic_error if the record is null
    /// @throws boost::bad_weak_ptr if no shared pointer owns the record
    boost::shared_ptr<MonitorInfo> getMonitorInfoPtr(int index) const;

    std::uint16_t getOpenGlVersion() const { return m_openGlVersion; }
    bool hasDoubleBuffering() const { return m_hasDoubleBuffering; }
    bool hasQuads() const { return m_hasQuads; }
    /// Whether indices may have 32 bits.
    bool has32BitIndexBuffer() const { return m_has32BitIndexBuffer; }
    /// 0 none, 1 full screen, 2 accumulation buffer.
    int getAntialiasingType() const { return m_antialiasingType; }
    /// The type's name; unknown numbers are treated as 0.
    const std::string& getAntialiasingTypeStr() const;
    int getNumberOfMultisampleSettings() const { return m_numberOfMultisampleSettings; }
    /// The number of samples of a setting.
    /// @throws std::out_of_range for an index that is not below the number of settings
    int getMultisampleSetting(int index) const;
    int getMaxNumberOfAvailableLights() const { return m_maxNumberOfAvailableLights; }
    /// The longest side of a texture, in texels.
    int getMaxTextureSize() const { return m_maxTextureSize; }
    /// 1 red first, 2 alpha first; anything else is an error.
    int getColorFormat() const { return m_colorFormat; }
    /// The format's name; unknown numbers are treated as 0.
    const std::string& getColorFormatStr() const;
    /// The number of vertices that one array may contain.
    int getMaxVertexArraySize() const { return m_maxVertexArraySize; }
    /// The number of indices that one array may contain.
    int getMaxIndexArraySize() const { return m_maxIndexArraySize; }
    /// Whether the array sizes are hard limits; otherwise they are only recommendations for speed.
    bool isArraySizesHard() const { return m_isArraySizesHard; }
    bool hasOffscreenContext() const { return m_hasOffscreenContext; }

protected:
    std::vector<std::string> m_missingRequirements;
    std::string m_rendererType;
    std::vector<boost::shared_ptr<MonitorInfo>> m_monitors;
    std::uint16_t m_openGlVersion = 0;
    bool m_hasDoubleBuffering = false;
    bool m_hasQuads = false;
    bool m_has32BitIndexBuffer = false;
    int m_antialiasingType = 0;
    int m_numberOfMultisampleSettings = 0;
    int m_multisampleSettings[c_maxMultisampleSettings] = {};
    int m_maxNumberOfAvailableLights = 0;
    int m_maxTextureSize = 0;
    int m_colorFormat = 0;
    int m_maxVertexArraySize = 0;
    int m_maxIndexArraySize = 0;
    bool m_isArraySizesHard = true;
    bool m_hasOffscreenContext = false;
};

} // namespace vxgraphics3d
