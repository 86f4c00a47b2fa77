#include "renderer/text/titlemarkup.h"

#include "base/ustring.h"
#include "renderer/text/symbolnames.h"

#include <algorithm>
#include <string>

namespace vxrenderer {
namespace {

using Kind = TitleItem::Kind;

constexpr float c_superscriptRise = 0.42f;
constexpr float c_subscriptRise = -0.2f;
constexpr float c_largestRise = 1.0f;
constexpr int c_deepestScript = 2;
constexpr char32_t c_noBreakSpace = 0xA0;
constexpr char32_t c_emSpace = 0x2003;

bool isLetter(char32_t c)
{
    return (c >= U'a' && c <= U'z') || (c >= U'A' && c <= U'Z');
}

bool isBlank(char32_t c)
{
    return c == U' ' || c == U'\t' || c == U'\n' || c == U'\r';
}

/// The parser keeps its open groups in a list of its own, so that no depth of nesting costs call stack.
class Parser {
public:
    explicit Parser(const vxbase::UString& markup)
    {
        m_text.reserve(markup.size());
        for (vxbase::UString::const_iterator i(markup); i.hasNext();) {
            m_text.push_back(static_cast<char32_t>(i.next()));
        }
        m_items.reserve(m_text.size());
    }

    std::vector<TitleItem> parse()
    {
        while (m_at < m_text.size()) {
            if (m_inPlainText > 0) {
                parsePlain(m_text[m_at++]);
            } else {
                parseMarkup(m_text[m_at++]);
            }
        }
        while (!m_groups.empty()) {
            closeGroup(AtEnd::yes);
        }
        return std::move(m_items);
    }

private:
    enum class GroupKind { braces, shownBraces, box, plainText, script, scriptOfOne };
    enum class AtEnd { no, yes };

    /// What the scripts of the character before are: an index and an exponent may be placed over each other.
    struct Scripts {
        bool lastIsSuper = false;
        bool areStacked = false;
    };

    struct Group {
        GroupKind kind;
        TextStyle outerStyle;
        Scripts scripts;
    };

    bool nextIs(char32_t c) const { return m_at < m_text.size() && m_text[m_at] == c; }
    bool nextIs(std::u32string_view text) const { return m_text.compare(m_at, text.size(), text) == 0; }

    void skipBlanks()
    {
        while (m_at < m_text.size() && isBlank(m_text[m_at])) {
            ++m_at;
        }
    }

    void add(Kind kind, char32_t c = 0)
    {
        const auto breaks =
            m_inBox > 0 || m_inPlainText > 0 ? TitleItem::Breaks::withinBox : TitleItem::Breaks::betweenBoxes;
        m_items.push_back({kind, c, m_style, kind == Kind::space ? breaks : TitleItem::Breaks::betweenBoxes});
    }

    /// Adds what an index or exponent of one character can consist of.
    void addCharacter(char32_t c)
    {
        add(Kind::character, c);
        closeScriptOfOne();
    }

    /// Blanks of markup count once, and none at the start.
    void addSpace()
    {
        skipBlanks();
        if (m_items.empty() || m_items.back().kind == Kind::space || m_items.back().kind == Kind::newLine ||
            m_items.back().kind == Kind::beginCenter) {
            return;
        }
        // Two boxes are two titles, which are further apart than two words.
        const bool isBetweenBoxes = m_boxEnd == m_items.size() && nextIs(U"\\mbox{");
        add(Kind::space, isBetweenBoxes ? c_emSpace : U' ');
    }

    void open(GroupKind kind)
    {
        m_groups.push_back({kind, m_style, m_scripts});
        m_inBox += kind == GroupKind::box ? 1 : 0;
        m_inPlainText += kind == GroupKind::plainText ? 1 : 0;
    }

    void closeGroup(AtEnd atEnd = AtEnd::no)
    {
        const Group group = m_groups.back();
        m_groups.pop_back();
        m_inBox -= group.kind == GroupKind::box ? 1 : 0;
        m_inPlainText -= group.kind == GroupKind::plainText ? 1 : 0;
        if (group.kind == GroupKind::shownBraces && atEnd == AtEnd::no) {
            add(Kind::character, U'}');
        }
        m_boxEnd = group.kind == GroupKind::box ? m_items.size() : m_boxEnd;
        m_style = group.outerStyle;
        m_scripts = group.scripts;
        if (group.kind == GroupKind::script || group.kind == GroupKind::scriptOfOne) {
            add(Kind::closeScripts);
        }
        closeScriptOfOne();
    }

    void closeScriptOfOne()
    {
        if (!m_groups.empty() && m_groups.back().kind == GroupKind::scriptOfOne) {
            closeGroup();
        }
    }

    void parsePlain(char32_t c)
    {
        if (c == U'\\' && (nextIs(U'\\') || nextIs(U'{') || nextIs(U'}'))) {
            addCharacter(m_text[m_at++]);
        } else if (c == U'{') {
            // Counted as plain text as well, so that the brace that closes it does not end the plain text.
            open(GroupKind::plainText);
        } else if (c == U'}') {
            closeGroup();
        } else if (c == U'\n') {
            add(Kind::newLine);
        } else if (isBlank(c)) {
            add(Kind::space, U' ');
        } else if (c >= U' ') {
            addCharacter(c);
        }
    }

    void parseMarkup(char32_t c)
    {
        if (c == U'\\') {
            parseCommand();
        } else if (c == U'{') {
            open(GroupKind::braces);
        } else if (c == U'}') {
            m_groups.empty() ? add(Kind::character, c) : closeGroup();
        } else if (c == U'^' || c == U'_') {
            parseScript(c);
        } else if (isBlank(c)) {
            addSpace();
        } else if (c == U'~') {
            addCharacter(c_noBreakSpace);
        } else if (c >= U' ') {
            addCharacter(c);
        }
    }

    void parseScript(char32_t mark)
    {
        skipBlanks();
        const bool hasArgument = m_at < m_text.size() && !nextIs(U'^') && !nextIs(U'_') && !nextIs(U'}');
        if (!hasArgument) {
            addCharacter(mark);
            return;
        }
        const bool isSuper = mark == U'^';
        // A second exponent of the same character comes after the first, not over it.
        const bool stacks = !m_items.empty() && m_items.back().kind == Kind::closeScripts &&
                            m_scripts.lastIsSuper != isSuper && !m_scripts.areStacked;
        if (stacks) {
            m_items.back().kind = Kind::nextScript;
        } else {
            add(Kind::openScripts);
        }
        m_scripts = {isSuper, stacks};

        const bool isGroup = nextIs(U'{');
        m_at += isGroup ? 1u : 0u;
        open(isGroup ? GroupKind::script : GroupKind::scriptOfOne);
        const float step = (isSuper ? c_superscriptRise : c_subscriptRise) * c_scriptSizes[m_style.scriptLevel];
        m_style.rise = std::clamp(m_style.rise + step, -c_largestRise, c_largestRise);
        m_style.scriptLevel = std::min(m_style.scriptLevel + 1, c_deepestScript);
    }

    void parseCommand()
    {
        const std::size_t start = m_at;
        while (m_at < m_text.size() && isLetter(m_text[m_at])) {
            ++m_at;
        }
        const std::u32string_view name = std::u32string_view(m_text).substr(start, m_at - start);
        if (name.empty()) {
            parseEscape();
        } else if (const char32_t symbol = symbolByName(name); symbol != 0) {
            skipBlanks();
            addCharacter(symbol);
        } else if (!parseEnvironment(name) && !parseGroupCommand(name)) {
            showUnknown(name);
        }
    }

    void parseEscape()
    {
        if (m_at == m_text.size()) {
            addCharacter(U'\\');
            return;
        }
        const char32_t c = m_text[m_at++];
        if (c == U',' || c == U';' || c == U':' || isBlank(c)) {
            addCharacter(c_noBreakSpace);
        } else if (c != U'!') {
            addCharacter(c);
        }
    }

    bool parseEnvironment(std::u32string_view name)
    {
        constexpr std::u32string_view c_center = U"{center}";
        const bool begins = name == U"begin";
        if ((!begins && name != U"end") || !nextIs(c_center)) {
            return false;
        }
        m_at += c_center.size();
        add(begins ? Kind::beginCenter : Kind::endCenter);
        return true;
    }

    bool parseGroupCommand(std::u32string_view name)
    {
        if (!nextIs(U'{')) {
            return false;
        }
        if (name == U"mbox" || name == U"text") {
            open(GroupKind::box);
        } else if (name == U"unicode") {
            open(GroupKind::plainText);
        } else if (name == U"textbf" || name == U"mathbf") {
            open(GroupKind::braces);
            m_style.bold = true;
        } else if (name == U"textit" || name == U"mathit") {
            open(GroupKind::braces);
            m_style.italic = true;
        } else if (name == U"textrm" || name == U"mathrm") {
            open(GroupKind::braces);
            m_style.bold = false;
            m_style.italic = false;
        } else {
            return false;
        }
        ++m_at;
        return true;
    }

    void showUnknown(std::u32string_view name)
    {
        add(Kind::character, U'\\');
        for (const char32_t c : name) {
            add(Kind::character, c);
        }
        if (nextIs(U'{')) {
            ++m_at;
            add(Kind::character, U'{');
            open(GroupKind::shownBraces);
        } else {
            closeScriptOfOne();
        }
    }

    std::u32string m_text;
    std::size_t m_at = 0;
    std::vector<TitleItem> m_items;
    std::vector<Group> m_groups;
    TextStyle m_style;
    /// Number of items when the last box was closed.
    std::size_t m_boxEnd = 0;
    int m_inBox = 0;
    int m_inPlainText = 0;
    Scripts m_scripts;
};

} // namespace

std::vector<TitleItem> parseTitle(const vxbase::UString& markup)
{
    return Parser(markup).parse();
}

std::string plainText(std::string_view text)
{
    if (text.empty()) {
        return {};
    }
    std::string markup = "\\unicode{";
    for (const char c : text) {
        if (c == '\\' || c == '{' || c == '}') {
            markup += '\\';
        }
        markup += c;
    }
    return markup + '}';
}

} // namespace vxrenderer
