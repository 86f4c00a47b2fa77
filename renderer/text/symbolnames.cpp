#include "renderer/text/symbolnames.h"

#include <algorithm>
#include <array>

namespace vxrenderer {
namespace {

struct Symbol {
    std::u32string_view name;
    char32_t character;
};

constexpr std::array c_symbols = {
    Symbol{U"Delta", 0x394},    Symbol{U"Gamma", 0x393},      Symbol{U"Im", 0x2111},
    Symbol{U"Lambda", 0x39B},   Symbol{U"Leftarrow", 0x21D0}, Symbol{U"Leftrightarrow", 0x21D4},
    Symbol{U"Omega", 0x3A9},    Symbol{U"Phi", 0x3A6},        Symbol{U"Pi", 0x3A0},
    Symbol{U"Psi", 0x3A8},      Symbol{U"Re", 0x211C},        Symbol{U"Rightarrow", 0x21D2},
    Symbol{U"Sigma", 0x3A3},    Symbol{U"Theta", 0x398},      Symbol{U"Upsilon", 0x3A5},
    Symbol{U"Xi", 0x39E},       Symbol{U"alpha", 0x3B1},      Symbol{U"angle", 0x2220},
    Symbol{U"approx", 0x2248},  Symbol{U"ast", 0x2217},       Symbol{U"beta", 0x3B2},
    Symbol{U"bullet", 0x2022},  Symbol{U"cap", 0x2229},       Symbol{U"cdot", 0xB7},
    Symbol{U"cdots", 0x22EF},   Symbol{U"chi", 0x3C7},        Symbol{U"circ", 0x2218},
    Symbol{U"cup", 0x222A},     Symbol{U"degree", 0xB0},      Symbol{U"delta", 0x3B4},
    Symbol{U"div", 0xF7},       Symbol{U"ell", 0x2113},       Symbol{U"emptyset", 0x2205},
    Symbol{U"epsilon", 0x3B5},  Symbol{U"equiv", 0x2261},     Symbol{U"eta", 0x3B7},
    Symbol{U"exists", 0x2203},  Symbol{U"forall", 0x2200},    Symbol{U"gamma", 0x3B3},
    Symbol{U"ge", 0x2265},      Symbol{U"geq", 0x2265},       Symbol{U"gg", 0x226B},
    Symbol{U"hbar", 0x210F},    Symbol{U"in", 0x2208},        Symbol{U"infty", 0x221E},
    Symbol{U"int", 0x222B},     Symbol{U"iota", 0x3B9},       Symbol{U"kappa", 0x3BA},
    Symbol{U"lambda", 0x3BB},   Symbol{U"langle", 0x27E8},    Symbol{U"ldots", 0x2026},
    Symbol{U"le", 0x2264},      Symbol{U"leftarrow", 0x2190}, Symbol{U"leftrightarrow", 0x2194},
    Symbol{U"leq", 0x2264},     Symbol{U"ll", 0x226A},        Symbol{U"mp", 0x2213},
    Symbol{U"mu", 0x3BC},       Symbol{U"nabla", 0x2207},     Symbol{U"ne", 0x2260},
    Symbol{U"neq", 0x2260},     Symbol{U"ni", 0x220B},        Symbol{U"notin", 0x2209},
    Symbol{U"nu", 0x3BD},       Symbol{U"oint", 0x222E},      Symbol{U"omega", 0x3C9},
    Symbol{U"oplus", 0x2295},   Symbol{U"otimes", 0x2297},    Symbol{U"parallel", 0x2225},
    Symbol{U"partial", 0x2202}, Symbol{U"perp", 0x22A5},      Symbol{U"phi", 0x3C6},
    Symbol{U"pi", 0x3C0},       Symbol{U"pm", 0xB1},          Symbol{U"prime", 0x2032},
    Symbol{U"prod", 0x220F},    Symbol{U"propto", 0x221D},    Symbol{U"psi", 0x3C8},
    Symbol{U"rangle", 0x27E9},  Symbol{U"rho", 0x3C1},        Symbol{U"rightarrow", 0x2192},
    Symbol{U"sigma", 0x3C3},    Symbol{U"sim", 0x223C},       Symbol{U"simeq", 0x2243},
    Symbol{U"sqrt", 0x221A},    Symbol{U"star", 0x22C6},      Symbol{U"subset", 0x2282},
    Symbol{U"sum", 0x2211},     Symbol{U"supset", 0x2283},    Symbol{U"tau", 0x3C4},
    Symbol{U"theta", 0x3B8},    Symbol{U"times", 0xD7},       Symbol{U"to", 0x2192},
    Symbol{U"upsilon", 0x3C5},  Symbol{U"varepsilon", 0x3B5}, Symbol{U"varphi", 0x3D5},
    Symbol{U"varpi", 0x3D6},    Symbol{U"varrho", 0x3F1},     Symbol{U"varsigma", 0x3C2},
    Symbol{U"vartheta", 0x3D1}, Symbol{U"vee", 0x2228},       Symbol{U"wedge", 0x2227},
    Symbol{U"xi", 0x3BE},       Symbol{U"zeta", 0x3B6},
};

constexpr bool isBefore(const Symbol& a, const Symbol& b)
{
    return a.name < b.name;
}
static_assert(std::is_sorted(c_symbols.begin(), c_symbols.end(), isBefore), "the search below needs sorted names");

} // namespace

char32_t symbolByName(std::u32string_view name)
{
    const auto found = std::lower_bound(c_symbols.begin(), c_symbols.end(), Symbol{name, 0}, isBefore);
    return found != c_symbols.end() && found->name == name ? found->character : 0;
}

} // namespace vxrenderer
