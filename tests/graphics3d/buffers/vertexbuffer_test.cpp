#include "graphics3d/buffers/vertexbuffercolor.h"
#include "graphics3d/buffers/vertexbuffercoords.h"
#include "graphics3d/buffers/vertexbuffernormal.h"
#include "graphics3d/buffers/vertexbuffernormaltex.h"
#include "graphics3d/buffers/vertexbuffernormaltextexcoord.h"
#include "graphics3d/buffers/vertexbuffertexmodifiable.h"
#include "tests/support/capturedlog.h"

#include <gtest/gtest.h>

#include <cstring>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

namespace vxgraphics3d {
namespace {

/// The float at a byte offset of the array, as a renderer sees it.
float floatAt(const VertexBuffer& buffer, std::ptrdiff_t byte)
{
    float value;
    std::memcpy(&value, static_cast<const char*>(buffer.vertexPointer()) + byte, sizeof value);
    return value;
}

int byteAt(const VertexBuffer& buffer, std::ptrdiff_t byte)
{
    return static_cast<const unsigned char*>(buffer.vertexPointer())[byte];
}

std::vector<float> floatsOfRecord(const VertexBuffer& buffer, int index)
{
    std::vector<float> values;
    for (int byte = 0; byte < buffer.getVertexSize(); byte += 4) {
        values.push_back(floatAt(buffer, index * buffer.getVertexSize() + byte));
    }
    return values;
}

TEST(VertexBuffer, appendsWriteTheRecordThatTheLayoutSpecifies)
{
    const Vector3f p(1.0f, 2.0f, 3.0f);
    const Vector3f n(4.0f, 5.0f, 6.0f);
    const Vector3f c(9.0f, 10.0f, 11.0f);
    VertexBufferCoords coords;
    VertexBufferNormal normal;
    VertexBufferNormalTex normalTex;
    VertexBufferTex tex;
    VertexBufferTexModifiable modifiable;
    VertexBufferNormalTexTexCoord all;
    struct Case {
        VertexBuffer& buffer;
        std::function<int()> append;
        int type;
        std::vector<float> record;
    };
    const Case cases[] = {
        {coords, [&] { return coords.appendVertex(p); }, 1, {1, 2, 3}},
        {normal, [&] { return normal.appendVertex(p, n); }, 3, {1, 2, 3, 4, 5, 6}},
        {normalTex, [&] { return normalTex.appendVertex(p, n, 7); }, 4, {1, 2, 3, 4, 5, 6, 7, 0}},
        {tex, [&] { return tex.appendVertex(p, 7); }, 7, {1, 2, 3, 7, 0}},
        {modifiable, [&] { return modifiable.appendVertex(p, 7); }, 7, {1, 2, 3, 7, 0}},
        {all, [&] { return all.appendVertex(p, n, 7, 8, c); }, 9, {1, 2, 3, 4, 5, 6, 7, 0, 8, 0, 9, 10, 11}},
    };
    for (const Case& each : cases) {
        each.buffer.allocate(2);
        EXPECT_EQ(each.append(), 0);
        EXPECT_EQ(each.append(), 1);
        EXPECT_EQ(each.buffer.getNumberOfVertices(), 2);
        EXPECT_EQ(each.buffer.getVertexType(), each.type);
        EXPECT_EQ(floatsOfRecord(each.buffer, 1), each.record) << each.type;
        EXPECT_EQ(each.buffer.getCoord(1), p) << each.type;
        const VertexLayout* layout = findVertexLayout(each.type);
        ASSERT_NE(layout, nullptr);
        EXPECT_EQ(layout->size, each.buffer.getVertexSize());
        if (layout->normal >= 0) {
            EXPECT_EQ(floatAt(each.buffer, layout->normal), n.x);
        }
        if (layout->texture >= 0) {
            EXPECT_EQ(floatAt(each.buffer, layout->texture), 7);
        }
        if (layout->secondTexture >= 0) {
            EXPECT_EQ(floatAt(each.buffer, layout->secondTexture), 8);
        }
        if (layout->triple >= 0) {
            EXPECT_EQ(floatAt(each.buffer, layout->triple), c.x);
        }
    }
    for (const int unused : {0, 5, 6, 8, 10}) {
        EXPECT_EQ(findVertexLayout(unused), nullptr);
    }
}

TEST(VertexBufferColor, storesLowBytesAndATruncatedAlpha)
{
    VertexBufferColor buffer;
    buffer.allocate(4);
    buffer.appendVertex(Vector3f(1.0f, 2.0f, 3.0f), Color{1, 2, 3}, 1.0f);
    buffer.appendVertex(0, 0, 0, Color{256, 257, -1}, 0.5f);
    buffer.appendVertex(0, 0, 0, Color{200, 201, 202}, 0.0f);
    EXPECT_EQ(buffer.appendVertex(7, 8, 9), 3);
    const int expected[4][4] = {{1, 2, 3, 255}, {0, 1, 255, 127}, {200, 201, 202, 0}, {255, 255, 255, 255}};
    const VertexLayout* layout = findVertexLayout(2);
    ASSERT_NE(layout, nullptr);
    EXPECT_EQ(layout->size, 16);
    for (int i = 0; i < 4; ++i) {
        for (int channel = 0; channel < 4; ++channel) {
            EXPECT_EQ(byteAt(buffer, i * layout->size + layout->color + channel), expected[i][channel]);
        }
    }
    EXPECT_EQ(buffer.getVertexType(), 2);
    EXPECT_EQ(buffer.getCoord(3), Vector3f(7.0f, 8.0f, 9.0f));
}

TEST(VertexBuffer, allocateDistinguishesNegativeZeroAndPositiveCounts)
{
    VertexBufferCoords buffer;
    EXPECT_EQ(buffer.getCapacity(), -1);
    buffer.allocate(-1);
    EXPECT_EQ(buffer.getCapacity(), -1);
    buffer.allocate(0);
    EXPECT_EQ(buffer.getCapacity(), 0);
    EXPECT_EQ(buffer.vertexPointer(), nullptr);
    buffer.allocate(-1);
    EXPECT_EQ(buffer.getCapacity(), 0) << "there was no array, so nothing changes";
    buffer.allocate(5);
    EXPECT_EQ(buffer.getCapacity(), 5);
    buffer.appendVertex(1, 2, 3);
    buffer.allocate(2);
    EXPECT_EQ(buffer.getCapacity(), 2);
    EXPECT_EQ(buffer.getNumberOfVertices(), 0);
    buffer.appendVertex(1, 2, 3);
    buffer.allocate(-1);
    EXPECT_EQ(buffer.getCapacity(), -1);
    EXPECT_EQ(buffer.getNumberOfVertices(), 0);
    EXPECT_EQ(buffer.vertexPointer(), nullptr);
}

template <class Buffer>
class VertexBufferBlocks : public testing::Test {};
using BlockBuffers = testing::Types<VertexBufferCoords, VertexBufferNormal>;
TYPED_TEST_SUITE(VertexBufferBlocks, BlockBuffers);

TYPED_TEST(VertexBufferBlocks, appendVerticesFillsTheCapacityAndRefusesMore)
{
    CapturedLog log(ErrorLog::Level::error);
    typename TypeParam::Vertex two[2] = {};
    two[0].x = 1;
    two[1].z = 6;
    TypeParam buffer;
    EXPECT_EQ(buffer.appendVertices(two, 1), 0);
    buffer.allocate(3);
    EXPECT_EQ(buffer.appendVertices(two + 1, 1), 0);
    EXPECT_EQ(buffer.appendVertices(two, 2), 1) << "exactly the free capacity";
    EXPECT_EQ(buffer.appendVertices(two, 1), 0);
    EXPECT_EQ(buffer.appendVertices(two, -1), 0);
    EXPECT_EQ(buffer.getNumberOfVertices(), 3);
    EXPECT_EQ(buffer.getCoord(0), Vector3f(0.0f, 0.0f, 6.0f));
    EXPECT_EQ(buffer.getCoord(1), Vector3f(1.0f, 0.0f, 0.0f));
    EXPECT_EQ(buffer.getCoord(2), Vector3f(0.0f, 0.0f, 6.0f));
    EXPECT_EQ(log.messages(), std::vector<std::string>(3, "Appended to many vertices."));
}

TEST(VertexBuffer, appendUnwrittenReturnsTheNextRecords)
{
    VertexBufferTex buffer;
    buffer.allocate(3);
    buffer.appendVertex(1, 1, 1, 1);
    VertexTex* next = buffer.appendUnwritten(2);
    next[0] = {2, 2, 2, 2, 2};
    next[1] = {3, 3, 3, 3, 3};
    EXPECT_EQ(buffer.getNumberOfVertices(), 3);
    EXPECT_EQ(floatsOfRecord(buffer, 2), (std::vector<float>{3, 3, 3, 3, 3}));
    EXPECT_THROW(buffer.appendUnwritten(1), std::out_of_range);
    EXPECT_THROW(buffer.appendUnwritten(-1), std::out_of_range);
    EXPECT_EQ(buffer.getNumberOfVertices(), 3);
}

TEST(VertexBufferTexModifiable, importReplacesTheRecordsByPositionsOfAnyLayout)
{
    VertexBufferNormal source;
    source.allocate(4);
    for (int i = 0; i < 3; ++i) {
        source.appendVertex(static_cast<float>(i), 1, 2, 3, 4, 5);
    }
    VertexBufferTexModifiable buffer;
    for (int round = 0; round < 2; ++round) {
        buffer.import(source);
        EXPECT_EQ(buffer.getCapacity(), 3);
        EXPECT_EQ(buffer.getNumberOfVertices(), 3);
        for (int i = 0; i < 3; ++i) {
            EXPECT_EQ(floatsOfRecord(buffer, i), (std::vector<float>{static_cast<float>(i), 1, 2, 0, 0}));
        }
        buffer.setVertexTextureUCoord(0, 0.5f);
        buffer.setVertexTextureVCoord(1, 0.25f);
        buffer.setVertex(2, 6, 7, 8, 9, 10);
        EXPECT_EQ(buffer.getVertexTextureUCoord(0), 0.5f);
        EXPECT_EQ(buffer.getVertexTextureVCoord(1), 0.25f);
        EXPECT_EQ(floatsOfRecord(buffer, 2), (std::vector<float>{6, 7, 8, 9, 10}));
    }
    buffer.import(buffer);
    EXPECT_EQ(floatsOfRecord(buffer, 2), (std::vector<float>{6, 7, 8, 0, 0}));
}

} // namespace
} // namespace vxgraphics3d
