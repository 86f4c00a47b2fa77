#include "renderer/export/tablegradient.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdlib>
#include <utility>

namespace vxrenderer {
namespace {

using Rgb = std::array<int, 3>;
using vxgraphics3d::ColorTable;

/// A texel on a bar.
struct Step {
    Rgb color;
    double begin;
    double end;
    /// Number of neighbours in the same colour, with itself.
    int runLength;

    double middle() const { return 0.5 * (begin + end); }
};

// Of 255.
constexpr int c_largestStep = 24;
constexpr int c_slowStep = 2;
constexpr int c_tolerance = 1;

int difference(const Rgb& a, const Rgb& b)
{
    return std::max({std::abs(a[0] - b[0]), std::abs(a[1] - b[1]), std::abs(a[2] - b[2])});
}

/// Steps of a gradient are short where its colours change fast.
bool isJump(const Step& a, const Step& b)
{
    const int step = difference(a.color, b.color);
    return step > c_largestStep || (step > c_slowStep && std::max(a.runLength, b.runLength) > 2);
}

int texelOf(float position)
{
    const int texel = static_cast<int>(position * static_cast<float>(ColorTable::c_numTexels));
    return std::clamp(texel, 0, ColorTable::c_numTexels - 1);
}

std::vector<Step> stepsOf(const ColorTable& table, float from, float to)
{
    const auto colorOf = [&](int texel) {
        const auto rgba = static_cast<unsigned>(table.getRgba()[static_cast<std::size_t>(texel)]);
        return Rgb{static_cast<int>(rgba >> 24U), static_cast<int>(rgba >> 16U & 255U),
                   static_cast<int>(rgba >> 8U & 255U)};
    };
    const int last = texelOf(to);
    const int direction = to < from ? -1 : 1;
    std::vector<Step> steps;
    std::size_t runStart = 0;
    double begin = 0.0;
    for (int texel = texelOf(from);; texel += direction) {
        const int border = direction > 0 ? texel + 1 : texel;
        const double inTable = static_cast<double>(border) / ColorTable::c_numTexels;
        const double end = texel == last ? 1.0 : (inTable - static_cast<double>(from)) / static_cast<double>(to - from);
        steps.push_back({colorOf(texel), begin, end, 1});
        if (steps[runStart].color != steps.back().color) {
            runStart = steps.size() - 1;
        }
        for (std::size_t i = runStart; i < steps.size(); ++i) {
            steps[i].runLength = static_cast<int>(steps.size() - runStart);
        }
        if (texel == last) {
            return steps;
        }
        begin = end;
    }
}

/// Whether steps lie on the straight line of colours between the first and the last of them.
bool isStraight(const Step* first, const Step* last)
{
    for (const Step* step = first + 1; step < last; ++step) {
        const double part = (step->middle() - first->middle()) / (last->middle() - first->middle());
        Rgb color{};
        for (std::size_t i = 0; i < color.size(); ++i) {
            color[i] = static_cast<int>(std::lround(std::lerp(first->color[i], last->color[i], part)));
        }
        if (difference(color, step->color) > c_tolerance) {
            return false;
        }
    }
    return true;
}

} // namespace

std::vector<GradientPiece> gradientOf(const ColorTable& table, float from, float to)
{
    const std::vector<Step> steps = stepsOf(table, from, to);
    std::vector<GradientPiece> pieces;
    for (std::size_t first = 0; first < steps.size();) {
        std::size_t end = first + 1;
        while (end < steps.size() && !isJump(steps[end - 1], steps[end])) {
            ++end;
        }
        GradientPiece piece = {steps[first].begin, {{steps[first].begin, steps[first].color}}};
        const bool isPlain = steps[first].runLength == static_cast<int>(end - first);
        for (std::size_t i = first; !isPlain && i < end;) {
            piece.stops.push_back({steps[i].middle(), steps[i].color});
            std::size_t next = i + 1;
            while (next + 1 < end && isStraight(&steps[i], &steps[next + 1])) {
                ++next;
            }
            i = next;
        }
        pieces.push_back(std::move(piece));
        first = end;
    }
    return pieces;
}

} // namespace vxrenderer
