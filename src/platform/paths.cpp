#include "platform/paths.h"

#include <algorithm>
#include <optional>
#include <string>

#include "platform/code_page.h"

namespace quillmark {
namespace fs = std::filesystem;
namespace {

/// The entry of the folder that is named so but for case; the first in order if there are several.
std::optional<fs::path> EntryIgnoringCase(const fs::path& folder, const fs::path& name) {
    const std::string wanted = UpperCase(TextOf(name));
    std::optional<fs::path> found;
    std::error_code error;
    for (fs::directory_iterator it(folder, error), end; !error && it != end; it.increment(error)) {
        const fs::path entry = it->path().filename();
        if (UpperCase(TextOf(entry)) == wanted && (!found || entry < *found)) found = entry;
    }
    return found;
}

bool Exists(const fs::path& path) {
    std::error_code error;
    return fs::exists(fs::symlink_status(path, error));
}

}  // namespace

fs::path PathOf(std::string_view utf8) {
    return fs::path(std::u8string(utf8.begin(), utf8.end()));
}

std::string TextOf(const fs::path& path) {
    const std::u8string text = path.u8string();
    return std::string(text.begin(), text.end());
}

fs::path PathOfStored(std::string_view stored, const fs::path& base) {
    std::string text(stored);
    std::replace(text.begin(), text.end(), '\\', '/');
    fs::path path = (base / PathOf(text)).lexically_normal();
    if (!path.has_filename() && path.has_relative_path()) path = path.parent_path();
    return FindExisting(path.make_preferred());
}

std::string StoredTextOf(const fs::path& path) {
    const std::u8string generic = path.generic_u8string();
    std::string text(generic.begin(), generic.end());
    std::replace(text.begin(), text.end(), '/', '\\');
    return text;
}

fs::path FindExisting(const fs::path& path) {
    if (!path.has_relative_path() || Exists(path)) return path;
    const fs::path folder = FindExisting(path.parent_path());
    const fs::path name = path.filename();
    if (Exists(folder / name)) return folder / name;
    const auto entry = EntryIgnoringCase(folder.empty() ? fs::path(".") : folder, name);
    return folder / entry.value_or(name);
}

}  // namespace quillmark
