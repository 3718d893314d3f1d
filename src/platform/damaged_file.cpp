#include "platform/damaged_file.h"

#include <string>

#include "platform/atomic_file.h"
#include "platform/files.h"

namespace quillmark {

namespace fs = std::filesystem;

namespace {

fs::path NameFor(const fs::path& file, int n) {
    fs::path name = file;
    name += n == 1 ? ".damaged" : ".damaged (" + std::to_string(n) + ")";
    return name;
}

}  // namespace

fs::path SetAside(const fs::path& file) {
    for (int n = 1;; ++n) {
        const fs::path name = NameFor(file, n);
        if (RenameUnlessTaken(file, name)) return name;
    }
}

fs::path KeepDamagedCopy(const fs::path& file, std::string_view bytes) {
    for (int n = 1;; ++n) {
        const fs::path name = NameFor(file, n);
        if (!ClaimName(name)) continue;
        ReplaceFile(name, bytes);
        return name;
    }
}

}  // namespace quillmark
