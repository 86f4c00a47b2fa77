#include "datacarrier/postdataobject.h"
#include "graphics3d/readers/sceneplotfilereader.h"
#include "tests/support/plotcomparison.h"
#include "tests/support/plotfiles.h"
#include "tests/support/referenceplotreader.h"
#include "tests/support/temporaryfile.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <memory>
#include <string>

namespace vxgraphics3d {
namespace {

// A surface of 500,000 points with its triangles. The limit is the same work with fgets and strtod: the reader must be
// at least three times as fast. All rates, including that of a plain copy, are in bytes of the file.
struct Plot {
    const std::string text = gridPlotText(1000, 500, 7);
    const TemporaryFile file{text};

    static const Plot& get()
    {
        static const Plot plot;
        return plot;
    }
};

void rate(benchmark::State& state)
{
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(Plot::get().text.size()));
}

using Record = vxdatacarrier::PostDataObject;
using Read = bool (*)(Record&);

template <bool readRecord(Record&, std::string)>
bool read(Record& record)
{
    return readRecord(record, Plot::get().file.path());
}

template <ReferencePlotReader::Plot plot>
bool readPlainly(Record& record)
{
    return ReferencePlotReader(Plot::get().file.path()).read(plot, record);
}

void readPlot(benchmark::State& state, Read readRecord, Read expectRecord)
{
    Record expected;
    expectRecord(expected);
    std::string difference;
    for (auto _ : state) {
        Record record;
        readRecord(record);
        state.PauseTiming();
        difference += differenceOf(record, expected);
        record = Record();
        state.ResumeTiming();
    }
    if (expected.m_coordinates.empty() || !difference.empty()) {
        state.SkipWithError("the records differ");
    }
    state.counters["allowed"] = 1.0 / 3.0;
    rate(state);
}

#define READ_BENCHMARK(name, reader, plain)                                                                            \
    BENCHMARK_CAPTURE(readPlot, name, reader, plain)->Unit(benchmark::kMillisecond);                                   \
    BENCHMARK_CAPTURE(readPlot, name##_limit, plain, plain)->Unit(benchmark::kMillisecond)
READ_BENCHMARK(surface3d, read<ScenePlotFileReader::readSurfacePlot3d>,
               readPlainly<ReferencePlotReader::Plot::surface3d>);
READ_BENCHMARK(surface2d, read<ScenePlotFileReader::readSurfacePlot2d>,
               readPlainly<ReferencePlotReader::Plot::surface2d>);
#undef READ_BENCHMARK

/// The physical limit: the bytes of one pass, copied from the file into memory.
void copyFile(benchmark::State& state)
{
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(Plot::get().file.path().c_str(), "r"),
                                                               std::fclose);
    std::string bytes(Plot::get().text.size(), '\0');
    for (auto _ : state) {
        std::rewind(file.get());
        if (std::fread(bytes.data(), 1, bytes.size(), file.get()) != bytes.size()) {
            state.SkipWithError("the file is short");
        }
        benchmark::ClobberMemory();
    }
    rate(state);
}
BENCHMARK(copyFile)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace vxgraphics3d
