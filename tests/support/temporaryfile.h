#pragma once

#include <string>
#include <string_view>

namespace vxgraphics3d {

/// A file in memory during the lifetime of this object, for code that reads or writes files by name.
class TemporaryFile {
public:
    explicit TemporaryFile(std::string_view content = {});
    ~TemporaryFile();
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    const std::string& path() const { return m_path; }
    /// Replaces the content.
    void write(std::string_view content) const;
    /// The whole content.
    std::string read() const;

private:
    int m_file;
    std::string m_path;
};

} // namespace vxgraphics3d
