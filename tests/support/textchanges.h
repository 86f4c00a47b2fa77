#pragma once

#include <cstddef>
#include <iterator>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace vxgraphics3d {

/// Changes to text files that a program, an editor or a broken disk could make, the same ones in every run.
class TextChanges {
public:
    explicit TextChanges(unsigned seed) : m_random(seed) {}

    /// A random number from 0 below `count`.
    std::size_t pick(std::size_t count) { return m_random() % count; }

    /// The text of the rows, with at most three changes, one kind of line end, and possibly cut short.
    std::string changed(std::vector<std::string> rows)
    {
        for (auto changes = pick(4); changes != 0; --changes) {
            change(rows);
        }
        std::string text;
        const char* const ends[] = {"\n", "\n", "\r\n", "\n\n"};
        const std::string end = ends[pick(std::size(ends))];
        for (const std::string& row : rows) {
            text += row + end;
        }
        if (pick(4) == 0) {
            text.resize(pick(text.size()) + 1);
        }
        return text;
    }

private:
    void change(std::vector<std::string>& rows)
    {
        std::string& row = rows[pick(rows.size())];
        const auto at = rows.begin() + static_cast<std::ptrdiff_t>(pick(rows.size()));
        switch (pick(9)) {
        case 0:
            rows.erase(at);
            break;
        case 1:
            rows.insert(at, row);
            break;
        case 2:
            std::swap(row, rows[pick(rows.size())]);
            break;
        case 3:
            rows.insert(at, pick(2) == 0 ? "" : " \t");
            break;
        case 4:
            row.insert(pick(row.size() + 1), 1, static_cast<char>(m_random()));
            break;
        case 5:
            row.insert(pick(row.size() + 1), 150 + pick(300), pick(2) == 0 ? ' ' : '1');
            break;
        case 6:
            row = std::to_string(static_cast<long>(m_random()) - 2147483648L) + " 2147483648 99999999999999999999";
            break;
        case 7:
            row.clear();
            break;
        default:
            row += ",";
        }
        if (rows.empty()) {
            rows.emplace_back();
        }
    }

    std::mt19937 m_random;
};

} // namespace vxgraphics3d
