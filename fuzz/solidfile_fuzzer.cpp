// Arbitrary bytes as a solid file: the reader must give the same result, the same record and the same messages as the
// simple reference reader.

#include "tests/support/referencesolidreader.h"
#include "tests/support/temporaryfile.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    static const vxgraphics3d::TemporaryFile file;
    // What the reader writes to standard error. The fuzzer's own reports are written to the descriptor.
    static std::FILE* const nowhere = std::fopen("/dev/null", "w");
    stderr = nowhere;
    file.write(std::string_view(reinterpret_cast<const char*>(bytes), size));
    int numGood = 0;
    const std::string difference = vxgraphics3d::differenceFromPlainSolid(file.path(), numGood);
    if (!difference.empty()) {
        std::printf("%s\n", difference.c_str());
        std::abort();
    }
    return 0;
}
