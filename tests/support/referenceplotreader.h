#pragma once

#include "graphics3d/foundation/vector3f.h"

#include <array>
#include <cstdio>
#include <string>
#include <vector>

namespace vxdatacarrier {
class PostDataObject;
}

namespace vxgraphics3d {

/// A second plot file reader, as simple as possible: one row at a time through `fgets`, each number through the C
/// library. Tests compare the real reader's results and messages with it, and the benchmark its speed.
class ReferencePlotReader {
public:
    struct Group {
        int first = 0, last = 0, numLines = 0, numTriangles = 0, numQuads = 0, numTetrahedra = 0;
    };

    enum class Plot { surface2d, surface3d, isoSurface3d };

    explicit ReferencePlotReader(const std::string& fileName);
    ~ReferencePlotReader();
    ReferencePlotReader(const ReferencePlotReader&) = delete;
    ReferencePlotReader& operator=(const ReferencePlotReader&) = delete;

    bool read(Plot plot, vxdatacarrier::PostDataObject& record);
    /// Criteria 0 for none, 1 to 3 for x, y and z, 4 for data.
    bool scan(int criteria);

    const std::vector<Group>& groups() const { return m_groups; }
    /// The messages for the log so far.
    const std::vector<std::string>& messages() const { return m_messages; }
    /// The text for standard error so far.
    const std::string& standardError() const { return m_standardError; }

private:
    enum Severity { info, logged, reported };
    void tell(Severity severity, const char* format, ...) __attribute__((format(printf, 3, 4)));
    bool fail(const char* text);
    bool next();
    bool isEmpty() const;
    int findTag(int from) const;
    std::string row() const;
    bool reals(double* values, int count);
    bool indices(int* values, int count);
    bool pass(int criteria, bool first, bool elements);
    bool verify();
    bool readPoints();
    bool readTriangles(std::size_t group, std::vector<std::vector<int>>& corners);

    std::string m_fileName;
    std::FILE* m_file;
    char m_buffer[256];
    int m_row = 0;
    std::array<int, 8> m_counts{};
    std::vector<Group> m_groups;
    float m_dataMax, m_dataMin, m_tetrahedralMax, m_tetrahedralMin;
    std::array<float, 3> m_max, m_min;
    std::vector<Vector3f> m_points, m_normals, m_vectors;
    std::vector<float> m_data, m_tetrahedralData;
    std::vector<std::string> m_messages;
    std::string m_standardError;
};

} // namespace vxgraphics3d
