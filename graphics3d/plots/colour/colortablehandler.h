#pragma once

#include "base/export.h"
#include "graphics3d/plots/colour/colortable.h"

#include <boost/shared_ptr.hpp>

#include <map>
#include <string>

namespace vxgraphics3d {

/// The process-wide registry of colour tables by name: a table is computed once and shared by all plots that request
/// it.
///
/// It is created by the first `getInstance()` and lives until the process ends. The library registers no tables itself.
/// Plots hold tables weakly, so they lose a table that is deleted.
class VX_API ColorTableHandler {
public:
    static ColorTableHandler* getInstance();

    virtual ~ColorTableHandler();
    ColorTableHandler(const ColorTableHandler&) = delete;
    ColorTableHandler& operator=(const ColorTableHandler&) = delete;

    /// The table with a name, or an empty pointer.
    boost::shared_ptr<ColorTable> getColorTable(const std::string& name) const;
    bool isColorTable(const std::string& name) const;

    /// Computes and registers a table. If the name is taken, its table is kept and the result is false.
    /// Throws std::invalid_argument for colours that define no table, and registers nothing.
    bool addColorTable(const std::string& name, ColorTable::Type type, const ColorTable::Colors& colors);
    /// Recomputes a table; false if it is protected. Throws std::out_of_range if the name is not known.
    bool updateColorTable(const std::string& name, ColorTable::Type type, const ColorTable::Colors& colors);
    /// Removes a table from the registry; false if the name is not known or the table is protected.
    bool deleteColorTable(const std::string& name);
    /// Renames a table; false if it is protected. If the new name is taken, its table is kept and the renamed one
    /// leaves the registry. Throws std::out_of_range if the old name is not known.
    bool renameColorTable(const std::string& oldName, const std::string& newName);

    /// Tables up to this id are protected: they cannot be deleted, updated or renamed. Initially none is.
    int getLastProtectedId() const { return m_lastProtectedId; }
    void setLastProtectedId(int id) { m_lastProtectedId = id; }

private:
    using ColorTables = std::map<std::string, boost::shared_ptr<ColorTable>>;

    ColorTableHandler() = default;

    ColorTables::const_iterator known(const std::string& name) const;
    bool isProtected(const ColorTable& table) const { return table.getId() <= m_lastProtectedId; }

    static boost::shared_ptr<ColorTableHandler> m_instance;

    ColorTables m_colorTables;
    int m_lastProtectedId = -1;
};

} // namespace vxgraphics3d
