#include "graphics3d/plots/colour/colortable.h"

#include "graphics3d/foundation/errorlog.h"

#include <cmath>
#include <cstddef>
#include <stdexcept>

namespace vxgraphics3d {

namespace {

/// The texels at which the first `numWidths` widths begin, followed by 1024. They rise, as no width is negative.
std::vector<int> positions(const ColorTable::Colors& colors, std::size_t numWidths)
{
    double total = 0;
    bool valid = numWidths > 0;
    for (std::size_t k = 0; k < numWidths; ++k) {
        valid = valid && colors[k].second >= 0;
        total += colors[k].second;
    }
    if (!valid || !(total > 0) || !std::isfinite(total * ColorTable::c_numTexels)) {
        throw std::invalid_argument("A color table needs colors whose widths are not negative and in sum above 0.");
    }
    std::vector<int> result(numWidths + 1);
    double sum = 0;
    for (std::size_t k = 1; k < numWidths; ++k) {
        sum += colors[k - 1].second;
        result[k] = static_cast<int>(sum * ColorTable::c_numTexels / total + 0.5);
    }
    result[numWidths] = ColorTable::c_numTexels;
    return result;
}

} // namespace

ColorTable::ColorTable(const std::string& name, Type type, const Colors& colors) : m_name(name), m_type(type)
{
    calculate(type, colors);
    m_id = ++m_lastId;
}

void ColorTable::update(Type type, const Colors& colors)
{
    calculate(type, colors);
    m_type = type;
    m_changeId.raise();
}

void ColorTable::calculateDiscreteTable(const Colors& colors)
{
    logInfo("Creating discrete color table");
    const std::vector<int> p = positions(colors, colors.size());
    for (std::size_t k = 0; k < colors.size(); ++k) {
        const Color& color = colors[k].first;
        for (int e = p[k]; e < p[k + 1]; ++e) {
            setTexel(e, color.red, color.green, color.blue);
        }
    }
}

void ColorTable::calculateContinuousTable(const Colors& colors)
{
    if (colors.size() == 1) {
        calculateDiscreteTable(colors);
        return;
    }
    logInfo("Creating continuous color table");
    const std::size_t intervals = colors.empty() ? 0 : colors.size() - 1;
    const std::vector<int> p = positions(colors, intervals);
    for (std::size_t k = 0; k < intervals; ++k) {
        const Color& from = colors[k].first;
        const Color& to = colors[k + 1].first;
        for (int e = p[k]; e < p[k + 1]; ++e) {
            const auto mix = [&](int first, int second) {
                return (first * (p[k + 1] - e) + second * (e - p[k])) / (p[k + 1] - p[k]);
            };
            setTexel(e, mix(from.red, to.red), mix(from.green, to.green), mix(from.blue, to.blue));
        }
    }
}

void ColorTable::calculate(Type type, const Colors& colors)
{
    if (type == Continuous) {
        calculateContinuousTable(colors);
    } else {
        calculateDiscreteTable(colors);
    }
}

void ColorTable::setTexel(int index, int red, int green, int blue)
{
    const auto byte = [](int channel) { return static_cast<std::uint32_t>(channel) & 0xFFu; };
    const std::uint32_t rgb = byte(red) << 16 | byte(green) << 8 | byte(blue);
    m_rgba[static_cast<std::size_t>(index)] = rgb << 8 | 0xFFu;
    m_argb[static_cast<std::size_t>(index)] = 0xFF000000u | rgb;
}

} // namespace vxgraphics3d
