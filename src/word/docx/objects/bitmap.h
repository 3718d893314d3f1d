#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace quillmark::word::docx::objects {

/// The PNG file that looks as the Windows bitmap does, smaller by far: the same pixels, resolution and
/// palette, without loss; what a bitmap may say of transparency is left out, as viewers of bitmaps do. Unset
/// for what is taken as it is: run-length packed bitmaps, those with the oldest header, of more than 200
/// million pixels, and files that end before their picture does.
std::optional<std::string> PngOfBitmap(std::string_view bytes);

}  // namespace quillmark::word::docx::objects
