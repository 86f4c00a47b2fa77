#include "renderer/export/vectorfonts.h"

#include <ft2build.h>

#include <cairo-ft.h>
#include FT_FREETYPE_H

#include <memory>
#include <new>

namespace vxrenderer {
namespace {

const cairo_user_data_key_t c_fileKey{};

extern "C" void vxReleaseFontFile(void* file)
{
    delete static_cast<FontLibrary::Face*>(file);
}

} // namespace

VectorFonts& VectorFonts::ofProcess()
{
    static VectorFonts fonts;
    return fonts;
}

const VectorFonts::Face& VectorFonts::get(const FontFace& face)
{
    Face& known = m_faces[face];
    if (!known.face) {
        known.file = m_library.face(face);
        const boost::shared_ptr<cairo_font_face_t> made(
            cairo_ft_font_face_create_for_ft_face(known.file.get(), FT_LOAD_NO_HINTING), cairo_font_face_destroy);
        // The library may use the face longer than its owner.
        auto file = std::make_unique<FontLibrary::Face>(known.file);
        if (cairo_font_face_set_user_data(made.get(), &c_fileKey, file.get(), vxReleaseFontFile) !=
            CAIRO_STATUS_SUCCESS) {
            throw std::bad_alloc();
        }
        static_cast<void>(file.release());
        known.face = made;
    }
    return known;
}

VectorFonts::Access::Access() : m_fonts(ofProcess()), m_lock(m_fonts.m_mutex) {}

cairo_font_face_t* VectorFonts::Access::face(const FontFace& face)
{
    return m_fonts.get(face).face.get();
}

unsigned long VectorFonts::Access::glyphOf(char32_t character, const FontFace& face)
{
    return FT_Get_Char_Index(m_fonts.get(face).file.get(), character);
}

} // namespace vxrenderer
