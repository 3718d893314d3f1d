#pragma once

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <string>

namespace quillmark::fuzz {

/// A folder in memory where there is one, for readers that take a file. It goes with the program.
class ScratchFolder {
 public:
    ScratchFolder() {
        const std::filesystem::path memory = "/dev/shm";
        const bool hasMemory = std::filesystem::is_directory(memory);
        path_ = (hasMemory ? memory : std::filesystem::temp_directory_path()) /
                ("quillmark-fuzz-" + std::to_string(::getpid()));
        std::filesystem::create_directories(path_);
    }
    ~ScratchFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    const std::filesystem::path& path() const { return path_; }
    std::filesystem::path Put(const char* name, const std::uint8_t* data, std::size_t size) const {
        std::ofstream out(path_ / name, std::ios::binary | std::ios::trunc);
        out.write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
        return path_ / name;
    }

 private:
    std::filesystem::path path_;
};

}  // namespace quillmark::fuzz
