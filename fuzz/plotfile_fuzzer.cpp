// Arbitrary bytes as a plot file: the reader must give the same result and the same messages as the simple reference
// reader.

#include "tests/support/plotcomparison.h"
#include "tests/support/temporaryfile.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

namespace {

/// What the reader writes to standard error. The fuzzer's own reports still reach the real one: they are written to the
/// descriptor, not the stream.
std::string takeError()
{
    static char* text = nullptr;
    static std::size_t size = 0;
    static std::FILE* const stream = open_memstream(&text, &size);
    stderr = stream;
    std::fflush(stream);
    std::string taken(text, size);
    std::rewind(stream);
    return taken;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    static const vxgraphics3d::TemporaryFile file;
    takeError();
    file.write(std::string_view(reinterpret_cast<const char*>(bytes), size));
    int numGood = 0;
    const std::string difference = vxgraphics3d::differenceFromReference(file.path(), takeError, numGood);
    if (!difference.empty()) {
        std::printf("%s\n", difference.c_str());
        std::abort();
    }
    return 0;
}
