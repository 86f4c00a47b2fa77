#pragma once

#include "renderer/text/fontlibrary.h"

#include <boost/shared_ptr.hpp>

#include <map>
#include <mutex>

struct _cairo_font_face;

namespace vxrenderer {

/// The font files of vector formats, each opened once for the process: the vector library keeps faces that it has used.
/// They are others than those that pictures are drawn with, whose size and transformation it would change.
class VectorFonts {
public:
    /// Faces may be used only while this is held.
    class Access {
    public:
        Access();

        /// A face for the vector library, with the numbers of its glyphs.
        _cairo_font_face* face(const FontFace& face);
        unsigned long glyphOf(char32_t character, const FontFace& face);

    private:
        VectorFonts& m_fonts;
        std::unique_lock<std::mutex> m_lock;
    };

private:
    struct Face {
        FontLibrary::Face file;
        boost::shared_ptr<_cairo_font_face> face;
    };

    static VectorFonts& ofProcess();
    const Face& get(const FontFace& face);

    std::mutex m_mutex;
    FontLibrary m_library;
    std::map<FontFace, Face> m_faces;
};

} // namespace vxrenderer
