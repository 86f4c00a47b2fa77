#pragma once

#include "base/export.h"
#include "graphics3d/foundation/color.h"
#include "graphics3d/settings/textitem.h"

#include <array>
#include <string>

namespace vxgraphics3d {

/// The settings for exporting one picture. Java creates and fills one per export; the renderer reads it. A plain
/// record: setters only store, and changes are not reported.
class VX_API HardcopySettings {
public:
    using TextItem = vxgraphics3d::TextItem;

    /// No decorations, a white background, and the current resolution of the screen.
    HardcopySettings();

    // Decorations.

    bool isAxisOrientationShown() const { return m_axisOrientationShown; }
    void setAxisOrientationShown(bool shown) { m_axisOrientationShown = shown; }
    bool isLegendsShown() const { return m_legendsShown; }
    void setLegendsShown(bool shown) { m_legendsShown = shown; }
    bool isAxisShown() const { return m_axisShown; }
    void setAxisShown(bool shown) { m_axisShown = shown; }
    bool isTitleShown() const { return m_titleShown; }
    void setTitleShown(bool shown) { m_titleShown = shown; }
    bool isLogoShown() const { return m_logoShown; }
    void setLogoShown(bool shown) { m_logoShown = shown; }
    bool isShowPhysicsMarkers() const { return m_showPhysicsMarkers; }
    void setShowPhysicsMarkers(bool show) { m_showPhysicsMarkers = show; }

    // Background.

    /// Whether the canvas background is used; otherwise it is the background set here.
    bool isUseCurrentBackground() const { return m_useCurrentBackground; }
    void setUseCurrentBackground(bool use) { m_useCurrentBackground = use; }
    const Color& getTopColor() const { return m_topColor; }
    const Color& getBottomColor() const { return m_bottomColor; }
    /// Two opaque colours 0xRRGGBB for a gradient from top to bottom.
    void setBackground(int top, int bottom);

    // Picture.

    /// Dots per inch.
    int getDpi() const { return m_dpi; }
    void setDpi(int dpi) { m_dpi = dpi; }
    /// Samples per pixel.
    int getMultisampleSetting() const { return m_multisampleSetting; }
    void setMultisampleSetting(int samples) { m_multisampleSetting = samples; }
    /// Whether transparent parts are drawn in layers, and the number of layers.
    bool isUseTransparency() const { return m_useTransparency; }
    void setUseTransparency(bool use) { m_useTransparency = use; }
    int getTransparencyLayers() const { return m_transparencyLayers; }
    void setTransparencyLayers(int layers) { m_transparencyLayers = layers; }

    // Texts. Sizes are in points; the functions throw std::out_of_range if there is no such kind of text.

    int getFontSize(TextItem item) const;
    void setFontSize(TextItem item, int size);
    /// Whether a size above 0 is set; otherwise the text has its size on the screen.
    bool isFontSizeValid(TextItem item) const { return getFontSize(item) > 0; }

    // Metadata of the file.

    const std::string& getFileTitle() const { return m_fileTitle; }
    void setFileTitle(const std::string& title) { m_fileTitle = title; }
    const std::string& getFileCreator() const { return m_fileCreator; }
    void setFileCreator(const std::string& creator) { m_fileCreator = creator; }

private:
    bool m_axisOrientationShown = false;
    bool m_legendsShown = false;
    bool m_axisShown = false;
    bool m_titleShown = false;
    bool m_logoShown = false;
    bool m_useCurrentBackground = false;
    bool m_showPhysicsMarkers = true;
    int m_multisampleSetting = 1;
    bool m_useTransparency = false;
    int m_transparencyLayers = 0;
    int m_dpi;
    Color m_topColor = Color::fromRgb(0xffffff);
    Color m_bottomColor = Color::fromRgb(0xffffff);
    std::array<int, c_numTextItems> m_fontSizes;
    std::string m_fileTitle;
    std::string m_fileCreator;
};

} // namespace vxgraphics3d
