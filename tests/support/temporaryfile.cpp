#include "tests/support/temporaryfile.h"

#include <cerrno>
#include <sys/mman.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace vxgraphics3d {

namespace {

void require(bool good)
{
    if (!good) {
        throw std::system_error(errno, std::generic_category(), "temporary file");
    }
}

} // namespace

TemporaryFile::TemporaryFile(std::string_view content)
    : m_file(memfd_create("temporary file", MFD_CLOEXEC)), m_path("/proc/self/fd/" + std::to_string(m_file))
{
    require(m_file >= 0);
    write(content);
}

TemporaryFile::~TemporaryFile()
{
    close(m_file);
}

void TemporaryFile::write(std::string_view content) const
{
    require(ftruncate(m_file, 0) == 0);
    require(pwrite(m_file, content.data(), content.size(), 0) == static_cast<ssize_t>(content.size()));
}

std::string TemporaryFile::read() const
{
    struct stat status;
    require(fstat(m_file, &status) == 0);
    std::string content(static_cast<std::size_t>(status.st_size), '\0');
    content.resize(static_cast<std::size_t>(pread(m_file, content.data(), content.size(), 0)));
    return content;
}

} // namespace vxgraphics3d
