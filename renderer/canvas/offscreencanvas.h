#pragma once

#include "renderer/gl/eglcontext.h"
#include "renderer/picture/pngencoder.h"
#include "renderer/scene/picturesettings.h"
#include "renderer/scene/uploadcounts.h"

#include <boost/shared_ptr.hpp>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace vxgraphics3d {
class Scene;
class SceneGraphRoot;
} // namespace vxgraphics3d

namespace vxrenderer {

class SceneRenderer;
class Target;

/// A picture of a scene that no screen shows: what a Java OffscreenRenderer stands for.
///
/// It owns the drawing context and everything that lives in it, and shares in the scene that it shows. Calls may come
/// from any thread, one at a time, and never while the scene is being changed.
class OffscreenCanvas {
public:
    /// @param samples a pixel against jagged edges, 1 for none; reduced to what the driver has
    /// @throws std::invalid_argument for a size below 1 or beyond what the driver allows
    /// @throws std::runtime_error if there is no drawing context, saying what is missing, or no font
    OffscreenCanvas(int width, int height, int samples);
    ~OffscreenCanvas();
    OffscreenCanvas(const OffscreenCanvas&) = delete;
    OffscreenCanvas& operator=(const OffscreenCanvas&) = delete;

    /// Gives the picture another size. What was drawn is gone. If the size is refused, the old one stays.
    void resize(int width, int height);
    int getWidth() const;
    int getHeight() const;
    int getSamples() const;

    /// Shows a scene, or nothing for null. The canvas drops its share when it finds the scene disposed.
    void setScene(boost::shared_ptr<const vxgraphics3d::Scene> scene);
    /// Shows a tree by itself, or nothing for null.
    void setRoot(boost::shared_ptr<const vxgraphics3d::SceneGraphRoot> root);

    /// How the next picture is drawn.
    /// @throws std::invalid_argument for a direction that is not finite or a font size below 1
    void setSettings(const PictureSettings& settings);
    const PictureSettings& getSettings() const;

    /// Draws the picture.
    /// @throws std::runtime_error if the driver reports a fault
    void draw();
    /// Bytes of the picture.
    std::size_t imageSize() const;
    /// Copies the picture drawn last: four bytes a pixel, red first, the top row first.
    /// @throws std::invalid_argument if there is not exactly the room for it
    /// @throws std::logic_error if nothing was drawn since the size was given
    void readImage(std::uint8_t* pixels, std::size_t numBytes) const;
    /// The bytes of an image file of the picture drawn last.
    /// @throws std::logic_error if nothing was drawn since the size was given
    std::vector<std::uint8_t> encodePng(const PngSettings& settings) const;

    const UploadCounts& getUploadCounts() const;
    /// How the scene was seen in the picture drawn last.
    const View& getView() const;
    /// Which way to a drawing context worked, and who draws.
    std::string getDriver() const;

private:
    EglContext m_context;
    std::unique_ptr<Target> m_target;
    std::unique_ptr<SceneRenderer> m_renderer;
    boost::shared_ptr<const vxgraphics3d::Scene> m_scene;
    boost::shared_ptr<const vxgraphics3d::SceneGraphRoot> m_root;
    int m_samples;
    bool m_isDrawn = false;
};

} // namespace vxrenderer
