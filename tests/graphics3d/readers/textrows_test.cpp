#include "graphics3d/readers/textrows.h"

#include <gtest/gtest.h>

#include <memory>
#include <random>
#include <string>
#include <vector>

namespace vxgraphics3d {
namespace {

using File = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

File fileOf(const std::string& bytes)
{
    File file(std::tmpfile(), std::fclose);
    std::fwrite(bytes.data(), 1, bytes.size(), file.get());
    std::rewind(file.get());
    return file;
}

std::vector<std::string> rowsByLibrary(const std::string& bytes)
{
    const File file = fileOf(bytes);
    std::vector<std::string> rows;
    for (char buffer[256]; std::fgets(buffer, sizeof buffer, file.get()) != nullptr;) {
        rows.emplace_back(buffer);
    }
    return rows;
}

std::vector<std::string> allRows(TextRows& rows)
{
    std::vector<std::string> result;
    while (const char* row = rows.next()) {
        result.emplace_back(row);
    }
    return result;
}

TEST(TextRows, splitAStreamLikeTheLibrary)
{
    const std::string zero(1, '\0');
    const std::string cases[] = {
        "",
        "\n",
        "a",
        "a\nb",
        "a\r\n\r\n",
        "\n\n\n",
        std::string(254, 'x') + "\ny",
        std::string(255, 'x') + "\ny",
        std::string(256, 'x') + "\ny",
        std::string(510, 'x'),
        std::string(100000, 'x') + "\nend\n",
        zero,
        "a" + zero + "b\nc\n",
        zero + "\n" + zero + zero,
        std::string(300, '\0') + "\nb",
        "\xff\xfe\n",
    };
    for (const std::string& bytes : cases) {
        const File file = fileOf(bytes);
        TextRows rows(file.get());
        EXPECT_EQ(allRows(rows), rowsByLibrary(bytes)) << bytes.substr(0, 20) << "... of " << bytes.size();
        EXPECT_EQ(rows.next(), nullptr);
    }
}

TEST(TextRows, areTheSameWhereverABlockEnds)
{
    std::mt19937 random(3);
    for (int i = 0; i < 20; ++i) {
        const auto longest = random() % 600 + 1;
        std::string bytes;
        while (bytes.size() < 200000) {
            bytes.append(random() % longest, static_cast<char>('a' + random() % 26));
            bytes += random() % 9 != 0 ? '\n' : '\0';
        }
        const File file = fileOf(bytes);
        TextRows rows(file.get());
        const std::vector<std::string> expected = rowsByLibrary(bytes);
        EXPECT_EQ(allRows(rows), expected);
        // Skipping passes over no row that begins with the character.
        rows.rewind();
        std::size_t number = 0;
        while (true) {
            const auto numSkipped = static_cast<std::size_t>(rows.skipRowsWithout('b'));
            for (const std::size_t end = number + numSkipped; number < end; ++number) {
                ASSERT_NE(expected[number][0], 'b');
            }
            const char* row = rows.next();
            if (row == nullptr) {
                break;
            }
            ASSERT_EQ(row, expected[number++]);
        }
        EXPECT_EQ(number, expected.size());
    }
}

TEST(TextRows, readPlainRowsOfNumbersAndLeaveTheOthers)
{
    const struct {
        std::string row;
        bool isPlainIntegers;
        bool isPlainReals;
        double second = 2.0;
    } cases[] = {
        {"1 23 456\n", true, true, 23.0},
        {"\t1  2 3 \r\n", true, true},
        {"999999999 000000000 3\n", true, true, 0.0},
        {"1234567890 2 3\n", false, true},
        {"1 2 -3\n", false, true},
        {"1.5 .5 5.e-1\n", false, true, 0.5},
        {"1 2\n", false, false},
        {"1 2 3 4\n", false, false},
        {"1 2 3,\n", false, false},
        {"1 2 3", false, false},
        {"1 2\v3\n", false, false},
        {"1 2 0x3\n", false, false},
        {"1 2 12345678901234567\n", false, false},
        {"\n", false, false},
        {"%1 2 3\n", false, false},
        {"1 2 3" + std::string(249, ' ') + "\n", true, true},
        {"1 2 3" + std::string(250, ' ') + "\n", false, false},
    };
    for (const auto& [row, isPlainIntegers, isPlainReals, second] : cases) {
        const std::string bytes = "first\n" + row + row;
        const File file = fileOf(bytes);
        TextRows rows(file.get());
        int integers[9];
        double reals[9];
        // The fast path leaves everything unchanged for the slow one, and may follow it at any row.
        EXPECT_EQ(rows.nextPlainIntegers(integers, 3, 3), 0);
        rows.next();
        EXPECT_EQ(rows.nextPlainIntegers(integers, 3, 1), isPlainIntegers ? 1 : 0) << row;
        EXPECT_EQ(rows.nextPlainReals(reals, 3, 3), (isPlainReals ? 2 : 0) - (isPlainIntegers ? 1 : 0)) << row;
        if (!isPlainReals) {
            EXPECT_EQ(rows.next(), rowsByLibrary(bytes)[1]) << row;
        }
        EXPECT_EQ(isPlainIntegers ? static_cast<double>(integers[1]) : second, second) << row;
        EXPECT_EQ(isPlainReals ? reals[1] : second, second) << row;
    }
}

TEST(TextRows, restartAfterRewindFromAnyPosition)
{
    const std::string bytes = "first\n" + std::string(70000, 'x') + "\nlast";
    const File file = fileOf(bytes);
    TextRows rows(file.get());
    EXPECT_STREQ(rows.next(), "first\n");
    rows.rewind();
    EXPECT_EQ(allRows(rows), rowsByLibrary(bytes));
    rows.rewind();
    EXPECT_STREQ(rows.next(), "first\n");
}

TEST(TextRows, areNoneForADirectoryOrNoFile)
{
    const File directory(std::fopen("/", "r"), std::fclose);
    ASSERT_NE(directory, nullptr);
    TextRows rows(directory.get());
    EXPECT_EQ(rows.next(), nullptr);
    TextRows none(nullptr);
    EXPECT_EQ(none.next(), nullptr);
    none.rewind();
    EXPECT_EQ(none.next(), nullptr);
}

} // namespace
} // namespace vxgraphics3d
