#pragma once

#include <filesystem>
#include <string_view>

namespace quillmark {

/// Bytes that another program wants as a file of a certain name: a file in a folder of its own below the
/// system's folder for temporary files, gone with this object.
class ScratchFile {
 public:
    /// Throws FileError (atomic_file.h) when it cannot be written.
    ScratchFile(const std::filesystem::path& name, std::string_view bytes);
    ~ScratchFile();
    ScratchFile(const ScratchFile&) = delete;
    ScratchFile& operator=(const ScratchFile&) = delete;

    const std::filesystem::path& path() const { return path_; }

 private:
    void Remove();

    std::filesystem::path folder_;  ///< empty until it is there
    std::filesystem::path path_;
};

}  // namespace quillmark
