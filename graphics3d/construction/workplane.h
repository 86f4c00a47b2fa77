#pragma once

#include "graphics3d/buffers/bufferpair.h"
#include "graphics3d/buffers/indexbufferlines.h"
#include "graphics3d/buffers/indexbuffertriangles.h"
#include "graphics3d/buffers/vertexbuffercoords.h"
#include "graphics3d/buffers/vertexbuffernormal.h"
#include "graphics3d/foundation/boundingbox.h"

#include <array>
#include <memory>
#include <span>
#include <utility>

namespace vxgraphics3d {

/// A rectangle in space with a grid, and the symbol of an operation on it: an extrusion or a revolution. It belongs to
/// the object that shows it, which reads nothing before `setup`.
///
///     const float data[] = {0, 0, 0, 1, 0, 0, 0, 1, 0, -1, 1, -1, 1};   // the xy plane, from -1 to 1
///     WorkPlane plane(data);
///     const float values[] = {1, 2};
///     plane.setExtrude(values, 2);                                      // to height 2
///
/// The operations read the axes and the size, so the plane is set up first. Each replaces the data of the other; the
/// box keeps what an operation added to it until the next `setup`.
class VX_API WorkPlane {
public:
    enum Operation : int { OperationNone = 0, OperationExtrude = 1, OperationRevolve = 2 };

    static constexpr int c_numSetupValues = 13;
    static constexpr int c_numRevolveValues = 4;
    /// The vertices of the disc, of which the first is the corner of all triangles.
    static constexpr int c_numDiscVertices = 22;
    /// A grid with more lines is refused: their numbers would not be exact in single precision.
    static constexpr int c_maxGridLines = 1 << 24;

    WorkPlane() = default;
    explicit WorkPlane(const float* data) { setup(data); }

    /// Sets the plane and builds the grid, whose cells are about square. A rectangle without area has no grid.
    /// Operation and offsets stay.
    /// @param data 13 values: the origin, a point on the x axis, a further point of the plane, and in coordinates of
    ///        the plane the rectangle's x from and to, y from and to
    /// @throws std::invalid_argument if the grid would have more than `c_maxGridLines` lines; then nothing has changed
    void setup(const float* data);
    /// Sets the symbol of an extrusion: a disc, and an offset for each height.
    /// @param values a scale, then the heights; without any value nothing changes
    void setExtrude(const float* values, int count);
    /// Sets the symbol of a revolution: an axis as long as the rectangle, and the positions of its dashes.
    /// @param data 4 values in coordinates of the plane: a point of the axis and its direction
    /// @throws std::invalid_argument if the direction has no length; then nothing has changed
    void setRevolve(const float* data);

    /// Whether the plane has been set up.
    bool isSetUp() const { return m_box.isValid(); }
    const Vector3f& getOrigin() const { return m_origin; }
    const Vector3f& getXAxis() const { return m_xAxis; }
    const Vector3f& getYAxis() const { return m_yAxis; }
    /// The normal of the plane.
    const Vector3f& getZAxis() const { return m_zAxis; }
    /// The corners of the rectangle: (x from, y from), (x to, y from), (x from, y to), (x to, y to).
    const std::array<Vector3f, 4>& getCorners() const { return m_corners; }
    /// The same corners in coordinates of the plane.
    const std::array<std::pair<float, float>, 4>& getPlaneCorners() const { return m_planeCorners; }
    /// The origin, and the tips of the marks of the x, y and z axis.
    const std::array<Vector3f, 4>& getTriad() const { return m_triad; }
    int getNumGridVertices() const { return m_numGridVertices; }
    int getNumGridLines() const { return m_numGridLines; }
    const VertexBufferCoords& getGridVertices() const { return m_grid.vertices; }
    const IndexBufferLines& getGridLines() const { return m_grid.indices; }
    /// The disc of an extrusion.
    const VertexBufferNormal& getSymbolVertices() const { return m_symbol.vertices; }
    const IndexBufferTriangles& getSymbolTriangles() const { return m_symbol.indices; }
    /// Of the rectangle and of what operations added to it.
    const BoundingBox& getBox() const { return m_box; }
    Operation getOperation() const { return m_operation; }
    /// The data of the operation.
    ///
    /// Extrusion: entry 0 has the scale times the greatest height, the height that sizes the disc, and the size of the
    /// plane; each further entry is the vector from the plane to one height.
    ///
    /// Revolution: the direction of the axis, the unit vector at right angles to it in the plane, the normal that
    /// belongs to both, the start of the axis; then four dashes, each as the distance of its end from the start, and
    /// its length. The last one ends where the axis does.
    std::span<const Vector3f> getOffsets() const { return {m_offsets.get(), static_cast<std::size_t>(m_numOffsets)}; }
    /// The square root of the rectangle's area.
    float getSize() const { return m_size; }
    float getSymbolScale() const { return m_symbolScale; }

private:
    Vector3f toSpace(float u, float v) const { return m_origin + m_xAxis * u + m_yAxis * v; }
    void buildGrid(float width, float height, int numColumns, int numRows);
    void buildDisc(float radius);

    int m_numGridVertices = 0;
    int m_numGridLines = 0;
    Vector3f m_origin;
    Vector3f m_xAxis;
    Vector3f m_yAxis;
    Vector3f m_zAxis;
    std::array<Vector3f, 4> m_corners;
    std::array<Vector3f, 4> m_triad;
    std::array<std::pair<float, float>, 4> m_planeCorners{};
    BufferPair<VertexBufferNormal, IndexBufferTriangles> m_symbol;
    BufferPair<VertexBufferCoords, IndexBufferLines> m_grid;
    BoundingBox m_box;
    int m_numOffsets = 0;
    std::unique_ptr<Vector3f[]> m_offsets;
    Operation m_operation = OperationNone;
    float m_size = 0.0f;
    float m_symbolScale = 0.0f;
};

} // namespace vxgraphics3d
