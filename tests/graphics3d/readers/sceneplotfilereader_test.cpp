#include "graphics3d/readers/sceneplotfilereader.h"

#include "datacarrier/postdataobject.h"
#include "graphics3d/buffers/indexbufferlines.h"
#include "graphics3d/buffers/indexbufferquads.h"
#include "graphics3d/buffers/indexbuffertriangles.h"
#include "graphics3d/buffers/vertexbuffercoords.h"
#include "graphics3d/buffers/vertexbuffernormaltex.h"
#include "graphics3d/buffers/vertexbuffertex.h"
#include "tests/support/capturederror.h"
#include "tests/support/capturedlog.h"
#include "tests/support/linesof.h"
#include "tests/support/temporaryfile.h"

#include <gtest/gtest.h>

#include <chrono>
#include <clocale>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <functional>
#include <future>
#include <string>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>
#include <vector>

namespace vxgraphics3d {
namespace {

using Criteria = ScenePlotFileReader::GroupCriteria;
using Level = ErrorLog::Level;
using Record = vxdatacarrier::PostDataObject;
using Read = bool (*)(Record&, std::string);
using Strings = std::vector<std::string>;

/// A read with its messages, in which the file name is replaced by FILE.
struct Outcome {
    bool good = false;
    Record record;
    std::string errors;
    std::string standardError;
};

std::string named(std::string text, const std::string& path)
{
    for (std::size_t at = text.find(path); at != std::string::npos; at = text.find(path)) {
        text.replace(at, path.size(), "FILE");
    }
    return text;
}

Outcome outcomeOf(Read read, std::string_view text)
{
    const TemporaryFile file(text);
    const CapturedLog log(Level::error);
    CapturedError error;
    Outcome outcome;
    outcome.good = read(outcome.record, file.path());
    for (const std::string& message : log.messages()) {
        outcome.errors += named(message, file.path());
    }
    outcome.standardError = named(error.take(), file.path());
    return outcome;
}

const std::string c_triangle = "% Coordinates\n0 0 0\n1 0 0\n0 1 0\n% Elements (triangular)\n1 2 3\n";
const std::string c_data = "% Data\n2\n4\n6\n";

TEST(ScenePlotFileReader, refusesAFileWithOneMessageThatNamesTheFault)
{
    const Read read3d = ScenePlotFileReader::readSurfacePlot3d;
    const Read readIso = ScenePlotFileReader::readIsoSurfacePlot3dData;
    const std::string points = "% Coordinates\n0 0 0\n1 0 0\n0 1 0\n";
    const std::string twoLevels = points + "0 0 1\n1 0 1\n0 1 1\n";
    const std::string x255(255, 'x');
    enum Place { both, logOnly };
    const struct {
        Read read;
        std::string text;
        Place place;
        std::string message;
    } cases[] = {
        {read3d, "", both, "No coordinates in file."},
        {read3d, "\n \t\r\n\x01\x1f\n", both, "No coordinates in file."},
        {read3d, "% Data\n", both, "No coordinates in file."},
        {read3d, "% Coordinates\n0 0 0\n1 0 0\n% Data\n1\n", both, "Coordinates do not match Data."},
        {read3d, "% Coordinates\n0 0 0\n1 0 0\n% Data\n1\n2\n3\n", both, "Data do not match Coordinates."},
        {read3d, "0 0 0\n", both, "Coordinates do not match Data."},
        {read3d, points + c_data, both, "No triangles or quads in file."},
        {read3d, points + "% Vector data\n0 0 1\n0 0 1\n0 0 1\n0 0 1\n", both, "Vector data do not match Coordinates."},
        {read3d, points + "% Vector data\n0 0\n", logOnly, "Illegal data at row 6, value 3: \"0 0\""},
        {read3d, points + "% Elements (tetrahedral)\n1 2 3 3\n% Tetrahedral Data\n1\n2\n", both,
         "Data do not match Tetrahedrals."},
        {read3d, points + "% Tetrahedral Data\nnone\n", logOnly, "Illegal data: \"none\""},
        // Tags are recognised only in order, exactly as spelled, from the third column on.
        {read3d, points + c_data + "% Elements (triangular)\n1 2 3\n", both,
         "Unknown tag in FILE: % Elements (triangular)"},
        {read3d, "% a comment\n" + c_triangle + c_data, both, "Unknown tag in FILE: % a comment"},
        {read3d, "%Coordinates\n", both, "Unknown tag in FILE: %Coordinates"},
        {read3d, "% coordinates\r\n", both, "Unknown tag in FILE: % coordinates"},
        {read3d, "% Coordinate\n", both, "Unknown tag in FILE: % Coordinate"},
        {read3d, "%", both, "Unknown tag in FILE: %"},
        // The corners of an element are in the same group.
        {read3d, points + "% Elements (triangular)\n1 2 4\n", both, "Triangle index do not match Coordinate groups."},
        {read3d, points + "% Elements (triangular)\n4 1 2\n", both, "Triangle index do not match Coordinate groups."},
        {read3d, points + "% Elements (triangular)\n0 1 2\n", both, "Triangle index do not match Coordinate groups."},
        {read3d, points + "% Elements (triangular)\n1 2 -3\n", both, "Triangle index do not match Coordinate groups."},
        {read3d, points + "% Elements (triangular)\n1 2 4294967299\n", both,
         "Triangle index do not match Coordinate groups."},
        {read3d, points + "% Elements (triangular)\n-9223372036854775808 2 3\n", both,
         "Triangle index do not match Coordinate groups."},
        {read3d, points + "% Elements (rectangular)\n1 2 3 4\n", both, "Quad index do not match Coordinate groups."},
        {read3d, points + "% Elements (lines)\n1 4\n", both, "Line index do not match Coordinate groups."},
        {read3d, points + "% Elements (tetrahedral)\n1 2 3 4\n", both,
         "Tetrahedral index do not match Coordinate groups."},
        {read3d, "% Elements (triangular)\n1 2 3\n", both, "Triangle index do not match Coordinate groups."},
        {readIso, twoLevels + "% Elements (triangular)\n3 4 5\n% Data\n1\n1\n1\n2\n2\n2\n", both,
         "Triangle index do not match Coordinate groups."},
        {readIso, twoLevels + "% Elements (triangular)\n4 5 6\n1 2 3\n% Data\n1\n1\n1\n2\n2\n2\n", both,
         "Triangle index do not match Coordinate groups."},
        // Missing numbers.
        {read3d, points + "% Elements (triangular)\n1 2 3\n\n1 2\n", logOnly,
         "Illegal index data at row 8: (vertex 3): \"1 2\""},
        {read3d, points + "% Elements (triangular)\n1,2,3\n", logOnly,
         "Illegal index data at row 6: (vertex 2): \"1,2,3\""},
        {read3d, points + "% Data\n1\r\nx\r\n", logOnly, "Illegal data: \"x\""},
        {read3d, "% Coordinates\n0 0 0\n1 0\n0 1 0\n% Elements (triangular)\n1 2 3\n" + c_data, logOnly,
         "Illegal data at row 3, value 3: \"1 0\""},
        // The scan does not count an empty row within a section, but the last pass fails at it.
        {read3d, "% Coordinates\n0 0 0\n \n1 0 0\n0 1 0\n% Elements (triangular)\n1 2 3\n" + c_data, logOnly,
         "Illegal data at row 3, value 1: \" \""},
        {read3d, points + "% Elements (triangular)\n\n1 2 3\n" + c_data, logOnly,
         "Illegal index data at row 6: (vertex 1): \"\""},
        // The scan does not count a second tag within a section either.
        {read3d, points + "% Elements (triangular)\n% Elements (triangular)\n1 2 3\n" + c_data, logOnly,
         "Illegal index data at row 6: (vertex 1): \"% Elements (triangular)\""},
        {read3d, points + "% Coordinates\n% Elements (triangular)\n1 2 3\n" + c_data, both,
         "Expected tag \"Elements (triangular)\" at row 5"},
        {read3d, "0 0 0\n" + points + "% Data\n1\n1\n1\n1\n", both, "No triangles or quads in file."},
        {read3d, "\n0 0 0\n% Elements (triangular)\n1 1 1\n% Data\n1\n", both, "Expected tag \"Coordinates\" at row 2"},
        // Lines beyond 255 characters are several rows.
        {read3d, "% Coordinates\n" + std::string(255, ' ') + "0 0 0\n% Data\n1\n", both,
         "No triangles or quads in file."},
        {read3d, points + "% Data\n" + x255 + "\n", logOnly, "Illegal data: \"" + x255 + "\""},
        {read3d, "% " + x255, both, "Unknown tag in FILE: % " + x255.substr(2)},
        {read3d, "\xff\xfe\n% Data\nx\n", logOnly, "Illegal data: \"x\""},
        // A zero byte ends a row, but not its line.
        {read3d, points + "% Data\n" + std::string("1\0\nx\0y", 6), logOnly, "Illegal data: \"x\""},
    };
    for (const auto& [read, text, place, message] : cases) {
        const Outcome outcome = outcomeOf(read, text);
        EXPECT_FALSE(outcome.good) << text;
        EXPECT_EQ(outcome.errors, message) << text;
        EXPECT_EQ(outcome.standardError, place == both ? message : "") << text;
        EXPECT_TRUE(outcome.record.m_coordinates.empty()) << text;
        EXPECT_EQ(outcome.record.m_bounds, nullptr) << text;
    }
}

TEST(ScenePlotFileReader, endsAMessageOnAMissingFileWithALineEnd)
{
    const CapturedLog log(Level::info);
    CapturedError error;
    Record record;
    EXPECT_FALSE(ScenePlotFileReader::readSurfacePlot3d(record, "/no/such/file"));
    EXPECT_EQ(log.messages(), (Strings{"Opening file /no/such/file", "Could not open file /no/such/file"}));
    EXPECT_EQ(error.take(), "Could not open file /no/such/file\n");

    ScenePlotFileReader reader("/no/such/file");
    error.take();
    ScenePlotFileReader::Arrays<int> corners(3);
    EXPECT_FALSE(reader.readSizesAndData(Criteria::none));
    EXPECT_FALSE(reader.verifyArrowPlot3dSizes());
    EXPECT_FALSE(reader.readCoordinates());
    EXPECT_FALSE(reader.readAndAppendTriangleElements(corners, 0));
    EXPECT_EQ(error.take(), "");
}

TEST(ScenePlotFileReader, cannotOpenAFileWithoutReadPermission)
{
    constexpr uid_t nobody = 65534;
    const bool isSuperuser = geteuid() == 0; // superusers may read everything
    std::string path = std::filesystem::temp_directory_path() / "plotXXXXXX";
    const int file = mkstemp(path.data());
    ASSERT_NE(file, -1);
    const bool isClosedToAll = fchmod(file, 0) == 0 && (!isSuperuser || seteuid(nobody) == 0);
    CapturedError error;
    Record record;
    const bool isRead = ScenePlotFileReader::readSurfacePlot3d(record, path);
    const bool isRestored = !isSuperuser || seteuid(0) == 0;
    close(file);
    std::filesystem::remove(path);
    ASSERT_TRUE(isRestored);
    if (!isClosedToAll) {
        GTEST_SKIP() << "the superuser cannot give up his rights here";
    }
    EXPECT_FALSE(isRead);
    EXPECT_EQ(error.take(), "Could not open file " + path + "\n");
}

TEST(ScenePlotFileReader, refusesIrregularFilesWithoutBlocking)
{
    const std::string silentPipe = std::filesystem::temp_directory_path() / ("pipe" + std::to_string(getpid()));
    ASSERT_EQ(mkfifo(silentPipe.c_str(), S_IRUSR | S_IWUSR), 0);
    for (const std::string& path : {silentPipe, std::string("/"), std::string("/dev/zero")}) {
        const CapturedLog log(Level::error);
        CapturedError error;
        Record record;
        auto read = std::async(std::launch::async, ScenePlotFileReader::readSurfacePlot3d, std::ref(record), path);
        if (read.wait_for(std::chrono::seconds(10)) != std::future_status::ready) {
            ADD_FAILURE() << "waits for " << path;
            // A writer that opens and closes the pipe wakes its reader.
            close(open(silentPipe.c_str(), O_WRONLY | O_NONBLOCK));
        }
        EXPECT_FALSE(read.get());
        EXPECT_EQ(log.messages(), Strings{"Could not open file " + path});
        EXPECT_EQ(error.take(), "Could not open file " + path + "\n");
    }
    std::filesystem::remove(silentPipe);
}

TEST(ScenePlotFileReader, fillsOneGroupOfASurface3d)
{
    const TemporaryFile file("% Coordinates\n-3 -2 -1\n-1 -2 -1\n-3 -1 -1\n% Elements (triangular)\n1 2 3\n" + c_data);
    const CapturedLog log(Level::info);
    Record record;
    record.m_plotKind = 9;
    record.m_dataIndex[0] = 5;
    ASSERT_TRUE(ScenePlotFileReader::readSurfacePlot3d(record, file.path()));
    EXPECT_EQ(log.messages(),
              (Strings{"Opening file " + file.path(),
                       "File contains 3 coordinates with data, 1 triangles and 0 quads [2.000000, 6.000000]"}));
    EXPECT_EQ(*record.m_coordinates.at(0), (Record::DoubleArrays{{-3, -1, -3}, {-2, -2, -1}, {-1, -1, -1}}));
    EXPECT_EQ(*record.m_elements.at(0), (Record::IntArrays{{0}, {1}, {2}}));
    EXPECT_EQ(*record.m_normals.at(0), (Record::FloatArrays{{0, 0, 0}, {0, 0, 0}, {1, 1, 1}}));
    EXPECT_EQ(*record.m_data.at(0), (Record::DoubleArrays{{0, 0.5, 1}}));
    EXPECT_EQ(*record.m_dataMin.at(0), std::vector<double>{0});
    EXPECT_EQ(*record.m_dataMax.at(0), std::vector<double>{1});
    EXPECT_EQ(*record.m_bounds, (Record::DoubleArrays{{-3, -1}, {-2, -1}, {-1, -1}}));
    EXPECT_EQ(record.m_coordinates.size(), 1u);
    EXPECT_TRUE(record.m_lineElements.empty());
    EXPECT_EQ(record.m_plotKind, 9);
    EXPECT_EQ(record.m_dataIndex[0], 5);
}

TEST(ScenePlotFileReader, fillsHeightFromZOfASurface2d)
{
    Record record;
    const TemporaryFile file(
        "% Coordinates\n1 2 30\n2 2 50\n1 3 -10\n% Elements (triangular)\n1 2 3\n% Data\n7\n7\n7\n");
    ASSERT_TRUE(ScenePlotFileReader::readSurfacePlot2d(record, file.path()));
    EXPECT_EQ(*record.m_coordinates.at(0), (Record::DoubleArrays{{1, 2, 1}, {2, 2, 3}}));
    EXPECT_EQ(*record.m_data.at(0), (Record::DoubleArrays{{0, 0, 0}, {30, 50, -10}}));
    EXPECT_EQ(*record.m_dataMin.at(0), (std::vector<double>{0, -10}));
    EXPECT_EQ(*record.m_dataMax.at(0), (std::vector<double>{0, 50}));
    EXPECT_EQ(*record.m_bounds, (Record::DoubleArrays{{1, 2}, {2, 3}}));
    EXPECT_TRUE(record.m_normals.empty());
}

TEST(ScenePlotFileReader, weightsTheUnitNormalsOfAllTrianglesEqually)
{
    // A large triangle in the plane z = 0, a small one in the plane x = 0, a degenerate one without a normal, and a
    // point without a triangle.
    Record record;
    const TemporaryFile file("% Coordinates\n0 0 0\n9 0 0\n0 9 0\n0 0 1\n5 5 5\n% Elements (triangular)\n1 2 3\n1 3 4\n"
                             "1 2 2\n% Data\n1\n1\n1\n1\n1\n");
    ASSERT_TRUE(ScenePlotFileReader::readSurfacePlot3d(record, file.path()));
    const Vector3f half = Vector3f(1.0f, 0.0f, 1.0f).normalize();
    EXPECT_EQ(*record.m_normals.at(0),
              (Record::FloatArrays{{half.x, 0, half.x, 1, 0}, {0, 0, 0, 0, 0}, {half.z, 1, half.z, 0, 0}}));
}

TEST(ScenePlotFileReader, countsQuadsWithoutStoringThem)
{
    Record record;
    const TemporaryFile file("% Coordinates\n0 0 0\n1 0 0\n1 1 0\n0 1 0\n% Elements (rectangular)\n1 2 3 4\n"
                             "% Data\n1\n2\n3\n4\n");
    ASSERT_TRUE(ScenePlotFileReader::readSurfacePlot3d(record, file.path()));
    EXPECT_EQ(*record.m_elements.at(0), (Record::IntArrays{{}, {}, {}}));
    EXPECT_EQ(record.m_coordinates.at(0)->at(0).size(), 4u);
}

TEST(ScenePlotFileReader, ignoresInsignificantText)
{
    // Blank rows between sections, text after tags and numbers, other blanks, line ends of other systems, a section
    // that is not used, a repeated tag, and no line end at the end.
    Record plain;
    Record odd;
    const TemporaryFile plainFile(c_triangle + c_data);
    const TemporaryFile oddFile(
        "\n \r\n%:Coordinates and more\r\n0 0 0\t\r\n 1\t0,\v0 and more\n0+1-0\n\n"
        "% Elements (triangular)#\n1.2.3\n1 2 3 4\n% Elements (lines)\n\n1 3\n% Data\n\n2e0\n% Data\n"
        "0x4\n6\n% Vector data\n1 2 3");
    ASSERT_TRUE(ScenePlotFileReader::readSurfacePlot3d(plain, plainFile.path()));
    EXPECT_FALSE(ScenePlotFileReader::readSurfacePlot3d(odd, oddFile.path())); // 1.2.3 is not a row of integers
    oddFile.write("\n \r\n%:Coordinates and more\r\n0 0 0\t\r\n 1\t0\v0 and more\n0+1-0\n\n"
                  "% Elements (triangular)#\n+1 2 3 4\n\x1f\n% Elements (lines)\n\n1 3\n% Data\n\n2e0\n% Data\n"
                  "0x4\n6\n% Vector data\n1 2 3");
    ASSERT_TRUE(ScenePlotFileReader::readSurfacePlot3d(odd, oddFile.path()));
    EXPECT_EQ(*odd.m_coordinates.at(0), *plain.m_coordinates.at(0));
    EXPECT_EQ(*odd.m_elements.at(0), *plain.m_elements.at(0));
    EXPECT_EQ(*odd.m_data.at(0), *plain.m_data.at(0));
}

TEST(ScenePlotFileReader, readsDecimalPointsUnderACommaLocale)
{
    if (std::setlocale(LC_ALL, "de_DE.UTF-8") == nullptr) {
        GTEST_SKIP() << "the locale de_DE.UTF-8 is not installed";
    }
    const Outcome outcome = outcomeOf(
        ScenePlotFileReader::readSurfacePlot3d,
        "% Coordinates\n0.5 0 0\n0x1.8p0 0 0\n0 1 0\n% Elements (triangular)\n1 2 3\n% Data\n1.5\n2.5\n3.5\n");
    std::setlocale(LC_ALL, "C");
    ASSERT_TRUE(outcome.good);
    EXPECT_EQ(outcome.record.m_coordinates.at(0)->at(0), (std::vector<double>{0.5, 1.5, 0}));
    EXPECT_EQ(outcome.record.m_data.at(0)->at(0), (std::vector<double>{0, 0.5, 1}));
}

TEST(ScenePlotFileReader, createsAGroupPerLevelOfAnIsoSurface)
{
    Record record;
    const TemporaryFile file("% Coordinates\n0 0 0\n1 0 0\n0 1 0\n0 0 1\n1 0 1\n0 1 1\n1 1 1\n% Elements (triangular)\n"
                             "1 2 3\n5 4 6\n5 6 7\n% Data\n1\n1\n1\n2\n2\n2\n2\n");
    ASSERT_TRUE(ScenePlotFileReader::readIsoSurfacePlot3dData(record, file.path()));
    ASSERT_EQ(record.m_coordinates.size(), 2u);
    ASSERT_EQ(record.m_normals.size(), 2u);
    EXPECT_EQ(*record.m_coordinates[0], (Record::DoubleArrays{{0, 1, 0}, {0, 0, 1}, {0, 0, 0}}));
    EXPECT_EQ(*record.m_coordinates[1], (Record::DoubleArrays{{0, 1, 0, 1}, {0, 0, 1, 1}, {1, 1, 1, 1}}));
    EXPECT_EQ(*record.m_elements[0], (Record::IntArrays{{0}, {1}, {2}}));
    EXPECT_EQ(*record.m_elements[1], (Record::IntArrays{{1, 1}, {0, 2}, {2, 3}}));
    EXPECT_EQ(*record.m_normals[0], (Record::FloatArrays{{0, 0, 0}, {0, 0, 0}, {1, 1, 1}}));
    EXPECT_EQ(*record.m_data[0], (Record::DoubleArrays{{0}, {0, 0, 0}}));
    EXPECT_EQ(*record.m_data[1], (Record::DoubleArrays{{1}, {1, 1, 1, 1}}));
    EXPECT_EQ(*record.m_dataMin[1], (std::vector<double>{1, 1}));
    EXPECT_EQ(*record.m_dataMax[1], (std::vector<double>{1, 1}));
    EXPECT_EQ(*record.m_bounds, (Record::DoubleArrays{{0, 1}, {0, 1}, {0, 1}}));
}

TEST(ScenePlotFileReader, keepsTheGroupsBeforeAFaultyElementRow)
{
    const std::string points = "% Coordinates\n0 0 0\n1 0 0\n0 1 0\n0 0 1\n1 0 1\n0 1 1\n";
    const std::string levels = "% Data\n1\n1\n1\n2\n2\n2\n";
    const struct {
        std::string elements;
        std::string message;
    } cases[] = {
        {"1 2 3\n\n4 5 6\n", "Illegal index data at row 10: (vertex 1): \"\""},
        // Only the first group looks for the tag of the triangles.
        {"4 5 6\n", "Illegal index data at row 8: (vertex 1): \"% Elements (triangular)\""},
    };
    for (const auto& [elements, message] : cases) {
        const Outcome outcome = outcomeOf(ScenePlotFileReader::readIsoSurfacePlot3dData,
                                          points + "% Elements (triangular)\n" + elements + levels);
        EXPECT_FALSE(outcome.good);
        EXPECT_EQ(outcome.errors, message);
        EXPECT_EQ(outcome.record.m_coordinates.size(), 1u);
        EXPECT_EQ(outcome.record.m_bounds, nullptr);
    }
}

TEST(ScenePlotFileReader, groupsPointsByTheChosenCriterion)
{
    using Ranges = std::vector<std::pair<int, int>>;
    const auto dataFile = [](const std::string& values) {
        std::string points;
        for (const char c : values) {
            points += c == '\n' ? "0 0 0\n" : "";
        }
        return "% Coordinates\n" + points + "% Data\n" + values;
    };
    const std::string points = "% Coordinates\n1 5 9\n1 5 8\n2 5 8\n2 6 8\n1 6 8\n";
    const struct {
        Criteria criteria;
        std::string text;
        Ranges ranges;
    } cases[] = {
        {Criteria::x, points, {{0, 1}, {2, 3}, {4, 4}}},
        {Criteria::y, points, {{0, 2}, {3, 4}}},
        {Criteria::z, points, {{0, 0}, {1, 4}}},
        {Criteria::none, points + "% Data\n", {{0, 4}}},
        // The single group ends at the tag after the coordinates.
        {Criteria::none, points, {}},
        // Coordinates are compared as floats: 1 + 1e-9 is 1.
        {Criteria::x, "% Coordinates\n1 0 0\n1.000000001 0 0\n1.0000002 0 0\n", {{0, 1}, {2, 2}}},
        {Criteria::x, "% Coordinates\n1 0 0\n% Coordinates\n1 0 0\n", {{0, 0}, {1, 1}}},
        {Criteria::data, dataFile("1\n1\n2\n2\n2\n"), {{0, 1}, {2, 4}}},
        {Criteria::data, dataFile("1\n1.1\n"), {{0, 0}, {1, 1}}},
        // Compared with the value that opened the group, not with the previous one.
        {Criteria::data, dataFile("1\n1.000015\n1.00003\n"), {{0, 1}, {2, 2}}},
        {Criteria::data, dataFile("-1\n1\n0\n0\n"), {{0, 0}, {1, 1}, {2, 3}}},
        {Criteria::data, dataFile("1\n% Data\n1\n"), {{0, 0}, {1, 1}}},
    };
    for (const auto& [criteria, text, ranges] : cases) {
        const TemporaryFile file(text);
        ScenePlotFileReader reader(file.path());
        ASSERT_TRUE(reader.readSizesAndData(criteria)) << text;
        Ranges found;
        for (const ScenePlotFileReader::PointGroup& group : reader.getGroups()) {
            found.emplace_back(group.first, group.last);
        }
        EXPECT_EQ(found, ranges) << text;
    }
}

TEST(ScenePlotFileReader, countsElementsInTheirGroups)
{
    for (const Criteria criteria : {Criteria::x, Criteria::data}) {
        const TemporaryFile file(
            "% Coordinates\n0 0 0\n0 1 0\n1 0 0\n1 1 0\n% Elements (triangular)\n1 2 1\n1 2 2\n3 4 3\n"
            "% Elements (rectangular)\n3 4 3 4\n% Elements (lines)\n1 2\n3 4\n% Elements (lines)\n4 3\n"
            "% Elements (tetrahedral)\n1 2 1 2\n% Data\n1\n1\n2\n2\n");
        ScenePlotFileReader reader(file.path());
        ASSERT_TRUE(reader.readSizesAndData(criteria));
        const auto& groups = reader.getGroups();
        ASSERT_EQ(groups.size(), 2u);
        EXPECT_EQ(
            (std::vector{groups[0].numTriangles, groups[0].numQuads, groups[0].numLines, groups[0].numTetrahedra}),
            (std::vector{2, 0, 1, 1}));
        EXPECT_EQ(
            (std::vector{groups[1].numTriangles, groups[1].numQuads, groups[1].numLines, groups[1].numTetrahedra}),
            (std::vector{1, 1, 2, 0}));
    }
}

TEST(ScenePlotFileReader, verifiesTheCountsThatAPlotNeeds)
{
    using Verify = bool (ScenePlotFileReader::*)() const;
    const Verify arrow = &ScenePlotFileReader::verifyArrowPlot3dSizes;
    const Verify edge = &ScenePlotFileReader::verifyEdgePlot3dSizes;
    const Verify mesh = &ScenePlotFileReader::verifyDomainMeshPlot3dSizes;
    const Verify slice = &ScenePlotFileReader::verifySlicePlot3dSizes;
    const std::string points = "% Coordinates\n0 0 0\n1 0 0\n";
    const struct {
        Verify verify;
        std::string text;
        std::string message;
    } cases[] = {
        {arrow, "", "No coordinates in file."},
        {edge, "", "No coordinates in file."},
        {mesh, "", "No coordinates in file."},
        {slice, points + "% Data\n1\n2\n", "No triangles or quads in file."},
        {arrow, points + "% Vector data\n0 3 4\n", "Coordinates do not match Vector Data."},
        {arrow, points + "% Data\n1\n% Vector data\n0 3 4\n0 0 1\n", "Coordinates do not match Data."},
        {arrow, points + "% Vector data\n0 3 4\n0 0 1\n",
         "File contains 2 coordinates with vectordata. [1.000000, 5.000000]"},
        {arrow, points + "% Data\n1\n2\n% Vector data\n0 3 4\n0 0 1\n",
         "File contains 2 coordinates with vectordata. [1.000000, 5.000000]"},
        {edge, points + "% Elements (lines)\n1 2\n", "Coordinates do not match Data."},
        {edge, points + "% Data\n1\n2\n", "No lines in file."},
        {edge, points + "% Elements (lines)\n1 2\n% Data\n-1\n2\n",
         "File contains 2 coordinates with data, 1 lines [-1.000000, 2.000000]"},
        {mesh, points, "No tetrahedral in file."},
        {mesh, points + "% Elements (tetrahedral)\n1 2 1 2\n", "Tetrahedrals do not match tetrahedral Data."},
        {mesh, points + "% Elements (tetrahedral)\n1 2 1 2\n% Tetrahedral Data\n-3\n",
         "File contains 2 coordinates and 1 tetrahedral [-3.000000, -3.000000]"},
    };
    for (const auto& [verify, text, message] : cases) {
        const TemporaryFile file(text);
        const CapturedLog log(Level::info);
        CapturedError error;
        ScenePlotFileReader reader(file.path());
        ASSERT_TRUE(reader.readSizesAndData(Criteria::none)) << text;
        const bool good = message.rfind("File contains", 0) == 0;
        EXPECT_EQ((reader.*verify)(), good) << text;
        EXPECT_EQ(log.messages().back(), message);
        EXPECT_EQ(error.take(), good ? "" : message);
    }
}

TEST(ScenePlotFileReader, readsGroupsIntoBuffersRelativeToTheirFirstPoint)
{
    const TemporaryFile file(
        "% Coordinates\n0 0 0\n0 1 0\n0 0 1\n1 0 0\n1 1 0\n1 0 1\n\n% Elements (triangular)\n1 2 3\n"
        "4 6 5\n% Elements (lines)\n1 2\n2 3\n6 4\n% Data\n1\n2\n3\n4\n5\n5\n");
    ScenePlotFileReader reader(file.path());
    ASSERT_TRUE(reader.readSizesAndData(Criteria::x) && reader.verifySlicePlot3dSizes() && reader.readCoordinates());
    EXPECT_EQ(reader.getBoundingBox(), BoundingBox(0.0f, 1.0f, 0.0f, 1.0f, 0.0f, 1.0f));
    VertexBufferNormalTex vertices[2];
    VertexBufferTex plainVertices;
    IndexBufferTriangles triangles[2] = {IndexBufferTriangles(vertices[0]), IndexBufferTriangles(vertices[1])};
    IndexBufferLines lines[2] = {IndexBufferLines(vertices[0]), IndexBufferLines(vertices[1])};
    IndexBufferLines outline(vertices[1]);
    for (int group : {0, 1}) {
        vertices[group].allocate(3);
        triangles[group].internalAllocate(1, 1);
        triangles[group].newSegment();
        ASSERT_TRUE(reader.readAndAppendTriangleElements(triangles[group], group));
    }
    reader.calculateBoundaries2d(triangles[1], 1, outline);
    EXPECT_EQ(linesOf(outline), (Lines{{0, 2}, {0, 1}, {1, 2}}));
    for (int group : {0, 1}) {
        const int numLines = reader.getGroups()[static_cast<std::size_t>(group)].numLines;
        lines[group].internalAllocate(numLines, 1);
        lines[group].newSegment();
        ASSERT_TRUE(reader.readAndAppendLineElements(lines[group], group));
        EXPECT_EQ(lines[group].getNumElements(0), numLines);
        reader.appendCoordinates(vertices[group], group);
    }
    int corners[3];
    triangles[1].getTriangle(0, corners[0], corners[1], corners[2]);
    EXPECT_EQ((std::vector<int>(corners, corners + 3)), (std::vector{0, 2, 1}));
    int ends[2];
    lines[1].getLine(0, ends[0], ends[1]);
    EXPECT_EQ((std::vector<int>(ends, ends + 2)), (std::vector{2, 0}));
    const VertexNormalTex& vertex = vertices[1].vertices()[1];
    EXPECT_EQ((std::vector{vertex.x, vertex.y, vertex.z, vertex.nx, vertex.ny, vertex.nz, vertex.u, vertex.v}),
              (std::vector{1.0f, 1.0f, 0.0f, -1.0f, 0.0f, 0.0f, 1.0f, 0.0f}));
    EXPECT_EQ(vertices[0].vertices()[2].nx, 1.0f);
    plainVertices.allocate(3);
    reader.appendCoordinates(plainVertices, 1);
    EXPECT_EQ(plainVertices.getCoord(2), Vector3f(1.0f, 0.0f, 1.0f));
    EXPECT_EQ(plainVertices.vertices()[0].u, 0.75f);

    ScenePlotFileReader::Arrays<double> coordinates(3);
    ScenePlotFileReader::Arrays<float> normals(3);
    double value = -1.0;
    reader.appendCoordinates(coordinates, normals, value, 1);
    EXPECT_EQ(value, 0.75);
    EXPECT_EQ(coordinates, (ScenePlotFileReader::Arrays<double>{{1, 1, 1}, {0, 1, 0}, {0, 0, 1}}));
    EXPECT_EQ(normals[0], (std::vector<float>{-1, -1, -1}));
}

TEST(ScenePlotFileReader, skipsTheTagOfTheQuads)
{
    const TemporaryFile file("% Coordinates\n0 0 0\n1 0 0\n\n% Elements (rectangular)\n1 2 1 2\n");
    ScenePlotFileReader reader(file.path());
    ASSERT_TRUE(reader.readSizesAndData(Criteria::none) && reader.readCoordinates());
    VertexBufferCoords vertices;
    IndexBufferQuads quads(vertices);
    EXPECT_TRUE(reader.readAndAppendQuadElements(quads, 0));
    EXPECT_EQ(quads.getNumIndices(), 0);
    CapturedError error;
    EXPECT_FALSE(reader.readAndAppendQuadElements(quads, 0));
    EXPECT_EQ(error.take(), "Expected tag \"Elements (rectangular)\" at row 6");
}

TEST(ScenePlotFileReader, reportsAFileThatShrankWhileItWasRead)
{
    const std::string head = "% Coordinates\n0 0 0\n1 0 0\n0 1 0\n% Elements (triangular)\n";
    const struct {
        std::string text;
        std::string message;
    } cases[] = {
        {"", "Expected tag \"Coordinates\" at row 0"},
        {"\n\n", "Expected tag \"Coordinates\" at row 2"},
        {"% Coordinates\n0 0 0\n", "End of file when reading coordinates, file FILE"},
        {"% Coordinates\n0 0 0\n1 0 0\n0 1 0\n", "Expected tag \"Elements (triangular)\" at row 4"},
        {head + "1 2 3\n", "End of file when reading triangle elements, file FILE"},
        {head + "1 2 3\n1 2 4\n", "Index out of group range when reading triangle elements, file FILE"},
        {head + "1 2 3\n1 2 3\n% Elements (lines)\n", "End of file when reading line elements, file FILE"},
        {head + "1 2 3\n1 2 3\n% Elements (lines)\n0 1\n",
         "Index out of group range when reading line elements, file FILE"},
    };
    for (const auto& [text, message] : cases) {
        const TemporaryFile file(head + "1 2 3\n3 2 1\n% Elements (lines)\n1 2\n% Data\n1\n2\n3\n");
        ScenePlotFileReader reader(file.path());
        ASSERT_TRUE(reader.readSizesAndData(Criteria::none));
        file.write(text);
        CapturedError error;
        ScenePlotFileReader::Arrays<int> corners(3);
        VertexBufferCoords vertices;
        IndexBufferLines lines(vertices);
        lines.internalAllocate(1, 1);
        lines.newSegment();
        EXPECT_FALSE(reader.readCoordinates() && reader.readAndAppendTriangleElements(corners, 0) &&
                     reader.readAndAppendLineElements(lines, 0));
        EXPECT_EQ(named(error.take(), file.path()), message);
    }
}

} // namespace
} // namespace vxgraphics3d
