// Filling vertex and index buffers, compared with bare loops that write the same records and indices into new memory:
// the limit of any fill. Every case allocates again in each round, as a plot does, and checks what it wrote.

#include "graphics3d/buffers/indexbuffertriangles.h"
#include "graphics3d/buffers/vertexbuffercoords.h"
#include "graphics3d/buffers/vertexbuffernormaltex.h"

#include <benchmark/benchmark.h>

#include <cstring>
#include <memory>
#include <vector>

namespace vxgraphics3d {
namespace {

/// Points and triangles as in a record: an array per axis and per corner.
struct Mesh {
    explicit Mesh(int size)
    {
        for (int i = 0; i < size; ++i) {
            x.push_back(i * 0.5);
            y.push_back(i * 0.25);
            z.push_back(i * -0.125);
            value.push_back(i);
            normal.push_back(static_cast<float>(i % 7));
            a.push_back(i);
            b.push_back((i + 1) % size);
            c.push_back((i + 2) % size);
        }
        scale = 1.0 / size;
    }

    int size() const { return static_cast<int>(x.size()); }

    std::vector<double> x, y, z, value;
    std::vector<float> normal;
    std::vector<int> a, b, c;
    double scale;
};

VertexNormalTex vertexOf(const Mesh& mesh, std::size_t i)
{
    const float n = mesh.normal[i];
    return {static_cast<float>(mesh.x[i]),
            static_cast<float>(mesh.y[i]),
            static_cast<float>(mesh.z[i]),
            n,
            n,
            n,
            static_cast<float>(mesh.value[i] * mesh.scale),
            0.0f};
}

/// The time limit of a fill, as a multiple of the bare loop.
constexpr double c_allowed = 1.3;

void reportVertices(benchmark::State& state, const Mesh& mesh, const void* written)
{
    for (std::size_t i = 0; i < mesh.x.size(); ++i) {
        const VertexNormalTex expected = vertexOf(mesh, i);
        if (std::memcmp(static_cast<const VertexNormalTex*>(written) + i, &expected, sizeof expected) != 0) {
            state.SkipWithError("wrong vertices");
            return;
        }
    }
    state.SetItemsProcessed(state.iterations() * mesh.size());
    state.SetBytesProcessed(state.iterations() * mesh.size() * static_cast<int>(sizeof(VertexNormalTex)));
}

void bareVertices(benchmark::State& state)
{
    const Mesh mesh(static_cast<int>(state.range(0)));
    std::unique_ptr<VertexNormalTex[]> vertices;
    for (auto _ : state) {
        vertices.reset();
        vertices.reset(new VertexNormalTex[mesh.x.size()]);
        for (std::size_t i = 0; i < mesh.x.size(); ++i) {
            vertices[i] = vertexOf(mesh, i);
        }
        benchmark::ClobberMemory();
    }
    reportVertices(state, mesh, vertices.get());
}

void appendVertex(benchmark::State& state)
{
    const Mesh mesh(static_cast<int>(state.range(0)));
    VertexBufferNormalTex buffer;
    for (auto _ : state) {
        buffer.allocate(mesh.size());
        for (std::size_t i = 0; i < mesh.x.size(); ++i) {
            const VertexNormalTex v = vertexOf(mesh, i);
            buffer.appendVertex(v.x, v.y, v.z, v.nx, v.ny, v.nz, v.u);
        }
        benchmark::ClobberMemory();
    }
    state.counters["allowed"] = c_allowed;
    reportVertices(state, mesh, buffer.vertexPointer());
}

void appendUnwritten(benchmark::State& state)
{
    const Mesh mesh(static_cast<int>(state.range(0)));
    VertexBufferNormalTex buffer;
    for (auto _ : state) {
        buffer.allocate(mesh.size());
        VertexNormalTex* vertices = buffer.appendUnwritten(mesh.size());
        for (std::size_t i = 0; i < mesh.x.size(); ++i) {
            vertices[i] = vertexOf(mesh, i);
        }
        benchmark::ClobberMemory();
    }
    state.counters["allowed"] = c_allowed;
    reportVertices(state, mesh, buffer.vertexPointer());
}

template <class Index>
void reportTriangles(benchmark::State& state, const Mesh& mesh, const Index* written)
{
    for (std::size_t i = 0; i < mesh.a.size(); ++i) {
        if (written[3 * i] != static_cast<Index>(mesh.a[i]) || written[3 * i + 1] != static_cast<Index>(mesh.b[i]) ||
            written[3 * i + 2] != static_cast<Index>(mesh.c[i])) {
            state.SkipWithError("wrong triangles");
            return;
        }
    }
    state.SetItemsProcessed(state.iterations() * mesh.size());
    state.SetBytesProcessed(state.iterations() * mesh.size() * 3 * static_cast<int>(sizeof(Index)));
}

void reportTriangles(benchmark::State& state, const Mesh& mesh, const IndexBuffer& buffer)
{
    if (buffer.uses32BitIndices()) {
        reportTriangles(state, mesh, buffer.getIndices32());
    } else {
        reportTriangles(state, mesh, buffer.getIndices16());
    }
}

template <class Index>
void bareTriangles(benchmark::State& state)
{
    const Mesh mesh(static_cast<int>(state.range(0)));
    std::unique_ptr<Index[]> indices;
    for (auto _ : state) {
        indices.reset();
        indices.reset(new Index[3 * mesh.a.size()]);
        for (std::size_t i = 0; i < mesh.a.size(); ++i) {
            indices[3 * i] = static_cast<Index>(mesh.a[i]);
            indices[3 * i + 1] = static_cast<Index>(mesh.b[i]);
            indices[3 * i + 2] = static_cast<Index>(mesh.c[i]);
        }
        benchmark::ClobberMemory();
    }
    reportTriangles(state, mesh, indices.get());
}

void appendTriangles(benchmark::State& state)
{
    const Mesh mesh(static_cast<int>(state.range(0)));
    VertexBufferCoords vertices;
    vertices.allocate(mesh.size());
    IndexBufferTriangles buffer(vertices);
    for (auto _ : state) {
        buffer.internalAllocate(mesh.size(), 1);
        buffer.newSegment();
        buffer.appendTriangles(mesh.a.data(), mesh.b.data(), mesh.c.data(), mesh.size());
        benchmark::ClobberMemory();
    }
    state.counters["allowed"] = c_allowed;
    reportTriangles(state, mesh, buffer);
}

void appendTriangle(benchmark::State& state)
{
    const Mesh mesh(static_cast<int>(state.range(0)));
    VertexBufferCoords vertices;
    vertices.allocate(mesh.size());
    IndexBufferTriangles buffer(vertices);
    for (auto _ : state) {
        buffer.internalAllocate(mesh.size(), 1);
        buffer.newSegment();
        for (std::size_t i = 0; i < mesh.a.size(); ++i) {
            buffer.appendTriangle(mesh.a[i], mesh.b[i], mesh.c[i]);
        }
        benchmark::ClobberMemory();
    }
    reportTriangles(state, mesh, buffer);
}

// Below and above the count that requires wide indices.
constexpr int c_narrow = 65000;
constexpr int c_wide = 2000000;

void sizes(benchmark::internal::Benchmark* benchmark)
{
    benchmark->Arg(c_narrow)->Arg(c_wide);
}

BENCHMARK(appendVertex)->Apply(sizes);
BENCHMARK(bareVertices)->Name("appendVertex_limit")->Apply(sizes);
BENCHMARK(appendUnwritten)->Apply(sizes);
BENCHMARK(bareVertices)->Name("appendUnwritten_limit")->Apply(sizes);
BENCHMARK(appendTriangles)->Apply(sizes);
BENCHMARK(bareTriangles<unsigned short>)->Name("appendTriangles_limit")->Arg(c_narrow);
BENCHMARK(bareTriangles<unsigned int>)->Name("appendTriangles_limit")->Arg(c_wide);
// One triangle at a time keeps the write position in memory: for fills that compute the corners as they go.
BENCHMARK(appendTriangle)->Apply(sizes);
BENCHMARK(bareTriangles<unsigned short>)->Name("appendTriangle_limit")->Arg(c_narrow);
BENCHMARK(bareTriangles<unsigned int>)->Name("appendTriangle_limit")->Arg(c_wide);

} // namespace
} // namespace vxgraphics3d
