#pragma once

#include "graphics3d/foundation/vector3f.h"

#include <random>

namespace vxgraphics3d {

/// Random numbers for tests: the same ones in every run and with every standard library.
class RandomNumbers {
public:
    explicit RandomNumbers(unsigned seed) : m_generator(seed) {}

    float uniform(float low, float high)
    {
        return low + (high - low) * (static_cast<float>(m_generator() >> 8) / 16777216.0f);
    }
    /// From low to high, both inclusive.
    int integer(int low, int high)
    {
        return low + static_cast<int>(m_generator() % static_cast<unsigned>(high - low + 1));
    }
    /// Each coordinate is between -size and size.
    Vector3f vector(float size)
    {
        const float x = uniform(-size, size);
        const float y = uniform(-size, size);
        return {x, y, uniform(-size, size)};
    }

private:
    std::mt19937 m_generator;
};

} // namespace vxgraphics3d
