#pragma once

#include <span>
#include <string_view>

#include "production/kit/typing.h"

/// Pictures that belong to a document, drawn for it and kept beside its builder: the drawing as .svg, and as
/// the .png that scripts/make-pictures renders from it and the build embeds.
namespace quillmark {

struct PictureSource {
    std::string_view file;   ///< below `production/builders`, such as "notices/fair_housing.png"
    std::string_view bytes;  ///< the PNG, with its resolution and a description for those who cannot see it
};

/// All embedded pictures in the order of their names.
std::span<const PictureSource> PictureSources();

/// Puts the picture in, at the insertion point or in an empty cell. The word processor takes a picture from a
/// file alone, so the bytes stand in a file of their own in the system's folder for temporary ones as long as
/// the operation lasts. Throws word::AutomationError, also when that file cannot be written.
void AddPicture(Typist& type, std::string_view file);
void AddPicture(Typist& type, std::string_view file, const word::Cell& cell);

}  // namespace quillmark
