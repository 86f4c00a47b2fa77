#include "renderer/text/fontset.h"

#include "tests/support/capturedlog.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>

namespace vxrenderer {
namespace {

TEST(FontSet, takesItsFacesFromTheFamilyAskedFor)
{
    const struct {
        const char* name;
        FontFace face;
    } cases[] = {{"default", {}},
                 {"", {}},
                 {"SansSerif", {}},
                 {"DejaVu Serif", {FontFace::Family::serif}},
                 {"Serif", {FontFace::Family::serif}},
                 {"Monospaced", {FontFace::Family::mono}},
                 {"DejaVu Sans Mono", {FontFace::Family::mono}},
                 {"DejaVu Sans Condensed", {FontFace::Family::condensed}},
                 {"Bold", {FontFace::Family::sans, true, false}},
                 {"serif italic", {FontFace::Family::serif, false, true}},
                 {"DejaVuSansMono-BoldOblique", {FontFace::Family::mono, true, true}}};
    for (const auto& c : cases) {
        EXPECT_EQ(FontLibrary::faceByName(c.name), c.face) << c.name;
    }
    EXPECT_FALSE(FontLibrary::faceByName("No Such Font"));
}

TEST(FontSet, aBoldNameMakesAllTextBold)
{
    FontLibrary library;
    FontSet bold(library, "sans bold", 24);
    FontSet plain(library, "sans", 24);
    TextStyle marked;
    marked.bold = true;
    EXPECT_EQ(bold.advance(U'm', {}), plain.advance(U'm', marked));
    EXPECT_NE(bold.advance(U'm', {}), plain.advance(U'm', {}));
    FontSet oblique(library, "sans oblique", 24);
    TextStyle slanted;
    slanted.italic = true;
    EXPECT_EQ(oblique.find(U'l', {}).glyph->width, plain.find(U'l', slanted).glyph->width);
    EXPECT_GT(oblique.find(U'l', {}).glyph->width, plain.find(U'l', {}).glyph->width);
}

TEST(FontSet, aMissingFontIsReportedOnceWithTheInstalledOnes)
{
    const vxgraphics3d::CapturedLog log(vxgraphics3d::ErrorLog::Level::warning);
    FontLibrary library;
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(library.choose("Papyrus bold"), (FontFace{FontFace::Family::sans, false, false}));
        EXPECT_EQ(library.choose("serif bold"), (FontFace{FontFace::Family::serif, true, false}));
    }
    EXPECT_EQ(log.messages(), (std::vector<std::string>{
                                  "The font \"Papyrus bold\" is not known: the sans font is used. There are sans, "
                                  "serif, mono, condensed, mathematics, each also with bold and italic."}));
}

TEST(FontSet, scalesWithTheSizeAndTheScriptLevel)
{
    FontLibrary library;
    FontSet small(library, "default", 20);
    FontSet large(library, "default", 40);
    const TextStyle normal;
    TextStyle index;
    index.scriptLevel = 1;
    EXPECT_NEAR(large.advance(U'm', normal), 2.0f * small.advance(U'm', normal), 1.0f);
    EXPECT_NEAR(small.advance(U'm', index), 0.72f * small.advance(U'm', normal), 1.0f);
    EXPECT_GT(large.ascent(normal), large.descent(normal));
    EXPECT_EQ(FontSet(library, "default", 100000).fontSize(), static_cast<float>(FontSet::c_largestSize));
}

TEST(FontSet, drawsACharacterOnceAndReportsWhereItLies)
{
    FontLibrary library;
    FontSet fonts(library, "default", 24);
    const FontSet::Found found = fonts.find(U'H', {});
    const GlyphAtlas& atlas = found.font->getAtlas();
    const int changeId = atlas.getChangeId();
    ASSERT_GT(found.glyph->height, 14);
    EXPECT_EQ(found.glyph->top, found.glyph->height) << "the letter stands on the baseline";
    EXPECT_EQ(fonts.find(U'H', {}).glyph, found.glyph);
    EXPECT_EQ(atlas.getChangeId(), changeId);

    // The left stem is dark from top to bottom.
    const auto at = [&](int x, int y) {
        const int offset = (found.glyph->atlasY + y) * atlas.getWidth() + found.glyph->atlasX + x;
        return atlas.getPixels()[static_cast<std::size_t>(offset)];
    };
    for (int y = 0; y < found.glyph->height; ++y) {
        EXPECT_GT(at(1, y), 200) << y;
    }
}

TEST(FontSet, drawsRimsThatReachAroundAllStrokes)
{
    FontLibrary library;
    FontSet fonts(library, "default", 24);
    const FontSet::Found found = fonts.find(U'S', {});
    const Font::Glyph& glyph = *found.glyph;
    Font& font = *found.font;
    const auto at = [&](const Font::Glyph& drawn, int x, int y) {
        const bool isInside = x >= 0 && x < drawn.width && y >= 0 && y < drawn.height;
        return isInside ? static_cast<int>(font.getAtlas().pixelAt(drawn.atlasX + x, drawn.atlasY + y)) : 0;
    };
    for (const int width : {1, 3}) {
        const Font::Glyph& rim = font.rim(U'S', width);
        ASSERT_EQ(rim.width, glyph.width + 2 * width);
        ASSERT_EQ(rim.height, glyph.height + 2 * width);
        EXPECT_EQ(rim.left, glyph.left - width);
        EXPECT_EQ(rim.top, glyph.top + width);
        int outside = 0;
        for (int y = 0; y < rim.height; ++y) {
            for (int x = 0; x < rim.width; ++x) {
                int around = 0;
                int near = 0;
                for (int dy = -width - 1; dy <= width + 1; ++dy) {
                    for (int dx = -width - 1; dx <= width + 1; ++dx) {
                        const int stroke = at(glyph, x - width + dx, y - width + dy);
                        const int square = dx * dx + dy * dy;
                        around = std::max(around, square == width * width ? stroke : 0);
                        near = std::max(near, square <= (width + 1) * (width + 1) ? stroke : 0);
                    }
                }
                EXPECT_GE(at(rim, x, y), around) << width << ": " << x << ", " << y;
                outside += near == 0 ? 1 : 0;
                EXPECT_TRUE(near > 0 || at(rim, x, y) == 0) << width << ": " << x << ", " << y;
            }
        }
        EXPECT_GT(outside, 0);
    }
    const int changeId = font.getAtlas().getChangeId();
    EXPECT_EQ(&font.rim(U'S', 3), &font.rim(U'S', 3));
    EXPECT_EQ(font.rim(U' ', 1).width, 0);
    EXPECT_EQ(font.getAtlas().getChangeId(), changeId);
}

TEST(FontSet, kernsPairsThatTheFaceNames)
{
    FontLibrary library;
    FontSet fonts(library, "default", 40);
    EXPECT_LT(fonts.kerning(U'A', U'V', {}), 0.0f);
    EXPECT_EQ(fonts.kerning(U'H', U'H', {}), 0.0f);
}

TEST(FontSet, findsWhatTheFamilyLacksElsewhere)
{
    FontLibrary library;
    FontSet mono(library, "mono", 20);
    FontSet sans(library, "default", 20);
    const char32_t script = 0x1D4B6;
    EXPECT_GT(sans.find(script, {}).glyph->width, 0) << "a letter of the mathematics face";
    // No face has a character of this plane: all such show the same glyph.
    const Font::Glyph& unknown = *mono.find(0x10FFFD, {}).glyph;
    EXPECT_GT(unknown.width, 0);
    EXPECT_EQ(mono.find(0xD800, {}).glyph->width, unknown.width);
}

TEST(GlyphAtlas, keepsGlyphsApartAndInPlaceWhileItGrows)
{
    GlyphAtlas atlas(32);
    std::vector<std::uint8_t> glyph(100);
    std::vector<GlyphAtlas::Place> places;
    for (int i = 0; i < 40; ++i) {
        std::fill(glyph.begin(), glyph.end(), static_cast<std::uint8_t>(i + 1));
        const auto place = atlas.add(glyph.data(), 10, 7, 10);
        ASSERT_TRUE(place);
        places.push_back(*place);
    }
    EXPECT_EQ(atlas.getChangeId(), 41);
    int covered = 0;
    for (int y = 0; y < atlas.getHeight(); ++y) {
        for (int x = 0; x < atlas.getWidth(); ++x) {
            const int value = atlas.getPixels()[static_cast<std::size_t>(y * atlas.getWidth() + x)];
            if (value == 0) {
                continue;
            }
            ++covered;
            const GlyphAtlas::Place place = places[static_cast<std::size_t>(value - 1)];
            EXPECT_TRUE(x >= place.x && x < place.x + 10 && y >= place.y && y < place.y + 7);
            const bool hasRight = x + 1 < atlas.getWidth();
            const int right = hasRight ? atlas.getPixels()[static_cast<std::size_t>(y * atlas.getWidth() + x + 1)] : 0;
            EXPECT_TRUE(right == 0 || right == value);
        }
    }
    EXPECT_EQ(covered, 40 * 70);
    EXPECT_FALSE(atlas.add(glyph.data(), 31, 3, 31)) << "wider than a row";
}

} // namespace
} // namespace vxrenderer
