#include "session/program_folder.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <system_error>

#include "platform/atomic_file.h"
#include "platform/paths.h"
#include "platform/temporary_name.h"

namespace quillmark {

namespace fs = std::filesystem;

namespace {

constexpr std::array<std::string_view, 5> kOfficeFiles = {"DBasePath.txt", "defaults.fld", "package.def",
                                                          "parapro.dir", "mdispec.ini"};

bool Exists(const fs::path& path) {
    std::error_code unreachable;
    return fs::exists(FindExisting(path), unreachable);
}

/// Tried and not asked for: rights come from more than the folder's mode (lists, read-only disks, root).
bool IsWritable(const fs::path& folder) {
    const fs::path probe = folder / TemporaryName();
    try {
        ReplaceFile(probe, "");
    } catch (const FileError&) {
        return false;
    }
    std::error_code gone;
    fs::remove(probe, gone);
    return true;
}

}  // namespace

bool HoldsOffice(const fs::path& folder) {
    return std::any_of(kOfficeFiles.begin(), kOfficeFiles.end(),
                       [&](std::string_view name) { return Exists(folder / PathOf(name)); });
}

fs::path DefaultProgramFolder(const fs::path& current, const fs::path& programFile, Shell& shell) {
    if (HoldsOffice(current) && IsWritable(current)) return current;
    const fs::path own = programFile.parent_path();
    const bool carried = !own.empty() && (HoldsOffice(own) || Exists(own / "data"));
    if (carried && IsWritable(own)) return own;
    return shell.FolderOf(SpecialFolder::LocalApplication) / "Quillmark";
}

}  // namespace quillmark
