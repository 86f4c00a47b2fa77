#include "renderer/export/svgfile.h"

#include <algorithm>
#include <map>
#include <string_view>

namespace vxrenderer {
namespace {

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

bool isLetter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

std::string escaped(const std::string& text)
{
    std::string result;
    for (const char c : text) {
        switch (c) {
        case '<':
            result += "&lt;";
            break;
        case '>':
            result += "&gt;";
            break;
        case '&':
            result += "&amp;";
            break;
        default:
            // Other control characters are not allowed in a file.
            if (static_cast<unsigned char>(c) >= 32 || c == '\n' || c == '\t') {
                result += c;
            }
        }
    }
    return result;
}

std::string textsOf(const std::string& title, const std::string& creator)
{
    std::string texts(1, '\n');
    if (!title.empty()) {
        texts += "<title>" + escaped(title) + "</title>\n";
    }
    if (!creator.empty()) {
        texts += "<metadata><creator xmlns=\"http://purl.org/dc/elements/1.1/\">" + escaped(creator) +
                 "</creator></metadata>\n";
    }
    return texts;
}

/// Copies a file with other numbers after names such as "surface", which follow a quotation mark or a number sign.
class Renumbering {
public:
    std::string apply(std::string_view file)
    {
        std::string result;
        result.reserve(file.size());
        for (std::size_t i = 0; i < file.size();) {
            const char c = file[i];
            result += c;
            ++i;
            if (c == '#' || (c == '"' && result.ends_with(" id=\""))) {
                const std::size_t first = i;
                while (i < file.size() && isLetter(file[i])) {
                    ++i;
                }
                const std::string name(file.substr(first, i - first));
                const std::size_t digits = i;
                while (i < file.size() && isDigit(file[i])) {
                    ++i;
                }
                result += name;
                if (i > digits) {
                    result += numberOf(name, std::string(file.substr(digits, i - digits)));
                }
            }
        }
        return result;
    }

private:
    std::string numberOf(const std::string& name, const std::string& number)
    {
        std::map<std::string, std::string>& numbers = m_numbers[name];
        return numbers.try_emplace(number, std::to_string(numbers.size())).first->second;
    }

    std::map<std::string, std::map<std::string, std::string>> m_numbers;
};

} // namespace

std::vector<std::uint8_t> completeSvg(const std::vector<std::uint8_t>& file, const std::string& title,
                                      const std::string& creator)
{
    std::string text = Renumbering().apply(std::string(file.begin(), file.end()));
    const std::size_t root = text.find("<svg");
    const std::size_t end = root == std::string::npos ? root : text.find('>', root);
    if (end != std::string::npos) {
        text.insert(end + 1, textsOf(title, creator));
    }
    return {text.begin(), text.end()};
}

} // namespace vxrenderer
