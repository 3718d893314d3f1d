#include "production/kit/pictures.h"

#include <algorithm>
#include <string>

#include "platform/atomic_file.h"
#include "platform/paths.h"
#include "platform/scratch_file.h"

namespace quillmark {
namespace {

/// Calls `add` with the name of a file that holds the picture.
template <class Add>
void WithFileOf(std::string_view picture, Add add) {
    const auto sources = PictureSources();
    const auto source = std::ranges::find(sources, picture, &PictureSource::file);
    if (source == sources.end())
        throw word::AutomationError(word::error::kNoSuchPicture, "No such picture: " + std::string(picture));
    try {
        const ScratchFile file(PathOf(picture).filename(), source->bytes);
        add(TextOf(file.path()));
    } catch (const FileError& failure) {
        throw word::AutomationError(word::error::kNoSuchPicture, failure.what());
    }
}

}  // namespace

void AddPicture(Typist& type, std::string_view file) {
    WithFileOf(file, [&](const std::string& name) { type.WordSel.InlineShapes.AddPicture(name); });
}

void AddPicture(Typist& type, std::string_view file, const word::Cell& cell) {
    WithFileOf(file,
               [&](const std::string& name) { type.WordSel.InlineShapes.AddPicture(name, cell.Range); });
}

}  // namespace quillmark
