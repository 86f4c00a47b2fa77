#include "graphics3d/overlays/overlaytransformation.h"

#include <cstddef>
#include <stdexcept>
#include <string>

namespace vxgraphics3d {
namespace {

std::size_t requireHandle(int handle)
{
    if (handle < 0 || handle >= OverlayTransformation::c_numHandles) {
        throw std::out_of_range("There is no handle " + std::to_string(handle) + ": handles are numbered 0 to 7.");
    }
    return static_cast<std::size_t>(handle);
}

} // namespace

OverlayTransformation::~OverlayTransformation() = default;

void OverlayTransformation::setMarkedHandle(int handle, bool marked)
{
    m_markedHandles[requireHandle(handle)] = marked;
}

bool OverlayTransformation::isHandleMarked(int handle) const
{
    return m_markedHandles[requireHandle(handle)];
}

Vector3f OverlayTransformation::getHandlePos(int handle) const
{
    return m_handles[requireHandle(handle)];
}

Vector3f OverlayTransformation::getTransformedHandlePos(int handle) const
{
    return getHandlePos(handle).transformed(getTransformation());
}

void OverlayTransformation::getTransformedHandlePos(int handle, std::vector<double>& out) const
{
    const Vector3f position = getTransformedHandlePos(handle);
    if (out.size() < 3) {
        throw std::invalid_argument("The position of a handle needs an array of 3 elements.");
    }
    out[0] = static_cast<double>(position.x);
    out[1] = static_cast<double>(position.y);
    out[2] = static_cast<double>(position.z);
}

const float* OverlayTransformation::getVertices(const BoundingBox& box, int& count) const
{
    count = 0;
    if (box.isValid()) {
        setupWithBoundingbox(box);
        count = c_numEdgeVertices;
    }
    return m_boxVertices.data();
}

void OverlayTransformation::setupWithBoundingbox(const BoundingBox& box) const
{
    const Vector3f low = box.getMin();
    const Vector3f high = box.getMax();
    float* coordinate = m_boxVertices.data();
    const auto append = [&](float x, float y, float z) {
        *coordinate++ = x;
        *coordinate++ = y;
        *coordinate++ = z;
    };
    for (const float z : {low.z, high.z}) {
        for (const float y : {low.y, high.y}) {
            append(low.x, y, z);
            append(high.x, y, z);
        }
    }
    for (const float z : {low.z, high.z}) {
        for (const float x : {low.x, high.x}) {
            append(x, low.y, z);
            append(x, high.y, z);
        }
    }
    for (const float y : {low.y, high.y}) {
        for (const float x : {low.x, high.x}) {
            append(x, y, low.z);
            append(x, y, high.z);
        }
    }
    const float middleX = low.x + (high.x - low.x) / 2.0f;
    const float middleY = low.y + (high.y - low.y) / 2.0f;
    m_handles = {{{low.x, low.y, 0.0f},
                  {middleX, low.y, 0.0f},
                  {high.x, low.y, 0.0f},
                  {high.x, middleY, 0.0f},
                  {high.x, high.y, 0.0f},
                  {middleX, high.y, 0.0f},
                  {low.x, high.y, 0.0f},
                  {low.x, middleY, 0.0f}}};
}

} // namespace vxgraphics3d
