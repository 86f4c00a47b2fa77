#pragma once

#include "graphics3d/plots/vector/arrowrecords.h"
#include "graphics3d/plots/vector/vectorfield.h"

#include <cstddef>
#include <optional>

namespace vxgraphics3d {

/// What the fill of an arrow plot reads.
struct ArrowInput {
    /// @param numAxes 2 or 3
    ArrowInput(const vxdatacarrier::PostDataView& record, int numAxes);

    VectorField field;
    VectorField boxedField; ///< with as many axes as the record has components of vectors
    PointColors colors;     ///< over all groups of the record, although only the first has arrows
    double targetLength;    ///< of the longest arrow, relative to the mean distance of points
};

template <class Record>
template <class ArrowAt>
void ArrowRecords<Record>::fillArrows(const ArrowInput& input, ArrowAt arrowAt)
{
    const int count = input.field.points.count;
    allocateArrows(count);
    if (const auto factor = appendAll(input, arrowAt)) {
        const auto commonScale = static_cast<double>(getDescription().m_commonArrowScale);
        if (const auto box = input.boxedField.box(*factor * commonScale)) {
            setBoundingBox(*box);
        }
    }
    setScalingType(ScalingType::proportional);
    markArrowsChanged();
}

template <class Record>
template <class ArrowAt>
std::optional<double> ArrowRecords<Record>::appendAll(const ArrowInput& input, ArrowAt arrowAt)
{
    const auto count = static_cast<std::size_t>(input.field.points.count);
    Arrow* const out = m_arrows.get();
    float maxLength = 0.0f;
    for (std::size_t i = 0; i < count; ++i) {
        out[i] = arrowAt(i, input.colors.values != nullptr ? input.colors.scale(input.colors.values[i]) : 0.0f);
        maxLength = out[i].length > maxLength ? out[i].length : maxLength;
    }
    noteAllAppended(maxLength);
    if (!(maxLength > 0.0f)) {
        return std::nullopt;
    }
    const double factor = input.targetLength / static_cast<double>(maxLength);
    setMaxLength(static_cast<float>(static_cast<double>(maxLength) * factor));
    for (std::size_t i = 0; i < count; ++i) {
        out[i].length = static_cast<float>(static_cast<double>(out[i].length) * factor);
    }
    return factor;
}

} // namespace vxgraphics3d
