#include "graphics3d/settings/rendererinfo.h"

#include <algorithm>
#include <array>
#include <stdexcept>

namespace vxgraphics3d {

namespace {

using NameTable = std::array<std::string, 3>;

const std::string& nameOf(const NameTable& names, int number)
{
    const auto index = static_cast<std::size_t>(number);
    return index < names.size() ? names[index] : names[0];
}

std::size_t checkedIndex(const char* what, int index, std::size_t count)
{
    if (index < 0 || static_cast<std::size_t>(index) >= count) {
        throw std::out_of_range("There is no " + std::string(what) + ' ' + std::to_string(index) + ", the number is " +
                                std::to_string(count) + '.');
    }
    return static_cast<std::size_t>(index);
}

} // namespace

RendererInfo::MonitorInfo::~MonitorInfo() = default;

RendererInfo::~RendererInfo() = default;

bool RendererInfo::hasOpenGlExtension(const std::string&) const
{
    return false;
}

const std::string& RendererInfo::getMissingRequirement(int index) const
{
    return m_missingRequirements[checkedIndex("missing requirement", index, m_missingRequirements.size())];
}

const RendererInfo::MonitorInfo* RendererInfo::getMonitorInfo(int index) const
{
    return m_monitors[checkedIndex("monitor", index, m_monitors.size())].get();
}

boost::shared_ptr<RendererInfo::MonitorInfo> RendererInfo::getMonitorInfoPtr(int index) const
{
    const boost::shared_ptr<MonitorInfo>& monitor = m_monitors[checkedIndex("monitor", index, m_monitors.size())];
    if (!monitor) {
        throw std::logic_error("Nothing is known of monitor " + std::to_string(index) + '.');
    }
    return monitor->shared_from_this();
}

const std::string& RendererInfo::getAntialiasingTypeStr() const
{
    static const NameTable names = {"NoAntialiasing", "FullScreenAntialiasing", "AccumBufferAntialiasing"};
    return nameOf(names, m_antialiasingType);
}

int RendererInfo::getMultisampleSetting(int index) const
{
    const int count = std::clamp(m_numberOfMultisampleSettings, 0, c_maxMultisampleSettings);
    return m_multisampleSettings[checkedIndex("multisample setting", index, static_cast<std::size_t>(count))];
}

const std::string& RendererInfo::getColorFormatStr() const
{
    static const NameTable names = {"ERROR", "R8G8B8A8", "A8R8G8B8"};
    return nameOf(names, m_colorFormat);
}

} // namespace vxgraphics3d
