#include "graphics3d/plots/colour/colortablehandler.h"

#include <boost/make_shared.hpp>

#include <stdexcept>
#include <utility>

namespace vxgraphics3d {

boost::shared_ptr<ColorTableHandler> ColorTableHandler::m_instance;

ColorTableHandler* ColorTableHandler::getInstance()
{
    // Created once even if two threads, each with its own scene, call this first.
    static ColorTableHandler* const instance = [] {
        // The pointer is destroyed when the process ends, but the tables are not: threads may still use them.
        m_instance.reset(new ColorTableHandler, [](ColorTableHandler*) {});
        return m_instance.get();
    }();
    return instance;
}

ColorTableHandler::~ColorTableHandler() = default;

boost::shared_ptr<ColorTable> ColorTableHandler::getColorTable(const std::string& name) const
{
    const auto found = m_colorTables.find(name);
    return found == m_colorTables.end() ? boost::shared_ptr<ColorTable>() : found->second;
}

bool ColorTableHandler::isColorTable(const std::string& name) const
{
    return m_colorTables.count(name) != 0;
}

bool ColorTableHandler::addColorTable(const std::string& name, ColorTable::Type type, const ColorTable::Colors& colors)
{
    if (isColorTable(name)) {
        return false;
    }
    m_colorTables.emplace(name, boost::make_shared<ColorTable>(name, type, colors));
    return true;
}

bool ColorTableHandler::updateColorTable(const std::string& name, ColorTable::Type type,
                                         const ColorTable::Colors& colors)
{
    ColorTable& table = *known(name)->second;
    if (isProtected(table)) {
        return false;
    }
    table.update(type, colors);
    return true;
}

bool ColorTableHandler::deleteColorTable(const std::string& name)
{
    const auto found = m_colorTables.find(name);
    if (found == m_colorTables.end() || isProtected(*found->second)) {
        return false;
    }
    m_colorTables.erase(found);
    return true;
}

bool ColorTableHandler::renameColorTable(const std::string& oldName, const std::string& newName)
{
    const auto found = known(oldName);
    if (isProtected(*found->second)) {
        return false;
    }
    // The old name may be the table's own, which changes here.
    std::string key = newName;
    found->second->rename(key);
    auto node = m_colorTables.extract(found);
    node.key() = std::move(key);
    m_colorTables.insert(std::move(node));
    return true;
}

ColorTableHandler::ColorTables::const_iterator ColorTableHandler::known(const std::string& name) const
{
    const auto found = m_colorTables.find(name);
    if (found == m_colorTables.end()) {
        throw std::out_of_range("There is no color table \"" + name + "\".");
    }
    return found;
}

} // namespace vxgraphics3d
