#pragma once

#include <boost/shared_ptr.hpp>

#include <map>
#include <optional>
#include <set>
#include <string>

struct FT_LibraryRec_;
struct FT_FaceRec_;

namespace vxrenderer {

/// Which face of which family a text is set in.
struct FontFace {
    enum class Family { sans, serif, mono, condensed, mathematics };

    Family family = Family::sans;
    bool bold = false;
    bool italic = false;

    auto operator<=>(const FontFace&) const = default;
};

/// Opens the font files, each once for all sizes.
///
/// A face keeps the library open that it came from, so faces and library may go in any order.
class FontLibrary {
public:
    using Face = boost::shared_ptr<FT_FaceRec_>;

    /// @throws std::runtime_error if the font library does not start
    FontLibrary();

    /// The face that a font setting names by its family and the words bold, italic and oblique, in any case and joined
    /// by blanks or hyphens: `serif`, `DejaVu Sans Mono Bold`. `default` and the empty name mean the sans family.
    /// @return nothing for a name that is not known
    static std::optional<FontFace> faceByName(const std::string& name);

    /// The face of a name, or the sans face in place of one that is not known or not installed: the log then lists
    /// what there is, once for each name.
    FontFace choose(const std::string& name);

    /// An open face. One whose file is missing is replaced by the upright face of its family, then by the sans face:
    /// slanted faces and the mathematics face come in packages of their own.
    /// @throws std::runtime_error naming the folders searched, if not even the sans face is there
    Face face(const FontFace& face);

private:
    /// The names of the families that are installed, for a message.
    std::string installedFamilies();
    /// An open face, or none if its file is missing.
    Face find(const FontFace& face);

    boost::shared_ptr<FT_LibraryRec_> m_library;
    std::map<FontFace, Face> m_faces;
    /// Names that were reported.
    std::set<std::string> m_missingNames;
};

} // namespace vxrenderer
