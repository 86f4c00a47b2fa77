// A picture without a window: draws a scene, zooms as the mouse wheel would, and writes a PNG file.
#include "interaction/camerainteraction.h"
#include "renderer/canvas/offscreencanvas.h"
#include "squarescene.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <exception>
#include <fstream>
#include <vector>

int main(int, char** arguments)
try {
    const SquareScene square;
    vxrenderer::OffscreenCanvas canvas(320, 200, 4);
    canvas.setScene(square.scene);
    canvas.zoomExtents();
    vxinteraction::CameraInteraction mouse(canvas.getCanvas3dSettings(), canvas.getHeight());
    mouse.wheel(-1, 160, 100);
    canvas.draw();
    const std::vector<std::uint8_t> file = canvas.encodePng();
    std::ofstream output(arguments[1], std::ios::binary);
    std::copy(file.begin(), file.end(), std::ostreambuf_iterator<char>(output));
} catch (const std::exception& e) {
    std::fprintf(stderr, "%s\n", e.what());
    return 1;
}
