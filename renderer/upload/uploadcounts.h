#pragma once

namespace vxrenderer {

/// How often data were handed to the graphics hardware since the renderer was made: what a change has cost.
struct UploadCounts {
    /// Meshes, lines and instances.
    int meshes = 0;
    int colorTables = 0;
    int glyphPictures = 0;
    /// Tables of the looks of parts, which marks change.
    int partTables = 0;
    /// Images of materials and icons.
    int images = 0;

    bool operator==(const UploadCounts&) const = default;
};

} // namespace vxrenderer
