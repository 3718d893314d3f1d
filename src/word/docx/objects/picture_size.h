#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace quillmark::word::docx::objects {

/// What a picture file says of itself.
struct PictureSize {
    std::string extension;  ///< "png", "jpeg" or "bmp", by the content and not by a name
    int width = 0;          ///< pixels
    int height = 0;
    double dotsPerInchX = 96.0;  ///< 96 where the file does not say
    double dotsPerInchY = 96.0;
    std::string description = {};  ///< for those who cannot see it, UTF-8; a PNG's text "Description"

    /// The natural size in EMU (914,400 to the inch), at least 1.
    std::int64_t WidthEmu() const;
    std::int64_t HeightEmu() const;
};

/// Reads the size of a PNG, JPEG or BMP picture. Throws AutomationError kFileDamaged, with a sentence that
/// names the kind of picture, for any other kind and for a file that ends before its picture does.
PictureSize ReadPictureSize(std::string_view bytes);

}  // namespace quillmark::word::docx::objects
