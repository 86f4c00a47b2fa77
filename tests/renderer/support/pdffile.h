#pragma once

#include "tests/renderer/support/testscene.h"
#include "tests/support/temporaryfile.h"

#include <array>
#include <cstdio>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <unistd.h>
#include <utility>
#include <vector>

namespace vxrenderer {

/// A PDF file as another program reads it.
class PdfFile {
public:
    explicit PdfFile(const std::vector<std::uint8_t>& bytes) : m_file(std::string(bytes.begin(), bytes.end())) {}

    /// The page in pixels.
    Picture page(int dpi) const
    {
        const std::string ppm = output("pdftoppm -r " + std::to_string(dpi));
        Picture picture;
        int used = 0;
        if (std::sscanf(ppm.c_str(), "P6 %d %d 255%n", &picture.width, &picture.height, &used) != 2) {
            throw std::runtime_error("no page");
        }
        const std::string_view pixels = std::string_view(ppm).substr(static_cast<std::size_t>(used) + 1);
        for (std::size_t i = 0; i + 2 < pixels.size(); i += 3) {
            picture.bytes.insert(picture.bytes.end(),
                                 {static_cast<std::uint8_t>(pixels[i]), static_cast<std::uint8_t>(pixels[i + 1]),
                                  static_cast<std::uint8_t>(pixels[i + 2]), 255});
        }
        return picture;
    }
    std::string text() const { return output("pdftotext", " -"); }
    /// What the file says about itself, such as its title and the size of its page in points.
    std::string info() const { return output("pdfinfo"); }
    /// A line for each image, and two before the first one.
    std::string images() const { return output("pdfimages -list"); }

private:
    std::string output(const std::string& program, const std::string& last = "") const
    {
        std::string path = m_file.path();
        path.replace(path.find("self"), 4, std::to_string(getpid()));
        const std::string command = program + " " + path + last;
        const auto close = [](std::FILE* pipe) { static_cast<void>(pclose(pipe)); };
        const std::unique_ptr<std::FILE, decltype(close)> pipe(popen(command.c_str(), "r"), close);
        std::string result;
        std::array<char, 4096> part{};
        for (std::size_t size = 1; pipe && size > 0;) {
            size = std::fread(part.data(), 1, part.size(), pipe.get());
            result.append(part.data(), size);
        }
        return result;
    }

    vxgraphics3d::TemporaryFile m_file;
};

} // namespace vxrenderer
