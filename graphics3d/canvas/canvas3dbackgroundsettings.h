#pragma once

#include "base/export.h"
#include "graphics3d/foundation/changeablesetting.h"
#include "graphics3d/foundation/color.h"

#include <boost/shared_ptr.hpp>

namespace vxgraphics3d {

class CanvasBackgroundImage;

/// The background of a canvas in one of its modes: one colour, or a gradient of two colours from top to bottom, and an
/// image over them. Setting colours counts a change, setting the image does not.
class VX_API Canvas3dBackgroundSettings : public ChangeableSetting {
public:
    // The position of the image.
    enum HorizontalPosition : int { HorizontalLeft = 0, HorizontalCenter = 1, HorizontalRight = 2 };
    enum VerticalPosition : int { VerticalTop = 0, VerticalCenter = 1, VerticalBottom = 2 };

    Canvas3dBackgroundSettings();
    /// Copies the colours and shares the image.
    Canvas3dBackgroundSettings(const Canvas3dBackgroundSettings& other);
    ~Canvas3dBackgroundSettings() override;
    Canvas3dBackgroundSettings& operator=(const Canvas3dBackgroundSettings&) = delete;

    /// Copies the colours, shares the image and counts one change; does nothing for the object itself.
    void import(const Canvas3dBackgroundSettings& other);

    void setBackgroundColor(const Color& color);
    /// Two equal colours mean a single colour without a gradient.
    void setShadedBackground(const Color& top, const Color& bottom);
    /// Sets the image and its position. Without an image the position is the centre.
    void setBackgroungImage(boost::shared_ptr<const CanvasBackgroundImage> image, HorizontalPosition horizontal,
                            VerticalPosition vertical);

    bool isBackgroundShaded() const { return m_shaded; }
    const Color& getTopBackgroundColor() const { return m_topColor; }
    const Color& getBottomBackgroundColor() const { return m_bottomColor; }
    /// The image, or null.
    const boost::shared_ptr<const CanvasBackgroundImage>& getImage() const { return m_image; }
    HorizontalPosition getHorizontalPosition() const { return m_horizontalPosition; }
    VerticalPosition getVerticalPosition() const { return m_verticalPosition; }

private:
    void copySettings(const Canvas3dBackgroundSettings& other);

    bool m_shaded = false;
    Color m_topColor{0, 0, 0, 255};
    Color m_bottomColor{0, 0, 0, 255};
    boost::shared_ptr<const CanvasBackgroundImage> m_image;
    HorizontalPosition m_horizontalPosition = HorizontalCenter;
    VerticalPosition m_verticalPosition = VerticalCenter;
};

} // namespace vxgraphics3d
