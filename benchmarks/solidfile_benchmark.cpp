#include "datacarrier/renderdraw3d.h"
#include "graphics3d/readers/sceneobjectfilereader.h"
#include "tests/support/plotfiles.h"
#include "tests/support/referencesolidreader.h"
#include "tests/support/solidcomparison.h"
#include "tests/support/temporaryfile.h"

#include <benchmark/benchmark.h>

#include <cstdint>
#include <string>

namespace vxgraphics3d {
namespace {

// A solid of 500,000 coordinates with a million triangles in 499 faces. The limit is the same work with fgets and
// strtod: the reader must be two and a half times as fast. That of plot files must be three times as fast, but the
// simple reader of solids reads each number only once. Rates are in bytes of the file.
struct Solid {
    const std::string text = gridSolidText(1000, 500, 7);
    const TemporaryFile file{text};
    vxdatacarrier::RenderDraw3D expected;

    Solid()
    {
        std::string message;
        readSolidPlainly(expected, file.path(), Vector3f(), message);
    }
    static const Solid& get()
    {
        static const Solid solid;
        return solid;
    }
};

template <class Read>
void readSolid(benchmark::State& state, Read read)
{
    const Solid& solid = Solid::get();
    std::string difference;
    for (auto _ : state) {
        vxdatacarrier::RenderDraw3D record;
        read(record, solid.file.path());
        state.PauseTiming();
        difference += differenceOf(record, solid.expected);
        record = vxdatacarrier::RenderDraw3D();
        state.ResumeTiming();
    }
    if (solid.expected.m_numSheets == 0 || !difference.empty()) {
        state.SkipWithError("the records differ");
    }
    state.counters["allowed"] = 0.4;
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(solid.text.size()));
}

void readSolidFile(benchmark::State& state)
{
    readSolid(state, [](vxdatacarrier::RenderDraw3D& record, const std::string& path) {
        SceneObjectFileReader::readDrawObjectSolid(record, path, Vector3f());
    });
}
BENCHMARK(readSolidFile)->Unit(benchmark::kMillisecond);

void readSolidFile_limit(benchmark::State& state)
{
    readSolid(state, [](vxdatacarrier::RenderDraw3D& record, const std::string& path) {
        std::string message;
        readSolidPlainly(record, path, Vector3f(), message);
    });
}
BENCHMARK(readSolidFile_limit)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace vxgraphics3d
