#pragma once

#include "base/export.h"
#include "graphics3d/foundation/vector3f.h"

#include <array>
#include <iosfwd>

namespace vxgraphics3d {

/// A 4 x 4 matrix of floats in column-major order, ready for a graphics interface: the element of row r and column c,
/// counted from 0, is at index 4 c + r, and the translation at 12, 13, 14.
///
/// Points are column vectors, so a transformation that is multiplied on the right is applied to a point first. Angles
/// are in
/// radians; rotations are right-handed.
class VX_API Matrixf {
public:
    /// The initial content of a new matrix.
    enum MatrixType {
        MatrixZero = 0,
        MatrixIdentity = 1,
        MatrixUninitialized = 2, ///< for a result that is filled immediately
    };

    explicit Matrixf(MatrixType type)
    {
        if (type == MatrixZero) {
            reset();
        } else if (type == MatrixIdentity) {
            identity();
        }
    }
    /// Takes the elements row by row.
    Matrixf(float m00, float m01, float m02, float m03, float m10, float m11, float m12, float m13, float m20,
            float m21, float m22, float m23, float m30, float m31, float m32, float m33)
        : m_elements{m00, m10, m20, m30, m01, m11, m21, m31, m02, m12, m22, m32, m03, m13, m23, m33}
    {}

    /// Takes the elements row by row.
    void init(float m00, float m01, float m02, float m03, float m10, float m11, float m12, float m13, float m20,
              float m21, float m22, float m23, float m30, float m31, float m32, float m33)
    {
        m_elements = {m00, m10, m20, m30, m01, m11, m21, m31, m02, m12, m22, m32, m03, m13, m23, m33};
    }
    /// Sets all elements to 0.
    void reset() { m_elements = {}; }
    void identity() { initScale(1.0f, 1.0f, 1.0f); }
    void initTranslation(float x, float y, float z);
    void initScale(float x, float y, float z)
    {
        m_elements = {x, 0.0f, 0.0f, 0.0f, 0.0f, y, 0.0f, 0.0f, 0.0f, 0.0f, z, 0.0f, 0.0f, 0.0f, 0.0f, 1.0f};
    }

    /// Sets a rotation about an axis through the origin. The axis need not have length 1.
    void initRotation(const Vector3f& axis, float angle);

    /// The element of row i and column j, both counted from 1.
    float get(int i, int j) const { return m_elements[index(i, j)]; }
    void set(int i, int j, float value) { m_elements[index(i, j)] = value; }
    /// The 16 elements, column by column.
    const float* data() const { return m_elements.data(); }
    float* data() { return m_elements.data(); }

    Matrixf& operator*=(const Matrixf& other) { return *this = *this * other; }
    Matrixf operator*(const Matrixf& other) const;
    /// The transformed point, divided by its w.
    Vector3f operator*(const Vector3f& point) const { return point.transformed(*this); }
    friend bool operator==(const Matrixf&, const Matrixf&) = default;

    /// Multiplies a translation on the right.
    Matrixf& translate(float x, float y, float z);
    Matrixf& translate(const Vector3f& v) { return translate(v.x, v.y, v.z); }
    /// Translates by the negated vector.
    Matrixf& translateNeg(const Vector3f& v) { return translate(-v.x, -v.y, -v.z); }
    Matrixf translated(float x, float y, float z) const { return Matrixf(*this).translate(x, y, z); }
    /// Multiplies a scaling on the right.
    Matrixf& scale(float x, float y, float z);
    Matrixf& scale(float factor) { return scale(factor, factor, factor); }
    /// Multiplies a rotation about a coordinate axis on the right.
    Matrixf& rotateX(float angle);
    Matrixf& rotateY(float angle);
    Matrixf& rotateZ(float angle);
    /// Multiplies a rotation about an axis through the origin on the right. The axis need not have length 1.
    Matrixf& rotate(float axisX, float axisY, float axisZ, float angle)
    {
        return rotate(Vector3f(axisX, axisY, axisZ), angle);
    }
    Matrixf& rotate(const Vector3f& axis, float angle);

    /// Inverts in place; a singular matrix stays as it is.
    Matrixf& invert();
    /// Writes the inverse of 16 column-major elements. The arrays must not overlap.
    /// @return false for a determinant of 0; `out` is then unchanged
    static bool invertMatrixf(const float* in, float* out);

    /// Writes four rows to standard output, with the shortest width that fits.
    void print();
    /// Writes four rows to standard output, in columns of at least 8 characters.
    void print() const;

private:
    static std::size_t index(int i, int j) { return static_cast<std::size_t>(4 * (j - 1) + (i - 1)); }

    std::array<float, 16> m_elements;
};

/// Writes each row in brackets, "[a b c d]", with a blank between rows.
VX_API std::ostream& operator<<(std::ostream& stream, const Matrixf& m);

} // namespace vxgraphics3d
