#include "graphics3d/foundation/matrixf.h"

#include <cmath>
#include <cstdio>
#include <ostream>

namespace vxgraphics3d {

namespace {

/// Sine and cosine of a float angle, computed in double.
struct Turn {
    explicit Turn(float angle)
        : sine(static_cast<float>(std::sin(static_cast<double>(angle)))),
          cosine(static_cast<float>(std::cos(static_cast<double>(angle))))
    {}
    float sine;
    float cosine;
};

/// The determinants of the 2 x 2 blocks that two columns form with each pair of rows.
class PairDeterminants {
public:
    PairDeterminants(const float* left, const float* right) : m_left(left), m_right(right) {}
    float operator()(int p, int q) const { return m_left[p] * m_right[q] - m_left[q] * m_right[p]; }

private:
    const float* m_left;
    const float* m_right;
};

template <class Print>
void forEachRow(const float* m, Print print)
{
    for (int row = 0; row < 4; ++row) {
        print(static_cast<double>(m[row]), static_cast<double>(m[4 + row]), static_cast<double>(m[8 + row]),
              static_cast<double>(m[12 + row]));
    }
}

} // namespace

void Matrixf::initTranslation(float x, float y, float z)
{
    identity();
    m_elements[12] = x;
    m_elements[13] = y;
    m_elements[14] = z;
}

void Matrixf::initRotation(const Vector3f& axis, float angle)
{
    const auto [x, y, z] = Vector3f(axis).normalize();
    const auto [s, c] = Turn(angle);
    const float t = 1.0f - c;
    init(x * x * t + c, x * y * t - z * s, x * z * t + y * s, 0.0f, //
         x * y * t + z * s, y * y * t + c, y * z * t - x * s, 0.0f, //
         x * z * t - y * s, y * z * t + x * s, z * z * t + c, 0.0f, //
         0.0f, 0.0f, 0.0f, 1.0f);
}

Matrixf Matrixf::operator*(const Matrixf& other) const
{
    Matrixf result(MatrixUninitialized);
    const float* a = data();
    const float* b = other.data();
    for (int column = 0; column < 4; ++column) {
        for (int row = 0; row < 4; ++row) {
            result.data()[4 * column + row] = a[row] * b[4 * column] + a[4 + row] * b[4 * column + 1] +
                                              a[8 + row] * b[4 * column + 2] + a[12 + row] * b[4 * column + 3];
        }
    }
    return result;
}

Matrixf& Matrixf::translate(float x, float y, float z)
{
    float* m = data();
    for (int row = 0; row < 4; ++row) {
        m[12 + row] = m[row] * x + m[4 + row] * y + m[8 + row] * z + m[12 + row];
    }
    return *this;
}

Matrixf& Matrixf::scale(float x, float y, float z)
{
    float* m = data();
    for (int row = 0; row < 4; ++row) {
        m[row] *= x;
        m[4 + row] *= y;
        m[8 + row] *= z;
    }
    return *this;
}

Matrixf& Matrixf::rotateX(float angle)
{
    const auto [s, c] = Turn(angle);
    return *this *= Matrixf(1.0f, 0.0f, 0.0f, 0.0f, 0.0f, c, -s, 0.0f, 0.0f, s, c, 0.0f, 0.0f, 0.0f, 0.0f, 1.0f);
}

Matrixf& Matrixf::rotateY(float angle)
{
    const auto [s, c] = Turn(angle);
    return *this *= Matrixf(c, 0.0f, s, 0.0f, 0.0f, 1.0f, 0.0f, 0.0f, -s, 0.0f, c, 0.0f, 0.0f, 0.0f, 0.0f, 1.0f);
}

Matrixf& Matrixf::rotateZ(float angle)
{
    const auto [s, c] = Turn(angle);
    return *this *= Matrixf(c, -s, 0.0f, 0.0f, s, c, 0.0f, 0.0f, 0.0f, 0.0f, 1.0f, 0.0f, 0.0f, 0.0f, 0.0f, 1.0f);
}

Matrixf& Matrixf::rotate(const Vector3f& axis, float angle)
{
    Matrixf rotation(MatrixUninitialized);
    rotation.initRotation(axis, angle);
    return *this *= rotation;
}

Matrixf& Matrixf::invert()
{
    const Matrixf source = *this;
    invertMatrixf(source.data(), data());
    return *this;
}

bool Matrixf::invertMatrixf(const float* in, float* out)
{
    // Each 3 x 3 minor is expanded along one of its columns, with the 2 x 2 determinants of the other two.
    constexpr int remainingRows[4][3] = {{1, 2, 3}, {0, 2, 3}, {0, 1, 3}, {0, 1, 2}};
    constexpr int expandedColumn[4] = {1, 0, 3, 2};
    const PairDeterminants first(in, in + 4);
    const PairDeterminants last(in + 8, in + 12);

    float cofactors[16];
    for (int row = 0; row < 4; ++row) {
        const auto [p, q, r] = remainingRows[row];
        for (int column = 0; column < 4; ++column) {
            const PairDeterminants& pairs = column < 2 ? last : first;
            const float* e = in + 4 * expandedColumn[column];
            const float minor = e[p] * pairs(q, r) - e[q] * pairs(p, r) + e[r] * pairs(p, q);
            cofactors[4 * row + column] = (row + column) % 2 == 0 ? minor : -minor;
        }
    }
    const float determinant =
        in[0] * cofactors[0] + in[1] * cofactors[4] + in[2] * cofactors[8] + in[3] * cofactors[12];
    if (determinant == 0.0f) {
        return false;
    }
    const float inverseDeterminant = 1.0f / determinant;
    for (int i = 0; i < 16; ++i) {
        out[i] = cofactors[i] * inverseDeterminant;
    }
    return true;
}

void Matrixf::print()
{
    forEachRow(data(), [](double a, double b, double c, double d) { std::printf("%f %f %f %f\n", a, b, c, d); });
}

void Matrixf::print() const
{
    forEachRow(data(), [](double a, double b, double c, double d) { std::printf("%8f %8f %8f %8f\n", a, b, c, d); });
}

std::ostream& operator<<(std::ostream& stream, const Matrixf& m)
{
    const char* separator = "";
    for (int row = 1; row <= 4; ++row) {
        stream << separator << '[' << m.get(row, 1) << ' ' << m.get(row, 2) << ' ' << m.get(row, 3) << ' '
               << m.get(row, 4) << ']';
        separator = " ";
    }
    return stream;
}

} // namespace vxgraphics3d
