#include "renderer/text/fontlibrary.h"

#include "graphics3d/foundation/errorlog.h"

#include <ft2build.h>
#include FT_FREETYPE_H

#include <algorithm>
#include <array>
#include <stdexcept>
#include <string_view>

namespace vxrenderer {
namespace {

constexpr std::array c_folders = {"/usr/share/fonts/truetype/dejavu", "/usr/share/fonts/dejavu",
                                  "/usr/share/fonts/dejavu-sans-fonts", "/usr/share/fonts/TTF",
                                  "/usr/local/share/fonts/dejavu"};

struct Alias {
    std::string_view name;
    FontFace::Family family;
};

/// Names of families in lower case without blanks and hyphens, those of one family together and its usual one first.
constexpr Alias c_aliases[] = {{"sans", FontFace::Family::sans},
                               {"", FontFace::Family::sans},
                               {"default", FontFace::Family::sans},
                               {"sansserif", FontFace::Family::sans},
                               {"dialog", FontFace::Family::sans},
                               {"serif", FontFace::Family::serif},
                               {"mono", FontFace::Family::mono},
                               {"sansmono", FontFace::Family::mono},
                               {"monospace", FontFace::Family::mono},
                               {"monospaced", FontFace::Family::mono},
                               {"dialoginput", FontFace::Family::mono},
                               {"condensed", FontFace::Family::condensed},
                               {"sanscondensed", FontFace::Family::condensed},
                               {"mathematics", FontFace::Family::mathematics},
                               {"mathtexgyre", FontFace::Family::mathematics}};

const char* fileOf(const FontFace& face)
{
    // By family, then regular, bold, italic, bold italic.
    static constexpr const char* c_files[5][4] = {
        {"DejaVuSans.ttf", "DejaVuSans-Bold.ttf", "DejaVuSans-Oblique.ttf", "DejaVuSans-BoldOblique.ttf"},
        {"DejaVuSerif.ttf", "DejaVuSerif-Bold.ttf", "DejaVuSerif-Italic.ttf", "DejaVuSerif-BoldItalic.ttf"},
        {"DejaVuSansMono.ttf", "DejaVuSansMono-Bold.ttf", "DejaVuSansMono-Oblique.ttf",
         "DejaVuSansMono-BoldOblique.ttf"},
        {"DejaVuSansCondensed.ttf", "DejaVuSansCondensed-Bold.ttf", "DejaVuSansCondensed-Oblique.ttf",
         "DejaVuSansCondensed-BoldOblique.ttf"},
        {"DejaVuMathTeXGyre.ttf", "DejaVuMathTeXGyre.ttf", "DejaVuMathTeXGyre.ttf", "DejaVuMathTeXGyre.ttf"}};
    return c_files[static_cast<int>(face.family)][(face.bold ? 1 : 0) + (face.italic ? 2 : 0)];
}

} // namespace

FontLibrary::FontLibrary()
{
    FT_Library library = nullptr;
    if (FT_Init_FreeType(&library) != 0) {
        throw std::runtime_error("the font library does not start");
    }
    m_library.reset(library, FT_Done_FreeType);
}

std::optional<FontFace> FontLibrary::faceByName(const std::string& name)
{
    std::string key;
    for (const char c : name) {
        if (c != ' ' && c != '-') {
            key.push_back(c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c);
        }
    }
    FontFace face;
    const auto take = [&key](std::string_view word) {
        const std::size_t at = key.find(word);
        if (at != std::string::npos) {
            key.erase(at, word.size());
        }
        return at != std::string::npos;
    };
    face.bold = take("bold");
    face.italic = take("italic") || take("oblique");
    if (key.starts_with("dejavu")) {
        key.erase(0, 6);
    }
    for (const auto& [alias, family] : c_aliases) {
        if (key == alias) {
            face.family = family;
            return face;
        }
    }
    return std::nullopt;
}

FontFace FontLibrary::choose(const std::string& name)
{
    const std::optional<FontFace> known = faceByName(name);
    if (known && find({known->family})) {
        return *known;
    }
    if (m_missingNames.insert(name).second) {
        vxgraphics3d::logWarning("The font \"%s\" is %s: the sans font is used. There are %s, each also with bold and "
                                 "italic.",
                                 name.c_str(), known ? "not installed" : "not known", installedFamilies().c_str());
    }
    return {FontFace::Family::sans, known && known->bold, known && known->italic};
}

std::string FontLibrary::installedFamilies()
{
    std::string names;
    FontFace::Family last{};
    for (const auto& [alias, family] : c_aliases) {
        // The first alias of each family is its name.
        if ((names.empty() || family != last) && find({family})) {
            names += (names.empty() ? "" : ", ") + std::string(alias);
            last = family;
        }
    }
    return names;
}

FontLibrary::Face FontLibrary::find(const FontFace& face)
{
    const auto known = m_faces.find(face);
    if (known != m_faces.end()) {
        return known->second;
    }
    Face& found = m_faces[face];
    for (const char* folder : c_folders) {
        const std::string path = std::string(folder) + "/" + fileOf(face);
        FT_Face opened = nullptr;
        if (FT_New_Face(m_library.get(), path.c_str(), 0, &opened) == 0) {
            const boost::shared_ptr<FT_LibraryRec_> library = m_library;
            found.reset(opened, [library](FT_Face gone) { FT_Done_Face(gone); });
            break;
        }
    }
    return found;
}

FontLibrary::Face FontLibrary::face(const FontFace& face)
{
    const FontFace plain;
    for (const FontFace& wanted : {face, FontFace{face.family, face.bold, false}, plain}) {
        if (Face found = find(wanted)) {
            return found;
        }
    }
    std::string places;
    for (const char* folder : c_folders) {
        places += std::string(places.empty() ? "" : ", ") + folder;
    }
    throw std::runtime_error(std::string("the font file ") + fileOf(plain) + " is in none of " + places);
}

} // namespace vxrenderer
