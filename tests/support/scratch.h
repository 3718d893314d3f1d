#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace quillmark::test {

/// A folder of its own below the system's temporary folder, gone with the object.
class ScratchFolder {
 public:
    ScratchFolder();
    ~ScratchFolder();
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    const std::filesystem::path& path() const { return path_; }
    /// The folder stays when the object goes.
    void Leave() { path_.clear(); }
    std::filesystem::path operator/(std::string_view name) const { return path_ / name; }

 private:
    std::filesystem::path path_;
};

/// The folder of this project's sources, where goldens, samples and tables of cases lie.
const std::filesystem::path& SourceFolder();

std::string ReadBytes(const std::filesystem::path& file);
void WriteBytes(const std::filesystem::path& file, std::string_view bytes);

/// Compares a text with tests/goldens/NAME and fails with both where they differ. With the environment
/// variable QUILLMARK_RENEW_GOLDENS set, writes the golden instead.
void ExpectGolden(std::string_view name, std::string_view actual);

}  // namespace quillmark::test
